#include "check.h"
void test_scan(void) { CHECK(1, "placeholder"); }
