
#line 1 "a.yc"
int a;
#line 1 "b.h"
#pragma extern_on
int b;
#line 1 "c.h"
int c;

#line 2 "b.h"

int b2;

#pragma extern_off

#line 2 "a.yc"

int after;
#line 1 "plain.h"
int plain;

#line 4 "a.yc"

