#include "engine/system_variables.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "engine/errors.h"
#include "engine/hooks.h"
#include "engine/memory.h"
#include "engine/state.h"
#include "support/calculator.h"

namespace zephyl {
namespace {

// Keeps what the display is told.
class system_variable : public ::testing::Test {
 protected:
  system_variable() {
    set_platform(&platform_);
    register_engine_variables();
    told().clear();
    hooks.redraw_part = [](TScreenPart part) { told().push_back("part " + std::to_string(part)); };
    hooks.redraw_title = [] { told().push_back("title"); };
    hooks.draw_result = [](bool) { told().push_back("result"); };
    answers.ans = {1234.5, 0.0};
    answers.ans_valid = true;
    state.result_shown = true;
  }
  ~system_variable() override { set_platform(nullptr); }

  static std::vector<std::string>& told() {
    static std::vector<std::string> lines;
    return lines;
  }

  static double read(int number) { return read_system_variable(number).re; }

  // The message of the error that writing gives, "" for none.
  static std::string write(int number, double re, double im = 0.0) {
    clear_error();
    write_system_variable(number, {re, im});
    return errors.error_flag ? errors.error_text : "";
  }

  // Every value from low to high is taken and read back; those around and between are not.
  static void expect_choices(int number, int low, int high) {
    for (int choice = low; choice <= high; ++choice) {
      EXPECT_EQ(write(number, choice), "");
      EXPECT_EQ(read(number), choice);
    }
    for (const double wrong : {low - 1.0, high + 1.0, low + 0.5, 1e20})
      EXPECT_EQ(write(number, wrong), "Domain Error");
    EXPECT_EQ(write(number, low, 1), "Data Type Error");
    EXPECT_EQ(read(number), high);
  }

