#include "engine/faults.h"

#include "engine/errors.h"

namespace zephyl {

void clear_faults() {
#if defined(__SSE2__)
  _mm_setcsr(_mm_getcsr() & ~0x3Fu);
#else
  std::feclearexcept(FE_ALL_EXCEPT);
#endif
}

bool report_fault() {
#if defined(__SSE2__)
  constexpr unsigned invalid = 0x01, zero_divide = 0x04, overflow = 0x08;
  const unsigned raised = _mm_getcsr() & (invalid | zero_divide | overflow);
#else
  constexpr int invalid = FE_INVALID, zero_divide = FE_DIVBYZERO, overflow = FE_OVERFLOW;
  const int raised = std::fetestexcept(invalid | zero_divide | overflow);
#endif
  if (!raised) return false;
  clear_faults();
  report_error(raised & zero_divide ? ERR_ZERO_DIVIDE : raised & overflow ? ERR_OVERFLOW : ERR_DOMAIN);
  return true;
}

}  // namespace zephyl
