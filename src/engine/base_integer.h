// Integers of base-n arithmetic: two's complement numbers of the width that `baseBits` sets.
#pragma once

#include <cstdint>

namespace zephyl {

// Bits of a base-n integer by `baseBits`: 8, 16 or 32.
int base_width();

// value cut to an integer, clamped to 32 bits, of which the low base_width() bits are kept and sign-extended;
// 0 for a NaN.
std::int32_t cut_to_base_bits(double value);
// The low base_width() bits of a 32-bit pattern, sign-extended.
std::int32_t sign_extend_base_bits(std::uint32_t pattern);

}  // namespace zephyl
