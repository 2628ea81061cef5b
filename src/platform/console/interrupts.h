// Ctrl+C as a flag: it abandons an evaluation or the line being typed, not the program.
#pragma once

namespace zephyl {

// From now on Ctrl+C sets the flag.
void catch_interrupts();
// From now on it ends the program again.
void release_interrupts();

bool interrupted();
void clear_interrupt();

}  // namespace zephyl
