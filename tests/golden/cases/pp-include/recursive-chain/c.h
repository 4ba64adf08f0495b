
#include "b.h"
