#include "check.h"
void test_format(void) { CHECK(1, "placeholder"); }
