/* A function whose statements lie in an include file. */
sum(int v[]) int s
{
   int i;
   s = 0;
   for (i = 0; i < v.occurs; i++)
      s += v[i];
}
