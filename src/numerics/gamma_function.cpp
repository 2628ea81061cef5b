#include <cmath>

#include "engine/errors.h"
#include "engine/operations.h"
#include "numerics/complex_functions.h"
#include "numerics/lanczos.h"
#include "numerics/real_functions.h"
#include "numerics/special_functions.h"

namespace zephyl {

namespace {

// ln Gamma(z) = ln(sqrt(2 pi) series(z) / z) - t, t = z + 5.5 - (z + 0.5) ln(z + 5.5).
TValue log_gamma(TValue z) {
  const TValue shifted = z + real_value(lanczos_shift);
  const TValue t = shifted - (z + real_value(0.5)) * complex_log(shifted);
  TValue series = real_value(lanczos_first);
  TValue y = z;
  for (const double coefficient : lanczos_coefficients) {
    y = y + real_value(1.0);
    series = series + complex_divide(real_value(coefficient), y);
  }
  return complex_log(complex_divide(real_value(lanczos_root_two_pi) * series, z)) - t;
}

void gamma_operation(TScalarCall& call) { call.result = complex_gamma(call.args[0]); }
void beta_operation(TScalarCall& call) { call.result = complex_beta(call.args[0], call.args[1]); }

}  // namespace

TValue complex_gamma(TValue z) {
  if (is_real(z) && z.re <= 0.0) {
    report_error(ERR_DOMAIN);
    return {};
  }
  const TValue logarithm = log_gamma(z);
  const double modulus = std::exp(logarithm.re);
  return {modulus * snap_cos(logarithm.im), modulus * snap_sin(logarithm.im)};
}

TValue complex_beta(TValue z, TValue w) {
  const TValue product = complex_gamma(z) * complex_gamma(w);
  return complex_divide(product, complex_gamma(z + w));
}

void register_special_operations() {
  operations[OP_GAMMA].scalar = gamma_operation;
  operations[OP_BETA].scalar = beta_operation;
  operations[OP_JN].scalar = [](TScalarCall& call) {
    call.result = real_value(bessel_j(call.args[0].re, call.args[1].re));
  };
  operations[OP_YN].scalar = [](TScalarCall& call) {
    call.result = real_value(bessel_y(call.args[0].re, call.args[1].re));
  };
}

}  // namespace zephyl
