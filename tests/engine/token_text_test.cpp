// What lists and dialogs show of a token and of an expression.

#include <map>
#include <string>

#include "engine/hooks.h"
#include "engine/operation_table.h"
#include "engine/state.h"
#include "engine/tokens.h"
#include "support/calculator.h"

namespace zephyl {
namespace {

TExpression line_of(std::initializer_list<int> tokens) {
  TExpression line;
  for (int token : tokens) line.tokens[line.count++] = static_cast<TToken>(token);
  return line;
}

std::string text_of(std::initializer_list<int> tokens) {
  char text[400];
  expression_text(line_of(tokens), text, sizeof text);
  return text;
}

TEST_F(calculator, operations_are_listed_by_their_display_text) {
  for (int op = 0; op < OPERATION_COUNT; ++op) {
    const TToken token = operation_token(static_cast<TOp_Code>(op));
    if (token == 0 || op == OP_FUNC1 || op == OP_FUNC2) continue;
    EXPECT_EQ(text_of({token}), operation_array[op].display_text) << op;
  }
}

TEST_F(calculator, a_number_is_listed_as_typed) {
  EXPECT_EQ(text_of({33, 34, 35, 28, 29, 30, 23, 24, 25, 38, 39, 40}), "1234567890.e");
  EXPECT_EQ(text_of({511, 512, 513, 514, 515, 516, 518, 517, 519, 619}), "ABCDEFhdbo");
  EXPECT_EQ(text_of({33, 40, 17, 29}), "1e-5");
}

TEST_F(calculator, parentheses_are_listed_unless_hidden) {
  EXPECT_EQ(text_of({3, 103, 203, 42, 43, 204, 104, 4}), "([{}])");
}

TEST_F(calculator, answers_and_constants_are_listed_in_parentheses) {
  EXPECT_EQ(text_of({41, 1299, 1300, 1301}), "(Ans)(M_Ans)(L_Ans)(str_Ans)");
  EXPECT_EQ(text_of({117, 217, 120, 118}), "(pi)(e)(i)(Rand)");
}

TEST_F(calculator, recalls_are_listed_by_their_slot) {
  EXPECT_EQ(text_of({800, 809, 810, 835, 836, 861}), "R0R9AZaz");
  EXPECT_EQ(text_of({2000, 2090, 2099, 2100, 2109, 2120, 2128}), "R0[A][J]{A}{J}str1str9");
  EXPECT_EQ(text_of({862, 876, 889}), "(alpha)(sigma 0)(Omega)");
}

TEST_F(calculator, stores_are_listed_behind_an_arrow) {
  EXPECT_EQ(text_of({33, 910}), "1 > A");
  EXPECT_EQ(text_of({33, 3069}), "1 > theta");
  EXPECT_EQ(text_of({33, 3100}), "1 > {A}");
  EXPECT_EQ(text_of({33, 1524}), "1 > xMin");
  EXPECT_EQ(text_of({33, 1650}), "1 > f1(x)");
}

TEST_F(calculator, variables_are_listed_in_parentheses) {
  EXPECT_EQ(text_of({1400, 1424, 1431, 1437, 1438}), "(angleMode)(xMin)(tvmI%YR)(tvmPMT@)(plotStylus)");
}

TEST_F(calculator, function_slots_are_listed_by_their_name) {
  EXPECT_EQ(text_of({1600, 1606, 1612, 1613, 1629}), "f1(x)R1(theta)X1(t)Y1(t)f9()");
}

TEST_F(calculator, statistics_are_listed_with_blanks) {
  EXPECT_EQ(text_of({1011, 1116, 1107}), " xMean  xMin  slope ");
}

TEST_F(calculator, a_call_is_listed_by_its_program) {
  EXPECT_EQ(text_of({181, 5102, 5111, 5111, 33, 4}), "foo(1)");
  EXPECT_EQ(text_of({182, 5102, 5111}), "fo(");
}

TEST_F(calculator, a_string_is_listed_in_quotes) {
  EXPECT_EQ(text_of({765, 700, 766, 36, 767}), "\"a b\"+\"c\"");
}

TEST_F(calculator, quotes_and_backslashes_of_a_string_are_marked) {
  EXPECT_EQ(text_of({702}), R"("\"")");
  EXPECT_EQ(text_of({702, 702}), R"("\"\"")");
  EXPECT_EQ(text_of({765, 760, 702, 766}), R"("a\\\"b")");
}

TEST_F(calculator, a_conversion_is_listed_with_its_units) {
  static const TUnit feet{"ft", 0.3048, 0.0}, meter{"m", 1.0, 0.0};
  hooks.unit_by_code = [](int code) { return code == 12 ? &feet : code == 19 ? &meter : nullptr; };
  hooks.unit_at_position = [](int, int position) { return position == 11 ? 19 : -1; };
  EXPECT_EQ(text_of({33, 33547}), "1(ft>m)");
  EXPECT_EQ(text_of({33, 16384 + 19 + 128 * 12}), "1(m>ft)");
  EXPECT_EQ(text_of({33, 33540}), "1(ft>?)");
}

TEST_F(calculator, tokens_without_a_meaning_are_not_listed) {
  EXPECT_EQ(text_of({33, 10, 34, 1499, 1599, 1618, 1668, 5065, 35}), "123");
}

TEST_F(calculator, a_decimal_comma_changes_places_with_the_point) {
  settings.decimalMark = 1;
  EXPECT_EQ(text_of({33, 39, 29, 20, 34}), "1,5.2");
}

TEST_F(calculator, a_listing_is_cut_to_its_room) {
  char text[6] = "xxxxx";
  expression_text(line_of({33, 36, 5, 34}), text, sizeof text);
  EXPECT_STREQ(text, "1+sin");
  char nothing[1] = {'x'};
  expression_text(line_of({33}), nothing, sizeof nothing);
  EXPECT_STREQ(nothing, "");
}

TEST_F(calculator, every_token_has_a_listing_of_some_kind) {
  TExpression line;
  line.count = 1;
  for (int token = 0; token <= 0xFFFF; ++token) {
    line.tokens[0] = static_cast<TToken>(token);
    const std::size_t length = std::string(token_text(line, 0)).size();
    EXPECT_LT(length, 60u) << token;
    if (decode_token(line, 0).kind == TOKEN_NONE) {
      EXPECT_EQ(length, 0u) << token;
    }
  }
}

}  // namespace
}  // namespace zephyl
