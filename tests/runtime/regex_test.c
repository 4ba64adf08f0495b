#include "check.h"
void test_regex(void) { CHECK(1, "placeholder"); }
