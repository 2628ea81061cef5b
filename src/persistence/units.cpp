#include "persistence/units.h"

#include <algorithm>
#include <cstring>

namespace zephyl {

TUnitTable unit_table;

namespace {

// The codes of a unit's property, ascending.
struct TCodes {
  int codes[UNIT_LIMIT];
  int count = 0;
};

TCodes codes_beside(int code) {
  TCodes found;
  const int index = unit_index_of_code(code);
  if (index < 0) return found;
  for (int i = 0; i < unit_table.unit_count; ++i)
    if (unit_table.units[i].property == unit_table.units[index].property)
      found.codes[found.count++] = unit_table.units[i].code;
  std::sort(found.codes, found.codes + found.count);
  return found;
}

// What the engine sees of a unit; one for each row, so that two can be held at once.
const TUnit* find_unit(int code) {
  static TUnit seen[UNIT_LIMIT];
  const int index = unit_index_of_code(code);
  if (index < 0) return nullptr;
  const Unit& unit = unit_table.units[index];
  seen[index] = {unit.short_name, unit.factor, unit.offset};
  return &seen[index];
}

bool has_name(const Unit& unit, const char* name, std::size_t length) {
  return std::strlen(unit.short_name) == length && std::memcmp(unit.short_name, name, length) == 0;
}

int index_in_property(int property, const char* name, std::size_t length) {
  for (int i = 0; i < unit_table.unit_count; ++i)
    if (unit_table.units[i].property == property && has_name(unit_table.units[i], name, length)) return i;
  return -1;
}

// From the last property to the first: C and F are units of charge too, but (C>F) asks for a temperature.
bool find_units_by_name(const char* from, std::size_t from_length, const char* to, std::size_t to_length,
                        int& from_code, int& to_position) {
  for (int property = unit_table.property_count - 1; property >= 0; --property) {
    const int first = index_in_property(property, from, from_length);
    const int second = index_in_property(property, to, to_length);
    if (first < 0 || second < 0) continue;
    from_code = unit_table.units[first].code;
    to_position = unit_position(from_code, unit_table.units[second].code);
    return fits_conversion_token(from_code, to_position);
  }
  return false;
}

}  // namespace

int unit_index_of_code(int code) {
  for (int i = 0; i < unit_table.unit_count; ++i)
    if (unit_table.units[i].code == code) return i;
  return -1;
}

int unit_position(int from_code, int to_code) {
  const TCodes beside = codes_beside(from_code);
  const int* const end = beside.codes + beside.count;
  const int* const found = std::find(beside.codes, end, to_code);
  return found == end ? 0 : static_cast<int>(found - beside.codes);
}

bool fits_conversion_token(int from_code, int position) {
  return from_code >= 0 && from_code < 512 && position >= 0 && position < 64;
}

int unit_code_at(int from_code, int position) {
  const TCodes beside = codes_beside(from_code);
  if (beside.count == 0) return -1;
  return position >= 0 && position < beside.count ? beside.codes[position] : 0;
}

void register_units() {
  hooks.unit_by_code = find_unit;
  hooks.unit_at_position = unit_code_at;
  hooks.find_units = find_units_by_name;
}

}  // namespace zephyl
