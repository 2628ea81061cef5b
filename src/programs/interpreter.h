// One statement at a time through the program in memory. Nothing waits in here: a program that asks for an
// answer is simply not stepped until it has come.
#pragma once

namespace zephyl {

// Begins with the first statement of the program in memory, from the keypad.
void start_run();
// The first statement of a function that is called from an expression; its level, part and frame are there
// already.
void start_function_run();

// Runs one statement. True to go on.
bool step();

// Ends the run of the keypad, or the outermost function; nothing for a function within another or in a
// program. show: an error is to be shown.
void stop_run(bool show);

// The result line of a running program. text: in small text.
void show_program_text(const char* text);

}  // namespace zephyl
