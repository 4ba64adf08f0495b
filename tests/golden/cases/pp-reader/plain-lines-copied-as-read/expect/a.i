
#line 1 "a.yc"


int a = 1;
int b = 7;
   x = y +
   7;
char *s = "onez"
   ;
char *t = "twothree"
   ;
   int u = 1    + 2;

   int v = 3;
int w = 4;
   int k = 5;
 int tab = 6;
     int d = 7;
   int e = 18;
int f = 8;
