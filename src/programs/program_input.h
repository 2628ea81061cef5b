// Prompts: what an `in` or `in f()` statement asks for, and how the answer gets to its variable. The
// expressions answered last are kept for each variable, from run to run.
#pragma once

namespace zephyl {

struct TExpression;

// The expression last answered for a memory slot, 0 to 129.
const TExpression& last_answer(int slot);
// True if any is kept.
bool has_last_answers();
void clear_last_answers();

// Puts the question for a variable, or for function 0 to 8, with an expression to begin with on the entry
// line.
void ask_for_variable(const char* question, int slot);
void ask_for_function(const char* question, int function);

// The evaluate key at the prompt of a variable: keeps the line's expression as the last answer.
void keep_last_answer();
// The value has arrived in the answers: it goes into the variable and the run goes on. Reports ERR_DATA_TYPE
// for a value of another type and ERR_UNEXPECTED for a slot that holds nothing; the prompt stays then.
void take_answer();
// The evaluate key at the prompt of a function, with a line that isn't empty: the line becomes the working
// copy.
void take_function_answer();

}  // namespace zephyl
