// The entry line: what each insertion, deletion and cursor movement leaves on it.

#include <string>
#include <vector>

#include "engine/errors.h"
#include "engine/expression.h"
#include "engine/format.h"
#include "engine/hooks.h"
#include "engine/memory.h"
#include "engine/state.h"
#include "engine/tokens.h"
#include "support/calculator.h"

namespace zephyl {
namespace {

constexpr const char* limit_note = "Limit | Reached expression size limit";

// The calls that go out for drawing, in order.
std::vector<std::string> drawn;

void record_drawing() {
  drawn.clear();
  hooks.draw_expression = [](bool with_cursor) {
    drawn.push_back(with_cursor ? "line with cursor" : "line");
  };
  hooks.draw_result = [](bool home) { drawn.push_back(home ? "result from its start" : "result"); };
  hooks.redraw_part = [](TScreenPart part) {
    drawn.push_back(part == PART_AC_AND_ARROWS ? "keys" : "another part");
  };
}

using TDrawings = std::vector<std::string>;

void fill_line(int count) {
  state.fresh_flag = false;
  clear_entry_line();
  for (int i = 0; i < count; ++i) insert_token(true, 33);
}

// A line of `count` tokens that has been evaluated.
void fill_result_line(int count) {
  fill_line(count);
  state.fresh_flag = true;
  state.nothing_evaluated = false;
}

TEST_F(calculator, tokens_go_in_at_the_cursor) {
  eval("1+2");
  cursor_to(1);
  insert_token(false, 35);
  EXPECT_EQ(entry(), "13+2");
  EXPECT_EQ(entry_line.cursor, 2);
}

TEST_F(calculator, a_token_draws_the_line_and_blanks_the_result) {
  eval("1+2");
  record_drawing();
  insert_token(false, 33);
  EXPECT_EQ(drawn, (TDrawings{"line with cursor", "result from its start"}));
  EXPECT_STREQ(state.result_text, "");
  EXPECT_FALSE(state.result_shown);
  EXPECT_TRUE(entry_line.cursor_shown);
}

TEST_F(calculator, a_silent_token_draws_nothing_and_empties_the_result) {
  eval("1+2");
  entry_line.cursor_shown = false;
  record_drawing();
  insert_token(true, 33);
  EXPECT_EQ(drawn, TDrawings{});
  EXPECT_STREQ(state.result_text, "");
  EXPECT_FALSE(state.result_shown);
  EXPECT_TRUE(entry_line.cursor_shown);
}

TEST_F(calculator, a_silent_token_keeps_the_result_text_of_a_running_program) {
  eval("1+2");
  const std::string result = state.result_text;
  state.program_running = true;
  insert_token(true, 33);
  EXPECT_EQ(state.result_text, result);
  state.program_running = false;
}

TEST_F(calculator, a_silent_token_keeps_the_result_text_under_alpha_entry) {
  eval("1+2");
  const std::string result = state.result_text;
  state.alpha_active = true;
  insert_token(true, 33);
  EXPECT_EQ(state.result_text, result);
  state.alpha_active = false;
}

TEST_F(calculator, a_token_takes_a_standing_error_back) {
  report_error(ERR_DOMAIN);
  errors.error_line_shown = true;
  insert_token(true, 33);
  EXPECT_FALSE(errors.error_flag);
  EXPECT_FALSE(errors.error_line_shown);
}

TEST_F(calculator, plus_after_a_result_goes_on_with_the_answer) {
  eval("2+3");
  insert_token(false, TOKEN_PLUS);
  EXPECT_EQ(codes(), "41 36");
  EXPECT_EQ(entry(), "(Ans)+");
  EXPECT_EQ(entry_line.cursor, 2);
}

TEST_F(calculator, minus_after_a_result_goes_on_with_the_answer) {
  eval("2+3");
  insert_token(false, TOKEN_MINUS);
  EXPECT_EQ(codes(), "41 37");
}

TEST_F(calculator, neg_after_a_result_begins_a_number) {
  eval("2+3");
  insert_token(false, TOKEN_NEG);
  EXPECT_EQ(codes(), "17");
}

TEST_F(calculator, a_digit_after_a_result_wipes_the_line) {
  eval("2+3");
  insert_token(false, 34);
  EXPECT_EQ(codes(), "34");
}

TEST_F(calculator, a_function_after_a_result_begins_a_new_expression) {
  eval("2+3");
  insert_token(false, 5);
  EXPECT_EQ(codes(), "5");
}

TEST_F(calculator, postfix_operators_go_on_with_the_answer) {
  eval("2+3");
  insert_token(false, 18);
  EXPECT_EQ(codes(), "41 18");
}

TEST_F(calculator, the_comma_goes_on_with_the_answer) {
  eval("2+3");
  insert_token(false, TOKEN_COMMA);
  EXPECT_EQ(codes(), "41 20");
}

TEST_F(calculator, stores_into_memories_go_on_with_the_answer) {
  eval("2+3");
  insert_token(false, 910);
  EXPECT_EQ(codes(), "41 910");
  eval("2+3");
  insert_token(false, 3010);
  EXPECT_EQ(codes(), "41 3010");
}

TEST_F(calculator, stores_into_system_variables_begin_a_new_expression) {
  eval("2+3");
  insert_token(false, 1500);
  EXPECT_EQ(codes(), "1500");
}

TEST_F(calculator, conversions_go_on_with_the_answer) {
  eval("2+3");
  insert_conversion(12, 11);
  EXPECT_EQ(codes(), "41 33547");
}

TEST_F(calculator, a_matrix_answer_goes_first) {
  eval("2+3");
  answers.m_ans_valid = answers.l_ans_valid = true;
  insert_token(false, 18);
  EXPECT_EQ(codes(), "1299 18");
}

TEST_F(calculator, a_list_answer_goes_before_the_number) {
  eval("2+3");
  answers.l_ans_valid = true;
  insert_token(false, TOKEN_PLUS);
  EXPECT_EQ(codes(), "1300 36");
}

TEST_F(calculator, a_string_answer_still_goes_on_with_ans) {
  eval("2+3");
  answers.ans_valid = false;
  answers.str_ans_valid = true;
  insert_token(false, TOKEN_PLUS);
  EXPECT_EQ(codes(), "41 36");
}

TEST_F(calculator, plus_with_nothing_evaluated_stands_alone) {
  insert_token(false, TOKEN_PLUS);
  EXPECT_EQ(codes(), "36");
}

TEST_F(calculator, plus_on_a_line_being_typed_inserts_no_answer) {
  eval("2+3");
  insert_token(false, 34);
  insert_token(false, TOKEN_PLUS);
  EXPECT_EQ(codes(), "34 36");
}

TEST_F(calculator, the_hundredth_token_is_refused) {
  fill_line(99);
  EXPECT_EQ(entry_line.expression.count, 99);
  EXPECT_EQ(message(), "none");
  EXPECT_FALSE(insert_token(false, 33));
  EXPECT_EQ(entry_line.expression.count, 99);
  EXPECT_EQ(message(), limit_note);
}

TEST_F(calculator, the_answer_leaves_room_for_98_tokens) {
  eval("2+3");
  insert_token(true, TOKEN_PLUS);
  for (int i = 0; i < 97; ++i) EXPECT_TRUE(insert_token(true, 33));
  EXPECT_FALSE(insert_token(true, 33));
  EXPECT_EQ(entry_line.expression.count, 99);
}

TEST_F(calculator, del_at_the_end_removes_the_last_token) {
  fill_line(0);
  for (int token : {33, 36, 34}) insert_token(true, static_cast<TToken>(token));
  record_drawing();
  delete_token();
  EXPECT_EQ(codes(), "33 36");
  EXPECT_EQ(entry_line.cursor, 2);
  EXPECT_EQ(drawn, TDrawings{"line with cursor"});
}

TEST_F(calculator, del_inside_removes_the_token_at_the_cursor) {
  fill_line(0);
  for (int token : {33, 36, 34}) insert_token(true, static_cast<TToken>(token));
  cursor_to(1);
  delete_token();
  EXPECT_EQ(codes(), "33 34");
  EXPECT_EQ(entry_line.cursor, 1);
}

TEST_F(calculator, del_of_an_empty_line_does_nothing) {
  fill_line(0);
  delete_token();
  EXPECT_EQ(entry_line.expression.count, 0);
  EXPECT_EQ(entry_line.cursor, 0);
}

TEST_F(calculator, del_at_the_end_removes_a_call_whole) {
  fill_line(1);
  insert_name_tokens("foo", TOKEN_FUNC1);
  EXPECT_EQ(codes(), "33 181 5102 5111 5111");
  delete_token();
  EXPECT_EQ(codes(), "33");
}

TEST_F(calculator, del_inside_removes_a_call_whole) {
  fill_line(1);
  insert_name_tokens("foo", TOKEN_FUNC1);
  insert_token(true, 34);
  cursor_to(1);
  delete_token();
  EXPECT_EQ(codes(), "33 34");
  EXPECT_EQ(entry_line.cursor, 1);
}

TEST_F(calculator, del_leaves_a_result_alone) {
  eval("2+3");
  record_drawing();
  delete_token();
  EXPECT_EQ(entry(), "2+3");
  EXPECT_EQ(drawn, TDrawings{});
}

TEST_F(calculator, del_leaves_a_standing_error) {
  fill_line(3);
  report_error(ERR_DOMAIN);
  delete_token();
  EXPECT_EQ(entry_line.expression.count, 2);
  EXPECT_TRUE(errors.error_flag);
}

TEST_F(calculator, cursor_left_stops_at_the_start) {
  fill_line(2);
  cursor_left(false);
  EXPECT_EQ(entry_line.cursor, 1);
  cursor_left(false);
  cursor_left(false);
  EXPECT_EQ(entry_line.cursor, 0);
}

TEST_F(calculator, cursor_right_stops_at_the_end) {
  fill_line(2);
  cursor_to(0);
  cursor_right(false);
  EXPECT_EQ(entry_line.cursor, 1);
  cursor_right(false);
  cursor_right(false);
  EXPECT_EQ(entry_line.cursor, 2);
}

TEST_F(calculator, big_steps_are_a_fifth_of_the_line) {
  fill_line(19);
  cursor_left(true);
  EXPECT_EQ(entry_line.cursor, 16);
  cursor_to(1);
  cursor_left(true);
  EXPECT_EQ(entry_line.cursor, 0);
  cursor_right(true);
  EXPECT_EQ(entry_line.cursor, 3);
  cursor_to(18);
  cursor_right(true);
  EXPECT_EQ(entry_line.cursor, 19);
}

TEST_F(calculator, big_steps_on_a_short_line_are_one) {
  fill_line(4);
  cursor_left(true);
  EXPECT_EQ(entry_line.cursor, 3);
  cursor_to(0);
  cursor_right(true);
  EXPECT_EQ(entry_line.cursor, 1);
}

TEST_F(calculator, the_cursor_passes_over_a_programs_name) {
  fill_line(1);
  insert_name_tokens("foo", TOKEN_FUNC1);
  insert_token(true, 34);
  cursor_left(false);
  EXPECT_EQ(entry_line.cursor, 5);
  cursor_left(false);
  EXPECT_EQ(entry_line.cursor, 1);
  cursor_right(false);
  EXPECT_EQ(entry_line.cursor, 5);
}

TEST_F(calculator, cursor_left_after_a_result_edits_at_the_end) {
  eval("1+2");
  cursor_left(false);
  EXPECT_EQ(entry(), "1+2");
  EXPECT_EQ(entry_line.cursor, 3);
  EXPECT_FALSE(state.fresh_flag);
  insert_token(true, 35);
  EXPECT_EQ(entry(), "1+23");
}

TEST_F(calculator, cursor_right_after_a_result_edits_at_the_start) {
  eval("1+2");
  cursor_right(false);
  EXPECT_EQ(entry_line.cursor, 0);
  EXPECT_FALSE(state.fresh_flag);
  insert_token(true, 35);
  EXPECT_EQ(entry(), "31+2");
}

TEST_F(calculator, cursor_keys_take_the_error_and_the_result_off_the_display) {
  for (void (*move)(bool) : {cursor_left, cursor_right}) {
    eval("1+2");
    report_error(ERR_DOMAIN);
    errors.error_line_shown = true;
    record_drawing();
    move(false);
    EXPECT_FALSE(errors.error_flag);
    EXPECT_FALSE(errors.error_line_shown);
    EXPECT_STREQ(state.result_text, "");
    EXPECT_FALSE(state.result_shown);
    EXPECT_EQ(drawn, (TDrawings{"keys", "line with cursor", "result from its start"}));
  }
}

TEST_F(calculator, a_tap_puts_the_cursor_in_front_of_a_token) {
  eval("1+2");
  report_error(ERR_DOMAIN);
  record_drawing();
  cursor_to(1);
  EXPECT_EQ(entry_line.cursor, 1);
  EXPECT_FALSE(state.fresh_flag);
  EXPECT_FALSE(errors.error_flag);
  EXPECT_EQ(drawn, (TDrawings{"keys", "line with cursor", "result from its start"}));
}

TEST_F(calculator, the_cursor_stays_on_the_line) {
  fill_line(3);
  cursor_to(50);
  EXPECT_EQ(entry_line.cursor, 3);
  cursor_to(-1);
  EXPECT_EQ(entry_line.cursor, 0);
}

// The tokens that a constant's text becomes.
std::string constant(const calculator&, const char* text, bool numeric_only = false) {
  state.fresh_flag = false;
  clear_entry_line();
  insert_constant_string(text, numeric_only);
  std::string codes;
  for (int i = 0; i < entry_line.expression.count; ++i)
    codes += (i ? " " : "") + std::to_string(entry_line.expression.tokens[i]);
  return codes;
}

TEST_F(calculator, a_constant_goes_in_in_parentheses) {
  EXPECT_EQ(constant(*this, "1234567890"), "3 33 34 35 28 29 30 23 24 25 38 4");
}

TEST_F(calculator, the_characters_of_a_constant_have_tokens) {
  EXPECT_EQ(constant(*this, "("), "3 3 4");
  EXPECT_EQ(constant(*this, ")"), "3 4 4");
  EXPECT_EQ(constant(*this, "+"), "3 36 4");
  EXPECT_EQ(constant(*this, ","), "3 39 4");
  EXPECT_EQ(constant(*this, "."), "3 39 4");
  EXPECT_EQ(constant(*this, "b"), "3 519 4");
  EXPECT_EQ(constant(*this, "d"), "3 517 4");
  EXPECT_EQ(constant(*this, "h"), "3 518 4");
  EXPECT_EQ(constant(*this, "o"), "3 619 4");
  EXPECT_EQ(constant(*this, "i"), "3 120 4");
  EXPECT_EQ(constant(*this, " "), "3 4");
  EXPECT_EQ(constant(*this, "^"), "3 4");
}

TEST_F(calculator, the_glyphs_of_a_result_have_tokens) {
  EXPECT_EQ(constant(*this, "\x19"), "3 111 4");
  EXPECT_EQ(constant(*this, "\x1a"), "3 120 4");
  EXPECT_EQ(constant(*this, "\x1b"), "3 40 4");
  EXPECT_EQ(constant(*this, "\x1d"), "3 4");
  EXPECT_EQ(constant(*this, "\x1e"), "3 38 4");
  EXPECT_EQ(constant(*this, "\x1f"), "3 33 4");
}

TEST_F(calculator, the_exponent_of_a_constant_keeps_its_sign) {
  EXPECT_EQ(constant(*this, "1.5e-11"), "3 33 39 29 40 17 33 33 4");
  EXPECT_EQ(constant(*this, "2E5"), "3 34 40 29 4");
}

TEST_F(calculator, an_e_with_a_power_is_the_base) {
  EXPECT_EQ(constant(*this, "2e^(-i)"), "3 34 111 3 17 120 4 4");
  EXPECT_EQ(constant(*this, "2E^(3i)"), "3 34 111 3 35 120 4 4");
}

TEST_F(calculator, a_minus_behind_an_operand_is_the_infix_one) {
  EXPECT_EQ(constant(*this, "-2-3i"), "3 17 34 37 35 120 4");
  EXPECT_EQ(constant(*this, "2.-3"), "3 34 39 37 35 4");
  EXPECT_EQ(constant(*this, "2,-3"), "3 34 39 37 35 4");
  EXPECT_EQ(constant(*this, "(2)-3"), "3 3 34 4 37 35 4");
  EXPECT_EQ(constant(*this, "+-3"), "3 36 17 35 4");
}

TEST_F(calculator, hexadecimal_digits_have_tokens_in_base_mode_only) {
  state.calcMode = BASE_MODE;
  EXPECT_EQ(constant(*this, "ABCDEFh"), "3 511 512 513 514 515 516 518 4");
  EXPECT_EQ(constant(*this, "A-1"), "3 511 37 33 4");
  EXPECT_EQ(message(), "none");
  state.calcMode = COMP_MODE;
  EXPECT_EQ(constant(*this, "A"), "3 4");
  EXPECT_EQ(message(), "insert_constant_string | Unknown constant character");
}

TEST_F(calculator, an_unknown_character_repeats_the_token_before_it) {
  EXPECT_EQ(constant(*this, "1x2"), "3 33 33 34 4");
  EXPECT_EQ(message(), "insert_constant_string | Unknown constant character");
  EXPECT_EQ(message(), "none");
  EXPECT_EQ(constant(*this, "x1"), "3 33 4");
}

TEST_F(calculator, a_numeric_constant_is_cut_at_its_unit) {
  EXPECT_EQ(constant(*this, "1.5 m", true), "3 33 39 29 4");
  EXPECT_EQ(constant(*this, "-1.5-3", true), "3 17 33 39 29 4");
  EXPECT_EQ(constant(*this, "12e5", true), "3 33 34 4");
  EXPECT_EQ(constant(*this, "[98]", true), "3 4");
}

TEST_F(calculator, a_constant_that_does_not_fit_is_refused_whole) {
  fill_line(95);
  EXPECT_FALSE(insert_constant_string("1 2 3", false));
  EXPECT_EQ(entry_line.expression.count, 95);
  EXPECT_EQ(message(), limit_note);
  EXPECT_TRUE(insert_constant_string("1 2", false));
  EXPECT_EQ(entry_line.expression.count, 99);
  EXPECT_EQ(message(), "none");
}

TEST_F(calculator, a_refused_constant_names_no_unknown_characters) {
  fill_line(98);
  EXPECT_FALSE(insert_constant_string("1x", false));
  EXPECT_EQ(message(), limit_note);
  EXPECT_EQ(message(), "none");
}

TEST_F(calculator, a_constant_draws_the_line_once) {
  fill_line(2);
  record_drawing();
  insert_constant_string("12", false);
  EXPECT_EQ(drawn, (TDrawings{"line with cursor", "result from its start"}));
}

TEST_F(calculator, a_constant_after_a_result_begins_a_new_expression) {
  fill_result_line(99);
  EXPECT_TRUE(insert_constant_string("12", false));
  EXPECT_EQ(codes(), "3 33 34 4");
}

TEST_F(calculator, a_variables_value_goes_in_as_digits) {
  memory_set_both(SLOT_CAPITAL_A, -1.5, 0.0);
  fill_line(0);
  EXPECT_TRUE(insert_variable_value(SLOT_CAPITAL_A));
  EXPECT_EQ(codes(), "3 17 33 39 29 4");
}

TEST_F(calculator, a_complex_value_goes_in_with_both_parts) {
  memory_set_both(SLOT_CAPITAL_A, 2.0, -3.0);
  fill_line(0);
  insert_variable_value(SLOT_CAPITAL_A);
  EXPECT_EQ(codes(), "3 34 37 35 120 4");
}

TEST_F(calculator, a_value_goes_in_though_a_list_is_the_answer) {
  answers.l_ans_valid = true;
  memory_set_both(SLOT_X, 7.0, 0.0);
  fill_line(0);
  insert_variable_value(SLOT_X);
  EXPECT_EQ(codes(), "3 23 4");
}

TEST_F(calculator, slots_without_a_number_have_no_value_to_insert) {
  fill_line(0);
  for (int slot : {-1, 90, 105, 120, 130}) EXPECT_FALSE(insert_variable_value(slot)) << slot;
  EXPECT_EQ(codes(), "");
}

TEST_F(calculator, a_name_goes_in_behind_its_call) {
  fill_line(0);
  EXPECT_TRUE(insert_name_tokens("a Z", TOKEN_FUNC2));
  EXPECT_EQ(codes(), "182 5097 5032 5090");
}

TEST_F(calculator, a_name_counts_with_its_call) {
  fill_line(96);
  EXPECT_FALSE(insert_name_tokens("abc", TOKEN_FUNC1));
  EXPECT_EQ(entry_line.expression.count, 96);
  EXPECT_EQ(message(), limit_note);
  EXPECT_TRUE(insert_name_tokens("ab", TOKEN_FUNC1));
  EXPECT_EQ(entry_line.expression.count, 99);
}

TEST_F(calculator, a_string_goes_in_character_by_character) {
  fill_line(0);
  EXPECT_TRUE(insert_string_tokens(" aZ~"));
  EXPECT_EQ(codes(), "700 765 758 794");
}

TEST_F(calculator, a_string_that_does_not_fit_is_refused_whole) {
  fill_line(97);
  EXPECT_FALSE(insert_string_tokens("abc"));
  EXPECT_EQ(entry_line.expression.count, 97);
  EXPECT_EQ(message(), limit_note);
  EXPECT_TRUE(insert_string_tokens("ab"));
}

TEST_F(calculator, an_empty_string_changes_nothing) {
  fill_result_line(3);
  record_drawing();
  EXPECT_TRUE(insert_string_tokens(""));
  EXPECT_EQ(entry_line.expression.count, 3);
  EXPECT_EQ(drawn, TDrawings{});
}

TEST_F(calculator, solver_calls_carry_all_variables_but_their_own) {
  const char* const calls[] = {"1250 1430 20 1431 20 1432 20 1434 20 1435 20 1436 4",
                               "1251 1430 20 1432 20 1433 20 1434 20 1435 20 1436 4",
                               "1252 1430 20 1431 20 1433 20 1434 20 1435 20 1436 4",
                               "1253 1431 20 1432 20 1433 20 1434 20 1435 20 1436 4",
                               "1254 1430 20 1431 20 1432 20 1433 20 1435 20 1436 4"};
  for (int i = 0; i < 5; ++i) {
    fill_line(0);
    EXPECT_TRUE(insert_tvm_call(static_cast<TToken>(1250 + i)));
    EXPECT_EQ(codes(), calls[i]);
    EXPECT_EQ(entry_line.cursor, 0);
  }
}

TEST_F(calculator, the_cursor_stands_in_front_of_a_solver_call) {
  fill_line(4);
  cursor_to(2);
  insert_tvm_call(1253);
  EXPECT_EQ(entry_line.cursor, 2);
  EXPECT_EQ(entry_line.expression.tokens[2], 1253);
  EXPECT_EQ(entry_line.expression.count, 17);
}

TEST_F(calculator, a_solver_call_needs_room_for_13_tokens) {
  fill_line(87);
  EXPECT_FALSE(insert_tvm_call(1250));
  EXPECT_EQ(entry_line.expression.count, 87);
  EXPECT_EQ(message(), limit_note);
  fill_line(86);
  EXPECT_TRUE(insert_tvm_call(1250));
  EXPECT_EQ(entry_line.expression.count, 99);
}

TEST_F(calculator, other_tokens_are_no_solver_calls) {
  fill_line(0);
  EXPECT_FALSE(insert_tvm_call(1249));
  EXPECT_FALSE(insert_tvm_call(1255));
  EXPECT_EQ(codes(), "");
}

TEST_F(calculator, a_conversion_is_one_token) {
  fill_line(1);
  record_drawing();
  EXPECT_TRUE(insert_conversion(138, 12));
  EXPECT_EQ(drawn, (TDrawings{"line with cursor", "result from its start"}));
  EXPECT_EQ(codes(), "33 " + std::to_string(32768 + 138 * 64 + 12));
}

TEST_F(calculator, pasted_tokens_go_in_whole_or_not_at_all) {
  const std::vector<TToken> pasted(50, 34);
  fill_line(50);
  EXPECT_FALSE(insert_tokens(pasted.data(), 50));
  EXPECT_EQ(entry_line.expression.count, 50);
  EXPECT_EQ(message(), limit_note);
  EXPECT_TRUE(insert_tokens(pasted.data(), 49));
  EXPECT_EQ(entry_line.expression.count, 99);
}

TEST_F(calculator, the_answer_in_front_of_pasted_tokens_counts) {
  const std::vector<TToken> pasted(99, TOKEN_PLUS);
  fill_result_line(3);
  EXPECT_FALSE(insert_tokens(pasted.data(), 99));
  EXPECT_EQ(entry_line.expression.count, 3);
  EXPECT_EQ(message(), limit_note);
  EXPECT_TRUE(insert_tokens(pasted.data(), 98));
  EXPECT_EQ(entry_line.expression.count, 99);
  EXPECT_EQ(entry_line.expression.tokens[0], TOKEN_ANS);
}

TEST_F(calculator, more_tokens_than_a_line_holds_are_refused) {
  const std::vector<TToken> pasted(3000, 34);
  fill_line(0);
  EXPECT_FALSE(insert_tokens(pasted.data(), 3000));
  EXPECT_FALSE(insert_string_tokens(std::string(3000, 'a').c_str()));
  EXPECT_FALSE(insert_constant_string(std::string(3000, '1').c_str(), false));
  EXPECT_EQ(codes(), "");
}

TEST_F(calculator, function_slots_start_empty) {
  for (const TExpression& slot : function_slots) EXPECT_EQ(slot.count, 0);
  EXPECT_STREQ(function_slot_name(-1), "");
  EXPECT_STREQ(function_slot_name(50), "");
}

// Any order of editing leaves the line within its bounds.
TEST_F(calculator, random_editing_keeps_the_line_in_bounds) {
  std::uint32_t seed = 12345;
  const auto next = [&seed](std::uint32_t below) {
    seed = seed * 1664525u + 1013904223u;
    return static_cast<int>((seed >> 8) % below);
  };
  for (int round = 0; round < 20000; ++round) {
    switch (next(8)) {
      case 0:
        delete_token();
        break;
      case 1:
        cursor_left(next(2) == 0);
        break;
      case 2:
        cursor_right(next(2) == 0);
        break;
      case 3:
        cursor_to(next(120) - 10);
        break;
      case 4:
        insert_name_tokens("abcd", TOKEN_FUNC1);
        break;
      case 5:
        state.fresh_flag = next(20) == 0;
        break;
      default:
        insert_token(next(2) == 0, static_cast<TToken>(next(65536)));
        break;
    }
    ASSERT_GE(entry_line.cursor, 0);
    ASSERT_LE(entry_line.cursor, entry_line.expression.count);
    ASSERT_LE(entry_line.expression.count, 99);
    platform_.messages.clear();
  }
}

}  // namespace
}  // namespace zephyl
