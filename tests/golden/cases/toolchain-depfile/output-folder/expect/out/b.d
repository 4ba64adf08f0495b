out/b.c: sub/b.yc sub/b.h
