
#line 1 "a.yc"


int  a = 1;
char *s = "onetwothree" 
          ;
char *p = "a /* not a comment */ b";
int b = 1 +         2;

   int   c;
char q = 'x';
int last
