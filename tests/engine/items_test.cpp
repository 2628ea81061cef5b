// Tokens become items: numbers, the operands of every kind, function slots read in place and stored into.

#include <algorithm>

#include "compiling.h"
#include "engine/memory.h"
#include "engine/state.h"
#include "engine/tokens.h"

namespace zephyl {
namespace {

class items : public compiler {
 protected:
  const TItemList& read(const TExpression& expression) {
    clear_error();
    stored_ = {};
    tokens_to_items(expression, &stored_);
    return item_list;
  }
  const TItemList& read(const std::string& text) { return read(from_text(text)); }
  const TItem& item(int index) { return item_list.items[index]; }

  void define(int slot, const std::string& text) { function_slots[slot] = from_text(text); }
  std::string tokens_of(int slot) {
    char text[500];
    expression_text(function_slots[slot], text, sizeof text);
    return text;
  }

  TStoredSlots stored_;
};

// --- Numbers

TEST_F(items, digits_gather_into_one_number) {
  EXPECT_EQ(read("12.5+3").count, 3);
  EXPECT_EQ(item(0).kind, ITEM_NUMBER);
  EXPECT_EQ(item(0).sub, OPERAND_LITERAL);
  EXPECT_EQ(item(0).value, 12.5);
  EXPECT_EQ(item(1).op, OP_PLUS);
  EXPECT_EQ(item(2).value, 3.0);
}

TEST_F(items, the_sign_behind_an_exponent_belongs_to_the_number) {
  EXPECT_EQ(read("1e-5").count, 1);
  EXPECT_EQ(item(0).value, 1e-5);
}

TEST_F(items, a_sign_without_a_number_in_front_is_an_operation) {
  EXPECT_EQ(read("-5").count, 2);
  EXPECT_EQ(item(0).op, OP_NEG);
}

TEST_F(items, the_sign_key_between_two_numbers_is_a_syntax_error) {
  EXPECT_EQ(error_code(from_tokens({34, TOKEN_NEG, 35})), ERR_SYNTAX);
}

TEST_F(items, the_minus_key_between_two_numbers_subtracts) {
  EXPECT_EQ(read(from_tokens({34, TOKEN_MINUS, 35})).count, 3);
  EXPECT_EQ(item(1).op, OP_MINUS);
}

TEST_F(items, a_bad_number_stops_the_reading) {
  EXPECT_EQ(read(from_tokens({TOKEN_POINT, TOKEN_PLUS, 34})).count, 0);
  EXPECT_EQ(errors.error_code, ERR_SYNTAX);
}

TEST_F(items, a_number_too_large_is_an_overflow) { EXPECT_EQ(error_code("1e999"), ERR_OVERFLOW); }

TEST_F(items, a_new_expression_starts_with_an_empty_number) {
  read(from_tokens({TOKEN_POINT, TOKEN_PLUS}));
  EXPECT_EQ(read("7").count, 1);
  EXPECT_EQ(item(0).value, 7.0);
}

TEST_F(items, base_mode_reads_integers) {
  state.calcMode = BASE_MODE;
  settings.baseType = U_HEX;
  EXPECT_EQ(read(from_tokens({511, 512})).count, 1);
  EXPECT_EQ(item(0).value, 0xAB);
}

// --- Tokens of every kind

TEST_F(items, a_token_of_no_meaning_makes_no_item) {
  EXPECT_EQ(read(from_tokens({10, 34, TOKEN_PLUS, 10, 35, 10})).count, 3);
  EXPECT_FALSE(errors.error_flag);
}

TEST_F(items, answers_constants_and_the_random_number_are_operands) {
  const std::pair<const char*, TOperandClass> cases[] = {
      {"Ans", OPERAND_ANS},           {"(M_Ans)", OPERAND_M_ANS}, {"(L_Ans)", OPERAND_L_ANS},
      {"(str_Ans)", OPERAND_STR_ANS}, {"(i)", OPERAND_I},         {"(Rand)", OPERAND_RANDOM},
      {"pi", OPERAND_LITERAL},        {"(e)", OPERAND_LITERAL}};
  for (const auto& [text, sub] : cases) {
    ASSERT_EQ(read(text).count, 1) << text;
    EXPECT_EQ(item(0).kind, ITEM_OPERAND) << text;
    EXPECT_EQ(item(0).sub, sub) << text;
  }
}

TEST_F(items, pi_and_e_are_literals) {
  read("pi");
  EXPECT_EQ(item(0).value, 3.141592653589793);
  read("(e)");
  EXPECT_EQ(item(0).value, 2.718281828459045);
}

TEST_F(items, recalls_name_their_slot) {
  for (const auto& [token, slot] :
       {std::pair{800, 0}, {899, 99}, {2000, 0}, {2109, 109}, {2120, 120}, {2128, 128}}) {
    ASSERT_EQ(read(from_tokens({token})).count, 1);
    EXPECT_EQ(item(0).sub, OPERAND_MEMORY);
    EXPECT_EQ(item(0).memory, slot);
  }
}

TEST_F(items, stores_are_operators_with_their_slot) {
  for (const auto& [token, slot] : {std::pair{900, 0}, {999, 99}, {3000, 0}, {3109, 109}, {3128, 128}}) {
    ASSERT_EQ(read(from_tokens({token})).count, 1);
    EXPECT_EQ(item(0).kind, ITEM_OPERATOR);
    EXPECT_EQ(item(0).op, OP_SAVE_MEMORY);
    EXPECT_EQ(item(0).memory, slot);
  }
}

TEST_F(items, system_variables_are_read_and_stored_by_number) {
  read(from_tokens({1423, 1524}));
  EXPECT_EQ(item(0).sub, OPERAND_VARIABLE);
  EXPECT_EQ(item(0).memory, 23);
  EXPECT_EQ(item(1).op, OP_SAVE_VARIABLE);
  EXPECT_EQ(item(1).memory, 24);
}

TEST_F(items, a_statistics_value_has_its_number) {
  read(from_tokens({1016}));
  EXPECT_EQ(item(0).kind, ITEM_OPERAND);
  EXPECT_EQ(item(0).sub, OPERAND_STATISTIC);
  EXPECT_EQ(item(0).stat, 20);
}

TEST_F(items, brackets_have_their_type) {
  const std::pair<int, TBracket> opens[] = {
      {3, BRACKET_PAREN}, {103, BRACKET_SQUARE}, {203, BRACKET_BRACE}, {42, BRACKET_PAREN}};
  for (const auto& [token, paren] : opens) {
    read(from_tokens({token, token + 1}));
    EXPECT_EQ(item(0).kind, ITEM_OPEN) << token;
    EXPECT_EQ(item(0).paren, paren) << token;
    EXPECT_EQ(item(1).kind, ITEM_CLOSE) << token;
    EXPECT_EQ(item(1).paren, paren) << token;
  }
}

TEST_F(items, a_conversion_by_position_keeps_unit_and_position) {
  read(from_tokens({34, FIRST_CONVERSION + 64 * 37 + 5}));
  EXPECT_EQ(item(1).op, OP_CONVERSION);
  EXPECT_EQ(item(1).unit_from, 37);
  EXPECT_EQ(item(1).unit_to, 5);
  EXPECT_TRUE(item(1).unit_by_position);
}

TEST_F(items, a_conversion_pair_keeps_both_units) {
  read(from_tokens({34, FIRST_CONVERSION_PAIR + 100 + 128 * 27}));
  EXPECT_EQ(item(1).unit_from, 100);
  EXPECT_EQ(item(1).unit_to, 27);
  EXPECT_FALSE(item(1).unit_by_position);
}

TEST_F(items, a_string_character_keeps_its_code) {
  read("\"a\"");
  EXPECT_EQ(item(0).kind, ITEM_CHARACTER);
  EXPECT_EQ(item(0).value, 97.0);
}

TEST_F(items, a_call_takes_the_name_behind_it) {
  EXPECT_EQ(read("area(2)").count, 3);
  EXPECT_EQ(item(0).op, OP_FUNC1);
  EXPECT_STREQ(item(0).name, "area");
}

TEST_F(items, a_name_is_cut_at_25_characters) {
  TExpression expression = from_tokens({TOKEN_FUNC2});
  for (int i = 0; i < 30; ++i)
    expression.tokens[expression.count++] = static_cast<TToken>(FIRST_NAME_TOKEN + 'a' + i % 26);
  EXPECT_EQ(read(expression).count, 1);
  EXPECT_STREQ(item(0).name, "abcdefghijklmnopqrstuvwxy");
}

TEST_F(items, a_call_without_a_name_has_an_empty_one) {
  read(from_tokens({TOKEN_FUNC2, TOKEN_PLUS, 34}));
  EXPECT_STREQ(item(0).name, "");
}

TEST_F(items, the_list_holds_100_items) {
  define(0, "1+1+1+1+1+1+1+1+1+1+1+1");  // 23 items and its parentheses
  EXPECT_EQ(read("f1(x)f1(x)f1(x)f1(x)").count, 100);
  EXPECT_FALSE(errors.error_flag);
  read("f1(x)f1(x)f1(x)f1(x)!");
  EXPECT_EQ(errors.error_code, ERR_MEMORY_LIMIT);
}

// --- Reading function slots

TEST_F(items, a_function_slot_is_read_in_hidden_parentheses) {
  define(0, "x+1");
  EXPECT_EQ(steps("2*f1(x)"), "r0 = x+1\nr0 = 2*r0\n");
}

TEST_F(items, a_number_in_front_of_a_function_slot_is_complete) {
  define(0, "5");
  EXPECT_EQ(read("2f1(x)3").count, 5);
}

TEST_F(items, function_slots_are_read_within_function_slots) {
  define(0, "f2(x)^2");
  define(1, "x-1");
  EXPECT_EQ(steps("f1(x)"), "r0 = x-1\nr0 = r0^2\n");
}

TEST_F(items, an_empty_function_slot_is_undefined) {
  EXPECT_EQ(error_code("1+f1(x)"), ERR_UNDEFINED_FUNCTION);
  EXPECT_STREQ(errors.error_text, "Undefined Function Var ");
}

TEST_F(items, a_function_slot_that_reads_itself_is_too_deep) {
  define(0, "f1(x)");
  EXPECT_EQ(error_code("f1(x)"), ERR_MEMORY_LIMIT);
}

// Slots 0 to depth - 1, each reading the next, the last one a number.
void define_chain(int depth) {
  for (int slot = 0; slot < depth; ++slot) {
    function_slots[slot] = from_tokens({FIRST_FUNCTION_READ + slot + 1});
    if (slot == depth - 1) function_slots[slot] = from_tokens({34});
  }
}

TEST_F(items, function_slots_nest_ten_deep) {
  define_chain(10);
  EXPECT_EQ(error_code("f1(x)"), NO_COMPILE_ERROR);
  define_chain(11);
  EXPECT_EQ(error_code("f1(x)"), ERR_MEMORY_LIMIT);
}

TEST_F(items, function_slots_that_double_end_at_the_item_limit) {
  for (int slot = 0; slot < 9; ++slot)
    function_slots[slot] = from_tokens({FIRST_FUNCTION_READ + slot + 1, FIRST_FUNCTION_READ + slot + 1});
  define(9, "2");
  EXPECT_EQ(error_code("f1(x)"), ERR_MEMORY_LIMIT);
}

// --- Storing into function slots

TEST_F(items, a_store_keeps_the_tokens_in_front_of_it) {
  EXPECT_EQ(error_code("x^(2)+1->f1(x)"), NO_COMPILE_ERROR);
  EXPECT_EQ(tokens_of(0), "x^(2)+1");
  EXPECT_EQ(steps("x->f1(x)"), "r0 = x > f1(x)\n");
}

TEST_F(items, a_store_begins_behind_the_last_comma_of_its_group) {
  EXPECT_EQ(error_code("Max(3,x+1->f1(x))"), NO_COMPILE_ERROR);
  EXPECT_EQ(tokens_of(0), "x+1");
}

TEST_F(items, commas_inside_closed_parentheses_do_not_cut_a_store) {
  EXPECT_EQ(error_code("Max(1,2)+{1,2}+gcd(4,(6))->f1(x)"), NO_COMPILE_ERROR);
  EXPECT_EQ(tokens_of(0), "Max(1,2)+{1,2}+gcd(4,(6))");
}

TEST_F(items, functions_without_arguments_do_not_upset_the_scan_for_a_comma) {
  EXPECT_EQ(error_code("Max(1,TIME()+clock()+area(2)->f1(x))"), NO_COMPILE_ERROR);
  EXPECT_EQ(function_slots[0], from_text("TIME()+clock()+area(2)"));
}

TEST_F(items, a_store_in_an_open_parenthesis_keeps_it_all_from_the_start) {
  EXPECT_EQ(error_code("2*(x+1->f1(x))"), NO_COMPILE_ERROR);
  EXPECT_EQ(tokens_of(0), "2*(x+1");
}

TEST_F(items, a_store_at_the_start_is_a_syntax_error) {
  EXPECT_EQ(error_code(from_tokens({FIRST_FUNCTION_WRITE, TOKEN_PLUS, 34})), ERR_SYNTAX);
}

TEST_F(items, a_store_behind_a_hundred_tokens_is_over_the_limit) {
  TExpression expression;
  while (expression.count < 99) expression.tokens[expression.count++] = 33;
  expression.tokens[expression.count++] = FIRST_FUNCTION_WRITE;
  EXPECT_EQ(error_code(expression), NO_COMPILE_ERROR);
  EXPECT_EQ(function_slots[0].count, 99);
  expression.tokens[99] = 33;
  expression.tokens[expression.count++] = FIRST_FUNCTION_WRITE;
  EXPECT_EQ(error_code(expression), ERR_MEMORY_LIMIT);
}

TEST_F(items, a_function_is_not_stored_into_itself) {
  define(0, "x");
  EXPECT_EQ(error_code("f1(x)+1->f1(x)"), ERR_NESTED_FUNCTION);
  EXPECT_STREQ(errors.error_text, "Can't Nest a Function Var");
  EXPECT_EQ(tokens_of(0), "x");
}

TEST_F(items, a_store_may_read_another_function) {
  define(1, "x");
  EXPECT_EQ(error_code("f2(x)+1->f1(x)"), NO_COMPILE_ERROR);
  EXPECT_EQ(tokens_of(0), "f2(x)+1");
}

TEST_F(items, an_expression_with_an_error_stores_nothing) {
  define(0, "x");
  EXPECT_EQ(error_code("5->f1(x)+"), ERR_SYNTAX);
  EXPECT_EQ(error_code("5->f1(x)+(2]"), ERR_PARENTHESIS_UNBALANCED);
  EXPECT_EQ(error_code("5->f1(x)+f2(x)"), ERR_UNDEFINED_FUNCTION);
  EXPECT_EQ(tokens_of(0), "x");
}

TEST_F(items, a_later_expression_does_not_make_up_for_a_failed_store) {
  define(0, "x");
  EXPECT_EQ(error_code("5->f1(x)+"), ERR_SYNTAX);
  EXPECT_EQ(error_code("1+1"), NO_COMPILE_ERROR);
  EXPECT_EQ(tokens_of(0), "x");
}

TEST_F(items, items_that_are_never_compiled_store_nothing) {
  define(0, "x");
  read("5->f1(x)");
  EXPECT_EQ(tokens_of(0), "x");
}

TEST_F(items, several_stores_take_effect_together) {
  define(0, "1");
  define(1, "2");
  EXPECT_EQ(error_code("7->f1(x)->f2(x)"), NO_COMPILE_ERROR);
  EXPECT_EQ(tokens_of(0), "7");
  EXPECT_EQ(tokens_of(1), "7 > f1(x)");
}

TEST_F(items, a_function_read_behind_its_store_is_the_old_one) {
  define(0, "1");
  EXPECT_EQ(steps("5->f1(x)+f1(x)"), "r0 = 5 > f1(x)\nr0 = r0+1\n");
  EXPECT_EQ(tokens_of(0), "5");
}

TEST_F(items, a_store_within_a_function_slot_keeps_that_slots_tokens) {
  define(1, "x+3->f1(x)");
  EXPECT_EQ(error_code("2*f2(x)"), NO_COMPILE_ERROR);
  EXPECT_EQ(tokens_of(0), "x+3");
}

TEST_F(items, tells_which_kind_of_slot_is_stored_into) {
  read("1+1");
  EXPECT_FALSE(stored_.plot_function || stored_.program_function);
  read("x->Y3(t)");
  EXPECT_TRUE(stored_.plot_function);
  EXPECT_FALSE(stored_.program_function);
  read("x->f1()");
  EXPECT_FALSE(stored_.plot_function);
  EXPECT_TRUE(stored_.program_function);
}

TEST_F(items, a_store_into_a_function_slot_has_its_slot_as_target) {
  compile("x->f9()");
  EXPECT_EQ(step_of(OP_SAVE_VARIABLE).target, FUNCTION_SLOT_OFFSET + 29);
}

}  // namespace
}  // namespace zephyl
