// What the first statement of a custom function declares, read without loading the program.
#pragma once

#include <string>

#include "engine/expression.h"
#include "engine/hooks.h"

namespace zephyl {

constexpr int NO_FUNCTION = -1;

// The number of arguments; NO_FUNCTION for a name without a file and for a program that is no function. The
// slots go into `header`, the stored description, if the program has one, into `description` unless that is
// null. An empty name stands for the program in memory.
int read_function_header(const char* name, TFunctionHeader& header, std::string* description = nullptr);

// The file of that name holds a function.
bool is_custom_function(const char* name);

// The token that a call by that name begins with: TOKEN_FUNC1 for a function with arguments, else
// TOKEN_FUNC2.
TToken function_token(const char* name);

// "val, matrix1, matrix2": the arguments in short words, numbered where there are several of a kind; the one
// argument of a function in a long word, "value". Empty without arguments.
std::string arguments_text(const TFunctionHeader& header);

// The slots in the text of a `func(` statement.
void read_argument_slots(const char* text, TFunctionHeader& header);

}  // namespace zephyl
