// Programs as functions of expressions.
#pragma once

namespace zephyl {

struct TFuncFrame;

// Runs the function of that name to its end, between two steps of the expression that called it; its value is
// left in the answers. Whatever it changed but made global is as before afterwards, whatever came of it.
// Reports ERR_PROGRAM_NESTING for one function too many within one another, ERR_PROGRAM_NOT_FOUND for a name
// without a program, ERR_PROGRAM_CODE where the program that called can't be read again, and what its
// statements report.
void run_custom_function(const char* name, const TFuncFrame& arguments);

}  // namespace zephyl
