// The text form of expressions: text to tokens, by longest match from left to right. Listings (token_text) are its inverse.
#pragma once

#include "engine/expression.h"

namespace zephyl {

// Reads all of `text`. On success true, with the tokens in `out`. Otherwise false, with the message
// "cannot read 'TEXT' at column N" in `error` (N from 1) or, past EXPRESSION_LIMIT tokens, the reason;
// `out` is untouched then.
bool text_to_tokens(const char* text, TExpression& out, char* error, int error_size);

}  // namespace zephyl
