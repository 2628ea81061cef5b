// The expressions of statements, compiled once and kept, so that a loop does not pay for compiling.
#pragma once

namespace zephyl {

// Runs the stored expression of a statement of the program in memory; the value goes into the answers.
// Nothing happens for an empty one. Reports the errors of compiling and running, and ERR_MEMORY_LIMIT for
// function slots that read one another too deep.
void run_statement_expression(int index);
// The same with the working copy of function 0 to 8, f1() to f9(), for the statement at `index`. An empty one
// is ERR_UNDEFINED_FUNCTION, another number ERR_UNEXPECTED.
void run_function_expression(int index, int function);

// All compiled forms are void.
void forget_statement_expressions();
// The program at that place among the kept ones (loaded_place()) is another one now.
void forget_statement_hints(int place);

}  // namespace zephyl
