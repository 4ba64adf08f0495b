
#line 1 "a.yc"








int b;



int d;

int file;


int def;
