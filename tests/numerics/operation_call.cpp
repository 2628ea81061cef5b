#include "numerics/operation_call.h"

#include <gtest/gtest.h>

#include "engine/faults.h"
#include "engine/operations.h"
#include "engine/state.h"
#include "numerics/numerics.h"

namespace zephyl {

namespace {

bool takes_real_rule(const TOperationHandlers& row, const TScalarCall& call) {
  if (!row.real || !call.operands_real) return false;
  return row.real_use == REAL_ON_REAL || (row.real_use == REAL_WHEN_FORCED && call.stay_real);
}

}  // namespace

TOutcome operate(TOp_Code op, TValue left, TValue right) {
  if (!operations[OP_PLUS].real) register_scalar_operations();
  reset_errors();
  clear_faults();
  TScalarCall call{};
  call.op = op;
  call.args[0] = left;
  call.args[1] = right;
  call.count = 2;
  call.operands_real = is_real(left) && is_real(right);
  call.stay_real = call.operands_real && settings.complexFormat == ST_REAL;
  const TOperationHandlers& row = operations[op];
  if (takes_real_rule(row, call))
    call.result = {row.real(left.re, right.re), 0.0};
  else if (row.scalar)
    row.scalar(call);
  else
    report_error(ERR_UNEXPECTED);
  report_fault();
  if (errors.error_flag) return {{}, errors.error_code};
  return {call.result, NO_ERROR};
}

TOutcome operate(TOp_Code op, double left, double right) {
  return operate(op, TValue{left, 0.0}, TValue{right, 0.0});
}

TValue result_of(TOp_Code op, TValue left, TValue right) {
  const TOutcome outcome = operate(op, left, right);
  EXPECT_EQ(outcome.error, NO_ERROR) << "operation " << op << " of " << left.re << "+" << left.im << "i and "
                                     << right.re << "+" << right.im << "i: " << error_message(outcome.error);
  return outcome.value;
}

double real_result_of(TOp_Code op, double left, double right) {
  const TValue value = result_of(op, TValue{left, 0.0}, TValue{right, 0.0});
  EXPECT_EQ(value.im, 0.0);
  return value.re;
}

}  // namespace zephyl
