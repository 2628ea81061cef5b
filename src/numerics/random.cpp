#include "numerics/random.h"

#include <cstdint>
#include <cstdlib>

#include "engine/errors.h"
#include "platform/platform.h"

namespace zephyl {

namespace {

constexpr std::int32_t modulus = 1000000000;
constexpr std::int32_t seed_offset = 161803398;
constexpr int table_size = 55;  // ma[1] to ma[55]

struct TGenerator {
  std::int32_t ma[table_size + 1] = {};
  int inext = 0;
  int inextp = 0;
  std::int32_t rand_seed_word = -1;  // negative: the table must be filled from it first
} generator;

std::int32_t difference(std::int32_t a, std::int32_t b) { return a < b ? a - b + modulus : a - b; }

void fill_table(std::int32_t seed) {
  std::int32_t mj = std::abs(seed_offset - std::abs(seed)) % modulus;
  std::int32_t mk = 1;
  generator.ma[table_size] = mj;
  for (int k = 21; k <= 21 * (table_size - 1); k += 21) {
    const int i = k % table_size;
    generator.ma[i] = mk;
    mk = difference(mj, mk);
    mj = generator.ma[i];
  }
}

void warm_up() {
  for (int round = 0; round < 4; ++round)
    for (int i = 1; i <= table_size; ++i)
      generator.ma[i] = difference(generator.ma[i], generator.ma[1 + (i + 30) % table_size]);
}

void initialise() {
  fill_table(generator.rand_seed_word);
  warm_up();
  generator.inext = 0;
  generator.inextp = 31;
  generator.rand_seed_word = 1;
}

int next_index(int index) { return index == table_size ? 1 : index + 1; }

// s without its decimal point: as many of its digits as stay below 2^28.
std::int32_t seed_of_number(double s) {
  constexpr double seed_limit = 268435455.0;
  while (s * 10.0 < seed_limit) s *= 10.0;
  return static_cast<std::int32_t>(s);
}

// From 1 to 2^31 - 1.
std::int32_t seed_of_clock() {
  const TLocalTime now = platform().local_time();
  const int minutes = now.hour * 60 + now.minute;
  const auto milliseconds = static_cast<std::uint32_t>((minutes * 60 + now.second) * 1000 + now.millisecond);
  const std::uint32_t word = ((platform().tick_count() << 12) + (milliseconds & 0xFFFu)) & 0x7FFFFFFFu;
  return word == 0 ? 1 : static_cast<std::int32_t>(word);
}

}  // namespace

double next_random() {
  if (generator.rand_seed_word < 0) initialise();
  generator.inext = next_index(generator.inext);
  generator.inextp = next_index(generator.inextp);
  std::int32_t& cell = generator.ma[generator.inext];
  cell = difference(cell, generator.ma[generator.inextp]);
  return cell * 1e-9;
}

double seed_random(double s) {
  if (!(s >= 0.0 && s < 1.0)) {
    report_error(ERR_DOMAIN);
    return 0.0;
  }
  const std::int32_t seed = s == 0.0 ? seed_of_clock() : seed_of_number(s);
  generator.rand_seed_word = -seed;
  next_random();
  const double second = next_random();
  generator.rand_seed_word = -seed;
  next_random();
  return second;
}

}  // namespace zephyl
