// Text to tokens: each row of the text form, its errors, and the way back from listings.

#include "engine/text_form.h"

#include <cstring>
#include <map>
#include <string>
#include <vector>

#include "engine/hooks.h"
#include "engine/memory.h"
#include "engine/operation_table.h"
#include "engine/state.h"
#include "engine/system_variables.h"
#include "engine/text_words.h"
#include "engine/tokens.h"
#include "support/calculator.h"

namespace zephyl {
namespace {

std::string codes_of(const TExpression& line) {
  std::string codes;
  for (int i = 0; i < line.count; ++i) codes += (i ? " " : "") + std::to_string(line.tokens[i]);
  return codes;
}

// The codes of a text, or the message of what can't be read.
std::string read(const std::string& text) {
  TExpression line;
  char error[200] = "";
  return text_to_tokens(text.c_str(), line, error, sizeof error) ? codes_of(line) : error;
}

std::string listed(const TExpression& line) {
  char text[4000];
  expression_text(line, text, sizeof text);
  return text;
}

TEST_F(calculator, digits_read_as_their_keys) {
  EXPECT_EQ(read("1234567890."), "33 34 35 28 29 30 23 24 25 38 39");
}

TEST_F(calculator, blanks_between_tokens_are_skipped) { EXPECT_EQ(read(" 1 \t+\r\n2 "), "33 36 34"); }

TEST_F(calculator, an_empty_text_has_no_tokens) {
  EXPECT_EQ(read(""), "");
  EXPECT_EQ(read("  "), "");
}

TEST_F(calculator, an_e_in_a_number_is_the_exponent_letter) {
  EXPECT_EQ(read("1e5"), "33 40 29");
  EXPECT_EQ(read("1E5"), "33 40 29");
  EXPECT_EQ(read("1.e5"), "33 39 40 29");
  EXPECT_EQ(read("1e-5"), "33 40 17 29");
  EXPECT_EQ(read("1e+5"), "33 40 29");
}

TEST_F(calculator, an_e_elsewhere_is_the_memory) {
  EXPECT_EQ(read("e5"), "2040 29");
  EXPECT_EQ(read("1 e5"), "33 2040 29");
  EXPECT_EQ(read("1e"), "33 2040");
  EXPECT_EQ(read("R1e5"), "2001 2040 29");
  EXPECT_EQ(read("2Ex"), "34 2014 2059");
}

TEST_F(calculator, an_e_with_a_power_is_the_exponential) {
  EXPECT_EQ(read("e^x"), "111 2059");
  EXPECT_EQ(read("2e^x"), "34 111 2059");
}

TEST_F(calculator, keys_of_one_character_read_as_themselves) {
  EXPECT_EQ(read("1+2*3/4^5(6),7!"), "33 36 34 31 35 32 28 13 29 3 30 4 20 23 18");
  EXPECT_EQ(read("[1]"), "103 33 104");
  EXPECT_EQ(read("{1}"), "203 33 204");
}

TEST_F(calculator, a_minus_without_an_operand_before_it_is_neg) {
  EXPECT_EQ(read("-1"), "17 33");
  EXPECT_EQ(read("1+-2"), "33 36 17 34");
  EXPECT_EQ(read("--1"), "17 17 33");
  EXPECT_EQ(read("(-1"), "3 17 33");
  EXPECT_EQ(read("[-1"), "103 17 33");
  EXPECT_EQ(read("{-1"), "203 17 33");
  EXPECT_EQ(read("sin(-1"), "5 17 33");
  EXPECT_EQ(read("Max(-1,-2"), "400 17 33 20 17 34");
  EXPECT_EQ(read("fnInt(-x"), "468 17 2059");
  EXPECT_EQ(read("foo(-1"), "181 5102 5111 5111 17 33");
  EXPECT_EQ(read("sqRt -1"), "14 17 33");
  EXPECT_EQ(read("1<-2"), "33 389 17 34");
}

TEST_F(calculator, a_minus_behind_an_operand_is_minus) {
  EXPECT_EQ(read("1-2"), "33 37 34");
  EXPECT_EQ(read("x-1"), "2059 37 33");
  EXPECT_EQ(read(")-1"), "4 37 33");
  EXPECT_EQ(read("]-1"), "104 37 33");
  EXPECT_EQ(read("}-1"), "204 37 33");
  EXPECT_EQ(read("5!-1"), "29 18 37 33");
  EXPECT_EQ(read("\"a\"-1"), "765 37 33");
  EXPECT_EQ(read("TIME()-1"), "387 37 33");
  EXPECT_EQ(read("foo()-1"), "182 5102 5111 5111 37 33");
  EXPECT_EQ(read("(pi)-1"), "117 37 33");
  EXPECT_EQ(read("1->A-2"), "33 3010 37 34");
}

TEST_F(calculator, operations_read_by_their_display_text) {
  for (int i = 0; i < OPERATION_COUNT; ++i) {
    const TOp_Code op = static_cast<TOp_Code>(i);
    const bool shares_its_text =
        (i >= OP_PLOT_FN_MIN && i <= OP_PLOT_FN_DERIV) || op == OP_BASE_NEG || op == OP_NEG;
    if (operation_token(op) == 0 || shares_its_text || op == OP_FUNC1 || op == OP_FUNC2) continue;
    EXPECT_EQ(read(std::string("1 ") + operation_array[i].display_text),
              "33 " + std::to_string(operation_token(op)));
  }
}

TEST_F(calculator, the_longest_operation_is_read) {
  EXPECT_EQ(read("1<<2"), "33 606 34");
  EXPECT_EQ(read("1<>2"), "33 392 34");
  EXPECT_EQ(read("1<=2>=3"), "33 388 34 390 35");
  EXPECT_EQ(read("asin(sinh(1"), "105 205 33");
  EXPECT_EQ(read("x^(2)"), "2059 9");
  EXPECT_EQ(read("x^(2+1)"), "2059 13 3 34 36 33 4");
  EXPECT_EQ(read("x^(-1)"), "2059 8");
  EXPECT_EQ(read("x^(3)"), "2059 115");
  EXPECT_EQ(read("(10)^2"), "112 34");
  EXPECT_EQ(read("30(d)"), "35 38 16");
  EXPECT_EQ(read("DATE+(1"), "384 33");
}

TEST_F(calculator, a_transpose_gives_way_to_an_exponent_of_several_letters) {
  EXPECT_EQ(read("[A]^T+[B]^T"), "2090 1204 36 2091 1204");
  EXPECT_EQ(read("[A]^T(2)"), "2090 1204 3 34 4");
  EXPECT_EQ(read("2^Trunc(3"), "34 13 108 35");
  EXPECT_EQ(read("2^TIME()"), "34 13 387");
  EXPECT_EQ(read("2^Ta(3").substr(0, 12), "34 13 181 50");
}

TEST_F(calculator, logic_words_need_no_blanks) {
  EXPECT_EQ(read("1AND2OR3XOR4"), "33 395 34 397 35 396 28");
  EXPECT_EQ(read("1 mod 2"), "33 605 34");
  EXPECT_EQ(read("AND(1"), "395 3 33");
  EXPECT_EQ(read("sqRt(4)"), "14 3 28 4");
}

TEST_F(calculator, case_matters) {
  EXPECT_EQ(read("sin("), "5");
  EXPECT_EQ(read("SIN("), "181 5083 5073 5078");
  EXPECT_EQ(read("Min("), "401");
  EXPECT_EQ(read("aA"), "2036 2010");
}

TEST_F(calculator, an_arrow_stores) {
  EXPECT_EQ(read("1->A"), "33 3010");
  EXPECT_EQ(read("1 -> x"), "33 3059");
  EXPECT_EQ(read("1->R3"), "33 3003");
  EXPECT_EQ(read("1->xMin"), "33 1524");
  EXPECT_EQ(read("1->tvmI%YR"), "33 1531");
  EXPECT_EQ(read("1->[A]"), "33 3090");
  EXPECT_EQ(read("{1,2}->{J}"), "203 33 20 34 204 3109");
  EXPECT_EQ(read("\"a\"->str9"), "765 3128");
  EXPECT_EQ(read("x->f1(x)"), "2059 1650");
  EXPECT_EQ(read("t->X1(t)"), "2055 1662");
  EXPECT_EQ(read("1->f9()"), "33 1679");
  EXPECT_EQ(read("1->alpha"), "33 3062");
  EXPECT_EQ(read("1->(Omega)"), "33 3089");
  EXPECT_EQ(read("1->sigma 1"), "33 3077");
  EXPECT_EQ(read("1->A->B"), "33 3010 3011");
  EXPECT_EQ(read("1->A+2"), "33 3010 36 34");
}

TEST_F(calculator, an_arrow_needs_a_name) {
  EXPECT_EQ(read("1->"), "cannot read '->' at column 2");
  EXPECT_EQ(read("1->5"), "cannot read '->5' at column 2");
  EXPECT_EQ(read("1->foo"), "cannot read '->foo' at column 2");
  EXPECT_EQ(read("1->pi"), "cannot read '->pi' at column 2");
}

TEST_F(calculator, every_variable_stores_behind_an_arrow) {
  for (int slot = 0; slot < SLOT_COUNT; ++slot) {
    if ((slot >= SLOT_F1 && slot < SLOT_STR1) || slot == 129) continue;
    EXPECT_EQ(read(std::string("1->") + slot_name(slot, true)), "33 " + std::to_string(3000 + slot));
  }
  for (int number = 0; number < SYSTEM_VARIABLE_COUNT; ++number)
    EXPECT_EQ(read(std::string("1->") + system_variables[number].name),
              "33 " + std::to_string(1500 + number));
}

TEST_F(calculator, memories_read_by_their_letter) {
  EXPECT_EQ(read("A B Z a b z"), "2010 2011 2035 2036 2037 2061");
  EXPECT_EQ(read("R0R9"), "2000 2009");
  EXPECT_EQ(read("R10"), "2001 38");
  EXPECT_EQ(read("R"), "2027");
}

TEST_F(calculator, greek_memories_read_in_parentheses) {
  for (int i = 0; i < GREEK_COUNT; ++i)
    EXPECT_EQ(read(std::string("(") + greek_name(i) + ")"), std::to_string(2062 + i));
}

TEST_F(calculator, matrices_and_lists_read_without_blanks_inside) {
  for (int i = 0; i < 10; ++i) {
    const char letter = static_cast<char>('A' + i);
    EXPECT_EQ(read(std::string("[") + letter + "]"), std::to_string(2090 + i));
    EXPECT_EQ(read(std::string("{") + letter + "}"), std::to_string(2100 + i));
  }
  EXPECT_EQ(read("{ A }"), "203 2010 204");
  EXPECT_EQ(read("[ A ]"), "103 2010 104");
  EXPECT_EQ(read("{A,B}"), "203 2010 20 2011 204");
  EXPECT_EQ(read("{K}"), "203 2020 204");
}

TEST_F(calculator, strings_read_character_by_character) {
  EXPECT_EQ(read("\"aB 9\""), "765 734 700 725");
  EXPECT_EQ(read(R"("\"\\")"), "702 760");
  EXPECT_EQ(read("\"\"+1"), "36 33");
}

TEST_F(calculator, a_string_that_no_token_holds_is_not_read) {
  EXPECT_EQ(read("1+\"ab"), "cannot read '\"ab' at column 3");
  EXPECT_EQ(read("\"a\\n\""), "cannot read '\"a\\n\"' at column 1");
  EXPECT_EQ(read("\"a\tb\""), "cannot read '\"a' at column 1");
  EXPECT_EQ(read("\"\xC3\xA9\""), "cannot read '\"\xC3\xA9\"' at column 1");
  EXPECT_EQ(read("\"a\\"), "cannot read '\"a\\' at column 1");
}

TEST_F(calculator, string_variables_read_by_number) { EXPECT_EQ(read("str1+str9"), "2120 36 2128"); }

TEST_F(calculator, answers_and_constants_read) {
  EXPECT_EQ(read("Ans"), "41");
  EXPECT_EQ(read("(Ans)(M_Ans)(L_Ans)(str_Ans)"), "41 1299 1300 1301");
  EXPECT_EQ(read("pi (pi) (e) (i) (Rand)"), "117 117 217 120 118");
  EXPECT_EQ(read("2pi"), "34 117");
}

TEST_F(calculator, system_variables_read_in_parentheses) {
  for (int number = 0; number < SYSTEM_VARIABLE_COUNT; ++number)
    EXPECT_EQ(read(std::string("(") + system_variables[number].name + ")"), std::to_string(1400 + number));
}

TEST_F(calculator, function_slots_read_by_their_name) {
  EXPECT_EQ(read("f1(x)f6(x)"), "1600 1605");
  EXPECT_EQ(read("R1(theta)R6(theta)"), "1606 1611");
  EXPECT_EQ(read("X1(t)Y1(t)X2(t)Y2(t)X3(t)Y3(t)"), "1612 1613 1614 1615 1616 1617");
  EXPECT_EQ(read("f1()f9()"), "1621 1629");
}

TEST_F(calculator, statistics_read_in_parentheses) {
  const char* const texts[] = {
      "(xySum)",     "(xMeanw)",    "(yMeanw)",    "(xMean)",  "(xSum)",      "(xSumSq)",      "(xSD)",
      "(xSD-1)",     "(yMean)",     "(ySum)",      "(ySumSq)", "(ySD)",       "(ySD-1)",       "(stat xMin)",
      "(stat xMax)", "(stat yMin)", "(stat yMax)", "(slope)",  "(intercept)", "(correlation)", "(count)"};
  for (int index = 0; index <= 20; ++index) {
    EXPECT_EQ(read(texts[index]), std::to_string(statistics_token(index)));
    EXPECT_EQ(read("(stat " + std::to_string(index) + ")"), std::to_string(statistics_token(index)));
  }
}

TEST_F(calculator, the_view_variables_go_before_statistics_of_their_name) {
  EXPECT_EQ(read("(xMin)(xMax)(yMin)(yMax)"), "1424 1423 1426 1425");
  EXPECT_EQ(read("xMin"), "1116");
}

// Three units of length and one of time, at the codes 12, 19, 23 and 88.
void make_units() {
  static const TUnit units[] = {
      {"ft", 0.3048, 0.0}, {"m", 1.0, 0.0}, {"mile(Naut)", 1852.0, 0.0}, {"s", 1.0, 0.0}};
  static constexpr int codes[] = {12, 19, 23, 88};
  hooks.unit_by_code = [](int code) -> const TUnit* {
    for (int i = 0; i < 4; ++i)
      if (codes[i] == code) return &units[i];
    return nullptr;
  };
  hooks.unit_at_position = [](int code, int position) {
    return code != 88 && position >= 0 && position < 3 ? codes[position] : -1;
  };
  hooks.find_units = [](const char* from, std::size_t from_length, const char* to, std::size_t to_length,
                        int& code, int& position) {
    const auto find = [](const char* name, std::size_t length) {
      for (int i = 0; i < 4; ++i)
        if (std::strlen(units[i].short_name) == length &&
            std::strncmp(units[i].short_name, name, length) == 0)
          return i;
      return -1;
    };
    const int first = find(from, from_length), second = find(to, to_length);
    if (first < 0 || second < 0 || (first == 3) != (second == 3)) return false;
    code = codes[first];
    position = first == 3 ? 0 : second;
    return true;
  };
}

std::string conversion(int code, int position) { return std::to_string(32768 + 64 * code + position); }

TEST_F(calculator, unit_conversions_read_by_short_names) {
  make_units();
  EXPECT_EQ(read("1(ft>m)"), "33 " + conversion(12, 1));
  EXPECT_EQ(read("1(mile(Naut)>ft)"), "33 " + conversion(23, 0));
  EXPECT_EQ(read("1(ft>mile(Naut))+(2)"), "33 " + conversion(12, 2) + " 36 3 34 4");
}

TEST_F(calculator, unit_names_have_24_characters_at_most) {
  hooks.find_units = [](const char*, std::size_t, const char*, std::size_t, int& code, int& position) {
    code = position = 0;
    return true;
  };
  const std::string longest(24, 'q');
  EXPECT_EQ(read("(" + longest + ">" + longest + ")"), "32768");
  EXPECT_EQ(read("(" + longest + "q>m)").substr(0, 6), "3 2052");
  EXPECT_EQ(read("(m>" + longest + "q)").substr(0, 6), "3 2048");
}

TEST_F(calculator, other_comparisons_in_parentheses_are_no_conversions) {
  make_units();
  EXPECT_EQ(read("(m>s)"), "3 2048 391 2054 4");
  EXPECT_EQ(read("(x>1)"), "3 2059 391 33 4");
  EXPECT_EQ(read("(m>=1)"), "3 2048 390 33 4");
}

TEST_F(calculator, conversions_without_a_unit_table_are_comparisons) {
  hooks.find_units = nullptr;
  EXPECT_EQ(read("(m>s)"), "3 2048 391 2054 4");
}

TEST_F(calculator, names_in_front_of_a_parenthesis_are_calls) {
  EXPECT_EQ(read("foo(1)"), "181 5102 5111 5111 33 4");
  EXPECT_EQ(read("foo()"), "182 5102 5111 5111");
  EXPECT_EQ(read("f_2a(x)"), "181 5102 5095 5050 5097 2059 4");
  EXPECT_EQ(read("2area(3)"), "34 181 5097 5114 5101 5097 35 4");
}

TEST_F(calculator, operands_in_front_of_a_parenthesis_are_no_calls) {
  EXPECT_EQ(read("x(3)"), "2059 3 35 4");
  EXPECT_EQ(read("R1(3)"), "2001 3 35 4");
  EXPECT_EQ(read("pi(3)"), "117 3 35 4");
  EXPECT_EQ(read("Ans(3)"), "41 3 35 4");
  EXPECT_EQ(read("str1(3)"), "2120 3 35 4");
}

TEST_F(calculator, a_call_may_bear_the_name_of_a_statistics_value) {
  EXPECT_EQ(read("count(3)"), "181 5099 5111 5117 5110 5116 35 4");
}

TEST_F(calculator, names_have_25_characters_at_most) {
  const std::string name(25, 'q');
  EXPECT_EQ(read(name + "()").substr(0, 8), "182 5113");
  EXPECT_EQ(read(name + "q()"), "cannot read 'qqqqqqqqqqqqqqqqqqqq' at column 1");
}

TEST_F(calculator, text_that_matches_nothing_is_named_with_its_place) {
  EXPECT_EQ(read("1+#2"), "cannot read '#2' at column 3");
  EXPECT_EQ(read("1 + $$ 2"), "cannot read '$$' at column 5");
  EXPECT_EQ(read("#1234567890123456789012345"), "cannot read '#1234567890123456789' at column 1");
}

TEST_F(calculator, columns_count_characters_not_bytes) {
  EXPECT_EQ(read("2\xC3\x97"
                 "3"),
            "cannot read '\xC3\x97"
            "3' at column 2");
  EXPECT_EQ(read("#234567890123456789\xC3\x97"), "cannot read '#234567890123456789' at column 1");
}

TEST_F(calculator, an_unread_text_leaves_the_tokens_alone) {
  TExpression line;
  line.tokens[0] = 33;
  line.count = 1;
  char error[10] = "";
  EXPECT_FALSE(text_to_tokens("22222#", line, error, sizeof error));
  EXPECT_EQ(codes_of(line), "33");
  EXPECT_STREQ(error, "cannot re");
}

TEST_F(calculator, a_text_of_99_tokens_is_the_longest) {
  EXPECT_EQ(read(std::string(100, '1')), "Reached expression size limit");
  EXPECT_EQ(read("\"" + std::string(1000, 'a') + "\""), "Reached expression size limit");
  TExpression line;
  char error[100];
  EXPECT_TRUE(text_to_tokens(std::string(99, '1').c_str(), line, error, sizeof error));
  EXPECT_EQ(line.count, 99);
}

TEST_F(calculator, a_decimal_comma_does_not_change_the_text_form) {
  settings.decimalMark = 1;
  EXPECT_EQ(read("Max(1.5,2)"), "400 33 39 29 20 34 4");
}

TEST_F(calculator, base_numbers_read_with_their_suffix) {
  state.calcMode = BASE_MODE;
  EXPECT_EQ(read("12d"), "33 34 517");
  EXPECT_EQ(read("FFh"), "516 516 518");
  EXPECT_EQ(read("0b+7o"), "38 519 36 23 619");
  EXPECT_EQ(read("1Ah and 3"), "33 511 518 506 35");
  EXPECT_EQ(read("12AB"), "33 34 511 512");
}

TEST_F(calculator, letters_are_digits_in_hexadecimal) {
  state.calcMode = BASE_MODE;
  settings.baseType = U_HEX;
  EXPECT_EQ(read("ABCDEF"), "511 512 513 514 515 516");
  EXPECT_EQ(read("A+B(C"), "511 36 512 3 513");
  EXPECT_EQ(read("1E5"), "33 515 29");
  EXPECT_EQ(read("FFAND1"), "516 516 395 33");
  EXPECT_EQ(read("Ans+G"), "41 36 2016");
  EXPECT_EQ(read("5->A"), "29 3010");
}

TEST_F(calculator, letters_in_front_are_memories_in_other_bases) {
  state.calcMode = BASE_MODE;
  settings.baseType = U_DEC;
  EXPECT_EQ(read("A+1"), "2010 36 33");
  EXPECT_EQ(read("Ah+1"), "511 518 36 33");
}

TEST_F(calculator, words_behind_a_base_number_are_no_digits) {
  state.calcMode = BASE_MODE;
  settings.baseType = U_HEX;
  EXPECT_EQ(read("5or3"), "29 507 35");
  EXPECT_EQ(read("5x"), "29 2059");
  EXPECT_EQ(read("Area(3)"), "181 5065 5114 5101 5097 35 4");
}

TEST_F(calculator, a_minus_without_an_operand_is_the_base_one_in_base_mode) {
  state.calcMode = BASE_MODE;
  EXPECT_EQ(read("-1-2"), "540 33 37 34");
  EXPECT_EQ(read("not -1"), "505 540 33");
}

TEST_F(calculator, the_table_of_words_holds_them_all) { EXPECT_TRUE(words_complete()); }

// The way back from listings.

class TRandom {
 public:
  int below(int limit) {
    seed_ = seed_ * 1664525u + 1013904223u;
    return static_cast<int>((seed_ >> 8) % static_cast<std::uint32_t>(limit));
  }

 private:
  std::uint32_t seed_ = 2024;
};

constexpr TToken NOT_READ = 0xFFFF;

bool between(TToken token, int first, int last) { return token >= first && token <= last; }

// What the listing of a token reads back as. All tokens but those named here read back as themselves.
TToken read_back_as(TToken token, bool after_operand) {
  // Not listed: hidden parentheses, tokens and variables without a name or a meaning.
  TExpression line;
  line.tokens[0] = token;
  line.count = 1;
  if (token_text(line, 0)[0] == 0) return 0;
  // Calls are listed with their name.
  if (token == TOKEN_FUNC1 || token == TOKEN_FUNC2) return NOT_READ;
  // Two tokens of one meaning: the one that keys enter is read.
  if (between(token, 800, 899)) return static_cast<TToken>(token + 1200);
  // The three minus signs have one text.
  if (token == TOKEN_NEG || token == TOKEN_MINUS || token == TOKEN_BASE_NEG) {
    if (after_operand) return TOKEN_MINUS;
    return state.calcMode == BASE_MODE ? TOKEN_BASE_NEG : TOKEN_NEG;
  }
  // The operators that plots put around a function have the text of the typed ones.
  switch (token) {
    case 1996:
      return 477;
    case 1997:
      return 483;
    case 1998:
      return 476;
    case 1999:
      return 475;
    default:
      break;
  }
  // The exponent letter is one only inside a number; the letters of base-n numbers only in BASE_MODE.
  if (token == TOKEN_EXPONENT) return 2040;
  if (state.calcMode != BASE_MODE) {
    if (between(token, 511, 516)) return static_cast<TToken>(2010 + token - 511);
    if (token == 517) return 2039;
    if (token == 518) return 2043;
    if (token == 519) return 2037;
    if (token == 619) return 2050;
  }
  // A store is listed with ">" and reads as a comparison.
  if (decode_token(token).special == SPECIAL_STORE || decode_token(token).kind == TOKEN_STORE_VARIABLE)
    return NOT_READ;
  // Conversions of unknown units have no text, those with two codes read as those with a position.
  if (is_conversion_token(token)) return NOT_READ;
  return token;
}

TEST_F(calculator, every_token_reads_back_from_its_listing) {
  for (int code = 0; code < 16384; ++code) {
    const TToken token = static_cast<TToken>(code);
    const TToken expected = read_back_as(token, true);
    if (expected == NOT_READ) continue;
    TExpression line;
    line.tokens[0] = 4;
    line.tokens[1] = token;
    line.count = 2;
    EXPECT_EQ(read(listed(line)), expected ? "4 " + std::to_string(expected) : "4")
        << code << ": " << listed(line);
  }
}

TEST_F(calculator, stores_read_back_as_comparisons) {
  TExpression line;
  line.tokens[0] = 33;
  line.tokens[1] = 3010;
  line.count = 2;
  EXPECT_EQ(read(listed(line)), "33 391 2010");
}

TEST_F(calculator, a_call_without_arguments_reads_back_as_one_with) {
  TExpression line;
  for (int token : {182, 5102, 5111}) line.tokens[line.count++] = static_cast<TToken>(token);
  EXPECT_EQ(read(listed(line)), "181 5102 5111");
}

TEST_F(calculator, conversions_read_back) {
  make_units();
  for (int code : {12, 19, 23})
    for (int position = 0; position < 3; ++position) {
      TExpression line;
      line.tokens[0] = static_cast<TToken>(32768 + 64 * code + position);
      line.count = 1;
      EXPECT_EQ(read(listed(line)), conversion(code, position));
    }
}

// Ambiguities of neighbours: what runs together to another word reads as that word.
TEST_F(calculator, neighbours_that_form_a_word_read_as_the_word) {
  EXPECT_EQ(read("e^2"), "111 34");                    // memory e and a power
  EXPECT_EQ(read("2e5"), "34 40 29");                  // memory e between digits
  EXPECT_EQ(read("x^(2)"), "2059 9");                  // a power and a number in parentheses
  EXPECT_EQ(read("2^T"), "34 1204");                   // a power and memory T
  EXPECT_EQ(read("(d)"), "16");                        // memory d in parentheses
  EXPECT_EQ(read("{A}"), "2100");                      // memory A in braces
  EXPECT_EQ(read("rx"), "1007");                       // memories r and x
  EXPECT_EQ(read("pi"), "117");                        // memories p and i
  EXPECT_EQ(read("xsin(1").substr(0, 8), "181 5120");  // memory x and a function: a name of its own
  EXPECT_EQ(read("xAND(1").substr(0, 8), "181 5120");
}

// Lines of tokens of all codes, listed with a blank after each token.
TEST_F(calculator, random_lines_read_back_token_by_token) {
  TRandom random;
  for (int round = 0; round < 20000; ++round) {
    TExpression line;
    std::string text, expected;
    bool after_operand = false;
    while (line.count < 20) {
      const TToken token = static_cast<TToken>(random.below(16384));
      const TToken back = read_back_as(token, after_operand);
      // Strings are read below: here they would run into one another.
      if (back == NOT_READ || back == 0 || is_string_token(token)) continue;
      line.tokens[line.count++] = token;
      TExpression alone;
      alone.tokens[0] = token;
      alone.count = 1;
      text += std::string(token_text(alone, 0)) + " ";
      expected += (expected.empty() ? "" : " ") + std::to_string(back);
      const TOp_Code op = token_operation(back);
      const bool opens = back == 3 || back == 103 || back == 203;
      after_operand = op == OP_NONE ? !opens
                                    : operation_array[op].arg_kind == KIND_POSTFIX ||
                                          operation_array[op].arg_kind == KIND_NO_ARGUMENT;
    }
    ASSERT_EQ(read(text), expected) << text;
  }
}

// Well-formed expressions, built token by token: what a person types.
class TSentence {
 public:
  explicit TSentence(TRandom& random) : random_(random) { expression(3); }

  TExpression line;

 private:
  void put(int token) { line.tokens[line.count++] = static_cast<TToken>(token); }
  bool room() const { return line.count < 60; }

  void digits() {
    constexpr int keys[] = {38, 33, 34, 35, 28, 29, 30, 23, 24, 25};
    for (int i = random_.below(3); i >= 0; --i) put(keys[random_.below(10)]);
  }

  void number() {
    digits();
    if (random_.below(3) == 0) {
      put(TOKEN_POINT);
      digits();
    }
    if (random_.below(3) == 0) {
      put(TOKEN_EXPONENT);
      if (random_.below(2) == 0) put(TOKEN_NEG);
      digits();
    }
  }

  // Memories but for e and T, which powers of themselves would swallow.
  void memory() {
    int slot = random_.below(129);
    while (slot == 40 || slot == 29 || (slot >= SLOT_F1 && slot < SLOT_STR1)) slot = random_.below(129);
    put(recall_token(slot));
  }

  void string() {
    for (int i = random_.below(4); i >= 0; --i) put(700 + random_.below(100));
  }

  void constant() {
    constexpr int tokens[] = {41, 117, 118, 120, 217, 1299, 1300, 1301};
    put(tokens[random_.below(8)]);
  }

  void variable() {
    if (random_.below(2) == 0) return put(1400 + random_.below(SYSTEM_VARIABLE_COUNT));
    int slot = random_.below(30);
    while (function_slot_name(slot)[0] == 0) slot = random_.below(30);
    put(1600 + slot);
  }

  void list(int depth) {
    put(TOKEN_OPEN_BRACE);
    expression(depth - 1);
    put(TOKEN_COMMA);
    expression(depth - 1);
    put(TOKEN_CLOSE_BRACE);
  }

  int operation_of_kind(int first_kind, int last_kind) {
    for (;;) {
      const int op = random_.below(OPERATION_COUNT);
      const int kind = operation_array[op].arg_kind;
      const int token = operation_token(static_cast<TOp_Code>(op));
      const bool plot_form = op >= OP_PLOT_FN_MIN && op <= OP_PLOT_FN_DERIV;
      const bool logic_word = op >= OP_LOGIC_AND && op <= OP_LOGIC_OR;
      if (token && kind >= first_kind && kind <= last_kind && !plot_form && !logic_word && op != OP_COMMA &&
          op != OP_BASE_NEG)
        return token;
    }
  }

  void function(int depth) {
    put(operation_of_kind(KIND_FUNCTION, KIND_NUMERIC));
    expression(depth - 1);
    put(TOKEN_CLOSE);
  }

  void call(int depth) {
    put(TOKEN_FUNC1);
    for (const char* c = "myFn_2"; *c; ++c) put(FIRST_NAME_TOKEN + *c);
    expression(depth - 1);
    put(TOKEN_CLOSE);
  }

  void operand(int depth) {
    if (depth == 0 || !room()) return number();
    switch (random_.below(10)) {
      case 0:
        return number();
      case 1:
        return memory();
      case 2:
        return string();
      case 3:
        return constant();
      case 4:
        return variable();
      case 5:
        return list(depth);
      case 6:
        return put(statistics_token(random_.below(21)));
      case 7:
        return call(depth);
      case 8:
        return put(operation_of_kind(KIND_NO_ARGUMENT, KIND_NO_ARGUMENT));
      default:
        return function(depth);
    }
  }

  void signed_operand(int depth) {
    if (random_.below(4) == 0) put(operation_of_kind(KIND_PREFIX, KIND_PREFIX));
    operand(depth);
    if (random_.below(4) == 0) put(operation_of_kind(KIND_POSTFIX, KIND_POSTFIX));
  }

  void expression(int depth) {
    signed_operand(depth);
    while (room() && random_.below(2) == 0) {
      put(operation_of_kind(KIND_INFIX, KIND_INFIX));
      signed_operand(depth);
    }
  }

  TRandom& random_;
};

TEST_F(calculator, typed_expressions_read_back_from_their_listing) {
  TRandom random;
  for (int round = 0; round < 20000; ++round) {
    const TSentence sentence(random);
    if (sentence.line.count > 99) continue;
    ASSERT_EQ(read(listed(sentence.line)), codes_of(sentence.line)) << listed(sentence.line);
  }
}

TEST_F(calculator, base_expressions_read_back_from_their_listing) {
  state.calcMode = BASE_MODE;
  settings.baseType = U_HEX;
  TRandom random;
  constexpr int digits[] = {38, 33, 34, 35, 28, 29, 30, 23, 24, 25, 511, 512, 513, 514, 515, 516};
  constexpr int suffixes[] = {517, 518, 519, 619};
  constexpr int operators[] = {31, 32, 36, 37, 506, 507, 508, 509, 605, 606, 607};
  for (int round = 0; round < 5000; ++round) {
    TExpression line;
    const auto put = [&line](int token) { line.tokens[line.count++] = static_cast<TToken>(token); };
    for (int i = 0; i < 6; ++i) {
      if (i > 0) put(operators[random.below(11)]);
      if (random.below(3) == 0) put(random.below(2) ? 505 : 540);
      for (int length = random.below(6); length >= 0; --length) put(digits[random.below(16)]);
      if (random.below(2) == 0) put(suffixes[random.below(4)]);
    }
    ASSERT_EQ(read(listed(line)), codes_of(line)) << listed(line);
  }
}

TEST_F(calculator, random_bytes_are_read_or_refused) {
  make_units();
  TRandom random;
  const std::string useful = "\"\\->()[]{}eE1.AFdhbo sinxR_f,%^T\xC3\x80";
  for (int round = 0; round < 100000; ++round) {
    state.calcMode = random.below(3) == 0 ? BASE_MODE : COMP_MODE;
    std::string text;
    for (int length = random.below(60); length > 0; --length)
      text += random.below(4)
                  ? useful[static_cast<std::size_t>(random.below(static_cast<int>(useful.size())))]
                  : static_cast<char>(1 + random.below(255));
    TExpression line;
    char error[40] = "";
    const bool is_read = text_to_tokens(text.c_str(), line, error, sizeof error);
    EXPECT_EQ(is_read, error[0] == 0);
    EXPECT_LE(line.count, 99);
  }
  state.calcMode = COMP_MODE;
}

}  // namespace
}  // namespace zephyl
