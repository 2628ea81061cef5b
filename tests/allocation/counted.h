// Counts what is asked of the heap: by operator new anywhere in the test program, by malloc, calloc and
// realloc in the calculator's own code.
#pragma once

#include <cstddef>

namespace zephyl {

// Since the start of the program.
std::size_t heap_requests();

}  // namespace zephyl
