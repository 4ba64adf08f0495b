#include "c.h"
