b.c: b.yc stale.h
