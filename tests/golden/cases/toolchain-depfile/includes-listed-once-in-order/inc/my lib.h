#define LIB 4
