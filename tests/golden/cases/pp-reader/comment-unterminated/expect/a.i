
#line 1 "a.yc"
int a;
