// Comparisons; 1 is true, 0 is false. Equality looks at both parts of complex numbers, order at their moduli.

#include "numerics/complex_functions.h"
#include "numerics/registration.h"

namespace zephyl {

namespace {

double truth(bool condition) { return condition ? 1.0 : 0.0; }

double equal(double x, double y) { return truth(x == y); }
double not_equal(double x, double y) { return truth(x != y); }
double greater(double x, double y) { return truth(x > y); }
double greater_or_equal(double x, double y) { return truth(x >= y); }
double less(double x, double y) { return truth(x < y); }
double less_or_equal(double x, double y) { return truth(x <= y); }

TValue complex_equal(TValue z, TValue w) { return real_value(truth(z == w)); }
TValue complex_not_equal(TValue z, TValue w) { return real_value(truth(z != w)); }

template <TRealRule order>
TValue by_modulus(TValue z, TValue w) {
  return real_value(order(complex_magnitude(z), complex_magnitude(w)));
}

template <TRealRule order>
void register_order(TOp_Code op) {
  register_on_real(op, order, apply_to_both<by_modulus<order>>);
}

}  // namespace

void register_comparison_operations() {
  register_on_real(OP_EQUAL, equal, apply_to_both<complex_equal>);
  register_on_real(OP_NOT_EQUAL, not_equal, apply_to_both<complex_not_equal>);
  register_order<greater>(OP_GREATER);
  register_order<greater_or_equal>(OP_GREATER_EQUAL);
  register_order<less>(OP_LESS);
  register_order<less_or_equal>(OP_LESS_EQUAL);
}

}  // namespace zephyl
