// Floating-point faults: read from the status flags after an operation, mapped to errors. Inexact, underflow and denormal
// operands stay silent. The compiler knows nothing of the flags and may move arithmetic across their reading: read
// them only after a call that it can't see into.
#pragma once

#include <cfenv>
#include <type_traits>
#if defined(__SSE2__)
#include <xmmintrin.h>
#endif

namespace zephyl {

void clear_faults();

// True if a fault was raised since clear_faults.
inline bool fault_raised() {
#if defined(__SSE2__)
  return (_mm_getcsr() & 0x0Du) != 0;  // invalid, zero divide, overflow
#else
  return std::fetestexcept(FE_INVALID | FE_DIVBYZERO | FE_OVERFLOW) != 0;
#endif
}

// Reports the raised fault (zero divide before overflow before invalid) and clears it. False if there was none.
bool report_fault();

// What the function makes of the arguments, called so that the compiler can't see into it; its fault is reported.
template <class TResult, class... TParameters>
TResult reporting_faults(TResult (*function)(TParameters...), std::type_identity_t<TParameters>... arguments) {
  clear_faults();
  TResult (*volatile opaque)(TParameters...) = function;
  const TResult result = opaque(arguments...);
  report_fault();
  return result;
}

}  // namespace zephyl
