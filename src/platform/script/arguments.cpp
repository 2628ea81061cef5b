#include "platform/script/arguments.h"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdlib>

namespace zephyl {

namespace {

constexpr const char* BLANKS = " \t\r\n\f\v";

bool is_blank(char c) { return c == ' ' || c == '\t'; }

struct TEscape {
  char letter;
  std::uint16_t character;
};
constexpr TEscape ESCAPES[] = {{'r', 13}, {'b', 8}, {'e', 27}, {'s', ' '}, {'\\', '\\'}};

bool read_escape(char letter, std::vector<std::uint16_t>& characters) {
  for (const TEscape& escape : ESCAPES) {
    if (escape.letter != letter) continue;
    characters.push_back(escape.character);
    return true;
  }
  return false;
}

// Bytes that follow the first one of a character; -1 for a byte that can't begin one.
int following_bytes(unsigned char first) {
  if (first < 0x80) return 0;
  if (first >= 0xC2 && first < 0xE0) return 1;
  if (first >= 0xE0 && first < 0xF0) return 2;
  if (first >= 0xF0 && first < 0xF5) return 3;
  return -1;
}

void push_code_point(std::uint32_t code, std::vector<std::uint16_t>& characters) {
  if (code < 0x10000) {
    characters.push_back(static_cast<std::uint16_t>(code));
    return;
  }
  code -= 0x10000;
  characters.push_back(static_cast<std::uint16_t>(0xD800 + (code >> 10)));
  characters.push_back(static_cast<std::uint16_t>(0xDC00 + (code & 0x3FF)));
}

// The character that begins at `at`, which moves behind it.
bool read_utf8(const std::string& text, std::size_t& at, std::vector<std::uint16_t>& characters) {
  const auto first = static_cast<unsigned char>(text[at++]);
  const int following = following_bytes(first);
  if (following < 0) return false;
  std::uint32_t code = following == 0 ? first : first & (0x3Fu >> following);
  for (int i = 0; i < following; ++i, ++at) {
    if (at >= text.size() || (static_cast<unsigned char>(text[at]) & 0xC0) != 0x80) return false;
    code = code << 6 | (static_cast<unsigned char>(text[at]) & 0x3Fu);
  }
  push_code_point(code, characters);
  return true;
}

// Reads up to the closing quote, and moves behind it.
bool read_quoted(const std::string& text, std::size_t& at, std::string& name) {
  for (at = 1; at < text.size() && text[at] != '"'; ++at) {
    const bool escape =
        text[at] == '\\' && at + 1 < text.size() && (text[at + 1] == '"' || text[at + 1] == '\\');
    name += text[escape ? ++at : at];
  }
  return at++ < text.size();
}

}  // namespace

std::string trimmed(const std::string& text) {
  const std::size_t first = text.find_first_not_of(BLANKS);
  if (first == std::string::npos) return "";
  return text.substr(first, text.find_last_not_of(BLANKS) - first + 1);
}

bool read_integers(const std::string& text, std::vector<std::int64_t>& numbers) {
  const char* at = text.c_str();
  for (;;) {
    while (is_blank(*at)) ++at;
    if (!*at) return true;
    char* end = nullptr;
    errno = 0;
    const long long number = std::strtoll(at, &end, 10);
    if (end == at || errno == ERANGE || (*end && !is_blank(*end))) return false;
    numbers.push_back(number);
    at = end;
  }
}

bool read_integer(const std::string& text, std::int64_t low, std::int64_t high, std::int64_t& number) {
  std::vector<std::int64_t> numbers;
  if (!read_integers(text, numbers) || numbers.size() != 1) return false;
  number = numbers[0];
  return number >= low && number <= high;
}

bool read_point(const std::string& text, int& x, int& y) {
  std::vector<std::int64_t> numbers;
  if (!read_integers(text, numbers) || numbers.size() != 2) return false;
  for (const std::int64_t number : numbers)
    if (number < INT_MIN || number > INT_MAX) return false;
  x = static_cast<int>(numbers[0]);
  y = static_cast<int>(numbers[1]);
  return true;
}

bool read_name(const std::string& text, std::string& name, std::string& rest) {
  name.clear();
  if (text.empty()) return false;
  std::size_t at = std::min(text.find_first_of(" \t"), text.size());
  if (text[0] != '"')
    name = text.substr(0, at);
  else if (!read_quoted(text, at, name) || (at < text.size() && !is_blank(text[at])))
    return false;
  rest = trimmed(text.substr(at));
  return true;
}

std::string with_line_ends(const std::string& text) {
  std::string result;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char next = text[i] == '\\' && i + 1 < text.size() ? text[i + 1] : '\0';
    if (next == 'n' || next == '\\')
      ++i, result += next == 'n' ? '\n' : '\\';
    else
      result += text[i];
  }
  return result;
}

bool read_characters(const std::string& text, std::vector<std::uint16_t>& characters) {
  for (std::size_t at = 0; at < text.size();) {
    if (text[at] != '\\') {
      if (!read_utf8(text, at, characters)) return false;
      continue;
    }
    if (at + 1 >= text.size() || !read_escape(text[at + 1], characters)) return false;
    at += 2;
  }
  return true;
}

}  // namespace zephyl
