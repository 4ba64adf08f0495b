#include "check.h"
void test_memory(void) { CHECK(1, "placeholder"); }
