#include "numerics/integral_error.h"

#include "engine/errors.h"
#include "numerics/registration.h"

namespace zephyl {

double last_integral_error = 0.0;

namespace {

// The argument counts the integral back from the last; only the last is known.
void error_estimate(TScalarCall& call) {
  checked_integer(call.args[0].re, 1, 1, ERR_DOMAIN);
  if (!errors.error_flag) call.result = {last_integral_error, 0.0};
}

}  // namespace

void register_integral_error() { operations[OP_ERROR].scalar = error_estimate; }

}  // namespace zephyl
