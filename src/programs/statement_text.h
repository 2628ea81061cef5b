// Statements as the program screen lists them.
#pragma once

#include <string>

namespace zephyl {

// How the names of Greek letters stand in a text: as their word, or as the one glyph of small text.
enum TNameForm { NAMES_IN_WORDS, NAMES_IN_GLYPHS };

// "12: loop A", the text of a statement of the program in memory; empty for an index, from 0, behind the last
// one. An expression stands in it as listings have it.
std::string statement_text(int index, TNameForm form);

// The number and the colon alone, "12: ", where an expression is drawn token by token behind it.
std::string statement_number_text(int index);

}  // namespace zephyl
