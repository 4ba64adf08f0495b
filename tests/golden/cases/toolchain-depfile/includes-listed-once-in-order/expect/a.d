a.c: a.yc sizes.h sub/pair.h sub/inner.h inc/my\ lib.h odd$$\#name.h
