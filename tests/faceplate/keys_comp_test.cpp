// Every key of COMP_MODE in each of its meanings.

#include "faceplate/key_maps.h"

#include "engine/errors.h"
#include "engine/expression.h"
#include "engine/memory.h"
#include "engine/state.h"
#include "faceplate/face.h"
#include "plot/plot_variables.h"

namespace zephyl {
namespace {

class keys_comp : public face {
 protected:
  // The tokens that a key enters behind some shift keys, "" for none.
  std::string tokens_of(const std::vector<int>& shift_keys, int key) {
    state.calcMode = COMP_MODE;
    state.alpha_active = false;
    tap_key(27);
    state.hyp_shift = false;
    tap_keys(shift_keys);
    tap_key(key);
    return codes();
  }
};

constexpr int ORANGE_KEY = 0;
constexpr int BLUE_KEY = 1;
constexpr int HYP_KEY = 2;
constexpr int LEFT_KEY = 21;
constexpr int RIGHT_KEY = 22;
constexpr int DELETE_KEY = 20;
constexpr int AC_KEY = 27;
constexpr int EVALUATE_KEY = 42;

// The tokens of a key: plain, blue, orange; "" where it enters none.
struct TKeyTokens {
  int key;
  const char* plain;
  const char* blue;
  const char* orange;
};

constexpr TKeyTokens key_tokens[] = {
    {3, "3", "203", "3"},    {4, "4", "204", "4"},     {5, "5", "105", "5"},    {6, "6", "106", "6"},
    {7, "7", "107", "7"},    {8, "8", "", "8"},        {9, "9", "", "9"},       {10, "", "", ""},
    {11, "11", "111", "11"}, {12, "12", "112", "12"},  {13, "13", "113", "13"}, {14, "14", "", "14"},
    {15, "15", "115", "15"}, {17, "17", "117", "217"}, {18, "18", "120", "18"}, {19, "20", "19", "20"},
    {20, "", "", ""},        {21, "", "", ""},         {22, "", "", ""},        {23, "23", "173", "123"},
    {24, "24", "", "24"},    {25, "25", "", ""},       {26, "", "", "2059"},    {27, "", "", ""},
    {28, "28", "28", "28"},  {29, "29", "29", "29"},   {30, "30", "30", "30"},  {31, "31", "31", "31"},
    {32, "32", "32", "32"},  {33, "33", "33", "33"},   {34, "34", "34", "34"},  {35, "35", "35", "35"},
    {36, "36", "36", "36"},  {37, "37", "37", "37"},   {38, "38", "38", "38"},  {39, "39", "39", "39"},
    {40, "40", "40", "40"},  {41, "41", "41", "41"},   {42, "", "", ""},        {43, "", "", ""},
    {44, "", "", ""},        {45, "", "", ""},         {46, "", "", ""},        {47, "", "", ""},
    {48, "", "", ""},        {49, "", "", ""},         {50, "", "", ""},        {51, "", "", ""},
};

TEST_F(keys_comp, each_key_enters_its_token_in_each_meaning) {
  for (const TKeyTokens& row : key_tokens) {
    EXPECT_EQ(tokens_of({}, row.key), row.plain) << "key " << row.key;
    EXPECT_EQ(tokens_of({BLUE_KEY}, row.key), row.blue) << "blue key " << row.key;
    EXPECT_EQ(tokens_of({ORANGE_KEY}, row.key), row.orange) << "orange key " << row.key;
  }
}

TEST_F(keys_comp, every_key_but_the_shifts_ends_blue_and_orange) {
  for (int key = 3; key < calculator_keys.count; ++key)
    for (const int shift : {BLUE_KEY, ORANGE_KEY}) {
      tokens_of({shift}, key);
      EXPECT_EQ(shifts(), "") << "key " << key;
    }
}

TEST_F(keys_comp, hyp_goes_with_the_trigonometric_keys) {
  for (const int key : {5, 6, 7}) {
    EXPECT_EQ(tokens_of({HYP_KEY}, key), std::to_string(key + 200));
    EXPECT_EQ(shifts(), "");
    EXPECT_EQ(tokens_of({HYP_KEY, BLUE_KEY}, key), std::to_string(key + 300));
    EXPECT_EQ(shifts(), "");
    EXPECT_EQ(tokens_of({HYP_KEY, ORANGE_KEY}, key), std::to_string(key + 200));
  }
}

TEST_F(keys_comp, hyp_waits_for_a_trigonometric_key) {
  EXPECT_EQ(tokens_of({HYP_KEY}, 34), "34");
  EXPECT_EQ(shifts(), "hyp ");
  tap_key(HYP_KEY);
  EXPECT_EQ(shifts(), "");
}

TEST_F(keys_comp, a_shift_key_toggles) {
  for (const int key : {ORANGE_KEY, BLUE_KEY, HYP_KEY}) {
    tap_key(key);
    EXPECT_NE(shifts(), "");
    tap_key(key);
    EXPECT_EQ(shifts(), "");
  }
}

TEST_F(keys_comp, of_blue_and_orange_the_last_stands) {
  tap_keys({HYP_KEY, BLUE_KEY, ORANGE_KEY});
  EXPECT_EQ(shifts(), "orange hyp ");
  tap_key(BLUE_KEY);
  EXPECT_EQ(shifts(), "blue hyp ");
}

TEST_F(keys_comp, the_angle_key_goes_from_radian_to_gradian_to_degree) {
  for (const int mode : {GRADS, DEGREES, RADIANS, GRADS}) {
    tap_key(16);
    EXPECT_EQ(settings.angleMode, mode);
  }
}

TEST_F(keys_comp, the_blue_angle_key_enters_the_mark_of_the_angle_mode) {
  EXPECT_EQ(tokens_of({BLUE_KEY}, 16), "116");
  settings.angleMode = DEGREES;
  EXPECT_EQ(tokens_of({BLUE_KEY}, 16), "16");
  settings.angleMode = GRADS;
  EXPECT_EQ(tokens_of({BLUE_KEY}, 16), "216");
  EXPECT_EQ(settings.angleMode, GRADS);
}

TEST_F(keys_comp, a_change_of_angle_shows_a_polar_result_anew) {
  settings.complexFormat = ST_COMPLEX_P;
  tap_key(AC_KEY);
  tap_keys({BLUE_KEY, 18, EVALUATE_KEY});
  const std::string in_radians = state.result_text;
  tap_keys({16, 16});
  EXPECT_NE(state.result_text, in_radians);
  EXPECT_STREQ(state.result_text, "1\x19(90\x1a)");
}

TEST_F(keys_comp, the_plot_variable_follows_the_plot_type) {
  plot_variables.plotType = PLOT_POLAR;
  EXPECT_EQ(tokens_of({ORANGE_KEY}, 26), "2069");
  plot_variables.plotType = PLOT_PARAMETRIC;
  EXPECT_EQ(tokens_of({ORANGE_KEY}, 26), "2055");
  plot_variables.plotType = PLOT_3D;
  EXPECT_EQ(tokens_of({ORANGE_KEY}, 26), "");
}

TEST_F(keys_comp, delete_takes_the_token_before_the_end) {
  tap_keys({33, 34, DELETE_KEY});
  EXPECT_EQ(codes(), "33");
}

TEST_F(keys_comp, the_cursor_keys_go_by_one_and_blue_by_a_fifth) {
  for (int i = 0; i < 20; ++i) tap_key(33);
  tap_key(LEFT_KEY);
  EXPECT_EQ(entry_line.cursor, 19);
  tap_keys({BLUE_KEY, LEFT_KEY});
  EXPECT_EQ(entry_line.cursor, 15);
  tap_keys({BLUE_KEY, RIGHT_KEY});
  EXPECT_EQ(entry_line.cursor, 19);
  tap_key(RIGHT_KEY);
  EXPECT_EQ(entry_line.cursor, 20);
  EXPECT_EQ(shifts(), "");
}

TEST_F(keys_comp, two_keys_evaluate) {
  for (const int key : {EVALUATE_KEY, 26}) {
    tap_keys({AC_KEY, 34, 36, 34, key});
    EXPECT_STREQ(state.result_text, "4");
  }
}

TEST_F(keys_comp, ac_clears_the_answer) {
  tap_keys({34, EVALUATE_KEY, AC_KEY});
  EXPECT_EQ(answers.ans.re, 0.0);
  EXPECT_EQ(codes(), "");
  EXPECT_STREQ(state.result_text, "");
}

TEST_F(keys_comp, ac_leaves_no_answer_for_the_next_operator) {
  tap_keys({34, EVALUATE_KEY, AC_KEY, 36});
  EXPECT_EQ(codes(), "36");
}

TEST_F(keys_comp, a_digit_after_a_result_begins_anew) {
  tap_keys({34, EVALUATE_KEY, 35});
  EXPECT_EQ(codes(), "35");
}

TEST_F(keys_comp, an_operator_after_a_result_takes_the_answer) {
  tap_keys({34, EVALUATE_KEY, 36});
  EXPECT_EQ(codes(), "41 36");
}

TEST_F(keys_comp, a_cursor_key_after_a_result_goes_back_to_the_expression) {
  tap_keys({34, EVALUATE_KEY, LEFT_KEY, 35});
  EXPECT_EQ(codes(), "34 35");
  tap_keys({EVALUATE_KEY, RIGHT_KEY, 33});
  EXPECT_EQ(codes(), "33 34 35");
}

// 1 divided by 0.
const std::vector<int> fault = {33, 32, 38, EVALUATE_KEY};

TEST_F(keys_comp, an_error_refuses_tokens_and_the_evaluate_keys) {
  tap_keys(fault);
  ASSERT_TRUE(errors.error_flag);
  tap_keys({34, EVALUATE_KEY, 26, 25});
  EXPECT_EQ(codes(), "33 32 38");
  EXPECT_TRUE(errors.error_flag);
}

TEST_F(keys_comp, delete_leaves_the_error_standing) {
  tap_keys(fault);
  tap_key(DELETE_KEY);
  EXPECT_TRUE(errors.error_flag);
}

TEST_F(keys_comp, ac_and_the_cursor_keys_clear_the_error) {
  for (const int key : {AC_KEY, LEFT_KEY, RIGHT_KEY}) {
    tap_key(AC_KEY);
    tap_keys(fault);
    ASSERT_TRUE(errors.error_flag);
    tap_key(key);
    EXPECT_FALSE(errors.error_flag) << "key " << key;
  }
}

TEST_F(keys_comp, a_running_program_refuses_what_would_disturb_it) {
  tap_keys({33, 34});
  state.program_running = true;
  tap_keys({AC_KEY, DELETE_KEY, LEFT_KEY, 16, 8, 26, 35});
  EXPECT_EQ(codes(), "33 34");
  EXPECT_EQ(entry_line.cursor, 2);
  EXPECT_EQ(settings.angleMode, RADIANS);
}

TEST_F(keys_comp, at_a_prompt_tokens_go_in) {
  state.program_running = state.at_prompt = true;
  tap_keys({33, 34, DELETE_KEY});
  EXPECT_EQ(codes(), "33");
}

TEST_F(keys_comp, a_number_that_is_no_key_does_nothing) {
  EXPECT_EQ(press_mapped_key(comp_key_map, 52), -2);
  EXPECT_EQ(press_mapped_key(comp_key_map, -1), -2);
}

}  // namespace
}  // namespace zephyl
