#include <iostream>
#include <string>
#include <vector>

#include "driver/driver.h"
#include "driver/heap.h"

int main(int argc, char** argv) {
  ycc::prepare_heap();
  std::ios::sync_with_stdio(false);
  std::vector<std::string> args(argv, argv + argc);
  int status = ycc::run_compiler(args, std::cout, std::cerr);
  std::cout.flush();
  return status;
}
