// The words of the text form: every text that stands for one token by itself, found by longest match.
#pragma once

#include "engine/expression.h"

namespace zephyl {

// What the longest match at a place found; length 0 for nothing.
struct TWordMatch {
  int length = 0;
  TToken token = 0;
};

// The longest text of a single token that `text` begins with: "sin(", "(alpha)", "[A]", "xMean". Not in it:
// "-", whose token depends on what stands before, string literals, unit conversions and the names of custom
// functions.
TWordMatch match_word(const char* text);

// The longest name that can be stored into, with the token of its store: "x", "alpha", "xMin", "f1(x)",
// "[A]".
TWordMatch match_store_name(const char* text);

// True while the table of the words holds all of them; a test watches its size.
bool words_complete();

}  // namespace zephyl
