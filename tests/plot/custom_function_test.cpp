// One slot at one parameter value, without a trace in the calculator.

#include "plot/custom_function.h"

#include "engine/errors.h"
#include "engine/expression.h"
#include "engine/memory.h"
#include "engine/records.h"
#include "engine/state.h"
#include "engine/system_variables.h"
#include "plot/drawing.h"
#include "plot/plotting.h"
#include "plot/zoom_locks.h"
#include "stats/stats.h"
#include "support/file_faults.h"

namespace zephyl {
namespace {

class custom_function_run : public plotting {
 protected:
  // The value of a function slot at x; what isn't defined is undefined_value.
  static double at(double x, const std::string& text) {
    put(PLOT_FUNCTION, 0, text);
    return evaluate_plot_function(PLOT_FUNCTION, x, 0.0, 0);
  }
  static void expect_undefined(const std::string& text, double x, int code) {
    plot_error_code = -1;
    EXPECT_EQ(at(x, text), undefined_value) << text;
    EXPECT_EQ(plot_error_code, code) << text;
    EXPECT_FALSE(errors.error_flag) << text;
  }
};

TEST_F(custom_function_run, has_its_parameter_in_the_variable_of_its_type) {
  put(PLOT_FUNCTION, 1, "10x");
  put(PLOT_POLAR, 1, "20(theta)");
  put(PLOT_PARAMETRIC, 1, "30t");
  put(PLOT_3D, 1, "40u+v");
  put(PLOT_SCRATCH_TYPE, 0, "50x");
  EXPECT_EQ(evaluate_plot_function(PLOT_FUNCTION, 2.0, 3.0, 1), 20.0);
  EXPECT_EQ(evaluate_plot_function(PLOT_POLAR, 2.0, 3.0, 1), 40.0);
  EXPECT_EQ(evaluate_plot_function(PLOT_PARAMETRIC, 2.0, 3.0, 1), 60.0);
  EXPECT_EQ(evaluate_plot_function(PLOT_3D, 2.0, 3.0, 1), 83.0);
  EXPECT_EQ(evaluate_plot_function(PLOT_SCRATCH_TYPE, 2.0, 3.0, 0), 100.0);
}

TEST_F(custom_function_run, makes_its_parameter_real) {
  memory_array[SLOT_X] = {1.0, 7.0};
  EXPECT_EQ(at(2.0, "x"), 2.0);
  EXPECT_EQ(memory_array[SLOT_X], (TValue{1.0, 7.0}));
}

TEST_F(custom_function_run, leaves_no_error_and_the_variable_as_it_was) {
  state.calcMode = COMP_MODE;
  eval("5->x");
  put(PLOT_FUNCTION, 0, "1/x");
  draw();
  EXPECT_FALSE(errors.error_flag);
  EXPECT_EQ(memory_array[SLOT_X].re, 5.0);
  EXPECT_EQ(answers.ans.re, 5.0);
}

TEST_F(custom_function_run, leaves_the_error_that_stood) {
  state.calcMode = COMP_MODE;
  eval("1/0");
  EXPECT_EQ(at(4.0, "x"), 4.0);
  EXPECT_TRUE(errors.error_flag);
  EXPECT_STREQ(errors.error_text, "Division by Zero");
}

TEST_F(custom_function_run, says_why_a_sample_is_undefined) {
  expect_undefined("1/x", 0.0, ERR_ZERO_DIVIDE);
  expect_undefined("sqRt(x)", -1.0, ERR_DOMAIN);
  expect_undefined("10^(x)", 400.0, ERR_OVERFLOW);
  expect_undefined("x+(i)", 1.0, ERR_DATA_TYPE);
  expect_undefined("{x,1}", 1.0, ERR_DATA_TYPE);
  expect_undefined("Iden(2)", 1.0, ERR_DATA_TYPE);
  expect_undefined("\"abc\"", 1.0, ERR_DATA_TYPE);
  expect_undefined("x+", 1.0, ERR_SYNTAX);
  expect_undefined("(xMean)", 1.0, ERR_NO_STATS_DATA);
  expect_undefined("f2(x)", 1.0, ERR_UNDEFINED_FUNCTION);
}

TEST_F(custom_function_run, takes_a_complex_number_without_imaginary_part) {
  EXPECT_EQ(at(3.0, "x+(i)-(i)"), 3.0);
}

TEST_F(custom_function_run, of_a_slot_that_refers_to_itself_is_undefined) {
  expect_undefined("f1(x)+1", 1.0, ERR_MEMORY_LIMIT);
}

TEST_F(custom_function_run, of_an_empty_slot_is_undefined_without_an_error) {
  expect_undefined("", 1.0, UNDEFINED_WITHOUT_ERROR);
}

TEST_F(custom_function_run, of_a_slot_of_99_tokens_is_like_any_other) {
  std::string text = "x";
  for (int i = 0; i < 49; ++i) text += "+x";
  EXPECT_EQ(at(2.0, text), 100.0);
}

TEST_F(custom_function_run, reads_other_slots) {
  put(PLOT_FUNCTION, 1, "x^(2)");
  EXPECT_EQ(at(3.0, "f2(x)+1"), 10.0);
}

TEST_F(custom_function_run, stays_real_where_a_typed_expression_would_not) {
  settings.complexFormat = ST_COMPLEX_R;
  expect_undefined("sqRt(x)", -1.0, ERR_DOMAIN);
}

TEST_F(custom_function_run, does_not_flatten_near_a_zero_crossing) {
  EXPECT_NE(at(3.141592653589793, "sin(x)"), 0.0);
}

TEST_F(custom_function_run, brings_back_all_that_stores_and_commands_change) {
  eval("{1,2,3}->{A}");
  const char* const changes[] = {"x->A",        "{x,x}->{A}",   "Iden(2)->[A]", "\"ab\"->str1",     "7->xMin",
                                 "3->plotType", "2->angleMode", "entStats(x)",  "clrMem(11)",       "1->tvmN",
                                 "x->f2(x)",    "initPlot()",   "1->calcMode",  "initDraw(1,1,1,1)"};
  put(PLOT_FUNCTION, 3, "x");
  const TPlotVariables before = plot_variables;
  for (const char* change : changes) at(1.0, change);
  EXPECT_EQ(memory_array[SLOT_CAPITAL_A].re, 0.0);
  EXPECT_EQ(stores.lists[0].last, 2);
  EXPECT_FALSE(stores.matrices[0].defined);
  EXPECT_STREQ(stores.strings[0].text, "");
  EXPECT_EQ(plot_variables.xMin, before.xMin);
  EXPECT_EQ(plot_variables.plotType, before.plotType);
  EXPECT_EQ(settings.angleMode, RADIANS);
  EXPECT_EQ(stats.count, 0);
  EXPECT_FALSE(slot_in_use(PLOT_FUNCTION, 1));
  EXPECT_TRUE(slot_in_use(PLOT_FUNCTION, 3));
  EXPECT_EQ(state.calcMode, PLOT_MODE);
  EXPECT_EQ(read_system_variable(VAR_TVM_N).re, 0.0);
}

TEST_F(custom_function_run, brings_back_the_line_its_history_and_the_locks) {
  const TTestFolder folder;
  const std::string path = folder.file("locked");
  make_file(path + ".state", "V: 2.7A\r\nO: 13:1\r\nO: 14:1\r\nE: 0:34\r\n");
  eval("7/2");
  entry_line = {};
  const int entries = history.count;
  EXPECT_EQ(at(1.0, "loadState(\"" + path + "\")"), 0.0);
  EXPECT_FALSE(zoom_locks.x);
  EXPECT_FALSE(zoom_locks.y);
  EXPECT_EQ(entry_line.expression.count, 0);
  EXPECT_EQ(at(1.0, "clrMem(7)"), 0.0);
  EXPECT_EQ(history.count, entries);
}

TEST_F(custom_function_run, brings_back_the_drawing) {
  drawing_bitmap().set_pixel(5, 5, RED);
  at(1.0, "Circle(0,0,x)");
  at(1.0, "clrDraw()");
  EXPECT_EQ(drawing_bitmap().pixel(5, 5), RED);
  EXPECT_FALSE(drawing_present());
}

TEST_F(custom_function_run, shows_no_dialog_for_a_sample) {
  at(1.0, "dispStatsList()");
  EXPECT_TRUE(platform_.dialogs.empty());
}

TEST_F(custom_function_run, is_compiled_once_for_all_samples) {
  put(PLOT_FUNCTION, 0, "x+1");
  custom_function(PLOT_FUNCTION, 0.0, 0.0, 0, PHASE_BEGIN);
  put(PLOT_FUNCTION, 0, "x+2");
  EXPECT_EQ(custom_function(PLOT_FUNCTION, 3.0, 0.0, 0, PHASE_SAMPLE), 4.0);
  EXPECT_EQ(custom_function(PLOT_FUNCTION, 4.0, 0.0, 0, PHASE_SAMPLE), 5.0);
  custom_function(PLOT_FUNCTION, 0.0, 0.0, 0, PHASE_END);
}

TEST_F(custom_function_run, of_an_unknown_type_or_phase_shows_a_box) {
  EXPECT_EQ(evaluate_plot_function(4, 1.0, 0.0, 0), undefined_value);
  EXPECT_EQ(message(), "Bug (custom_function) | Undefined Plot Type");
  EXPECT_EQ(custom_function(PLOT_FUNCTION, 1.0, 0.0, 0, 3), undefined_value);
  EXPECT_EQ(message(), "Bug (custom_function) | Undefined Plot Function Type");
}

TEST_F(custom_function_run, that_is_canceled_says_so) {
  platform_.ticks_per_look = 600;
  platform_.pen_downs = {{20, 250}};  // Plot Setup
  plot_cancelled = false;
  put(PLOT_FUNCTION, 0, "Summ(1,A,1,1000)+x");
  custom_function(PLOT_FUNCTION, 0.0, 0.0, 0, PHASE_BEGIN);
  EXPECT_EQ(custom_function(PLOT_FUNCTION, 1.0, 0.0, 0, PHASE_SAMPLE), undefined_value);
  EXPECT_TRUE(plot_cancelled);
  custom_function(PLOT_FUNCTION, 0.0, 0.0, 0, PHASE_END);
  EXPECT_FALSE(errors.error_flag);
  EXPECT_EQ(message(), "none");
}

// --- Slots

TEST_F(custom_function_run, a_pair_or_a_triple_needs_all_its_slots) {
  put(PLOT_PARAMETRIC, 2, "t");
  EXPECT_FALSE(plot_in_use(PLOT_PARAMETRIC, 2));
  put(PLOT_PARAMETRIC, 3, "t");
  EXPECT_TRUE(plot_in_use(PLOT_PARAMETRIC, 2));
  put_surface(1, "u", "v", "");
  EXPECT_FALSE(plot_in_use(PLOT_3D, 3));
  put_surface(1, "u", "v", "u");
  EXPECT_TRUE(plot_in_use(PLOT_3D, 3));
}

TEST_F(custom_function_run, plots_are_enabled_by_the_switch_and_any_slot_of_the_type) {
  EXPECT_FALSE(plots_enabled());
  put(PLOT_POLAR, 5, "1");
  EXPECT_FALSE(plots_enabled());
  choose(PLOT_POLAR);
  EXPECT_TRUE(plots_enabled());
  plot_variables.enablePlots = 0;
  EXPECT_FALSE(plots_enabled());
}

TEST_F(custom_function_run, colours_follow_slots_pairs_and_triples) {
  EXPECT_EQ(plot_colour(PLOT_FUNCTION, 1), RED);
  EXPECT_EQ(plot_colour(PLOT_FUNCTION, 4), rgb(0xFF, 0xC0, 0x48));
  EXPECT_EQ(plot_colour(PLOT_POLAR, 5), rgb(0x13, 0xC8, 0xC0));
  EXPECT_EQ(plot_colour(PLOT_PARAMETRIC, 2), RED);
  EXPECT_EQ(plot_colour(PLOT_PARAMETRIC, 5), GREEN);
  EXPECT_EQ(plot_colour(PLOT_3D, 2), BLUE);
  EXPECT_EQ(plot_colour(PLOT_3D, 3), PURPLE);
  EXPECT_STREQ(colour_box_name(PLOT_3D, 5), "PURPLE_BOX");
}

TEST_F(custom_function_run, program_functions_are_no_slots_of_surfaces) {
  state.calcMode = COMP_MODE;
  eval("42->f1()");
  EXPECT_EQ(eval("f1()"), "42");
  put_surface(0, "u", "v", "1");
  EXPECT_EQ(eval("f1()"), "42");
  eval("clrMem(5)");
  EXPECT_FALSE(plot_in_use(PLOT_3D, 0));
  EXPECT_EQ(eval("f1()"), "42");
}

}  // namespace
}  // namespace zephyl
