// What the rest of the calculator asks of programs: the key path, the main loop, the screens, start and stop.
#pragma once

namespace zephyl {

// At start-up: the hooks of the engine that programs answer.
void register_programs();
// No program in memory, none running, an empty input buffer, caches and dialogs as at the very start.
void reset_programs();

// --- The main loop and the keys

// One round with an empty queue: runs one statement. True if there is more to do at once; false where no
// program runs or it waits (for an answer, a key, the end of a drag).
bool program_tick();

// The run key: stops the program that runs, or runs the one under edit, or asks which to run. Also for the
// run key that ends a pause: call it before `end_pause`.
void run_key_pressed();
// Any other key that ends the pause of an `out` statement.
void end_pause();
// The run key shows its stop side.
bool program_can_be_stopped();

// --- What screens show

// The text that an `out` statement left in the place of the entry line; empty where the entry line itself
// shows.
const char* program_prompt_line();
// The window's title while a program runs, or in program edit; null where it is the usual one.
const char* program_title();

// --- The program in memory

// Writes it to its file if it has a name and is none of the built-in ones. False, with a box that says so, if
// the file could not be written; it is then as it was. True also where there was nothing to write.
bool save_program();

}  // namespace zephyl
