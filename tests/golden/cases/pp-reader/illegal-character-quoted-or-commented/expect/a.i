
#line 1 "a.yc"
char *s = "$@`";
