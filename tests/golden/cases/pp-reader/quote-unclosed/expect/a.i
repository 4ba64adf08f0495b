
#line 1 "a.yc"
char *s = "abc;
char c = 'x;
char *t = "continued";
