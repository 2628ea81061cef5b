// Strings: joins, parts, comparisons, the store, conversions.

#include <string>

#include "engine/errors.h"
#include "engine/hooks.h"
#include "engine/memory.h"
#include "engine/records.h"
#include "engine/state.h"
#include "support/calculator.h"

namespace zephyl {

namespace {

std::string long_text(int length) { return std::string(static_cast<std::size_t>(length), 'x'); }

// What the hooks were told; a store's contents when it was announced.
int announced = -1;
std::string text_when_announced;
int globalized = -1;

void watch_stores() {
  hooks.about_to_store = [](int slot) {
    announced = slot;
    text_when_announced = stores.strings[slot - SLOT_STR1].text;
  };
  hooks.make_global = [](int slot) { globalized = slot; };
}

}  // namespace

class strings : public calculator {
 protected:
  // number: 1 to 9, of str1 to str9.
  void define(int number, const std::string& text) {
    std::snprintf(stores.strings[number - 1].text, sizeof stores.strings[0].text, "%s", text.c_str());
  }
  std::string stored(int number) const { return stores.strings[number - 1].text; }

  // Evaluates an expression with a string as its result; the string whole, or the error's message.
  std::string string(const std::string& text) {
    const std::string result = eval(text);
    if (errors.error_flag) return result;
    return answers.str_ans_valid ? stores.strings[ANSWER_RECORD].text : "not a string: " + result;
  }
};

TEST_F(strings, are_joined) {
  define(1, "Hello, ");
  EXPECT_EQ(string("str1+\"world\""), "Hello, world");
  EXPECT_EQ(string("\"a\"+\"b\"+\"c\""), "abc");
  EXPECT_EQ(string("str1+str1"), "Hello, Hello, ");
  EXPECT_EQ(string("str2+\"b\""), "b");
  EXPECT_EQ(string("str2+str2"), "");
}

TEST_F(strings, joined_stay_below_1000_characters) {
  define(1, long_text(500));
  define(2, long_text(499));
  EXPECT_EQ(string("str1+str1"), "String Size Error");
  EXPECT_EQ(string("str1+str2"), long_text(999));
  EXPECT_EQ(string("str2+str1"), long_text(999));
}

TEST_F(strings, are_compared_byte_by_byte) {
  EXPECT_EQ(eval("\"a\"=\"a\""), "1");
  EXPECT_EQ(eval("\"a\"=\"b\""), "0");
  EXPECT_EQ(eval("\"a\"=\"A\""), "0");
  EXPECT_EQ(eval("\"ab\"=\"a\""), "0");
  EXPECT_EQ(eval("str1=str2"), "1");
}

TEST_F(strings, not_equal_sign_says_whether_they_are_equal) {
  EXPECT_EQ(eval("\"a\"<>\"a\""), "1");
  EXPECT_EQ(eval("\"a\"<>\"b\""), "0");
}

TEST_F(strings, part_from_a_position_on) {
  EXPECT_EQ(string("strSub(\"abc\",2,5)"), "bc");
  EXPECT_EQ(string("strSub(\"abc\",1,2)"), "ab");
  EXPECT_EQ(string("strSub(\"abc\",2,0)"), "");
  EXPECT_EQ(string("strSub(\"abc\",3,1)"), "c");
  EXPECT_EQ(string("strSub(\"abc\",4,1)"), "");
  EXPECT_EQ(string("strSub(\"abc\",1000000000,1000000000)"), "");
  EXPECT_EQ(string("strSub(str1,1,1)"), "");
}

TEST_F(strings, part_with_wrong_numbers_is_refused) {
  for (const char* text : {"strSub(\"abc\",0,1)", "strSub(\"abc\",-1,1)", "strSub(\"abc\",1.5,1)",
                           "strSub(\"abc\",1000000001,1)", "strSub(\"abc\",1,-1)", "strSub(\"abc\",1,0.5)",
                           "strSub(\"abc\",1,1000000001)"})
    EXPECT_EQ(string(text), "Domain Error") << text;
}

TEST_F(strings, length_is_counted) {
  define(1, long_text(1000));
  EXPECT_EQ(eval("strLen(\"abc\")"), "3");
  EXPECT_EQ(eval("strLen(str1)"), "1000");
  EXPECT_EQ(eval("strLen(str2)"), "0");
}

TEST_F(strings, position_of_the_first_occurrence) {
  EXPECT_EQ(eval("strPos(\"abcbc\",\"bc\")"), "2");
  EXPECT_EQ(eval("strPos(\"abc\",\"abc\")"), "1");
  EXPECT_EQ(eval("strPos(\"abc\",\"z\")"), "0");
  EXPECT_EQ(eval("strPos(\"abc\",\"abcd\")"), "0");
}

TEST_F(strings, position_of_and_in_an_empty_one) {
  EXPECT_EQ(eval("strPos(\"abc\",str1)"), "1");
  EXPECT_EQ(eval("strPos(str1,\"abc\")"), "0");
  EXPECT_EQ(eval("strPos(str1,str2)"), "0");
}

TEST_F(strings, are_stored_and_are_the_answer) {
  EXPECT_EQ(string("\"ab\" -> str1"), "ab");
  EXPECT_EQ(stored(1), "ab");
  EXPECT_EQ(string("(str_Ans)+str1"), "abab");
  EXPECT_EQ(string("str1 -> str2 -> str9"), "ab");
  EXPECT_EQ(stored(2), "ab");
  EXPECT_EQ(stored(9), "ab");
  EXPECT_EQ(string("str1 -> str1"), "ab");
}

TEST_F(strings, store_takes_1000_characters) {
  define(1, long_text(1000));
  string("str1 -> str2");
  EXPECT_EQ(stored(2), long_text(1000));
}

TEST_F(strings, are_stored_only_in_string_variables) {
  for (const char* text :
       {"\"ab\" -> B", "\"ab\" -> [A]", "\"ab\" -> {A}", "\"ab\" -> (alpha)", "\"ab\" -> xMin"})
    EXPECT_EQ(string(text), "Data Type Error") << text;
}

TEST_F(strings, variables_take_nothing_else) {
  define(1, "old");
  for (const char* text : {"5 -> str1", "{1,2} -> str1", "Iden(2) -> str1"})
    EXPECT_EQ(string(text), "Data Type Error") << text;
  EXPECT_EQ(stored(1), "old");
}

TEST_F(strings, store_announces_itself_before_it_changes) {
  watch_stores();
  define(3, "old");
  string("\"new\" -> str3");
  EXPECT_EQ(announced, SLOT_STR1 + 2);
  EXPECT_EQ(text_when_announced, "old");
  EXPECT_EQ(stored(3), "new");
}

TEST_F(strings, out_copies_and_makes_variables_global) {
  watch_stores();
  define(2, "ab");
  EXPECT_EQ(string("outString(str2)"), "ab");
  EXPECT_EQ(globalized, SLOT_STR1 + 1);
  globalized = -1;
  EXPECT_EQ(string("outString(\"cd\")"), "cd");
  EXPECT_EQ(string("outString((str_Ans))"), "cd");
  EXPECT_EQ(globalized, -1);
}

TEST_F(strings, go_with_strings_only) {
  for (const char* text :
       {"\"a\"+1", "1+\"a\"", "\"a\"=1", "1<>\"a\"", "\"a\"+{1,2}", "{1,2}=\"a\"", "\"a\"+Iden(2)"})
    EXPECT_EQ(string(text), "Data Type Error") << text;
}

TEST_F(strings, have_no_other_operations) {
  for (const char* text : {"\"a\"-\"b\"", "\"a\"*2", "-\"a\"", "\"a\"!", "\"a\"<\"b\"", "\"a\"^2"})
    EXPECT_EQ(string(text), "Data Type Error") << text;
}

TEST_F(strings, take_no_complex_numbers) {
  EXPECT_EQ(string("\"a\"+(i)"), "Data Type Error");
  EXPECT_EQ(string("strSub(\"a\",(i),1)"), "Function Argument Type");
}

TEST_F(strings, functions_of_strings_take_nothing_else) {
  for (const char* text : {"strLen(5)", "strLen({1,2})", "strPos(\"a\",1)", "strSub(1,1,1)", "outString(5)",
                           "stringToList(5)", "stringToList(Iden(2))", "listToString(\"a\")"})
    EXPECT_EQ(string(text), "Function Argument Type") << text;
}

TEST_F(strings, come_from_lists_of_codes) {
  EXPECT_EQ(string("listToString({72,105})"), "Hi");
  EXPECT_EQ(string("listToString({72,105,0,33})"), "Hi");
  EXPECT_EQ(string("listToString({255,1})"), "\xFF\x01");
  EXPECT_EQ(string("listToString({0,72})"), "");
  EXPECT_EQ(string("listToString(initList(999,120))"), long_text(999));
}

TEST_F(strings, come_from_codes_that_are_bytes) {
  for (const char* text : {"listToString({256,1})", "listToString({72,-1})", "listToString({72,1.5})"})
    EXPECT_EQ(string(text), "Domain Error") << text;
  EXPECT_EQ(string("listToString({72,0,256})"), "H");
  EXPECT_EQ(string("listToString({72,(i)})"), "Data Type Error");
  EXPECT_EQ(string("listToString({A})"), "List Size Not Defined");
}

TEST_F(strings, become_lists_of_codes) {
  define(1, "H\xFF");
  eval("stringToList(str1)");
  const ListRecord& list = stores.lists[ANSWER_RECORD];
  ASSERT_EQ(list.last, 1);
  EXPECT_EQ(list.elements[0], (TValue{72.0, 0.0}));
  EXPECT_EQ(list.elements[1], (TValue{255.0, 0.0}));
}

TEST_F(strings, empty_one_becomes_an_undefined_list) {
  EXPECT_EQ(eval("listSize(stringToList(str1))"), "List Size Not Defined");
}

TEST_F(strings, longer_than_a_list_become_none) {
  define(1, long_text(999));
  EXPECT_EQ(eval("listSize(stringToList(str1))"), "999");
  define(1, long_text(1000));
  EXPECT_EQ(eval("stringToList(str1)"), "List Size Error");
}

TEST_F(strings, come_from_numbers_as_the_result_line_shows_them) {
  EXPECT_EQ(string("numToString(1/4)"), "0.25");
  EXPECT_EQ(string("numToString(-1e30)"), "-1e30");
  EXPECT_EQ(string("numToString(2)+\"x\""), "2x");
  settings.decimalMark = 1;
  EXPECT_EQ(string("numToString(1/4)"), "0,25");
}

TEST_F(strings, come_from_numbers_in_the_number_format) {
  settings.numberFormat = 1;
  settings.decimalDigits = 3;
  EXPECT_EQ(string("numToString(2/3)"), "0.667");
}

TEST_F(strings, come_from_complex_numbers) {
  settings.complexFormat = ST_COMPLEX_R;
  EXPECT_EQ(string("numToString(2-3(i))"), "2-3i");
  EXPECT_EQ(string("numToString((i))"), "i");
}

TEST_F(strings, come_not_from_lists_of_numbers) {
  EXPECT_EQ(string("numToString({1,2})"), "Function Argument Type");
  EXPECT_EQ(string("numToString(Iden(2))"), "Function Argument Type");
  EXPECT_EQ(string("numToString(\"a\")"), "Function Argument Type");
}

TEST_F(strings, are_in_their_operands_way_nowhere) {
  define(1, "abc");
  EXPECT_EQ(string("strSub(strSub(str1,1,3)+str1,2,4)"), "bcab");
  EXPECT_EQ(string("strSub(str1+str1,3,2)+strSub(str1,1,1)"), "caa");
  EXPECT_EQ(eval("strPos(str1+str1,strSub(str1,3,1)+\"a\")"), "3");
}

TEST_F(strings, fill_only_the_first_ten_registers) {
  std::string text = "\"a\"";
  for (int i = 1; i < 10; ++i) text += "+\"a\"";
  EXPECT_EQ(string(text), "aaaaaaaaaa");
  EXPECT_EQ(string(text + "+\"a\""), "Memory Limit Error");
}

}  // namespace zephyl
