#ifdef X
int b;

