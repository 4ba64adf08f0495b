int b;
#include extern <c.h>
int b2;
