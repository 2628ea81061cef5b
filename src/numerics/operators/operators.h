// The numeric operators over expressions, by family.
#pragma once

namespace zephyl {

// All of them.
void register_numeric_operators();

void register_counting_operators();   // Summ(, Prod(, Seq(, fnEval(
void register_derivative_operator();  // fnDeriv(
void register_minimum_operators();    // fnMin(, fnMax(
void register_root_operator();        // fnRoot(
void register_integral_operator();    // fnInt(

}  // namespace zephyl
