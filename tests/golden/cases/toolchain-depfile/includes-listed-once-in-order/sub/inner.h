#define INNER 3
