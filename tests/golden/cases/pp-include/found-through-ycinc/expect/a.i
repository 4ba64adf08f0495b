
#line 1 "a.yc"

#line 1 "envinc/b.h"
int b;

#line 1 "a.yc"

