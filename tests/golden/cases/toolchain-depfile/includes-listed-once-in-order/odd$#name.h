#define ODD 5
