#include "check.h"
void test_math(void) { CHECK(1, "placeholder"); }
