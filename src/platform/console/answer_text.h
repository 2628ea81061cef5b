// The answer of an evaluation in full, as a console prints it.
#pragma once

#include <string>

namespace zephyl {

// The standing error's message, or the answer that counts: a number as the result line has it, "{1, 2, 3}"
// over as many lines as it takes, a matrix a row a line with its columns aligned, a string between double
// quotes.
std::string answer_text();

}  // namespace zephyl
