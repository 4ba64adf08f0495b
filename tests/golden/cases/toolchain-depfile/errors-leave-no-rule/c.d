c.c: c.yc stale.h
