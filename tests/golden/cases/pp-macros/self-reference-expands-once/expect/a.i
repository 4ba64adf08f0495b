
#line 1 "a.yc"




int v = foo + 1;
int w = a + b;
int y = f(3) * 2;
