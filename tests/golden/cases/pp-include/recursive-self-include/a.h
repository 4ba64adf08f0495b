int x;
#include "a.h"
