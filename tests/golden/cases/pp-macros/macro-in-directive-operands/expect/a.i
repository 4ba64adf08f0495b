
#line 1 "a.yc"



int six;


int big;
