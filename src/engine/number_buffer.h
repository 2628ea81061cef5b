// The number that is being read token by token, and the reading of number texts. Nothing here looks at the
// locale.
#pragma once

namespace zephyl {

constexpr int NUMBER_TEXT_LIMIT = 120;

// The characters of one number; open while it holds any.
struct TNumberBuffer {
  char text[NUMBER_TEXT_LIMIT + 2] = "";
  int length = 0;

  bool open() const { return length > 0; }
};

// Adds a character. False, with ERR_MEMORY_LIMIT reported, if the buffer is full.
bool append_to_number(TNumberBuffer& buffer, char character);

// Closes the buffer and gives its value: in BASE_MODE an integer in the radix of its suffix or of `baseType`,
// cut to `baseBits`; else a decimal, where a leading "e" stands for "1e". False, with the error reported and
// value 0: ERR_SYNTAX for text that is no number, ERR_OVERFLOW for a decimal too large for a double.
bool take_number(TNumberBuffer& buffer, double& value);

// Reads a decimal without a sign from the start of a text: "12", "12.", ".5", "1e-5", "1E5". The value is
// correctly rounded; infinity if it is too large. The first NUMBER_TEXT_LIMIT digits count, further ones read
// as 0. Returns where the number ends, `text` itself if there is none.
const char* read_decimal(const char* text, double& value);

}  // namespace zephyl
