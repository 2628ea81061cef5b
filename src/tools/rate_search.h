// The search for an interest rate at which a residual is zero, shared by the money solver and the cash flows:
// secant searches from starting points ever farther out on both sides of zero; the root of the smaller
// magnitude is taken.
#pragma once

namespace zephyl {

// The residual at a rate, a fraction. It may fault or report an error: that ends the trial it happens in,
// ERR_CANCELED the whole search.
using TResidual = double (*)(double rate, const void* data);

// The root, or undefined_value with the last trial's error reported (ERR_ITERATIONS, or the residual's own).
double search_rate(TResidual residual, const void* data);

}  // namespace zephyl
