#include "support/exact_decimal.h"

#include <cmath>
#include <cstdint>
#include <vector>

namespace zephyl {

namespace {

constexpr std::uint64_t limb = 1000000000;

void multiply(std::vector<std::uint64_t>& number, std::uint64_t factor) {
  std::uint64_t carry = 0;
  for (std::uint64_t& part : number) {
    part = part * factor + carry;
    carry = part / limb;
    part %= limb;
  }
  if (carry) number.push_back(carry);
}

std::string text_of(const std::vector<std::uint64_t>& number) {
  std::string text;
  for (std::size_t i = number.size(); i-- > 0;) {
    const std::string part = std::to_string(number[i]);
    text += (text.empty() ? "" : std::string(9 - part.size(), '0')) + part;
    if (text == "0") text.clear();
  }
  return text;
}

std::string with_point(const std::string& digits, int decimals) {
  if (decimals == 0) return digits;
  const std::size_t whole = digits.size() - static_cast<std::size_t>(decimals);
  return digits.substr(0, whole) + "." + digits.substr(whole);
}

}  // namespace

TExactDecimal::TExactDecimal(double value) : decimals_(0), negative_(value < 0.0) {
  int exponent = 0;
  auto whole = static_cast<std::uint64_t>(std::ldexp(std::frexp(std::fabs(value), &exponent), 53));
  exponent -= 53;
  for (; whole % 2 == 0 && exponent < 0 && whole > 0; ++exponent) whole /= 2;
  std::vector<std::uint64_t> number = {whole % limb, whole / limb % limb, whole / limb / limb};
  for (int i = 0; i < exponent; ++i) multiply(number, 2);
  // n / 2^k is n * 5^k / 10^k.
  for (int i = exponent; i < 0; ++i) multiply(number, 5);
  if (exponent < 0) decimals_ = -exponent;
  digits_ = text_of(number);
  const auto least = static_cast<std::size_t>(decimals_) + 1;
  if (digits_.size() < least) digits_.insert(0, least - digits_.size(), '0');
}

std::string TExactDecimal::rounded(int decimals) const {
  std::string digits = digits_;
  if (decimals >= decimals_) return digits + std::string(static_cast<std::size_t>(decimals - decimals_), '0');
  const auto dropped = static_cast<std::size_t>(decimals_ - decimals);
  digits.insert(0, dropped + 1, '0');
  const bool up = digits[digits.size() - dropped] >= '5';
  digits.resize(digits.size() - dropped);
  std::size_t at = digits.size() - 1;
  if (up) {
    for (; digits[at] == '9'; --at) digits[at] = '0';
    ++digits[at];
  }
  const std::size_t first = digits.find_first_not_of('0');
  digits.erase(0, first == std::string::npos ? digits.size() : first);
  return digits;
}

std::string TExactDecimal::fixed(int decimals) const {
  std::string digits = rounded(decimals);
  const std::size_t first = digits.find_first_not_of('0');
  digits.erase(0, first == std::string::npos ? digits.size() : first);
  const auto least = static_cast<std::size_t>(decimals) + 1;
  if (digits.size() < least) digits.insert(0, least - digits.size(), '0');
  return (negative_ ? "-" : "") + with_point(digits, decimals);
}

std::string TExactDecimal::mantissa(int decimals, int& exponent) const {
  const std::size_t first = digits_.find_first_not_of('0');
  exponent = 0;
  if (first == std::string::npos)
    return with_point(std::string(static_cast<std::size_t>(decimals) + 1, '0'), decimals);
  exponent = static_cast<int>(digits_.size() - first) - 1 - decimals_;
  std::string digits = rounded(decimals - exponent);
  digits.erase(0, digits.find_first_not_of('0'));
  if (digits.size() > static_cast<std::size_t>(decimals) + 1) {
    ++exponent;
    digits.pop_back();
  }
  return (negative_ ? "-" : "") + with_point(digits, decimals);
}

}  // namespace zephyl
