
#line 1 "a.yc"



int b;

int c;

int d;

int after;
