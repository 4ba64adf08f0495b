#define B 2
