
#line 1 "a.yc"
int a;

#line 100
int b;
#line 42 "x.yc"
#pragma pack(1)


int c;
