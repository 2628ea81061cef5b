#include "engine/engine_operations.h"

#include <gtest/gtest.h>

#include "engine/hooks.h"
#include "engine/memory.h"
#include "engine/operations.h"
#include "engine/state.h"
#include "support/calculator.h"

namespace zephyl {
namespace {

constexpr TUnit units[] = {
    {"m", 1.0, 0.0}, {"ft", 0.3048, 0.0}, {"C", 1.0, -273.15}, {"F", 5.0 / 9.0, -459.67}, {"K", 1.0, 0.0}};
constexpr int METRE = 0, FOOT = 1, CELSIUS = 2, FAHRENHEIT = 3, KELVIN = 4, UNKNOWN = 9;

class conversion : public ::testing::Test {
 protected:
  conversion() {
    register_engine_operations();
    hooks.unit_by_code = [](int code) { return code >= 0 && code <= KELVIN ? &units[code] : nullptr; };
    hooks.unit_at_position = [](int code, int position) {
      return code >= CELSIUS && position < 3 ? CELSIUS + position : -1;
    };
  }

  static TValue convert(int from, int to, TValue value, bool by_position = false) {
    TStep step;
    step.unit_from = static_cast<std::uint16_t>(from);
    step.unit_to = static_cast<std::uint16_t>(to);
    step.unit_by_position = by_position;
    TScalarCall call{};
    call.op = OP_CONVERSION;
    call.args[0] = value;
    call.count = 1;
    call.step = &step;
    operations[OP_CONVERSION].scalar(call);
    return call.result;
  }
};

TEST_F(conversion, scales_by_the_factors) {
  EXPECT_DOUBLE_EQ(convert(FOOT, METRE, {100, 0}).re, 30.48);
  EXPECT_DOUBLE_EQ(convert(METRE, FOOT, {30.48, 0}).re, 100.0);
}

TEST_F(conversion, shifts_by_the_offsets) {
  EXPECT_DOUBLE_EQ(convert(CELSIUS, KELVIN, {100, 0}).re, 373.15);
  EXPECT_NEAR(convert(FAHRENHEIT, CELSIUS, {32, 0}).re, 0.0, 1e-12);
}

TEST_F(conversion, finds_the_target_by_its_position) {
  EXPECT_DOUBLE_EQ(convert(CELSIUS, KELVIN - CELSIUS, {100, 0}, true).re, 373.15);
}

TEST_F(conversion, of_a_unit_to_itself_changes_nothing) {
  EXPECT_EQ(convert(FOOT, FOOT, {0.1, 0}).re, 0.1);
  EXPECT_EQ(convert(CELSIUS, CELSIUS, {20, 0}).re, 20.0);
}

TEST_F(conversion, leaves_a_number_with_an_unknown_unit) {
  EXPECT_EQ(convert(FOOT, UNKNOWN, {3, 4}), (TValue{3, 4}));
  EXPECT_EQ(convert(UNKNOWN, FOOT, {3, 4}), (TValue{3, 4}));
  EXPECT_EQ(convert(CELSIUS, 3, {3, 4}, true), (TValue{3, 4}));
}

TEST_F(conversion, has_no_imaginary_part_under_real_display) {
  EXPECT_EQ(convert(CELSIUS, KELVIN, {0, 0}).im, 0.0);
  EXPECT_EQ(convert(FOOT, METRE, {100, -10}).im, 0.0);
}

TEST_F(conversion, converts_both_parts_under_complex_display) {
  settings.complexFormat = ST_COMPLEX_R;
  const TValue zero = convert(CELSIUS, KELVIN, {0, 0});
  EXPECT_DOUBLE_EQ(zero.re, 273.15);
  EXPECT_DOUBLE_EQ(zero.im, 273.15);
  const TValue length = convert(FOOT, METRE, {100, -10});
  EXPECT_DOUBLE_EQ(length.re, 30.48);
  EXPECT_DOUBLE_EQ(length.im, -3.048);
}

TEST_F(calculator, clr_mem_clears_an_item) {
  eval("5->A");
  EXPECT_EQ(eval("clrMem(1)"), "0");
  EXPECT_EQ(memory_get(SLOT_CAPITAL_A, 0), 0.0);
}

TEST_F(calculator, clr_mem_takes_1_to_11) {
  for (const char* text : {"clrMem(0)", "clrMem(12)", "clrMem(1.5)"}) EXPECT_EQ(eval(text), "Domain Error");
}

}  // namespace
}  // namespace zephyl
