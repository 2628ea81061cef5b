// AND, OR, XOR and NOT( of truth values: a number is true unless it is 0. The result is 1 or 0.

#include "numerics/complex_functions.h"
#include "numerics/registration.h"

namespace zephyl {

namespace {

bool is_true(double x) { return x != 0.0; }
double truth_of(TValue z) { return is_true(z.re) || is_true(z.im) ? 1.0 : 0.0; }

double logic_and(double x, double y) { return is_true(x) && is_true(y) ? 1.0 : 0.0; }
double logic_or(double x, double y) { return is_true(x) || is_true(y) ? 1.0 : 0.0; }
double logic_xor(double x, double y) { return is_true(x) != is_true(y) ? 1.0 : 0.0; }
double logic_not(double x, double) { return is_true(x) ? 0.0 : 1.0; }

template <TRealRule rule>
TValue of_truths(TValue z, TValue w) {
  return real_value(rule(truth_of(z), truth_of(w)));
}

template <TRealRule rule>
void register_logic(TOp_Code op) {
  register_on_real(op, rule, apply_to_both<of_truths<rule>>);
}

}  // namespace

void register_logic_operations() {
  register_logic<logic_and>(OP_LOGIC_AND);
  register_logic<logic_or>(OP_LOGIC_OR);
  register_logic<logic_xor>(OP_LOGIC_XOR);
  register_logic<logic_not>(OP_LOGIC_NOT);
}

}  // namespace zephyl
