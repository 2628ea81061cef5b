// The walk over the steps: operands, dispatch by type, literals, mapping over lists, faults, the poll,
// numeric operators that run their body again.

#include "engine/evaluator.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "engine/calculator.h"
#include "engine/compiler.h"
#include "engine/errors.h"
#include "engine/hooks.h"
#include "engine/memory.h"
#include "engine/operation_table.h"
#include "engine/records.h"
#include "engine/state.h"
#include "engine/text_form.h"
#include "support/calculator.h"

namespace zephyl {
namespace {

void define_list(int index, std::initializer_list<TValue> values) {
  ListRecord& list = stores.lists[index];
  list.last = -1;
  for (const TValue& value : values) list.elements[++list.last] = value;
  list.defined = true;
}

std::string list_answer() {
  std::string text;
  const ListRecord& list = stores.lists[ANSWER_RECORD];
  for (int i = 0; i <= list.last; ++i) {
    char element[80];
    if (is_real(list.elements[i]))
      std::snprintf(element, sizeof element, "%g ", list.elements[i].re);
    else
      std::snprintf(element, sizeof element, "%g,%g ", list.elements[i].re, list.elements[i].im);
    text += element;
  }
  if (!text.empty()) text.pop_back();
  return list.defined ? text : "undefined";
}

// --- Operands

TEST_F(calculator, evaluates_a_single_number) { EXPECT_EQ(value("42"), 42.0); }

TEST_F(calculator, reads_a_memory_by_its_name) {
  memory_array[SLOT_X] = {2.5, -1.0};
  EXPECT_EQ(value("x"), 2.5);
  EXPECT_EQ(answers.ans.im, -1.0);
}

TEST_F(calculator, stores_both_parts_of_a_complex_value) {
  value("3+4(i)->A");
  EXPECT_EQ(memory_array[SLOT_CAPITAL_A], (TValue{3.0, 4.0}));
}

TEST_F(calculator, a_store_has_the_stored_value_as_its_result) { EXPECT_EQ(value("7->A"), 7.0); }

TEST_F(calculator, stores_chain_within_one_expression) {
  value("2->A->B");
  EXPECT_EQ(memory_array[SLOT_CAPITAL_A].re, 2.0);
  EXPECT_EQ(memory_array[SLOT_CAPITAL_A + 1].re, 2.0);
}

TEST_F(calculator, a_store_before_an_error_stays) {
  EXPECT_EQ(error_of("(5->A)/0"), "Division by Zero");
  EXPECT_EQ(memory_array[SLOT_CAPITAL_A].re, 5.0);
}

TEST_F(calculator, an_error_leaves_the_answer_as_it_was) {
  value("11");
  EXPECT_EQ(error_of("1/0"), "Division by Zero");
  EXPECT_EQ(answers.ans.re, 11.0);
}

TEST_F(calculator, the_random_operand_asks_the_generator_each_time) {
  static int calls;
  calls = 0;
  hooks.next_random = [] { return static_cast<double>(++calls); };
  EXPECT_EQ(value("(Rand)+10*(Rand)"), 12.0);
}

TEST_F(calculator, an_undefined_list_reports_that_its_size_is_not_defined) {
  EXPECT_EQ(error_of("{B}"), "List Size Not Defined");
  EXPECT_EQ(error_of("{B}+1"), "List Size Not Defined");
  EXPECT_EQ(error_of("sin({B})"), "List Size Not Defined");
}

TEST_F(calculator, an_undefined_matrix_reports_that_its_size_is_not_defined) {
  EXPECT_EQ(error_of("[B]"), "Matrix Size Not Defined");
}

TEST_F(calculator, a_single_list_goes_to_the_list_answer) {
  define_list(0, {{1, 0}, {2, 3}});
  EXPECT_EQ(eval("{A}"), "Result in List Answer");
  EXPECT_EQ(list_answer(), "1 2,3");
  EXPECT_TRUE(answers.l_ans_valid);
}

TEST_F(calculator, a_single_string_goes_to_the_string_answer) {
  EXPECT_EQ(eval("\"Hi there\""), "Hi there");
  EXPECT_STREQ(stores.strings[ANSWER_RECORD].text, "Hi there");
}

// --- Literals

TEST_F(calculator, a_list_literal_keeps_its_order) {
  eval("{1,2,3}");
  EXPECT_EQ(list_answer(), "1 2 3");
}

TEST_F(calculator, a_list_literal_holds_expressions_and_complex_numbers) {
  eval("{1+1,2(i),sqRt 16}");
  EXPECT_EQ(list_answer(), "2 0,2 4");
}

TEST_F(calculator, one_number_in_braces_is_that_number) { EXPECT_EQ(eval("{5}"), "5"); }

TEST_F(calculator, a_leading_comma_makes_a_list_of_one) {
  eval("{,5}");
  EXPECT_EQ(list_answer(), "5");
}

TEST_F(calculator, a_list_within_a_list_is_a_data_type_error) {
  EXPECT_EQ(error_of("{{1,2},3}"), "Data Type Error");
}

TEST_F(calculator, a_string_of_one_character_is_a_string) {
  EXPECT_EQ(eval("\"a\""), "a");
  EXPECT_STREQ(stores.strings[ANSWER_RECORD].text, "a");
}

// --- Mapping

TEST_F(calculator, maps_an_operator_over_a_list_and_a_number) {
  eval("{1,2,3}+10");
  EXPECT_EQ(list_answer(), "11 12 13");
  eval("10-{1,2,3}");
  EXPECT_EQ(list_answer(), "9 8 7");
}

TEST_F(calculator, maps_an_operator_over_two_lists) {
  eval("{1,2,3}*{4,5,6}");
  EXPECT_EQ(list_answer(), "4 10 18");
}

TEST_F(calculator, lists_of_different_sizes_do_not_map) {
  EXPECT_EQ(error_of("{1,2}+{1,2,3}"), "List Size Mismatch");
}

TEST_F(calculator, maps_functions_over_lists) {
  eval("abs({1,-2,3})");
  EXPECT_EQ(list_answer(), "1 2 3");
  eval("Max({1,5},{4,2})");
  EXPECT_EQ(list_answer(), "4 5");
  eval("Max({1,5},3)");
  EXPECT_EQ(list_answer(), "3 5");
}

TEST_F(calculator, maps_real_and_complex_elements_by_their_own_rules) {
  eval("{4,2(i)}^(2)");
  EXPECT_EQ(list_answer(), "16 -4");
}

TEST_F(calculator, an_error_in_one_element_ends_the_mapping) {
  EXPECT_EQ(error_of("1/{1,0,2}"), "Division by Zero");
}

TEST_F(calculator, a_complex_list_does_not_fit_a_real_argument) {
  EXPECT_EQ(error_of("fmod({1,2(i)},3)"), "Function Argument Type");
  EXPECT_EQ(error_of("fmod({7,8},3)"), "");
  EXPECT_EQ(list_answer(), "1 2");
}

TEST_F(calculator, a_list_answer_takes_part_in_the_next_expression) {
  eval("{1,2}");
  eval("(L_Ans)*3");
  EXPECT_EQ(list_answer(), "3 6");
}

TEST_F(calculator, ten_list_results_in_flight_fit_and_eleven_do_not) {
  // Groups are evaluated before what joins them, so each one's list waits in a register.
  const auto joined = [](int groups) {
    std::string text = "{1,2}";
    for (int i = 1; i < groups; ++i) text += "+{1,2}";
    return text;
  };
  EXPECT_EQ(error_of(joined(10)), "");
  EXPECT_EQ(list_answer(), "10 20");
  EXPECT_EQ(error_of(joined(11)), "Memory Limit Error");
}

// --- Dispatch

TEST_F(calculator, a_list_operation_without_a_list_is_a_type_error) {
  EXPECT_EQ(error_of("listSum(3)"), "Function Argument Type");
}

TEST_F(calculator, a_matrix_operation_without_a_matrix_is_a_type_error) {
  EXPECT_EQ(error_of("3^T"), "Data Type Error");
  EXPECT_EQ(error_of("Det(3)"), "Function Argument Type");
}

TEST_F(calculator, a_number_does_not_fit_into_other_variables) {
  EXPECT_EQ(error_of("3->{A}"), "Data Type Error");
  EXPECT_EQ(error_of("3->[A]"), "Data Type Error");
  EXPECT_EQ(error_of("3->str1"), "Data Type Error");
}

TEST_F(calculator, a_list_does_not_fit_into_a_number_variable) {
  EXPECT_EQ(error_of("{1,2}->A"), "Data Type Error");
  EXPECT_EQ(error_of("{1,2}->xMin"), "Data Type Error");
}

TEST_F(calculator, a_complex_value_does_not_fit_into_a_system_variable) {
  EXPECT_EQ(error_of("2(i)->xMin"), "Data Type Error");
}

TEST_F(calculator, an_operation_without_a_handler_reports_an_unexpected_error) {
  operations[OP_GAMMA] = {};
  EXPECT_EQ(error_of("Gamma(3)"), "Unexpected Error");
  TOp_Code rows[OPERATION_COUNT];
  const int count = empty_operations(rows);
  EXPECT_NE(std::find(rows, rows + count, OP_GAMMA), rows + count);
}

TEST_F(calculator, a_custom_function_that_does_not_exist_is_not_found) {
  EXPECT_EQ(error_of("Nothing(1)"), "Program Not Found");
  EXPECT_EQ(error_of("Nothing()"), "Program Not Found");
}

// --- Arguments

TEST_F(calculator, counts_the_arguments_of_a_function) {
  EXPECT_EQ(error_of("fmod(1)"), "Function Argument Count");
  EXPECT_EQ(error_of("fmod(1,2,3)"), "Function Argument Count");
  EXPECT_EQ(error_of("sin(1,2)"), "Function Argument Count");
  EXPECT_EQ(error_of("Max(1,2,3,4,5,6,7)"), "Function Argument Count");
}

TEST_F(calculator, a_complex_number_does_not_fit_a_real_argument) {
  EXPECT_EQ(error_of("fmod(2(i),3)"), "Function Argument Type");
  EXPECT_EQ(error_of("Round(1.5,(i))"), "Function Argument Type");
}

TEST_F(calculator, the_distribution_with_a_blind_third_argument_refuses_every_call) {
  EXPECT_EQ(error_of("chiSqCdf(1,2,3)"), "Function Argument Type");
}

TEST_F(calculator, a_string_does_not_fit_a_number_argument) {
  EXPECT_EQ(error_of("abs(\"ab\")"), "Function Argument Type");
}

TEST_F(calculator, arguments_keep_their_written_order) { EXPECT_EQ(value("fmod(7,4)"), 3.0); }

TEST_F(calculator, functions_nest_in_arguments) { EXPECT_EQ(value("Max(Min(4,9),Min(8,3))"), 4.0); }

TEST_F(calculator, hms_must_be_the_last_operation) { EXPECT_EQ(error_of("toHMS(1.5)+1"), "toHMS not Last"); }

// --- Faults

TEST_F(calculator, maps_each_fault_to_its_error) {
  EXPECT_EQ(error_of("0^(-1)"), "Division by Zero");
  EXPECT_EQ(error_of("e^1000"), "Overflow");
  EXPECT_EQ(error_of("1e300*1e300"), "Overflow");
  EXPECT_EQ(error_of("asin(2)"), "Domain Error");
}

TEST_F(calculator, an_underflow_is_silently_zero) { EXPECT_EQ(value("1e-300*1e-300"), 0.0); }

TEST_F(calculator, denormal_numbers_do_not_fault) { EXPECT_EQ(value("1e-310*2"), 1e-310 * 2); }

TEST_F(calculator, flags_raised_before_a_run_are_not_its_faults) {
  volatile double zero = 0.0;
  volatile double raised = 1.0 / zero;
  EXPECT_TRUE(std::isinf(raised));
  EXPECT_EQ(value("1+2"), 3.0);
  EXPECT_EQ(value("atanh(0.5)"), std::atanh(0.5));
}

// --- The poll

TEST_F(calculator, a_tap_on_a_key_cancels_a_run) {
  hooks.tap_kind = [](int, int) { return TAP_KEY; };
  platform_.ticks += 10000;
  platform_.pen_downs.push_back({100, 100});
  EXPECT_EQ(error_of("1+2"), "Operation Canceled");
  EXPECT_EQ(platform_.pen_downs.size(), 1u) << "the tap stays in the queue";
  EXPECT_FALSE(state.swallow_up);
}

TEST_F(calculator, a_tap_on_a_cancel_proof_key_does_not_cancel) {
  hooks.tap_kind = [](int, int) { return TAP_CANCEL_PROOF_KEY; };
  platform_.ticks += 10000;
  platform_.pen_downs.push_back({100, 100});
  EXPECT_EQ(value("1+2"), 3.0);
  EXPECT_TRUE(platform_.pen_downs.empty()) << "the tap is used up";
  EXPECT_TRUE(state.swallow_up);
}

TEST_F(calculator, a_tap_within_half_a_second_of_the_last_look_is_not_seen) {
  hooks.tap_kind = [](int, int) { return TAP_KEY; };
  platform_.ticks += 10000;
  value("1+2");
  platform_.ticks += 500;
  platform_.pen_downs.push_back({100, 100});
  EXPECT_EQ(value("1+2"), 3.0);
  platform_.ticks += 1;
  EXPECT_EQ(error_of("1+2"), "Operation Canceled");
}

TEST_F(calculator, a_clock_that_wrapped_polls_at_once) {
  hooks.tap_kind = [](int, int) { return TAP_KEY; };
  platform_.ticks = std::numeric_limits<std::uint32_t>::max() - 10;
  value("1+2");
  platform_.ticks = 5;
  platform_.pen_downs.push_back({100, 100});
  EXPECT_EQ(error_of("1+2"), "Operation Canceled");
}

TEST_F(calculator, the_eleventh_look_is_for_a_cancel_of_the_system) {
  platform_.cancel_waiting = true;
  for (int look = 1; look <= 10; ++look) {
    platform_.ticks += 1000;
    EXPECT_EQ(error_of("1+2"), "") << look;
  }
  platform_.ticks += 1000;
  EXPECT_EQ(error_of("1+2"), "Operation Canceled");
}

TEST_F(calculator, a_waiting_paint_request_is_served_during_a_run) {
  platform_.ticks += 10000;
  platform_.paint_requested = true;
  value("1+2");
  EXPECT_FALSE(platform_.paint_requested);
}

// --- Bodies that run again: a numeric operator for the test, the sum of its body over 1 to 4 in the
// variable.

void sum_to_four(TScalarCall& call) {
  TNumericState& numeric = *call.numeric;
  if (numeric.phase == 0) {
    numeric.saved = 0.0;
    numeric.rounds = 0;
    numeric.phase = 1;
  } else {
    numeric.saved += call.args[0].re;
  }
  if (numeric.rounds == 4) {
    numeric.phase = 0;
    call.result = {numeric.saved, 0.0};
    return;
  }
  memory_set_both(numeric.variable, ++numeric.rounds, 0.0);
  call.repeat = true;
}

class numeric_operator : public calculator {
 protected:
  numeric_operator() { operations[OP_SUMM].scalar = sum_to_four; }
};

TEST_F(numeric_operator, runs_its_body_again_for_each_value) { EXPECT_EQ(value("Summ(x^(2),x,1,4)"), 30.0); }

TEST_F(numeric_operator, takes_part_in_a_larger_expression) { EXPECT_EQ(value("1+2*Summ(x,x,1,4)-1"), 20.0); }

TEST_F(numeric_operator, nests_in_its_own_body) { EXPECT_EQ(value("Summ(Summ(x*y,x,1,4),y,1,4)"), 100.0); }

TEST_F(numeric_operator, forgives_errors_of_the_dry_pass) {
  memory_array[SLOT_X] = {0.0, 0.0};
  EXPECT_DOUBLE_EQ(value("Summ(12/x,x,1,4)"), 25.0);
}

TEST_F(numeric_operator, does_not_forgive_an_overflow_in_the_dry_pass) {
  memory_array[SLOT_X] = {1000.0, 0.0};
  EXPECT_EQ(error_of("Summ(e^x,x,1,4)"), "Overflow");
}

TEST_F(numeric_operator, an_error_in_a_later_round_ends_the_run) {
  EXPECT_EQ(error_of("Summ(1/(x-3),x,1,4)"), "Division by Zero");
}

TEST_F(numeric_operator, arguments_within_the_body_are_gathered_anew_each_round) {
  EXPECT_EQ(value("Summ(Max(x,2),x,1,4)"), 11.0);
}

TEST_F(numeric_operator, a_constant_body_counts_its_rounds) { EXPECT_EQ(value("Summ(1,x,1,4)"), 4.0); }

// --- Integers

TEST_F(calculator, base_mode_cuts_operands_and_results) {
  settings.baseBits = BITS_8;
  state.calcMode = BASE_MODE;
  EXPECT_EQ(eval("100+100"), "-56d");
  EXPECT_EQ(eval("300+0"), "44d");
}

}  // namespace
}  // namespace zephyl
