#include "numerics/registration.h"

#include "engine/errors.h"
#include "engine/hooks.h"
#include "numerics/numerics.h"
#include "numerics/random.h"

namespace zephyl {

void register_on_real(TOp_Code op, TRealRule real, TScalarHandler scalar) {
  operations[op].real = real;
  operations[op].real_use = REAL_ON_REAL;
  operations[op].scalar = scalar;
}

void register_when_forced(TOp_Code op, TRealRule real, TScalarHandler scalar) {
  operations[op].real = real;
  operations[op].real_use = REAL_WHEN_FORCED;
  operations[op].scalar = scalar;
}

void apply_to_each_part(TScalarCall& call) {
  const TRealRule rule = operations[call.op].real;
  const TValue z = call.args[0];
  const double second = call.args[1].re;
  call.result.re = rule(z.re, second);
  call.result.im = rule(z.im, second);
}

void apply_to_real_parts(TScalarCall& call) {
  call.result = {operations[call.op].real(call.args[0].re, call.args[1].re), 0.0};
}

void refuse_complex(TScalarCall&) { report_error(ERR_DATA_TYPE); }

void register_scalar_operations() {
  register_arithmetic_operations();
  register_power_operations();
  register_trigonometric_operations();
  register_hyperbolic_operations();
  register_angle_operations();
  register_complex_operations();
  register_rounding_operations();
  register_integer_operations();
  register_comparison_operations();
  register_logic_operations();
  register_base_operations();
  register_random_operations();
  register_integral_error();
  hooks.next_random = next_random;
}

}  // namespace zephyl
