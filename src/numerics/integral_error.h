// What Error( tells: how far off the last integral may be.
#pragma once

namespace zephyl {

// The absolute error estimate of the last fnInt(; 0 before any.
extern double last_integral_error;

}  // namespace zephyl
