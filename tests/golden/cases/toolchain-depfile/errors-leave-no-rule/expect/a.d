a.c: a.yc a.h