  TTestPlatform platform_;
};

TEST_F(system_variable, the_names_stand_in_their_order) {
  const char* const names[] = {"angleMode",     "baseBits",    "baseType",  "calcMode",     "complexFormat",
                               "decimalDigits", "decimalMark", "keyClick",  "numberFormat", "statsRegress",
                               "statsVar",      "enablePlots", "tickCount", "connectDots",  "displayGrid",
                               "plotCursor",    "plotType",    "tMax",      "tMin",         "tStep",
                               "thetaMax",      "thetaMin",    "thetaStep", "xMax",         "xMin",
                               "yMax",          "yMin",        "zScale",    "plotType3D",   "plotButton",
                               "tvmN",          "tvmI%YR",     "tvmPV",     "tvmPMT",       "tvmFV",
                               "tvmP/Y",        "tvmC/Y",      "tvmPMT@",   "plotStylus"};
  static_assert(sizeof names / sizeof names[0] == SYSTEM_VARIABLE_COUNT);
  for (int number = 0; number < SYSTEM_VARIABLE_COUNT; ++number) {
    EXPECT_STREQ(system_variables[number].name, names[number]);
    EXPECT_EQ(system_variable_number(names[number]), number);
  }
}

TEST_F(system_variable, a_name_is_exact) {
  EXPECT_EQ(system_variable_number("anglemode"), -1);
  EXPECT_EQ(system_variable_number(""), -1);
}

TEST_F(system_variable, a_number_without_a_variable_is_unexpected) {
  for (const int number : {-1, static_cast<int>(SYSTEM_VARIABLE_COUNT)}) {
    clear_error();
    EXPECT_EQ(read(number), 0.0);
    EXPECT_EQ(errors.error_code, ERR_UNEXPECTED);
    EXPECT_EQ(write(number, 1), "Unexpected Error");
  }
}

TEST_F(system_variable, the_settings_read_their_defaults) {
  const struct {
    int number;
    double value;
  } defaults[] = {{VAR_ANGLE_MODE, 1},     {VAR_BASE_BITS, 2},      {VAR_BASE_TYPE, 3},    {VAR_CALC_MODE, 1},
                  {VAR_COMPLEX_FORMAT, 1}, {VAR_DECIMAL_DIGITS, 4}, {VAR_DECIMAL_MARK, 1}, {VAR_KEY_CLICK, 1},
                  {VAR_NUMBER_FORMAT, 1},  {VAR_STATS_REGRESS, 1},  {VAR_STATS_VAR, 1}};
  for (const auto& row : defaults) EXPECT_EQ(read(row.number), row.value) << row.number;
}

TEST_F(system_variable, angle_mode_is_1_to_3) {
  expect_choices(VAR_ANGLE_MODE, 1, 3);
  EXPECT_EQ(settings.angleMode, GRADS);
}

TEST_F(system_variable, base_bits_is_1_to_3) {
  expect_choices(VAR_BASE_BITS, 1, 3);
  EXPECT_EQ(settings.baseBits, BITS_32);
}

TEST_F(system_variable, base_type_is_1_to_4) {
  expect_choices(VAR_BASE_TYPE, 1, 4);
  EXPECT_EQ(settings.baseType, U_HEX);
}

TEST_F(system_variable, complex_format_is_1_to_3) {
  expect_choices(VAR_COMPLEX_FORMAT, 1, 3);
  EXPECT_EQ(settings.complexFormat, ST_COMPLEX_P);
}

TEST_F(system_variable, decimal_digits_is_0_to_10) {
  expect_choices(VAR_DECIMAL_DIGITS, 0, 10);
  EXPECT_EQ(settings.decimalDigits, 10);
}

TEST_F(system_variable, decimal_mark_is_1_or_2) {
  expect_choices(VAR_DECIMAL_MARK, 1, 2);
  EXPECT_EQ(settings.decimalMark, 1);
}

TEST_F(system_variable, key_click_is_1_or_2) {
  expect_choices(VAR_KEY_CLICK, 1, 2);
  EXPECT_EQ(settings.keyClick, 1);
}

TEST_F(system_variable, number_format_is_1_to_4) {
  expect_choices(VAR_NUMBER_FORMAT, 1, 4);
  EXPECT_EQ(settings.numberFormat, FORMAT_ENGINEERING);
}

TEST_F(system_variable, stats_regress_is_1_to_4) {
  expect_choices(VAR_STATS_REGRESS, 1, 4);
  EXPECT_EQ(settings.statsRegress, R_POWER);
}

TEST_F(system_variable, stats_var_is_1_or_2) {
  expect_choices(VAR_STATS_VAR, 1, 2);
  EXPECT_EQ(settings.statsVar, 1);
}

TEST_F(system_variable, a_change_redraws_what_shows_it) {
  using TLines = std::vector<std::string>;
  const auto part = [](TScreenPart number) { return "part " + std::to_string(number); };
  const struct {
    int number;
    double value;
    TLines lines;
  } changes[] = {{VAR_ANGLE_MODE, 2, {part(PART_ANGLE), "result"}},
                 {VAR_BASE_BITS, 1, {part(PART_BASE_BITS), "result"}},
                 {VAR_BASE_TYPE, 1, {part(PART_BASE_TYPE), "result"}},
                 {VAR_COMPLEX_FORMAT, 2, {"result"}},
                 {VAR_DECIMAL_DIGITS, 2, {"result"}},
                 {VAR_DECIMAL_MARK, 2, {"result"}},
                 {VAR_KEY_CLICK, 2, {}},
                 {VAR_NUMBER_FORMAT, 2, {"result"}},
                 {VAR_STATS_REGRESS, 2, {part(PART_REGRESSION)}},
                 {VAR_STATS_VAR, 2, {part(PART_STATS_VAR), "title"}}};
  for (const auto& change : changes) {
    told().clear();
    EXPECT_EQ(write(change.number, change.value), "");
    EXPECT_EQ(told(), change.lines) << change.number;
    told().clear();
    write(change.number, change.value);
    EXPECT_EQ(told(), TLines{}) << change.number;
  }
}

TEST_F(system_variable, a_change_of_format_makes_the_result_anew) {
  write(VAR_DECIMAL_DIGITS, 1);
  write(VAR_NUMBER_FORMAT, 2);
  EXPECT_STREQ(state.result_text, "1234.5");
  write(VAR_DECIMAL_MARK, 2);
  EXPECT_STREQ(state.result_text, "1234,5");
}

TEST_F(system_variable, an_aggregate_result_is_not_made_anew) {
  answers.ans_valid = false;
  answers.l_ans_valid = true;
  write(VAR_NUMBER_FORMAT, 2);
  EXPECT_EQ(told(), std::vector<std::string>{});
}

TEST_F(system_variable, the_decimal_mark_shows_on_the_whole_picture) {
  write(VAR_DECIMAL_MARK, 2);
  EXPECT_TRUE(platform_.paint_requested);
}

constexpr struct {
  int number;
  int mode;
} modes[] = {{1, COMP_MODE},   {2, PLOT_MODE}, {3, STATS_MODE},
             {4, MATRIX_MODE}, {5, BASE_MODE}, {6, LIST_MODE}};

TEST_F(system_variable, calc_mode_reads_its_own_numbers) {
  for (const auto& row : modes) {
    state.calcMode = row.mode;
    EXPECT_EQ(read(VAR_CALC_MODE), row.number);
  }
}

TEST_F(system_variable, program_edit_reads_as_comp_mode) {
  state.calcMode = PROGRAM_EDIT_MODE;
  EXPECT_EQ(read(VAR_CALC_MODE), 1.0);
}

TEST_F(system_variable, calc_mode_without_a_face_is_only_stored) {
  hooks.set_mode = nullptr;
  for (const auto& row : modes) {
    EXPECT_EQ(write(VAR_CALC_MODE, row.number), "");
    EXPECT_EQ(state.calcMode, row.mode);
  }
}

TEST_F(system_variable, calc_mode_changes_the_face_without_a_question) {
  hooks.set_mode = [](int mode, bool ask) {
    told().push_back("mode " + std::to_string(mode) + (ask ? " asking" : ""));
    state.calcMode = mode;
  };
  write(VAR_CALC_MODE, 5);
  EXPECT_EQ(told(), std::vector<std::string>{"mode 0"});
  write(VAR_CALC_MODE, 5);
  EXPECT_EQ(told().size(), 1u);
}

TEST_F(system_variable, calc_mode_takes_1_to_6) {
  for (const double wrong : {0.0, 7.0, 8.0, 1.5}) EXPECT_EQ(write(VAR_CALC_MODE, wrong), "Domain Error");
  EXPECT_EQ(write(VAR_CALC_MODE, 2, 1), "Data Type Error");
  EXPECT_EQ(state.calcMode, COMP_MODE);
}

TEST_F(system_variable, tick_count_is_the_clock) {
  platform_.ticks = 4000000000u;
  EXPECT_EQ(read(VAR_TICK_COUNT), 4e9);
}

TEST_F(system_variable, tick_count_counts_from_the_start_of_a_running_program) {
  platform_.ticks = 100;
  state.program_running = true;
  state.program_start_tick = 4294967290u;  // just before the clock wrapped
  EXPECT_EQ(read(VAR_TICK_COUNT), 106.0);
  state.program_running = false;
  EXPECT_EQ(read(VAR_TICK_COUNT), 100.0);
}

TEST_F(system_variable, what_only_reads_is_unexpected_to_write) {
  for (const int number : {VAR_TICK_COUNT, VAR_PLOT_BUTTON, VAR_PLOT_STYLUS}) {
    EXPECT_EQ(write(number, 1), "Unexpected Error");
    EXPECT_EQ(write(number, 1, 1), "Data Type Error");
  }
}

TEST_F(system_variable, plot_button_is_armed_by_the_first_look) {
  state.plot_button = -1;
  EXPECT_EQ(read(VAR_PLOT_BUTTON), 0.0);
  EXPECT_EQ(state.plot_button, 0);
  EXPECT_EQ(read(VAR_PLOT_BUTTON), 0.0);
}

TEST_F(system_variable, plot_button_reads_the_key_until_it_is_let_go) {
  state.plot_button = 3;
  EXPECT_EQ(read(VAR_PLOT_BUTTON), 3.0);
  EXPECT_EQ(read(VAR_PLOT_BUTTON), 3.0);
}

TEST_F(system_variable, plot_stylus_is_armed_by_the_first_look) {
  state.plot_stylus_x = state.plot_stylus_y = undefined_value;
  EXPECT_EQ(read_system_variable(VAR_PLOT_STYLUS), TValue{});
  EXPECT_EQ(state.plot_stylus_x, 0.0);
  EXPECT_EQ(state.plot_stylus_y, 0.0);
}

TEST_F(system_variable, plot_stylus_gives_each_position_once) {
  state.plot_stylus_x = 2.5;
  state.plot_stylus_y = -1.0;
  EXPECT_EQ(read_system_variable(VAR_PLOT_STYLUS), (TValue{2.5, -1.0}));
  EXPECT_EQ(read_system_variable(VAR_PLOT_STYLUS), TValue{});
}

TEST_F(calculator, a_setting_is_read_and_written_by_expressions) {
  EXPECT_EQ(eval("2->angleMode"), "2");
  EXPECT_EQ(eval("sin(30)"), "0.5");
  EXPECT_EQ(eval("(angleMode)+10"), "12");
}

TEST_F(calculator, a_mode_out_of_range_is_a_domain_error) {
  EXPECT_EQ(eval("7->calcMode"), "Domain Error");
  EXPECT_EQ(eval("8->calcMode"), "Domain Error");
  EXPECT_EQ(state.calcMode, COMP_MODE);
}

TEST_F(calculator, the_clock_can_not_be_set) { EXPECT_EQ(eval("5->tickCount"), "Unexpected Error"); }

TEST_F(calculator, plot_button_without_a_key_is_zero_twice) {
  EXPECT_EQ(eval("(plotButton)"), "0");
  EXPECT_EQ(eval("(plotButton)"), "0");
}

TEST_F(calculator, every_variable_can_be_read) {
  for (const TSystemVariableRow& row : system_variables)
    EXPECT_EQ(error_of("(" + std::string(row.name) + ")"), "") << row.name;
}

TEST_F(calculator, a_complex_number_is_no_setting) {
  EXPECT_EQ(eval("1+(i)->decimalDigits"), "Data Type Error");
}

}  // namespace
}  // namespace zephyl
