// Texts in buffers of a fixed size. What doesn't fit is refused as a whole, with a message to whoever looks
// for the fault.
#pragma once

#include <cstddef>

namespace zephyl {

// Copies a text into a buffer of `capacity` bytes. A text of that length or more leaves the buffer empty,
// shows "Dest length is shorter than source length (CAPACITY <= LENGTH)" under "strcpy problem" and gives
// false.
bool bounded_copy(char* to, std::size_t capacity, const char* from);
// Adds to the text in the buffer; the length is that of both together, the title "strcat problem".
bool bounded_append(char* to, std::size_t capacity, const char* from);

}  // namespace zephyl
