// The heap of one run of ycc.
#pragma once

namespace ycc {

// A run fills some megabytes of memory once and frees little of it: taking
// it in large pages saves most of the page faults (a few percent of a large
// translation). Does nothing where that cannot be asked.
void prepare_heap();

}  // namespace ycc
