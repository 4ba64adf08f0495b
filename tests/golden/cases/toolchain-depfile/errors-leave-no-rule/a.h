#define A 1
