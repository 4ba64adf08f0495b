
#line 1 "a.yc"

