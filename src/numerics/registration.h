// How the files of this folder fill in rows of the operation table, and the handlers that many rows share.
// Between the files of numerics/ only.
#pragma once

#include "engine/operations.h"

namespace zephyl {

// Each subject's rows.
void register_arithmetic_operations();
void register_power_operations();
void register_trigonometric_operations();
void register_hyperbolic_operations();
void register_angle_operations();
void register_complex_operations();
void register_rounding_operations();
void register_integer_operations();
void register_comparison_operations();
void register_logic_operations();
void register_base_operations();
void register_random_operations();
void register_integral_error();

// A row that takes its real rule whenever its operands are real, and `scalar` for complex ones.
void register_on_real(TOp_Code op, TRealRule real, TScalarHandler scalar);
// A row that takes its real rule only where the result must stay real.
void register_when_forced(TOp_Code op, TRealRule real, TScalarHandler scalar);

// A function of one complex number as a handler.
template <TValue (*function)(TValue)>
void apply(TScalarCall& call) {
  call.result = function(call.args[0]);
}

// A function of two complex numbers as a handler.
template <TValue (*function)(TValue, TValue)>
void apply_to_both(TScalarCall& call) {
  call.result = function(call.args[0], call.args[1]);
}

// The row's real rule for the real and for the imaginary part of the first argument; the second is real.
void apply_to_each_part(TScalarCall& call);
// The row's real rule for the real parts.
void apply_to_real_parts(TScalarCall& call);
// ERR_DATA_TYPE.
void refuse_complex(TScalarCall& call);

}  // namespace zephyl
