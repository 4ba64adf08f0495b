/* Read by words.yc alone. */
#define SEPARATOR ' '
