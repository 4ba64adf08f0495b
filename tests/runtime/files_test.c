#include "check.h"
void test_files(void) { CHECK(1, "placeholder"); }
