// The generator against numbers from the published routine in another language, and the rules of its seeds.
#include "numerics/random.h"

#include <gtest/gtest.h>

#include <initializer_list>

#include "support/calculator.h"

namespace zephyl {
namespace {

void expect_sequence(std::initializer_list<int> billionths) {
  for (int expected : billionths) EXPECT_EQ(next_random(), expected * 1e-9);
}

TEST_F(calculator, random_sequence_of_a_half) {
  seed_random(0.5);
  expect_sequence({573008803, 851103978, 109259507, 690269598, 319028079, 959325688, 792142683, 823158662});
}

TEST_F(calculator, random_sequence_goes_on_beyond_its_table) {
  seed_random(0.5);
  for (int i = 1; i < 1000; ++i) next_random();
  expect_sequence({793947623});
}

TEST_F(calculator, seed_takes_the_digits_behind_the_point) {
  seed_random(0.123456789);
  expect_sequence({527416423, 429625630, 170332791});
  seed_random(0.3);
  expect_sequence({273008803, 271103978, 249259507});
  seed_random(0.027);
  expect_sequence({178008803, 884103978, 970259507});
  seed_random(0.99);
  expect_sequence({458008803, 172103978, 666259507});
}

TEST_F(calculator, tiny_seeds_are_scaled_up) {
  seed_random(1e-20);
  expect_sequence({823008803, 301103978, 759259507});
  const double announced = seed_random(5e-324);
  EXPECT_EQ(next_random(), announced);
}

TEST_F(calculator, seed_zero_takes_tick_count_and_time_of_day) {
  platform_.ticks = 0;
  platform_.now = TLocalTime{};  // 12:00:00.000
  seed_random(0.0);
  expect_sequence({646556963, 192094314, 299848819});
}

TEST_F(calculator, seed_zero_keeps_31_bits_of_the_clock) {
  platform_.ticks = 0xFFFFF123u;
  platform_.now = TLocalTime{};
  platform_.now.hour = 13;
  platform_.now.minute = 5;
  platform_.now.second = 7;
  platform_.now.millisecond = 89;
  seed_random(0.0);
  expect_sequence({770747538, 835955709, 488282034});
}

TEST_F(calculator, seed_zero_at_midnight_is_a_seed_all_the_same) {
  platform_.ticks = 0;
  platform_.now = TLocalTime{};
  platform_.now.hour = 0;
  EXPECT_EQ(seed_random(0.0), 715119168 * 1e-9);
  expect_sequence({715119168, 33021107, 874393600});
}

TEST_F(calculator, seeding_returns_the_next_random_number) {
  for (double seed : {0.5, 0.001, 0.999999, 0.0}) {
    const double announced = seed_random(seed);
    EXPECT_EQ(next_random(), announced) << seed;
  }
}

TEST_F(calculator, rand_seed_returns_what_the_random_number_gives) {
  const double announced = value("randSeed(0.5)");
  EXPECT_EQ(announced, 0.573008803);
  EXPECT_EQ(value("(Rand)"), announced);
}

TEST_F(calculator, the_same_seed_gives_the_same_numbers) {
  value("randSeed(0.25)");
  const double first = value("(Rand)");
  const double second = value("(Rand)");
  value("randSeed(0.25)");
  EXPECT_EQ(value("(Rand)"), first);
  EXPECT_EQ(value("(Rand)"), second);
  EXPECT_NE(first, second);
}

TEST_F(calculator, seeds_lie_from_zero_to_below_one) {
  EXPECT_EQ(error_of("randSeed(1)"), "Domain Error");
  EXPECT_EQ(error_of("randSeed(-0.1)"), "Domain Error");
  EXPECT_EQ(error_of("randSeed(0)"), "");
}

TEST_F(calculator, a_refused_seed_leaves_the_sequence) {
  seed_random(0.5);
  EXPECT_EQ(seed_random(1.0), 0.0);
  expect_sequence({573008803});
}

TEST_F(calculator, random_numbers_are_uniform) {
  constexpr int draws = 200000;
  seed_random(0.5);
  double sum = 0.0;
  int lowest_tenth = 0;
  for (int i = 0; i < draws; ++i) {
    const double x = next_random();
    ASSERT_TRUE(x >= 0.0 && x < 1.0);
    sum += x;
    lowest_tenth += x < 0.1;
  }
  EXPECT_NEAR(sum / draws, 0.5, 0.003);
  EXPECT_NEAR(lowest_tenth, draws / 10, 600);
}

}  // namespace
}  // namespace zephyl
