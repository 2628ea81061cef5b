#include "engine/base_integer.h"

#include "engine/state.h"
#include "engine/values.h"

namespace zephyl {

int base_width() {
  switch (settings.baseBits) {
    case BITS_8:
      return 8;
    case BITS_16:
      return 16;
    default:
      return 32;
  }
}

std::int32_t sign_extend_base_bits(std::uint32_t pattern) {
  const int unused_bits = 32 - base_width();
  return static_cast<std::int32_t>(pattern << unused_bits) >> unused_bits;
}

std::int32_t cut_to_base_bits(double value) {
  return sign_extend_base_bits(static_cast<std::uint32_t>(to_int32(value)));
}

}  // namespace zephyl
