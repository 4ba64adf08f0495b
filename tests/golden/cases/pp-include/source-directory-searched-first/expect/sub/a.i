
#line 1 "sub/a.yc"

#line 1 "sub/b.h"
int sub_b;

#line 1 "sub/a.yc"

