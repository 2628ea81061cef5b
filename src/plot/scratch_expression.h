// The expression that a plot calculation puts together: an operator around one function, or around the
// difference of two. It stands in the slot of PLOT_SCRATCH_TYPE.
#pragma once

#include "engine/expression.h"

namespace zephyl {

enum TScratch {
  SCRATCH_READY,
  SCRATCH_TOO_LONG,    // one function of more than 98 tokens, two of more than 92 together
  SCRATCH_UNBALANCED,  // a function closes a parenthesis that it hasn't opened
};

TScratch wrap_function(TToken operation, const TExpression& function);
TScratch wrap_difference(TToken operation, const TExpression& first, const TExpression& second);
void clear_scratch();

}  // namespace zephyl
