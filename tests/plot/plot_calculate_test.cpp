// Calculations on a plot: what they find, and what shows of it.

#include "plot/plot_calculate.h"

#include "engine/errors.h"
#include "engine/hooks.h"
#include "engine/memory.h"
#include "engine/state.h"
#include "engine/tokens.h"
#include "plot/curve.h"
#include "plot/plot_kinds.h"
#include "plot/plot_labels.h"
#include "plot/plot_marks.h"
#include "plot/plot_screen.h"
#include "plot/plotting.h"
#include "support/golden.h"

namespace zephyl {
namespace {

class plot_calculations : public plotting {
 protected:
  plot_calculations() { without_grid(); }

  static void of_function(int slot) { plot_calculation.function = slot; }
  static void of_pair(int first, int second) {
    for (int row = 0; row < FUNCTION_PAIR_COUNT; ++row)
      if (function_pair(row).first == first && function_pair(row).second == second)
        plot_calculation.pair = row;
  }
  static TPlotNumber error(int code) { return {undefined_value, code}; }

  static void draw_number(TSurface& surface, const char* name, const TPlotNumber& number, int left, int row) {
    plot_error_code = number.error;
    draw_small_line(surface, name, number.value, left, row);
  }
  // What the plot must look like with the result of a calculation of a function on it.
  static void expect_result(const char* heading, const TPlotNumber& x, const TPlotNumber& y, const char* name,
                            const TPlotNumber& number) {
    TSurface expected = plot_screen().plot;
    const double column = x.defined() ? function_column(x.value) : undefined_value;
    const double row = y.defined() ? function_row(y.value) : undefined_value;
    draw_cross(expected, column, row, plot_colour(PLOT_FUNCTION, trace_function()), MARKER_BOX);
    if (heading) draw_small_heading(expected, heading, 2, 150);
    draw_number(expected, "SMALL_XTRACE", x, 2, 160);
    draw_number(expected, name, number, 2, 170);
    EXPECT_TRUE(same_picture(expected, shown_plot()));
  }
  // Whether a line reads so: written once more it changes nothing.
  static bool shows(const char* name, const TPlotNumber& number, int row) {
    TSurface again = plot_screen().marks;
    draw_number(again, name, number, 2, row);
    return same_picture(again, shown_plot());
  }
  static void expect_point(const char* heading, const TPlotNumber& x, const TPlotNumber& y) {
    expect_result(heading, x, y, "SMALL_YTRACE", y);
  }
  void expect_nothing_shown() {
    EXPECT_FALSE(plot_screen().marks_shown);
    EXPECT_TRUE(same_picture(plot_screen().plot, shown_plot()));
  }
  static TExpression of_tokens(int count, TToken token = TOKEN_POINT) {
    TExpression expression;
    while (expression.count < count) expression.tokens[expression.count++] = token;
    return expression;
  }
  // x+0+0+...: so many tokens, an odd number.
  static TExpression long_function(int count) {
    TExpression expression = of_tokens(count, TOKEN_PLUS);
    for (int i = 0; i < count; i += 2) expression.tokens[i] = i == 0 ? recall_token(SLOT_X) : TToken{38};
    return expression;
  }
};

// --- Functions

TEST_F(plot_calculations, value_is_that_of_the_function_at_x) {
  put(PLOT_FUNCTION, 0, "x");
  put(PLOT_FUNCTION, 3, "x^2-2");
  of_function(3);
  plot_calculate(CALCULATE_VALUE, 2.5);
  expect_point("SMALL_CALC_VALUE", {2.5}, {4.25});
}

TEST_F(plot_calculations, value_is_shown_as_it_is_however_small) {
  put(PLOT_FUNCTION, 0, "x*1e-20");
  plot_calculate(CALCULATE_VALUE, 3);
  expect_point("SMALL_CALC_VALUE", {3}, {3e-20});
}

TEST_F(plot_calculations, value_that_is_none_is_a_word_and_no_horizontal_line) {
  put(PLOT_FUNCTION, 0, "1/x");
  plot_calculate(CALCULATE_VALUE, 0);
  expect_point("SMALL_CALC_VALUE", {0}, error(ERR_ZERO_DIVIDE));
}

TEST_F(plot_calculations, value_beyond_the_view_has_its_numbers_and_no_marker) {
  put(PLOT_FUNCTION, 0, "x^3");
  plot_calculate(CALCULATE_VALUE, 1e90);
  expect_point("SMALL_CALC_VALUE", {1e90}, {1e270});
  put(PLOT_FUNCTION, 0, "100");
  draw();
  plot_calculate(CALCULATE_VALUE, -1e305);
  EXPECT_EQ(count_of(BLUE), 0);
}

TEST_F(plot_calculations, root_is_where_the_function_crosses_zero_in_the_view) {
  put(PLOT_FUNCTION, 0, "x^2-2");
  plot_calculate(CALCULATE_ROOT, 0);
  expect_point("SMALL_CALC_ROOT", {-1.4142135623731}, {0.0});
  set_plot_view(0, -10, 10, 10);
  plot_calculate(CALCULATE_ROOT, 0);
  expect_point("SMALL_CALC_ROOT", {1.4142135623731}, {0.0});
}

TEST_F(plot_calculations, root_of_a_function_that_does_not_cross_zero_is_not_found) {
  put(PLOT_FUNCTION, 0, "x^2+1");
  plot_calculate(CALCULATE_ROOT, 0);
  expect_point("SMALL_CALC_ROOT", error(ERR_NO_ROOT), error(ERR_NO_ROOT));
  EXPECT_EQ(message(), "none");
}

TEST_F(plot_calculations, root_is_no_pole) {
  put(PLOT_FUNCTION, 0, "1/(x-0.12345)");
  plot_calculate(CALCULATE_ROOT, 0);
  expect_point("SMALL_CALC_ROOT", error(ERR_NO_ROOT), error(ERR_NO_ROOT));
}

TEST_F(plot_calculations, a_search_that_meets_an_error_shows_its_word) {
  const struct {
    const char* function;
    int error;
  } rows[] = {{"ln(x)", ERR_DOMAIN},    {"x+(i)", ERR_DATA_TYPE},      {"e^(x^6)", ERR_OVERFLOW},
              {"x+", ERR_SYNTAX},       {"x,2", ERR_ARGUMENT_COUNT},   {"(xMean)", ERR_NO_STATS_DATA},
              {"{x,1}", ERR_DATA_TYPE}, {"1/(x+10)", ERR_ZERO_DIVIDE}, {"Nothing(x)", ERR_PROGRAM_NOT_FOUND}};
  for (const auto& row : rows) {
    put(PLOT_FUNCTION, 0, row.function);
    for (const int calculation : {CALCULATE_ROOT, CALCULATE_MINIMUM, CALCULATE_MAXIMUM}) {
      plot_calculate(calculation, 0);
      EXPECT_EQ(plot_error_code, row.error) << row.function;
    }
    EXPECT_FALSE(errors.error_flag);
  }
  EXPECT_EQ(message(), "none");
}

TEST_F(plot_calculations, minimum_and_maximum_are_those_in_the_view) {
  put(PLOT_FUNCTION, 0, "abs(x-2)-3.05");
  put(PLOT_FUNCTION, 1, "1.95-abs(x+2)");
  set_plot_view(-3, -10, 3, 10);
  plot_calculate(CALCULATE_MINIMUM, 0);
  expect_point("SMALL_CALC_MINIMUM", {2.0}, {-3.05});
  of_function(1);
  plot_calculate(CALCULATE_MAXIMUM, 0);
  expect_point("SMALL_CALC_MAXIMUM", {-2.0}, {1.95});
  set_plot_view(0, -10, 1, 10);
  plot_calculate(CALCULATE_MAXIMUM, 0);
  expect_point("SMALL_CALC_MAXIMUM", {0.0}, {-0.05});
}

TEST_F(plot_calculations, minimum_of_almost_zero_is_zero) {
  put(PLOT_FUNCTION, 0, "(x-1)^2");
  plot_calculate(CALCULATE_MINIMUM, 0);
  EXPECT_TRUE(shows("SMALL_YTRACE", {0.0}, 170));
}

TEST_F(plot_calculations, slope_is_that_of_the_function_at_x) {
  put(PLOT_FUNCTION, 0, "x^3/10");
  plot_calculate(CALCULATE_SLOPE, 5);
  expect_result(nullptr, {5.0}, {12.5}, "SMALL_CALC_SLOPE", {7.5});
}

TEST_F(plot_calculations, slope_of_almost_zero_is_zero) {
  put(PLOT_FUNCTION, 0, "x^2+x*1e-16");
  plot_calculate(CALCULATE_SLOPE, 0);
  expect_result(nullptr, {0.0}, {0.0}, "SMALL_CALC_SLOPE", {0.0});
}

TEST_F(plot_calculations, slope_at_an_edge_is_a_word_where_the_value_is_a_number) {
  put(PLOT_FUNCTION, 0, "sqRt(x)+3");
  plot_calculate(CALCULATE_SLOPE, 0);
  expect_result(nullptr, {0.0}, {3.0}, "SMALL_CALC_SLOPE", error(ERR_DOMAIN));
}

TEST_F(plot_calculations, intersection_is_where_two_functions_meet) {
  put(PLOT_FUNCTION, 1, "x^2-3.05");
  put(PLOT_FUNCTION, 4, "x+2.95");
  of_pair(1, 4);
  plot_calculate(CALCULATE_INTERSECTION, 0);
  expect_point("SMALL_CALC_INTERSECT", {-2.0}, {0.95});
  set_plot_view(0, -10, 10, 10);
  of_pair(4, 1);
  plot_calculate(CALCULATE_INTERSECTION, 0);
  expect_point("SMALL_CALC_INTERSECT", {3.0}, {5.95});
}

TEST_F(plot_calculations, intersection_of_functions_that_never_meet_is_not_found) {
  put(PLOT_FUNCTION, 0, "x");
  put(PLOT_FUNCTION, 1, "x+1");
  of_pair(0, 1);
  plot_calculate(CALCULATE_INTERSECTION, 0);
  expect_point("SMALL_CALC_INTERSECT", error(ERR_NO_INTERSECTION), error(ERR_NO_INTERSECTION));
  EXPECT_STREQ(small_error_word(ERR_NO_INTERSECTION), "SMALL_NO_INTERSECT_FOUND");
}

TEST_F(plot_calculations, intersection_of_identical_functions_is_the_left_edge) {
  put(PLOT_FUNCTION, 0, "x/2");
  put(PLOT_FUNCTION, 1, "x/2");
  of_pair(0, 1);
  plot_calculate(CALCULATE_INTERSECTION, 0);
  expect_point("SMALL_CALC_INTERSECT", {-10.0}, {-5.0});
}

TEST_F(plot_calculations, pairs_are_all_functions_with_all_others) {
  EXPECT_EQ(FUNCTION_PAIR_COUNT, 30);
  int row = 0;
  for (int first = 0; first < 6; ++first)
    for (int second = 0; second < 6; ++second) {
      if (first == second) continue;
      EXPECT_EQ(function_pair(row).first, first) << row;
      EXPECT_EQ(function_pair(row).second, second) << row;
      ++row;
    }
}

// --- Slots

TEST_F(plot_calculations, an_empty_slot_is_undefined_whatever_is_calculated) {
  put(PLOT_FUNCTION, 0, "x");
  of_function(2);
  const char* const headings[] = {"SMALL_CALC_VALUE", "SMALL_CALC_ROOT", "SMALL_CALC_MINIMUM",
                                  "SMALL_CALC_MAXIMUM"};
  for (int calculation = CALCULATE_VALUE; calculation <= CALCULATE_MAXIMUM; ++calculation) {
    plot_error_code = ERR_SYNTAX;
    plot_calculate(calculation, 1);
    expect_point(headings[calculation], error(UNDEFINED_WITHOUT_ERROR), error(UNDEFINED_WITHOUT_ERROR));
  }
  plot_calculate(CALCULATE_SLOPE, 1);
  expect_result(nullptr, {}, {}, "SMALL_CALC_SLOPE", {});
  EXPECT_STREQ(small_error_word(plot_error_code), "SMALL_UNDEFINED");
}

TEST_F(plot_calculations, an_intersection_wants_both_functions) {
  put(PLOT_FUNCTION, 0, "x");
  for (const auto& pair : {TFunctionPair{0, 1}, TFunctionPair{1, 0}}) {
    of_pair(pair.first, pair.second);
    plot_calculate(CALCULATE_INTERSECTION, 1);
    expect_point("SMALL_CALC_INTERSECT", {}, {});
  }
}

TEST_F(plot_calculations, a_function_of_98_tokens_has_a_root) {
  TExpression function = long_function(97);
  function.tokens[function.count++] = 38;  // ...+00
  plot_slot(PLOT_FUNCTION, 0) = function;
  for (const int calculation : {CALCULATE_ROOT, CALCULATE_MINIMUM, CALCULATE_MAXIMUM, CALCULATE_SLOPE}) {
    plot_calculate(calculation, 0);
    EXPECT_EQ(message(), "none");
    EXPECT_TRUE(plot_screen().marks_shown);
  }
  EXPECT_TRUE(shows("SMALL_CALC_SLOPE", {1.0}, 170));
}

TEST_F(plot_calculations, a_function_of_99_tokens_is_too_long) {
  plot_slot(PLOT_FUNCTION, 0) = long_function(99);
  draw();
  for (const int calculation : {CALCULATE_ROOT, CALCULATE_MINIMUM, CALCULATE_MAXIMUM, CALCULATE_SLOPE}) {
    plot_calculate(calculation, 0);
    EXPECT_EQ(message(), "Limit | Reached expression size limit");
    expect_nothing_shown();
  }
  plot_calculate(CALCULATE_VALUE, 4);
  expect_point("SMALL_CALC_VALUE", {4}, {4});
}

TEST_F(plot_calculations, two_functions_of_92_tokens_together_intersect) {
  plot_slot(PLOT_FUNCTION, 0) = long_function(89);
  put(PLOT_FUNCTION, 1, "2-x");
  of_pair(0, 1);
  plot_calculate(CALCULATE_INTERSECTION, 0);
  expect_point("SMALL_CALC_INTERSECT", {1.0}, {1.0});
  put(PLOT_FUNCTION, 1, "2-2x");
  plot_calculate(CALCULATE_INTERSECTION, 0);
  EXPECT_EQ(message(), "Limit | Reached expression size limit");
  expect_nothing_shown();
}

TEST_F(plot_calculations, parentheses_that_a_function_leaves_open_stay_its_own) {
  put(PLOT_FUNCTION, 0, "2(x+(1");
  put(PLOT_FUNCTION, 1, "3[x-(1");
  for (const int calculation : {CALCULATE_ROOT, CALCULATE_SLOPE}) {
    of_function(0);
    plot_calculate(calculation, 2);
    if (calculation == CALCULATE_ROOT) expect_point("SMALL_CALC_ROOT", {-1.0}, {0.0});
    of_function(1);
    plot_calculate(calculation, 2);
    if (calculation == CALCULATE_SLOPE) expect_result(nullptr, {2.0}, {3.0}, "SMALL_CALC_SLOPE", {3.0});
  }
  of_pair(0, 1);
  plot_calculate(CALCULATE_INTERSECTION, 0);
  expect_point("SMALL_CALC_INTERSECT", {5.0}, {12.0});
  of_pair(1, 0);
  plot_calculate(CALCULATE_INTERSECTION, 0);
  expect_point("SMALL_CALC_INTERSECT", {5.0}, {12.0});
}

// Wrapped into an operator it would be a product of two other expressions.
TEST_F(plot_calculations, a_parenthesis_that_a_function_never_opened_is_a_syntax_error) {
  put(PLOT_FUNCTION, 0, "x)+(2");
  put(PLOT_FUNCTION, 1, "x");
  plot_calculate(CALCULATE_ROOT, 0);
  expect_point("SMALL_CALC_ROOT", error(ERR_PARENTHESIS_UNBALANCED), error(ERR_PARENTHESIS_UNBALANCED));
  for (const auto& pair : {TFunctionPair{0, 1}, TFunctionPair{1, 0}}) {
    of_pair(pair.first, pair.second);
    plot_calculate(CALCULATE_INTERSECTION, 0);
    expect_point("SMALL_CALC_INTERSECT", error(ERR_PARENTHESIS_UNBALANCED),
                 error(ERR_PARENTHESIS_UNBALANCED));
  }
}

TEST_F(plot_calculations, leave_no_trace) {
  state.calcMode = COMP_MODE;
  eval("7");
  eval("3.5->x");
  state.calcMode = PLOT_MODE;
  put(PLOT_FUNCTION, 0, "x->A");
  put(PLOT_FUNCTION, 1, "1/(x-x)");
  of_pair(0, 1);
  for (int function = 0; function < 2; ++function)
    for (int calculation = CALCULATE_VALUE; calculation < CALCULATE_TABLE; ++calculation) {
      of_function(function);
      plot_calculate(calculation, 2);
    }
  EXPECT_EQ(memory_get(SLOT_X, 0), 3.5);
  EXPECT_EQ(memory_get(SLOT_CAPITAL_A, 0), 0.0);
  EXPECT_EQ(answers.ans.re, 3.5);
  EXPECT_FALSE(errors.error_flag);
  EXPECT_FALSE(slot_in_use(PLOT_SCRATCH_TYPE, 0));
}

TEST_F(plot_calculations, may_search_a_function_that_searches) {
  put(PLOT_FUNCTION, 0, "fnRoot(y-x,y,-20,20)+1");
  plot_calculate(CALCULATE_ROOT, 0);
  EXPECT_TRUE(shows("SMALL_XTRACE", {-1.0}, 160));
  put(PLOT_FUNCTION, 0, "fnInt(x,x,0,x)-2");
  set_plot_view(0, -10, 10, 10);
  plot_calculate(CALCULATE_ROOT, 0);
  EXPECT_TRUE(shows("SMALL_XTRACE", {2.0}, 160));
  EXPECT_FALSE(shows("SMALL_XTRACE", {2.5}, 160));
}

// --- Curves

TEST_F(plot_calculations, value_of_a_polar_curve_is_its_radius) {
  settings.angleMode = DEGREES;
  choose(PLOT_POLAR);
  put(PLOT_POLAR, 1, "-(theta)/20");
  of_function(1);
  plot_calculate(CALCULATE_VALUE, 60);
  TSurface expected = plot_screen().plot;
  double column, row;
  project(-1.5, -2.598076211353316, column, row);
  draw_cross(expected, column, row, BLUE, MARKER_BOX);
  draw_small_heading(expected, "SMALL_CALC_VALUE", 2, 150);
  draw_number(expected, "SMALL_THETA", {60.0}, 2, 160);
  draw_number(expected, "SMALL_RTRACE", {-3.0}, 2, 170);
  EXPECT_TRUE(same_picture(expected, shown_plot()));
}

TEST_F(plot_calculations, a_radius_that_is_none_has_no_marker) {
  choose(PLOT_POLAR);
  put(PLOT_POLAR, 0, "1/(theta)");
  plot_calculate(CALCULATE_VALUE, 0);
  TSurface expected = plot_screen().plot;
  draw_small_heading(expected, "SMALL_CALC_VALUE", 2, 150);
  draw_number(expected, "SMALL_THETA", {0.0}, 2, 160);
  draw_number(expected, "SMALL_RTRACE", error(ERR_ZERO_DIVIDE), 2, 170);
  EXPECT_TRUE(same_picture(expected, shown_plot()));
}

TEST_F(plot_calculations, value_of_a_parametric_curve_is_its_point) {
  choose(PLOT_PARAMETRIC);
  put(PLOT_PARAMETRIC, 4, "t+1");
  put(PLOT_PARAMETRIC, 5, "t^2");
  of_function(2);
  trace_functions.slot[PLOT_PARAMETRIC] = 4;
  plot_calculate(CALCULATE_VALUE, 2);
  TSurface expected = plot_screen().plot;
  double column, row;
  project(3, 4, column, row);
  draw_cross(expected, column, row, GREEN, MARKER_BOX);
  draw_small_heading(expected, "SMALL_CALC_VALUE", 2, 150);
  draw_number(expected, "SMALL_T", {2.0}, 2, 160);
  const int end = draw_small_line(expected, "SMALL_XTTRACE", 3.0, 2, 170);
  draw_number(expected, "SMALL_YTTRACE", {4.0}, end + 4, 170);
  EXPECT_TRUE(same_picture(expected, shown_plot()));
}

TEST_F(plot_calculations, each_coordinate_of_a_pair_has_its_own_word) {
  choose(PLOT_PARAMETRIC);
  put(PLOT_PARAMETRIC, 0, "1/t");
  put(PLOT_PARAMETRIC, 1, "sqRt(t-1)");
  plot_calculate(CALCULATE_VALUE, 0);
  TSurface expected = plot_screen().plot;
  draw_small_heading(expected, "SMALL_CALC_VALUE", 2, 150);
  draw_number(expected, "SMALL_T", {0.0}, 2, 160);
  plot_error_code = ERR_ZERO_DIVIDE;
  const int end = draw_small_line(expected, "SMALL_XTTRACE", undefined_value, 2, 170);
  draw_number(expected, "SMALL_YTTRACE", error(ERR_DOMAIN), end + 4, 170);
  EXPECT_TRUE(same_picture(expected, shown_plot()));
}

TEST_F(plot_calculations, half_a_pair_is_undefined) {
  choose(PLOT_PARAMETRIC);
  put(PLOT_PARAMETRIC, 0, "t");
  plot_calculate(CALCULATE_VALUE, 2);
  EXPECT_EQ(plot_error_code, UNDEFINED_WITHOUT_ERROR);
  TSurface expected = plot_screen().plot;
  draw_small_heading(expected, "SMALL_CALC_VALUE", 2, 150);
  draw_number(expected, "SMALL_T", {}, 2, 160);
  const int end = draw_small_line(expected, "SMALL_XTTRACE", undefined_value, 2, 170);
  draw_number(expected, "SMALL_YTTRACE", {}, end + 4, 170);
  EXPECT_TRUE(same_picture(expected, shown_plot()));
}

// --- On the screen

TEST_F(plot_calculations, leave_the_plot_itself_as_it_is) {
  put(PLOT_FUNCTION, 0, "x");
  const TSurface plot = draw();
  plot_calculate(CALCULATE_VALUE, 2);
  EXPECT_FALSE(same_picture(plot, shown_plot()));
  show_plot();
  EXPECT_TRUE(same_picture(plot, shown_plot()));
}

TEST_F(plot_calculations, show_over_a_plot_that_was_not_drawn_yet) {
  put(PLOT_FUNCTION, 0, "x");
  request_plot();
  plot_calculate(CALCULATE_VALUE, 2);
  on_paint();
  expect_point("SMALL_CALC_VALUE", {2.0}, {2.0});
}

TEST_F(plot_calculations, show_what_is_calculated_where_plots_are_disabled) {
  put(PLOT_FUNCTION, 0, "x");
  plot_variables.enablePlots = 0;
  draw();
  plot_calculate(CALCULATE_VALUE, 2);
  expect_point("SMALL_CALC_VALUE", {2.0}, {2.0});
}

TEST_F(plot_calculations, a_cancelled_one_shows_nothing) {
  put(PLOT_FUNCTION, 0, "Summ(y,y,1,1000000000)");
  plot_variables.enablePlots = 0;
  draw();
  hooks.tap_kind = [](int, int) { return TAP_KEY; };
  for (const int calculation : {CALCULATE_VALUE, CALCULATE_ROOT, CALCULATE_SLOPE, CALCULATE_MAXIMUM}) {
    platform_.pen_downs.assign(1, {5, 5});
    platform_.ticks_per_look = 600;
    plot_calculate(calculation, 1);
    expect_nothing_shown();
    platform_.pen_downs.clear();
  }
  EXPECT_FALSE(errors.error_flag);
  EXPECT_EQ(message(), "none");
}

TEST_F(plot_calculations, numbers_of_an_unknown_type_are_told) {
  TSurface surface(PLOT_WIDTH, PLOT_HEIGHT);
  for (const int type : {-1, static_cast<int>(PLOT_3D), 4}) {
    print_calculate_small_numbers_low_level(surface, type, {});
    EXPECT_EQ(message(), "Bug (print_calculate_small_numbers_low_level) | Undefined Plot Type");
  }
}

// What each looks like.
TEST_F(plot_calculations, pictures) {
  plot_variables.displayGrid = 1;
  put(PLOT_FUNCTION, 0, "x^3/10-3x");
  put(PLOT_FUNCTION, 1, "x/2-1");
  of_pair(0, 1);
  const char* const names[] = {"value", "root", "minimum", "maximum", "intersection", "slope"};
  set_plot_view(-4, -10, 8, 10);
  for (int calculation = CALCULATE_VALUE; calculation < CALCULATE_TABLE; ++calculation) {
    plot_calculate(calculation, 6);
    expect_picture(std::string("plot_calculate_") + names[calculation], shown_plot());
  }
  put(PLOT_FUNCTION, 0, "x^2+x+7");
  draw();
  plot_calculate(CALCULATE_ROOT, 0);
  expect_picture("plot_calculate_no_root", shown_plot());
  plot_calculate(CALCULATE_INTERSECTION, 0);
  expect_picture("plot_calculate_no_intersection", shown_plot());
  choose(PLOT_POLAR);
  put(PLOT_POLAR, 0, "3sin(2(theta))");
  draw();
  plot_calculate(CALCULATE_VALUE, 0.6);
  expect_picture("plot_calculate_polar", shown_plot());
  choose(PLOT_PARAMETRIC);
  put(PLOT_PARAMETRIC, 0, "4cos(t)");
  put(PLOT_PARAMETRIC, 1, "5sin(2t)");
  draw();
  plot_calculate(CALCULATE_VALUE, 0.5);
  expect_picture("plot_calculate_parametric", shown_plot());
}

}  // namespace
}  // namespace zephyl
