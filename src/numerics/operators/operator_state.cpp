#include "numerics/operators/operator_state.h"

#include <cmath>

#include "engine/errors.h"
#include "engine/system_variables.h"

namespace zephyl {

TBounds search_bounds(const TScalarCall& call) {
  if (!is_plot_form(call.op)) return {call.args[2].re, call.args[3].re};
  return {read_system_variable(VAR_X_MIN).re, read_system_variable(VAR_X_MAX).re};
}

bool begin_operator(TScalarCall& call) {
  if (is_plot_form(call.op)) call.numeric->variable = SLOT_X;
  push_loop_variable(call.numeric->variable, call.op);
  if (errors.error_flag) return false;
  call.numeric->phase = 1;
  return true;
}

void finish_operator(TScalarCall& call, const TValue& result) {
  pop_loop_variable();
  call.numeric->phase = 0;
  call.result = result;
  call.repeat = false;
}

double snapped_to_zero(double x) { return std::fabs(x) < near_zero_limit ? 0.0 : x; }

}  // namespace zephyl
