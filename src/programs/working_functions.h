// f1() to f9() while a program runs: the function slots are its working copies then, and what was stored is
// put away.
#pragma once

namespace zephyl {

constexpr int WORKING_FUNCTION_COUNT = 9;

// At the start of a run: puts the stored functions away. Nothing if they are already.
void take_working_functions();
// At its end: the stored functions are there again.
void drop_working_functions();
// What was put away is void.
void forget_working_functions();

}  // namespace zephyl
