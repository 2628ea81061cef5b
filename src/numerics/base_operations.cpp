// Integer arithmetic of base-n: operands are cut to integers of the set width, results wrap around in it.

#include <cstdint>

#include "engine/base_integer.h"
#include "engine/errors.h"
#include "numerics/registration.h"

namespace zephyl {

namespace {

// A rule on integers that are cut already. Its result may have more bits than the width.
using TIntegerRule = std::uint32_t (*)(std::int32_t left, std::int32_t right);

std::uint32_t bits(std::int32_t n) { return static_cast<std::uint32_t>(n); }

std::uint32_t bit_not(std::int32_t n, std::int32_t) { return ~bits(n); }
std::uint32_t negate(std::int32_t n, std::int32_t) { return 0u - bits(n); }
std::uint32_t bit_and(std::int32_t m, std::int32_t n) { return bits(m) & bits(n); }
std::uint32_t bit_or(std::int32_t m, std::int32_t n) { return bits(m) | bits(n); }
std::uint32_t bit_xor(std::int32_t m, std::int32_t n) { return bits(m) ^ bits(n); }
std::uint32_t bit_xnor(std::int32_t m, std::int32_t n) { return ~(bits(m) ^ bits(n)); }

std::uint32_t report(TError error) {
  report_error(error);
  return 0u;
}

// The sign is that of m. Any number modulo -1 is 0, the smallest one too, whose quotient has no room.
std::uint32_t modulo(std::int32_t m, std::int32_t n) {
  if (n == 0) return report(ERR_ZERO_DIVIDE);
  return n == -1 ? 0u : bits(m % n);
}

std::uint32_t shift_left(std::int32_t n, std::int32_t count) {
  if (count < 0) return report(ERR_DOMAIN);
  return count < base_width() ? bits(n) << count : 0u;
}

// Arithmetic: the sign moves in.
std::uint32_t shift_right(std::int32_t n, std::int32_t count) {
  if (count < 0) return report(ERR_DOMAIN);
  return bits(n >> (count < base_width() ? count : 31));
}

template <TIntegerRule rule>
double on_integers(double left, double right) {
  return sign_extend_base_bits(rule(cut_to_base_bits(left), cut_to_base_bits(right)));
}

void report_not_real(TScalarCall&) { report_error(ERR_DOMAIN); }

template <TIntegerRule rule>
void register_base(TOp_Code op) {
  register_on_real(op, on_integers<rule>, report_not_real);
}

}  // namespace

void register_base_operations() {
  register_base<bit_not>(OP_BASE_NOT);
  register_base<negate>(OP_BASE_NEG);
  register_base<modulo>(OP_BASE_MOD);
  register_base<shift_left>(OP_SHIFT_LEFT);
  register_base<shift_right>(OP_SHIFT_RIGHT);
  register_base<bit_and>(OP_BASE_AND);
  register_base<bit_xor>(OP_BASE_XOR);
  register_base<bit_xnor>(OP_BASE_XNOR);
  register_base<bit_or>(OP_BASE_OR);
}

}  // namespace zephyl
