// The text form of expressions: text to tokens, by longest match from left to right. Listings (token_text)
// are its inverse.
//
// What is open to choice, and chosen:
// - Decimals are always written with "." and arguments separated by ",", whatever decimalMark says.
// - The name of a custom function is letters, digits and underscores, beginning with a letter, 25 at most.
//   A whole operand or operation in front of "(" is no name: "x(3)", "R1(3)", "pi(3)", "AND(3)"; letters that
//   run together are one: "xsin(3)".
// - Statistics values read without parentheses too, as listings show them: "xMean". "xMin" is the statistic
//   then.
// - "->" takes the whole name behind it: "->foo" is an error, not a store into f.
// - "^T" is the transpose unless a word or a call begins at the T: "2^Trunc(3)".
// - A string holds the characters 32 to 131, those that tokens have.
// - In BASE_MODE the letters A to F are digits behind a digit, where the suffix h closes them, and everywhere
//   in hexadecimal; "->A" still stores into the memory. The suffixes d, h, b and o stand straight behind
//   digits. No name or longer word may begin there: "5or3" is an operation.
//
// What a listing loses: stores (" > A" reads as a comparison), calls without arguments (listed like those
// with), hidden parentheses, and neighbours that run together to another word: memory e and a power, memory d
// in parentheses.
#pragma once

#include "engine/expression.h"

namespace zephyl {

// Reads all of `text`. On success true, with the tokens in `out`. Otherwise false, and `out` is untouched;
// `error` holds "cannot read 'TEXT' at column N" or, past EXPRESSION_LIMIT tokens, "Reached expression size
// limit". TEXT is the unread text up to a blank, 20 bytes at most; N counts characters of UTF-8 from 1.
bool text_to_tokens(const char* text, TExpression& out, char* error, int error_size);

}  // namespace zephyl
