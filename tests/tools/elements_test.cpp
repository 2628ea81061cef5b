#include "tools/elements.h"

#include <cstdlib>
#include <cstring>

#include "engine/records.h"
#include "support/calculator.h"

namespace zephyl {

namespace {

class elements : public calculator {};

TEST_F(elements, hydrogen_has_its_facts_in_the_order_of_the_rows) {
  EXPECT_EQ(element_text_for(0, 0, ELEMENT_LINE), "Symbol: H");
  EXPECT_EQ(element_text_for(0, 1, ELEMENT_LINE), "Name: Hydrogen");
  EXPECT_EQ(element_text_for(0, 2, ELEMENT_LINE), "Atomic Number: 1");
  EXPECT_EQ(element_text_for(0, 3, ELEMENT_LINE), "Atomic Weight: 1.00794 g/mole");
  EXPECT_EQ(element_text_for(0, 4, ELEMENT_LINE), "Boiling Point: -252.88 \u00b0C");
  EXPECT_EQ(element_text_for(0, 6, ELEMENT_LINE), "Density: 0.0899 (g/l)");
  EXPECT_EQ(element_text_for(0, 9, ELEMENT_LINE), "Electronegativity: 2.10 (Pauling scale)");
  EXPECT_EQ(element_text_for(0, 12, ELEMENT_VALUE), "Hexagonal");
  EXPECT_EQ(element_text_for(0, 17, ELEMENT_LINE), "Atomic Radius: 2.08 \u00c5");
  EXPECT_EQ(element_text_for(0, 18, ELEMENT_LINE), "Electron Affinity: 0.75 eV");
}

TEST_F(elements, a_density_without_a_unit_is_in_grams_a_cubic_centimetre) {
  EXPECT_EQ(element_text_for(2, 6, ELEMENT_VALUE), "0.534 g/cm\u00b3");
}

TEST_F(elements, an_unknown_density_shows_the_unit_behind_dashes) {
  EXPECT_EQ(element_text_for(108, 6, ELEMENT_VALUE), "---- g/cm\u00b3");
}

TEST_F(elements, a_circumflex_in_the_data_shows_as_a_comma) {
  EXPECT_EQ(element_text_for(91, 7, ELEMENT_VALUE), "+6,+5,+4,+3");
}

TEST_F(elements, an_index_without_a_line_changes_nothing) {
  ASSERT_TRUE(load_periodical(0));
  EXPECT_FALSE(load_periodical(109));
  EXPECT_FALSE(load_periodical(-1));
  EXPECT_STREQ(element.fields[ELEMENT_SYMBOL], "H");
}

TEST_F(elements, all_109_lines_have_18_fields_with_a_symbol_and_a_weight) {
  const char* const last_symbols[] = {"Lr", "Rf", "Db", "Sg", "Bh", "Hs", "Mt"};
  for (int index = 0; index < ELEMENT_COUNT; ++index) {
    ASSERT_TRUE(load_periodical(index)) << index;
    EXPECT_GT(std::strtod(element.fields[ELEMENT_WEIGHT], nullptr), 1.0) << index;
    EXPECT_NE(element.fields[ELEMENT_AFFINITY][0], 0) << index;
    EXPECT_LE(std::strlen(element.fields[ELEMENT_SYMBOL]), 2u) << index;
  }
  for (int i = 0; i < 7; ++i) {
    load_periodical(102 + i);
    EXPECT_STREQ(element.fields[ELEMENT_SYMBOL], last_symbols[i]);
  }
}

TEST_F(elements, only_rows_with_a_number_are_constants) {
  EXPECT_EQ(element_constant(0, 2), "1");
  EXPECT_EQ(element_constant(0, 6), "0.0899 (g/l)");
  EXPECT_EQ(element_constant(0, 0), "");
  EXPECT_EQ(element_constant(0, 12), "");
  EXPECT_EQ(element_constant(108, 4), "");  // no value
  EXPECT_EQ(element_constant(1, 18), "");   // "(unstable)"
  EXPECT_EQ(element_constant(0, -1), "");
}

TEST_F(elements, a_molecule_weighs_the_sum_of_its_atoms) {
  EXPECT_EQ(eval("molecMass(\"H2O1\")"), "18.01528");
  EXPECT_EQ(eval("molecMass(\"Bh1\")"), "264");
  EXPECT_EQ(eval("molecMass(\"co1\")"), eval("molecMass(\"CO1\")"));
  EXPECT_EQ(eval("molecMass(\"co1\")"), "58.9332");
  EXPECT_EQ(eval("molecMass(\"C6H12O6\")"), "180.15768");
}

TEST_F(elements, a_formula_that_is_none_is_refused) {
  EXPECT_EQ(eval("molecMass(\"H2O\")"), "Invalid String");
  EXPECT_EQ(eval("molecMass(\"H2 O1\")"), "Invalid String");
  EXPECT_EQ(eval("molecMass(\"2H\")"), "Invalid Element Symbol");
  EXPECT_EQ(eval("molecMass(\"Xx1\")"), "Invalid Element Symbol");
  EXPECT_EQ(eval("molecMass(\"123\")"), "Invalid Element Symbol");
}

TEST_F(elements, a_symbol_or_count_of_120_characters_is_too_long) {
  const std::string digits(60, '1'), letters(60, 'H');
  eval("\"" + digits + "\"->str1");
  eval("\"" + letters + "\"->str2");
  EXPECT_EQ(eval("molecMass(\"H\"+str1+str1)"), "Memory Limit Error");
  EXPECT_EQ(eval("molecMass(str2+str2)"), "Memory Limit Error");
}

TEST_F(elements, a_formula_may_be_as_long_as_a_string) {
  TString& text = stores.strings[0];
  for (std::size_t i = 0; i + 2 < sizeof text.text; i += 2) std::memcpy(text.text + i, "H1", 2);
  text.text[sizeof text.text - 1] = 0;
  if (std::strlen(text.text) % 2) text.text[std::strlen(text.text) - 1] = 0;
  const double hydrogens = static_cast<double>(std::strlen(text.text) / 2);
  EXPECT_GT(hydrogens, 400.0);
  EXPECT_NEAR(value("molecMass(str1)"), hydrogens * 1.00794, 1e-9);
}

TEST_F(elements, an_empty_formula_is_no_error) { EXPECT_EQ(eval("molecMass(str9)"), "0"); }

}  // namespace

}  // namespace zephyl
