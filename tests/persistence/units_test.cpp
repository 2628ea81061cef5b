// The conversion table, its text and its tokens in expressions.

#include "persistence/units.h"

#include <gtest/gtest.h>

#include <string>

#include "engine/calculator.h"
#include "engine/expression.h"
#include "engine/memory.h"
#include "engine/state.h"
#include "engine/text_form.h"
#include "engine/tokens.h"
#include "persistence/constants.h"
#include "persistence/units_reader.h"
#include "support/calculator.h"

namespace zephyl {

class units : public calculator {
 protected:
  // Reads a text in the place of the built-in one.
  static void read(const std::string& lines) { read_built_in_units(with_cr_lf(lines)); }
  // What a message box said last; "none".
  std::string last_message() const { return platform_.messages.empty() ? "none" : platform_.messages.back(); }

  static int code_of(const char* property, const char* short_name) {
    for (int i = 0; i < unit_table.unit_count; ++i)
      if (std::string(unit_table.units[i].short_name) == short_name &&
          std::string(unit_table.properties[unit_table.units[i].property].name) == property)
        return unit_table.units[i].code;
    return -1;
  }

 private:
  static std::string with_cr_lf(const std::string& lines) {
    std::string text;
    for (const char c : lines) text += c == '\n' ? "\r\n" : std::string(1, c);
    return text;
  }
};

TEST_F(units, the_built_in_text_is_without_a_fault) {
  EXPECT_EQ(message(), "none");
  EXPECT_EQ(unit_table.property_count, 13);
  EXPECT_EQ(unit_table.unit_count, 139);
  EXPECT_EQ(constant_count(), 44);
}

TEST_F(units, codes_are_found) {
  EXPECT_EQ(unit_index_of_code(0), 0);
  EXPECT_STREQ(unit_table.units[unit_index_of_code(125)].short_name, "ha");
  EXPECT_STREQ(unit_table.units[unit_index_of_code(35)].long_name, "Eloectron Volt");
  EXPECT_EQ(unit_index_of_code(139), -1);
  EXPECT_EQ(unit_index_of_code(-1), -1);
}

TEST_F(units, positions_count_the_codes_of_the_property_upwards) {
  EXPECT_EQ(unit_position(0, 0), 0);
  EXPECT_EQ(unit_position(0, 1), 1);
  EXPECT_EQ(unit_position(0, 125), 8);  // stands second in the text
  EXPECT_EQ(unit_position(125, 7), 7);
  EXPECT_EQ(unit_position(0, 8), 0);  // of another property
  EXPECT_EQ(unit_position(500, 8), 0);
}

TEST_F(units, a_position_gives_its_code) {
  for (int i = 0; i < unit_table.unit_count; ++i) {
    const int code = unit_table.units[i].code;
    EXPECT_EQ(unit_code_at(code, unit_position(code, code)), code);
  }
  EXPECT_EQ(unit_code_at(1, 8), 125);
  EXPECT_EQ(unit_code_at(1, 9), 0);  // behind the last one
  EXPECT_EQ(unit_code_at(500, 0), -1);
}

TEST_F(units, temperatures_have_offsets) {
  EXPECT_EQ(eval("100(C>K)"), "373.15");
  EXPECT_NEAR(value("32(F>C)"), 0.0, 1e-12);
  EXPECT_NEAR(value("100(C>F)"), 212.0, 1e-12);
  EXPECT_NEAR(value("0(K>F)"), -459.67, 1e-12);
}

TEST_F(units, the_same_unit_gives_the_same_value) {
  for (const char* unit : {"ft", "kg", "K", "mile(Naut)", "l"})
    EXPECT_EQ(eval(std::string("12.5(") + unit + ">" + unit + ")"), "12.5");
}

TEST_F(units, lengths_areas_and_masses_convert) {
  EXPECT_EQ(eval("1(ft>m)"), "0.3048");
  EXPECT_EQ(eval("1(mile(Naut)>km)"), "1.852");
  EXPECT_EQ(eval("1(acre>sq.m)"), "4046.8564224");
  EXPECT_EQ(eval("1(lb(avdp)>kg)"), "0.45359237");
  EXPECT_NEAR(value("1(light year>parsec)"), 9.46055e15 / 3.08572e16, 1e-15);
  EXPECT_EQ(eval("2(day>hr)+1"), "49");
}

TEST_F(units, an_imaginary_part_converts_only_where_results_may_be_complex) {
  eval("0(C>K)");
  EXPECT_EQ(answers.ans.im, 0.0);
  eval("(1+2(i))(ft>m)");
  EXPECT_EQ(answers.ans.im, 0.0);
  settings.complexFormat = ST_COMPLEX_R;
  eval("0(C>K)");
  EXPECT_EQ(answers.ans.re, 273.15);
  EXPECT_EQ(answers.ans.im, 273.15);
  eval("(1+2(i))(ft>m)");
  EXPECT_DOUBLE_EQ(answers.ans.re, 0.3048);
  EXPECT_DOUBLE_EQ(answers.ans.im, 0.6096);
}

TEST_F(units, an_unknown_unit_converts_nothing) {
  // (500 + 512) * 64 and the form with two codes, 127 and 127, of a text that has three units.
  read("Prop: Length\nUnit: 0, ft, Feet, 0.3048, 0.0\nUnit: 1, m, Meter, 1.0, 0.0\n");
  const TToken unknown[] = {29, static_cast<TToken>(32768 + 500 * 64),
                            static_cast<TToken>(16384 + 127 + 127 * 128)};
  for (const int i : {1, 2}) {
    clear_entry_line();
    state.fresh_flag = false;
    insert_token(true, unknown[0]);
    insert_token(true, unknown[i]);
    evaluate_expression(false);
    EXPECT_EQ(answers.ans.re, 5.0);
  }
}

TEST_F(units, the_form_with_two_codes_converts_too) {
  const int foot = code_of("Distance", "ft"), metre = code_of("Distance", "m");
  clear_entry_line();
  state.fresh_flag = false;
  insert_token(true, 33);
  insert_token(true, static_cast<TToken>(16384 + foot + 128 * metre));
  evaluate_expression(false);
  EXPECT_DOUBLE_EQ(answers.ans.re, 0.3048);
  EXPECT_EQ(entry(), "1(ft>m)");
}

TEST_F(units, every_pair_reads_back_from_its_listing) {
  for (int from = 0; from < unit_table.unit_count; ++from) {
    for (int to = 0; to < unit_table.unit_count; ++to) {
      const Unit &a = unit_table.units[from], &b = unit_table.units[to];
      if (a.property != b.property) continue;
      const bool ambiguous = std::string("CF").find(a.short_name) != std::string::npos &&
                             std::string("CF").find(b.short_name) != std::string::npos &&
                             std::string(unit_table.properties[a.property].name) == "Electric Charge";
      if (ambiguous) continue;  // a charge in C or F reads back as a temperature
      TExpression one;
      one.tokens[0] = static_cast<TToken>(32768 + 64 * a.code + unit_position(a.code, b.code));
      one.count = 1;
      char text[100], error[200];
      expression_text(one, text, sizeof text);
      EXPECT_EQ(std::string(text), std::string("(") + a.short_name + ">" + b.short_name + ")");
      TExpression read_back;
      ASSERT_TRUE(text_to_tokens(text, read_back, error, sizeof error)) << error;
      EXPECT_TRUE(read_back == one) << text;
    }
  }
}

TEST_F(units, order_is_checked) {
  read("Prop: Mass\nUnit: 0, kg, Kilogram, 1.0, 0.0\nProp: area\n");
  EXPECT_EQ(last_message(), "Order | A property is out of alphabetic order: area");
  read("Prop: Mass\nUnit: 0, kg, Kilogram, 1.0, 0.0\nUnit: 1, G, Gram, 0.001, 0.0\n");
  EXPECT_EQ(last_message(), "Order | A unit is out of alphabetic order: G");
  EXPECT_EQ(unit_table.unit_count, 2);
  platform_.messages.clear();
  read(
      "Prop: Area\nUnit: 1, z, Z, 1.0, 0.0\nProp: Mass\nUnit: 0, g, Gram, 0.001, 0.0\nUnit: 2, KG, K, 1.0, "
      "0.0\n");
  EXPECT_EQ(last_message(), "none");
}

TEST_F(units, codes_are_checked) {
  read("Prop: Mass\nUnit: 0, g, Gram, 0.001, 0.0\nUnit: 0, kg, Kilogram, 1.0, 0.0\n");
  ASSERT_EQ(platform_.messages.size(), 2u);
  EXPECT_EQ(platform_.messages[0], "Conversion Units | Unit index code already used");
  EXPECT_EQ(platform_.messages[1], "Conversion Units | Unit index gap exists");
  platform_.messages.clear();
  read("Prop: Mass\nUnit: 1000000, g, Gram, 0.001, 0.0\nUnit: -7, kg, Kilogram, 1.0, 0.0\n");
  EXPECT_EQ(platform_.messages.size(), 2u);
}

TEST_F(units, the_tables_hold_198_units_and_18_properties) {
  std::string text = "Prop: Mass\n";
  for (int i = 0; i < 198; ++i)
    text += "Unit: " + std::to_string(i) + ", " + std::to_string(1000 + i) + ", x, 1.0, 0.0\n";
  read(text);
  EXPECT_EQ(last_message(), "none");
  read(text + "Unit: 198, z, x, 1.0, 0.0\nProp: Never\n");
  EXPECT_EQ(last_message(), "Array size limit | Unit array is not large enouph");
  EXPECT_EQ(unit_table.unit_count, 198);
  EXPECT_EQ(unit_table.property_count, 1);

  std::string properties;
  for (int i = 0; i < 18; ++i) properties += std::string("Prop: ") + static_cast<char>('A' + i) + "\n";
  platform_.messages.clear();
  read(properties);
  EXPECT_EQ(last_message(), "none");
  read(properties + "Prop: Z\n");
  EXPECT_EQ(last_message(), "Array size limit | Property array is not large enouph");
}

TEST_F(units, a_field_that_does_not_fit_is_told) {
  read("Prop: " + std::string(40, 'p') + "\n");
  EXPECT_EQ(last_message(), "strcpy problem | Dest length is shorter than source length (40 <= 40)");
  EXPECT_STREQ(unit_table.properties[0].name, "");
  read("Prop: P\nUnit: 0, " + std::string(25, 's') + ", x, 1.0, 0.0\n");
  EXPECT_EQ(last_message(), "strcpy problem | Dest length is shorter than source length (25 <= 25)");
}

TEST_F(units, a_line_that_is_too_short_or_too_long_ends_the_text) {
  read("Prop: P\nUnit:\nProp: Q\n");
  EXPECT_EQ(unit_table.property_count, 1);
  read("Prop: P\nNote: " + std::string(114, 'x') + "\nProp: Q\n");
  EXPECT_EQ(unit_table.property_count, 1);
  read("Prop: P\nNote: " + std::string(113, 'x') + "\nProp: Q\n");
  EXPECT_EQ(unit_table.property_count, 2);
}

// Exact definitions: the international yard and pound of 1959, the litre, the standard atmosphere and gravity
// of the General Conferences on Weights and Measures. The table has them to the digits that it prints.
TEST_F(units, factors_agree_with_their_definitions) {
  const struct {
    const char* property;
    const char* unit;
    double factor;
    double tolerance;
  } facts[] = {{"Area", "acre", 4840 * 0.9144 * 0.9144, 1e-13},
               {"Area", "sq.mile", 1609.344 * 1609.344, 1e-13},
               {"Distance", "yd", 0.9144, 0.0},
               {"Distance", "light year", 299792458.0 * 365.25 * 86400, 2e-5},
               {"Distance", "parsec", 149597870700.0 * 648000 / 3.14159265358979323846, 2e-5},
               {"Energy", "kW-hr", 3.6e6, 0.0},
               {"Energy", "ft.lb", 0.3048 * 0.45359237 * 9.80665, 1e-10},
               {"Force", "lbf", 0.45359237 * 9.80665, 1e-9},
               {"Mass", "oz(avdp)", 0.45359237 / 16, 1e-8},
               {"Mass", "slug", 0.45359237 * 9.80665 / 0.3048, 1e-9},
               {"Power", "hp", 550 * 0.3048 * 0.45359237 * 9.80665, 1e-8},
               {"Pressure", "atm", 101325.0, 1e-7},
               {"Pressure", "psi", 0.45359237 * 9.80665 / (0.0254 * 0.0254), 1e-13},
               {"Pressure", "torr", 101325.0 / 760, 1e-11},
               {"Velocity", "knots", 1852.0 / 3600, 1e-14},
               {"Velocity", "mph", 0.44704, 0.0},
               {"Volume", "cu.ft", 0.3048 * 0.3048 * 0.3048, 1e-9},
               {"Volume", "gal(fl)", 231 * 0.0254 * 0.0254 * 0.0254, 2e-9},
               {"Volume", "acre-ft", 4046.8564224 * 0.3048, 5e-6},
               {"Volume", "teaspoon", 231 * 0.0254 * 0.0254 * 0.0254 / 768, 1e-6}};
  for (const auto& fact : facts) {
    const int index = unit_index_of_code(code_of(fact.property, fact.unit));
    ASSERT_GE(index, 0) << fact.unit;
    EXPECT_NEAR(unit_table.units[index].factor, fact.factor, fact.tolerance * fact.factor) << fact.unit;
  }
}

}  // namespace zephyl
