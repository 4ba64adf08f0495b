
#line 1 "a.yc"

int l1 = 2;
char *f = "a.yc";
int l2 = 4;
#line 1 "b.h"
char *bf = "b.h"; int bl = 1;

#line 5 "a.yc"

int l3 =   6;
