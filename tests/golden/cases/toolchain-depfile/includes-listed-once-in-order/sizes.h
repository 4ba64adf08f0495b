#define SIZE 1
