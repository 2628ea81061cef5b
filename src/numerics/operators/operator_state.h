// What the numeric operators over expressions share. Each is a resumable machine: the evaluator runs the
// expression and calls the operator with its value; the operator sets its variable to the next place and asks
// for another round, or leaves its result. A fault that the operator's own arithmetic raises is read by the
// evaluator.
#pragma once

#include "engine/compiled.h"
#include "engine/evaluator.h"
#include "engine/loop_variables.h"
#include "engine/memory.h"
#include "engine/operations.h"

namespace zephyl {

// phase 0: the operator begins, and the value of its expression means nothing yet.
inline bool begins(const TScalarCall& call) { return call.numeric->phase == 0; }

// The forms that calculations on a plot put around a plotted function, with it as their only argument: their
// variable is x, and they search the plot's view.
inline bool is_plot_form(TOp_Code op) { return op >= OP_PLOT_FN_MIN && op <= OP_PLOT_FN_DERIV; }

struct TBounds {
  double lower;
  double upper;
};
// Where an operator searches: between its last two arguments or, of a plot form, xMin and xMax.
TBounds search_bounds(const TScalarCall& call);

// Puts the variable's value away and enters phase 1. False, with the error reported, if that can't be.
bool begin_operator(TScalarCall& call);

// Another round of the expression at x.
inline void ask_at(TScalarCall& call, const TValue& x) {
  memory_array[call.numeric->variable] = x;
  call.repeat = true;
}
inline void ask_at(TScalarCall& call, double x) { ask_at(call, TValue{x, 0.0}); }

// The operator's result; its variable has its old value again, and its next call begins anew.
void finish_operator(TScalarCall& call, const TValue& result);

// The state of an operator's method, one for each operator that can be under way: the innermost is the one
// that is called.
template <typename TMethod>
TMethod& method_state(const TScalarCall& call) {
  static TMethod states[LOOP_VARIABLE_LIMIT + 1];
  return states[loop_variable_count() - (begins(call) ? 0 : 1)];
}

// Results of smaller magnitude than near_zero_limit are 0.
double snapped_to_zero(double x);

}  // namespace zephyl
