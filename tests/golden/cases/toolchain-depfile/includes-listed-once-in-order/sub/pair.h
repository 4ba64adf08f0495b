#include "sub/inner.h"
#define PAIR 2
