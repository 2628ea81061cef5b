// How a program that somebody has chosen comes into memory, to be run, edited or copied.
#pragma once

namespace zephyl {

struct TProgramChoice;

// Loads it. False where it can't be read: a box has said so, and the program in memory is the one that was
// there, with all that is open in it. The error of a program of a later release stands then.
bool open_program(const TProgramChoice& choice);

}  // namespace zephyl
