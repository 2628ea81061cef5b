// The evaluation of one plot slot at one parameter value, without a trace in the calculator.
#pragma once

#include "engine/values.h"
#include "plot/plot_slots.h"

namespace zephyl {

enum TPlotPhase { PHASE_BEGIN = 0, PHASE_SAMPLE = 1, PHASE_END = 2 };

constexpr int UNDEFINED_WITHOUT_ERROR = 50;  // plot_error_code of a sample that nobody could compute

// The error of the latest undefined sample, for the small words in its place.
extern int plot_error_code;
// A sample ended in "Operation Canceled": the plot is to stop. Cleared by whoever starts a plot.
extern bool plot_cancelled;

// PHASE_BEGIN puts away what an evaluation changes and compiles the slot; PHASE_SAMPLE stores the parameters
// in the variables of the type (x, theta, t, or u and v) and gives the value there, undefined_value with
// plot_error_code where it has none; PHASE_END brings everything back. One run at a time. A box reports an
// unknown type or phase. PLOT_SCRATCH_TYPE has its parameter in x.
double custom_function(int plot_type, double parameter1, double parameter2, int slot, int phase);

// The three phases for a single sample. An empty slot is undefined without an error.
double evaluate_plot_function(int plot_type, double parameter1, double parameter2, int slot);

// A value, or the error in its place.
struct TPlotNumber {
  double value = undefined_value;
  int error = UNDEFINED_WITHOUT_ERROR;

  bool defined() const { return value != undefined_value; }
};
// The same sample as a number of its own.
TPlotNumber plot_number(int plot_type, double parameter, int slot);

// True if the samples of the run that has begun cost next to nothing: they need no look at the clock of their
// own.
bool samples_are_quick();

}  // namespace zephyl
