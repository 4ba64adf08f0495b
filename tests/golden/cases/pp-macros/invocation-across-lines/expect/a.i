
#line 1 "a.yc"


int x = [1|2]
 + 1;
int y = [3|4]
;
int z = [5|6]
;
int n = f;
f(1,
,2)
f(1,
2,3)
f(1
)
g(
x)
