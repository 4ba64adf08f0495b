/* Code from an include file: its references name this file. */
fill(int var v[], int n);
fill(int var v[], int n)
{
   int i;
   for (i = 0; i < n; i++)
      v[i] = i;
}
