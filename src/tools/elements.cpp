#include "tools/elements.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <string_view>

#include "engine/text_resources.h"
#include "platform/platform.h"

namespace zephyl {

Element element;

namespace {

constexpr std::size_t LINE_LIMIT = 200;
constexpr int ATOMIC_NUMBER = -1;  // counted, not stored
constexpr const char* DEGREES_C = "\u00b0C";
constexpr const char* ANGSTROM = "\u00c5";
constexpr const char* CUBE = "\u00b3";

struct TElementRow {
  const char* heading;
  int field;
  const char* unit;
  bool number;  // can be taken into an expression
};

constexpr TElementRow rows[ELEMENT_ROW_COUNT] = {
    {"Symbol", ELEMENT_SYMBOL, "", false},
    {"Name", ELEMENT_NAME, "", false},
    {"Atomic Number", ATOMIC_NUMBER, "", true},
    {"Atomic Weight", ELEMENT_WEIGHT, "g/mole", true},
    {"Boiling Point", ELEMENT_BOILING_POINT, DEGREES_C, true},
    {"Melting Point", ELEMENT_MELTING_POINT, DEGREES_C, true},
    {"Density", ELEMENT_DENSITY, "", true},
    {"Oxidation States", ELEMENT_OXIDATION, "", false},
    {"1st Ionization Potential", ELEMENT_IONIZATION, "eV", true},
    {"Electronegativity", ELEMENT_ELECTRONEGATIVITY, "(Pauling scale)", true},
    {"Electron Config.", ELEMENT_CONFIGURATION, "", false},
    {"Acidity/Basicity", ELEMENT_ACIDITY, "", false},
    {"Crystal Struct.", ELEMENT_CRYSTAL, "", false},
    {"Heat of Vaporization", ELEMENT_VAPORIZATION, "kJ/mole", true},
    {"Heat of Fusion", ELEMENT_FUSION, "kJ/mole", true},
    {"Specific Heat Cap.", ELEMENT_SPECIFIC_HEAT, "J/([g][K])", true},
    {"Thermal Conductivity", ELEMENT_CONDUCTIVITY, "W/([m][K])", true},
    {"Atomic Radius", ELEMENT_RADIUS, ANGSTROM, true},
    {"Electron Affinity", ELEMENT_AFFINITY, "eV", true},
};

constexpr const char* crystals[] = {"Cubic, face centered", "Cubic, body centered", "Cubic, simple", "Hexagonal",
                                    "Rhombohedral",         "Tetragonal",           "Orthohombic",   "Monoclinic"};

// The line of an element, without its end; empty if there is none.
std::string_view element_line(int index) {
  std::string_view text = text_resource("elements");
  for (int i = 0; !text.empty(); ++i) {
    const std::size_t end = text.find("\r\n");
    const std::string_view line = text.substr(0, end);
    if (line.size() >= LINE_LIMIT) {
      platform().show_message("Periodic line is too long", "load_periodical");
      return {};
    }
    if (i == index) return line;
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 2);
  }
  return {};
}

void set_field(char (&field)[ELEMENT_FIELD_SIZE], std::string_view text) {
  const std::size_t length = std::min(text.size(), sizeof field - 1);
  std::memcpy(field, text.data(), length);
  field[length] = 0;
  std::replace(field, field + length, '^', ',');
  if (std::strcmp(field, "--") == 0) std::memcpy(field, "----", 5);
}

// A field ends at a comma; the next begins two characters on.
void split(std::string_view line) {
  for (auto& field : element.fields) {
    const std::size_t end = std::min(line.find(','), line.size());
    set_field(field, line.substr(0, end));
    line.remove_prefix(std::min(end + 2, line.size()));
  }
}

void append(char (&field)[ELEMENT_FIELD_SIZE], const char* text) {
  std::strncat(field, text, sizeof field - std::strlen(field) - 1);
}

// Only gases tell the unit themselves.
void complete_density(char (&density)[ELEMENT_FIELD_SIZE]) {
  if (std::strchr(density, 'g')) return;
  append(density, " g/cm");
  append(density, CUBE);
}

void name_crystal(char (&crystal)[ELEMENT_FIELD_SIZE]) {
  const int code = crystal[0] - '1';
  if (code < 0 || code >= static_cast<int>(std::size(crystals))) return;
  const char* const name = crystals[code];
  std::memcpy(crystal, name, std::strlen(name) + 1);
}

// What stands in the data, without the unit of the row.
std::string bare_value(int index, const TElementRow& row) {
  return row.field == ATOMIC_NUMBER ? std::to_string(index + 1) : std::string(element.fields[row.field]);
}

}  // namespace

bool load_periodical(int index) {
  const std::string_view line = index >= 0 ? element_line(index) : std::string_view();
  if (line.empty()) return false;
  split(line);
  complete_density(element.fields[ELEMENT_DENSITY]);
  name_crystal(element.fields[ELEMENT_CRYSTAL]);
  return true;
}

std::string element_text_for(int index, int row, TElementText kind) {
  if (row < 0 || row >= ELEMENT_ROW_COUNT) return "";
  const TElementRow& shown = rows[row];
  if (kind == ELEMENT_HEADING) return shown.heading;
  if (!load_periodical(index)) return "";
  std::string value = bare_value(index, shown);
  if (shown.unit[0]) value += std::string(" ") + shown.unit;
  return kind == ELEMENT_VALUE ? value : std::string(shown.heading) + ": " + value;
}

std::string element_constant(int index, int row) {
  if (row < 0 || row >= ELEMENT_ROW_COUNT || !rows[row].number || !load_periodical(index)) return "";
  const std::string value = bare_value(index, rows[row]);
  return value.compare(0, 2, "--") == 0 || value.compare(0, 1, "(") == 0 ? "" : value;
}

}  // namespace zephyl
