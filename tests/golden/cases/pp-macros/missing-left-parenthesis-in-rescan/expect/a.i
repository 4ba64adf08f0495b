
#line 1 "a.yc"



int a = f;
int b = f;
int c = (1);
