// The conversion table: units, grouped by the property they measure. Built at start from
// resources/texts/units.txt; the user's constants file may add to it.
#pragma once

#include "engine/hooks.h"

namespace zephyl {

constexpr int PROPERTY_LIMIT = 18;
constexpr int UNIT_LIMIT = 198;

struct Property {
  char name[40] = "";
};

struct Unit {
  char short_name[25] = "";  // in tokens and dialogs
  char long_name[40] = "";   // in dialogs
  double factor = 0.0;       // how much of the property's base unit it is
  double offset = 0.0;       // of its zero: subtracted before, added after
  int property = -1;
  int code = -1;  // never changes: tokens hold it
};

// In the order of the text: properties and, in each, units by short name.
struct TUnitTable {
  Property properties[PROPERTY_LIMIT];
  int property_count = 0;
  Unit units[UNIT_LIMIT];
  int unit_count = 0;
};
extern TUnitTable unit_table;

// The index of the unit with a code; -1 if there is none.
int unit_index_of_code(int code);
// The position of `to_code` among the codes of the property of `from_code`, in ascending order; 0 if it isn't
// there.
int unit_position(int from_code, int to_code);
// A token has room for codes up to 511 and positions up to 63. The built-in units all fit.
bool fits_conversion_token(int from_code, int position);
// The other way: the code at a position; 0 behind the last one, -1 for an unknown `from_code`.
int unit_code_at(int from_code, int position);

// Lets expressions convert: fills in the hooks.
void register_units();

}  // namespace zephyl
