#include "driver/heap.h"

#include <cstdint>
#include <cstdlib>  // defines __GLIBC__ where it is glibc

#if defined(__linux__) && defined(__GLIBC__) && !defined(__SANITIZE_ADDRESS__)
#define YCC_LARGE_PAGES 1
#include <malloc.h>
#include <sys/mman.h>
#include <unistd.h>
#endif

namespace ycc {

void prepare_heap() {
#ifdef YCC_LARGE_PAGES
  // Every block comes from one heap that grows by 64 MB at a time (address
  // space only) and never shrinks, so freed texts are reused and the heap
  // can be given large pages; the kernel backs with them whole 2 MB pieces.
  constexpr std::size_t large_page = std::size_t{2} << 20;
  mallopt(M_MMAP_THRESHOLD, 256 << 20);
  mallopt(M_TRIM_THRESHOLD, 512 << 20);
  mallopt(M_TOP_PAD, 64 << 20);
  // Larger than the room the heap has yet, so that it grows now.
  void* first = std::malloc(std::size_t{1} << 20);
  if (!first) return;
  auto start = (reinterpret_cast<std::uintptr_t>(first) + large_page - 1) & ~std::uintptr_t{large_page - 1};
  auto end = reinterpret_cast<std::uintptr_t>(sbrk(0)) & ~std::uintptr_t{large_page - 1};
  if (end > start) madvise(reinterpret_cast<void*>(start), end - start, MADV_HUGEPAGE);
  std::free(first);
#endif
}

}  // namespace ycc
