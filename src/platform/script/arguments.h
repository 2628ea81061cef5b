// What stands behind a command's name, as numbers, words and characters.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace zephyl {

// Without blanks, tabs and line ends on both sides.
std::string trimmed(const std::string& text);

// Decimal integers separated by blanks. False if anything else stands there, or one doesn't fit 64 bits.
bool read_integers(const std::string& text, std::vector<std::int64_t>& numbers);

// Exactly one integer, or two, each from low to high.
bool read_integer(const std::string& text, std::int64_t low, std::int64_t high, std::int64_t& number);
bool read_point(const std::string& text, int& x, int& y);

// A name, one word or between double quotes with \" and \\ inside, and what stands behind it, without the
// blanks between. False for no name at all, for a quote that isn't closed or has no blank behind it.
bool read_name(const std::string& text, std::string& name, std::string& rest);

// \n as a line end and \\ as a backslash; any other backslash stands for itself.
std::string with_line_ends(const std::string& text);

// UTF-8 as 16-bit characters, with \r, \b, \e, \s and \\ for Enter, Backspace, Escape, a blank and the
// backslash. False for another letter behind a backslash and for bytes that are no UTF-8.
bool read_characters(const std::string& text, std::vector<std::uint16_t>& characters);

}  // namespace zephyl
