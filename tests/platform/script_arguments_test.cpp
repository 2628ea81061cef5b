#include <gtest/gtest.h>

#include "platform/script/arguments.h"
#include "platform/script/commands.h"

namespace zephyl {
namespace {

using TNumbers = std::vector<std::int64_t>;
using TCharacters = std::vector<std::uint16_t>;

TNumbers integers_of(const std::string& text) {
  TNumbers numbers;
  EXPECT_TRUE(read_integers(text, numbers)) << text;
  return numbers;
}

bool reads_integers(const std::string& text) {
  TNumbers numbers;
  return read_integers(text, numbers);
}

TCharacters characters_of(const std::string& text) {
  TCharacters characters;
  EXPECT_TRUE(read_characters(text, characters)) << text;
  return characters;
}

bool reads_characters(const std::string& text) {
  TCharacters characters;
  return read_characters(text, characters);
}

TEST(script_arguments, reads_integers_between_blanks) {
  EXPECT_EQ(integers_of("1 22\t-3"), (TNumbers{1, 22, -3}));
  EXPECT_EQ(integers_of("  7  "), (TNumbers{7}));
  EXPECT_EQ(integers_of(""), TNumbers{});
}

TEST(script_arguments, refuses_what_is_no_integer) {
  EXPECT_FALSE(reads_integers("1 two"));
  EXPECT_FALSE(reads_integers("1.5"));
  EXPECT_FALSE(reads_integers("12,13"));
  EXPECT_FALSE(reads_integers("99999999999999999999"));
}

TEST(script_arguments, one_integer_must_be_alone_and_within_its_bounds) {
  std::int64_t number = -1;
  EXPECT_TRUE(read_integer("10", 0, 10, number));
  EXPECT_EQ(number, 10);
  EXPECT_FALSE(read_integer("11", 0, 10, number));
  EXPECT_FALSE(read_integer("-1", 0, 10, number));
  EXPECT_FALSE(read_integer("", 0, 10, number));
  EXPECT_FALSE(read_integer("1 2", 0, 10, number));
}

TEST(script_arguments, a_point_is_two_integers) {
  int x = 0, y = 0;
  EXPECT_TRUE(read_point("12 -34", x, y));
  EXPECT_EQ(x, 12);
  EXPECT_EQ(y, -34);
  EXPECT_FALSE(read_point("12", x, y));
  EXPECT_FALSE(read_point("1 2 3", x, y));
  EXPECT_FALSE(read_point("3000000000 1", x, y));
}

TEST(script_arguments, characters_stand_for_themselves_but_for_the_escapes) {
  EXPECT_EQ(characters_of("2+ x"), (TCharacters{'2', '+', ' ', 'x'}));
  EXPECT_EQ(characters_of("\\r\\b\\e\\s\\\\"), (TCharacters{13, 8, 27, ' ', '\\'}));
}

TEST(script_arguments, characters_are_utf_8) {
  EXPECT_EQ(characters_of("\xC3\xA9"), (TCharacters{0xE9}));
  EXPECT_EQ(characters_of("\xE2\x82\xAC"), (TCharacters{0x20AC}));
  EXPECT_EQ(characters_of("\xF0\x9F\x98\x80"), (TCharacters{0xD83D, 0xDE00}));
}

TEST(script_arguments, refuses_unknown_escapes_and_broken_characters) {
  EXPECT_FALSE(reads_characters("\\n"));
  EXPECT_FALSE(reads_characters("abc\\"));
  EXPECT_FALSE(reads_characters("\xC3"));
  EXPECT_FALSE(reads_characters("\xC3z"));
  EXPECT_FALSE(reads_characters("\xFF"));
}

TEST(script_arguments, trims_blanks_and_line_ends) {
  EXPECT_EQ(trimmed(" \t eval  2 \r\n"), "eval  2");
  EXPECT_EQ(trimmed(" \t "), "");
}

TEST(script_commands, are_found_by_their_exact_name) {
  ASSERT_NE(find_command("eval"), nullptr);
  EXPECT_STREQ(find_command("eval")->name, "eval");
  EXPECT_EQ(find_command("Eval"), nullptr);
  EXPECT_EQ(find_command("eva"), nullptr);
  EXPECT_EQ(find_command(""), nullptr);
}

TEST(script_commands, all_of_the_language_are_there) {
  for (const char* name : {"folder",  "tap",    "down",     "move",   "up",     "key",    "char",   "arrow",
                           "idle",    "run",    "advance",  "quit",   "enter",  "insert", "tokens", "eval",
                           "result",  "entry",  "codes",    "cursor", "error",  "ans",    "value",  "list",
                           "matrix",  "string", "variable", "stat",   "mode",   "title",  "shifts", "program",
                           "message", "answer", "file",     "sounds", "dialog", "choose", "set",    "check",
                           "press",   "close",  "pixel",    "plot",   "png",    "hash"})
    EXPECT_NE(find_command(name), nullptr) << name;
}

TEST(script_commands, only_the_folder_comes_before_the_start) {
  EXPECT_TRUE(find_command("folder")->when & BEFORE_START);
  EXPECT_FALSE(find_command("error")->when & BEFORE_START);
}

}  // namespace
}  // namespace zephyl
