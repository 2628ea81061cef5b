// Plot Calculate: what is to be calculated, of which function, and where.

#include <iterator>
#include <string>
#include <vector>

#include "engine/expression.h"
#include "engine/field_value.h"
#include "platform/dialog.h"
#include "platform/platform.h"
#include "plot/parameter_names.h"
#include "plot/plot.h"
#include "plot/plot_calculate.h"

namespace zephyl {

namespace {

constexpr int PLOT_CALCULATE = 212;

enum TCalculateControl { CALCULATION = 0, DESCRIPTION, FUNCTION, VALUE, OK, CANCEL };
constexpr int DESCRIPTION_LINES = 9;  // of the longest description

// --- The calculations

struct TCalculationRow {
  const char* name;
  bool needs_function;
  bool needs_value;
  const char* description;
};

constexpr TCalculationRow calculations[CALCULATION_COUNT] = {
    {"Value", true, true,
     "Calculates a function value for a given x. Select the function and enter the x value below."},
    {"Root", true, false,
     "Finds a root (x-intercept) of a function. Select the function below. Only one root is returned even if "
     "the function has more than one root. Zoom in on a function to find a particular root. The minimum x "
     "value and maximum x value of the plot area are used as the extremes for finding a root."},
    {"Minimum", true, false,
     "Finds a minimum of a function. Select the function below. Zoom in on a function to find a particular "
     "minimum. The minimum x value and maximum x value of the plot area are used as the extremes for finding "
     "a minimum."},
    {"Maximum", true, false,
     "Finds a maximum of a function. Select the function below. Zoom in on a function to find a particular "
     "maximum. The minimum x value and maximum x value of the plot area are used as the extremes for finding "
     "a maximum."},
    {"Intersection", true, false,
     "Finds an intersection of two functions. Select the two functions below. Only one intersection is "
     "returned even if the functions have more than one intersection. Zoom in on a function to find a "
     "particular intersection. The minimum x value and maximum x value of the plot area are used as the "
     "extremes for finding an intersection."},
    {"Slope", true, true,
     "Finds the slope (numeric derivative) of a function for a given x. Select the function and enter the x "
     "value below."},
    {"Table", false, false, "Calculates a table of values for the displayed functions."},
};

constexpr const char* polar_value =
    "Calculates a function value for a given theta. Select the function and enter the theta value below.";
constexpr const char* parametric_value =
    "Calculates a function value for a given t. Select the function and enter the t value below.";

constexpr int curve_calculations[] = {CALCULATE_VALUE, CALCULATE_TABLE};

// The calculation of a row: functions of x have all of them, curves two.
int calculation_of_row(int row) {
  return plot_variables.plotType == PLOT_FUNCTION ? row : curve_calculations[row];
}

int row_count() {
  return plot_variables.plotType == PLOT_FUNCTION ? CALCULATION_COUNT
                                                  : static_cast<int>(std::size(curve_calculations));
}

std::vector<std::string> calculation_rows() {
  std::vector<std::string> rows;
  for (int row = 0; row < row_count(); ++row) rows.push_back(calculations[calculation_of_row(row)].name);
  return rows;
}

// The first row where the calculation chosen last isn't offered.
int remembered_row() {
  for (int row = 0; row < row_count(); ++row)
    if (calculation_of_row(row) == plot_calculation.calculation) return row;
  return 0;
}

const char* description_of(int calculation) {
  if (calculation == CALCULATE_VALUE && plot_variables.plotType == PLOT_POLAR) return polar_value;
  if (calculation == CALCULATE_VALUE && plot_variables.plotType == PLOT_PARAMETRIC) return parametric_value;
  return calculations[calculation].description;
}

// --- The functions

std::string slot_name(int slot) {
  return function_slot_name(plot_variables.plotType * PLOT_SLOT_COUNT + slot);
}

std::vector<std::string> function_rows() {
  const int stride = slots_per_plot(plot_variables.plotType);
  std::vector<std::string> rows;
  for (int slot = 0; slot < PLOT_SLOT_COUNT; slot += stride)
    rows.push_back(stride == 1 ? slot_name(slot) : slot_name(slot) + ", " + slot_name(slot + 1));
  return rows;
}

std::vector<std::string> pair_rows() {
  std::vector<std::string> rows;
  for (int row = 0; row < FUNCTION_PAIR_COUNT; ++row) {
    const TFunctionPair pair = function_pair(row);
    rows.push_back(slot_name(pair.first) + " & " + slot_name(pair.second));
  }
  return rows;
}

// --- The form

// One combo serves functions and pairs: each keeps its own choice while the other shows.
class TCalculateForm {
 public:
  TCalculateForm() : choice_(plot_calculation) {}

  void build(TDialog& dialog) const {
    dialog.add(combo_control("Calculation:", calculation_rows(), remembered_row()));
    dialog.add(text_control("", "", DESCRIPTION_LINES));
    dialog.add(combo_control("Function:", {}));
    dialog.add(edit_control(parameter_label("Value:"), field_text(choice_.value)));
    add_ok_cancel(dialog);
    show_calculation(dialog);
  }

  void follow(TDialog& dialog, const TDialogEvent& event) {
    if (event.kind == CONTROL_ACTIVATED && event.control == OK) return accept(dialog);
    if (event.kind != CONTROL_CHANGED) return;
    if (event.control == CALCULATION) show_calculation(dialog);
    if (event.control == FUNCTION) chosen_row(dialog) = dialog[FUNCTION].selected;
  }

 private:
  static int calculation(const TDialog& dialog) { return calculation_of_row(dialog[CALCULATION].selected); }

  int& chosen_row(const TDialog& dialog) {
    return calculation(dialog) == CALCULATE_INTERSECTION ? choice_.pair : choice_.function;
  }

  void show_calculation(TDialog& dialog) const {
    const int shown = calculation(dialog);
    const bool crosses = shown == CALCULATE_INTERSECTION;
    dialog[DESCRIPTION].text = description_of(shown);
    dialog[FUNCTION].label = crosses ? "Functions:" : "Function:";
    set_rows(dialog[FUNCTION], crosses ? pair_rows() : function_rows(),
             crosses ? choice_.pair : choice_.function);
    dialog[FUNCTION].visible = calculations[shown].needs_function;
    dialog[VALUE].visible = calculations[shown].needs_value;
  }

  void accept(TDialog& dialog) {
    if (dialog[VALUE].visible && !read_field(dialog[VALUE], choice_.value)) return dialog.keep_open();
    choice_.calculation = calculation(dialog);
    // The row that showed, where the one chosen before isn't there.
    if (dialog[FUNCTION].visible) chosen_row(dialog) = dialog[FUNCTION].selected;
    plot_calculation = choice_;
    dialog.close(choice_.calculation);
  }

  TPlotCalculation choice_;
};

}  // namespace

void open_plot_calculate() {
  TCalculateForm form;
  TDialog dialog(PLOT_CALCULATE, "Plot Calculate");
  form.build(dialog);
  dialog.procedure = [&form](TDialog& shown, const TDialogEvent& event) { form.follow(shown, event); };
  platform().run_dialog(dialog);
  if (dialog.result() == DIALOG_CANCELLED) return;
  if (dialog.result() == CALCULATE_TABLE) return open_plot_table();
  plot_calculate(plot_calculation.calculation, plot_calculation.value);
}

}  // namespace zephyl
