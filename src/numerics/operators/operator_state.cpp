#include "numerics/operators/operator_state.h"

#include <cmath>

#include "engine/errors.h"

namespace zephyl {

bool begin_operator(TScalarCall& call) {
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
