#include "engine/decimal_text.h"

#include <cmath>
#include <cstdint>
#include <cstring>

namespace zephyl {

namespace {

// A non-negative integer of any size that scaling a double by a power of ten needs: 53 bits times 5^340.
struct TBig {
  std::uint32_t words[36];  // the lowest first
  int count;
};

constexpr int WORD_BITS = 32;
constexpr int FIVES_IN_A_WORD = 13;
constexpr std::uint32_t powers_of_five[FIVES_IN_A_WORD + 1] = {
    1, 5, 25, 125, 625, 3125, 15625, 78125, 390625, 1953125, 9765625, 48828125, 244140625, 1220703125};

TBig make_big(std::uint64_t value) {
  return {{static_cast<std::uint32_t>(value), static_cast<std::uint32_t>(value >> WORD_BITS)}, 2};
}

void trim(TBig& big) {
  while (big.count > 0 && big.words[big.count - 1] == 0) --big.count;
}

void multiply(TBig& big, std::uint32_t factor) {
  std::uint64_t carry = 0;
  for (int i = 0; i < big.count; ++i) {
    carry += static_cast<std::uint64_t>(big.words[i]) * factor;
    big.words[i] = static_cast<std::uint32_t>(carry);
    carry >>= WORD_BITS;
  }
  if (carry) big.words[big.count++] = static_cast<std::uint32_t>(carry);
}

// Rounds down, as shift_right does.
void divide(TBig& big, std::uint32_t divisor) {
  std::uint64_t rest = 0;
  for (int i = big.count - 1; i >= 0; --i) {
    rest = (rest << WORD_BITS) | big.words[i];
    big.words[i] = static_cast<std::uint32_t>(rest / divisor);
    rest %= divisor;
  }
  trim(big);
}

void shift_left(TBig& big, int bits) {
  multiply(big, 1u << (bits % WORD_BITS));
  const int words = bits / WORD_BITS;
  std::memmove(big.words + words, big.words, static_cast<std::size_t>(big.count) * sizeof big.words[0]);
  std::memset(big.words, 0, static_cast<std::size_t>(words) * sizeof big.words[0]);
  big.count += words;
}

void shift_right(TBig& big, int bits) {
  const int words = bits / WORD_BITS;
  if (words >= big.count) {
    big.count = 0;
    return;
  }
  big.count -= words;
  std::memmove(big.words, big.words + words, static_cast<std::size_t>(big.count) * sizeof big.words[0]);
  divide(big, 1u << (bits % WORD_BITS));
}

void shift(TBig& big, int bits) {
  if (bits >= 0)
    shift_left(big, bits);
  else
    shift_right(big, -bits);
}

// Both cut the power of five into factors of a word.
void multiply_by_fives(TBig& big, int power) {
  for (; power >= FIVES_IN_A_WORD; power -= FIVES_IN_A_WORD) multiply(big, powers_of_five[FIVES_IN_A_WORD]);
  multiply(big, powers_of_five[power]);
}

void divide_by_fives(TBig& big, int power) {
  for (; power >= FIVES_IN_A_WORD; power -= FIVES_IN_A_WORD) divide(big, powers_of_five[FIVES_IN_A_WORD]);
  divide(big, powers_of_five[power]);
}

std::uint64_t low_bits(const TBig& big) {
  std::uint64_t value = big.count > 1 ? big.words[1] : 0u;
  return (value << WORD_BITS) | (big.count > 0 ? big.words[0] : 0u);
}

// The integer nearest to a * 10^power, a half upwards: half of the whole part of twice the product, and 1 if
// that is odd. a positive; the result below 1e18.
std::uint64_t scaled_integer(double a, int power) {
  int exponent = 0;
  constexpr int mantissa_bits = 53;
  TBig big = make_big(static_cast<std::uint64_t>(std::ldexp(std::frexp(a, &exponent), mantissa_bits)));
  trim(big);
  const int twos = exponent - mantissa_bits + power + 1;
  if (power >= 0) {
    multiply_by_fives(big, power);
    shift(big, twos);
  } else {
    if (twos > 0) shift_left(big, twos);
    divide_by_fives(big, -power);
    if (twos < 0) shift_right(big, -twos);
  }
  const std::uint64_t doubled = low_bits(big);
  return doubled / 2 + doubled % 2;
}

std::uint64_t power_of_ten(int power) {
  std::uint64_t result = 1;
  while (power-- > 0) result *= 10;
  return result;
}

// The digits of n with a point in front of the last `decimals`, at least one digit ahead of it.
int print_digits(char* out, std::uint64_t n, int decimals, bool negative) {
  char reversed[DECIMAL_TEXT_SIZE];
  int count = 0;
  for (int digits = 0; n > 0 || digits <= decimals; ++digits) {
    if (digits == decimals && decimals > 0) reversed[count++] = '.';
    reversed[count++] = static_cast<char>('0' + n % 10);
    n /= 10;
  }
  if (negative) reversed[count++] = '-';
  for (int i = 0; i < count; ++i) out[i] = reversed[count - 1 - i];
  out[count] = 0;
  return count;
}

}  // namespace

int print_fixed(char* out, double value, int decimals) {
  const std::uint64_t n = value == 0.0 ? 0 : scaled_integer(std::fabs(value), decimals);
  return print_digits(out, n, decimals, value < 0.0);
}

int print_mantissa(char* out, double value, int decimals) {
  if (value == 0.0) {
    print_digits(out, 0, decimals, false);
    return 0;
  }
  constexpr double log10_of_2 = 0.30102999566398119521;
  const double a = std::fabs(value);
  // The exponent of the power of two below a is never too high and at most 1 too low.
  int exponent = static_cast<int>(std::floor(std::ilogb(a) * log10_of_2));
  std::uint64_t n = scaled_integer(a, decimals - exponent);
  while (n >= power_of_ten(decimals + 1)) n = scaled_integer(a, decimals - ++exponent);
  print_digits(out, n, decimals, value < 0.0);
  return exponent;
}

void strip_zeros(char* text) {
  if (!std::strchr(text, '.')) return;
  char* end = text + std::strlen(text);
  while (end[-1] == '0') --end;
  if (end[-1] == '.') --end;
  *end = 0;
}

}  // namespace zephyl
