
#line 1 "a.yc"






char *s1 = "hello   world";
char *s2 = "\"quoted\" and 'c' \n";
char *s3 = "VAL";
int var1 = 42;
int xyz;
char *j = "atail" ;
int b = BAD(1);
