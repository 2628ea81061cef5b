// The chemical elements: one of them at a time, read from the built-in text, and how its facts show.
#pragma once

#include <string>

namespace zephyl {

constexpr int ELEMENT_COUNT = 109;
constexpr int ELEMENT_FIELD_COUNT = 18;
constexpr int ELEMENT_FIELD_SIZE = 40;  // with the terminator
constexpr int ELEMENT_ROW_COUNT = 19;   // rows of facts that the dialogs show

enum TElementField {
  ELEMENT_NAME = 0, ELEMENT_SYMBOL, ELEMENT_WEIGHT, ELEMENT_BOILING_POINT, ELEMENT_MELTING_POINT, ELEMENT_DENSITY,
  ELEMENT_CONFIGURATION, ELEMENT_OXIDATION, ELEMENT_CRYSTAL, ELEMENT_ELECTRONEGATIVITY, ELEMENT_VAPORIZATION,
  ELEMENT_FUSION, ELEMENT_CONDUCTIVITY, ELEMENT_SPECIFIC_HEAT, ELEMENT_IONIZATION, ELEMENT_RADIUS, ELEMENT_ACIDITY,
  ELEMENT_AFFINITY
};

struct Element {
  char fields[ELEMENT_FIELD_COUNT][ELEMENT_FIELD_SIZE] = {};  // by TElementField
};
// The one that load_periodical read last.
extern Element element;

// Reads an element, 0 (hydrogen) to 108, into `element`. False, with nothing changed, for an index without a line.
bool load_periodical(int index);

enum TElementText {
  ELEMENT_HEADING = 0,  // "Boiling Point"
  ELEMENT_VALUE = 1,    // the value with its unit
  ELEMENT_LINE = 2      // "Boiling Point: -252.88 °C"
};
// A text of display row 0 to 18 of an element, in UTF-8. Loads the element.
std::string element_text_for(int index, int row, TElementText kind);

// The row shows a number that an expression can use: its text as it stands in the data; empty for a row without one.
std::string element_constant(int index, int row);

}  // namespace zephyl
