// fnInt(: the quadrature as an operator. It doesn't nest, neither with another operator nor with a custom
// function between.

#include <cmath>

#include "engine/errors.h"
#include "engine/loop_variables.h"
#include "engine/operation_table.h"
#include "numerics/integral_error.h"
#include "numerics/operators/operator_state.h"
#include "numerics/operators/operators.h"
#include "numerics/operators/quadrature.h"

namespace zephyl {

namespace {

constexpr double default_tolerance = 1e-9;
constexpr double plot_tolerance = 0.002;  // a plot of an integral stays usable

TQuadrature quadrature;

// The step that calls a frame's operator.
const TStep* operator_of_frame(const TCompiled& compiled, int frame) {
  for (int i = 0; i < compiled.count; ++i)
    if (compiled.steps[i].arg_kind == KIND_NUMERIC && compiled.steps[i].frame == frame)
      return &compiled.steps[i];
  return nullptr;
}

bool lies_in_integral(const TStep& step) {
  const TCompiled& compiled = *walked_steps();
  const TStep* outer = &step;
  while (outer && outer->numeric_frame != NO_FRAME) {
    outer = operator_of_frame(compiled, outer->numeric_frame);
    if (outer && outer->op == OP_FN_INT) return true;
  }
  return false;
}

double tolerance_of(const TScalarCall& call) {
  const double given = std::fabs(call.args[4].re);
  const double tolerance = given == 0.0 ? default_tolerance : given;
  return call.plotting ? std::fmax(tolerance, plot_tolerance) : tolerance;
}

void integral_operation(TScalarCall& call) {
  if (begins(call)) {
    if (lies_in_integral(*call.step) || runs_loop_of(OP_FN_INT)) return report_error(ERR_NESTED_FNINT);
    if (begin_operator(call))
      ask_at(call, quadrature.start(call.args[2].re, call.args[3].re, tolerance_of(call)));
    return;
  }
  double place = 0.0;
  if (quadrature.next(call.args[0].re, place)) return ask_at(call, place);
  last_integral_error = quadrature.error();
  finish_operator(call, {quadrature.result(), 0.0});
}

}  // namespace

void register_integral_operator() { operations[OP_FN_INT].scalar = integral_operation; }

void register_numeric_operators() {
  register_counting_operators();
  register_derivative_operator();
  register_minimum_operators();
  register_root_operator();
  register_integral_operator();
}

}  // namespace zephyl
