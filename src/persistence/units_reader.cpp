#include "persistence/units_reader.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "persistence/bounded_text.h"
#include "persistence/constants.h"
#include "persistence/text_order.h"
#include "persistence/units.h"
#include "platform/platform.h"

namespace zephyl {

namespace {

constexpr std::size_t SHORTEST_LINE = 6, LONGEST_LINE = 119;
constexpr std::size_t KIND_LENGTH = 6;  // "Unit: "
constexpr int CODE_LIMIT = 205;
constexpr int NO_UNIT = -1;

// The fields of a line, each up to a comma; the comma and the blank behind it are passed together.
class TFields {
 public:
  explicit TFields(std::string_view text) : rest_(text) {}

  std::string next() {
    const std::size_t comma = rest_.find(',');
    const std::string field(rest_.substr(0, comma));
    rest_ = comma == std::string_view::npos ? "" : rest_.substr(std::min(comma + 2, rest_.size()));
    return field;
  }
  std::string last() const { return std::string(rest_); }

 private:
  std::string_view rest_;
};

void report(const char* form, const char* name, const char* title) {
  char text[100];
  std::snprintf(text, sizeof text, form, name);
  platform().show_message(text, title);
}

bool has_room(int count, int limit, const char* message) {
  if (count < limit) return true;
  platform().show_message(message, "Array size limit");
  return false;
}

bool read_property(TFields fields) {
  int& count = unit_table.property_count;
  if (!has_room(count, PROPERTY_LIMIT, "Property array is not large enouph")) return false;
  Property& property = unit_table.properties[count];
  bounded_copy(property.name, sizeof property.name, fields.last().c_str());
  if (count > 0 && compare_ignoring_case(property.name, (&property)[-1].name) <= 0)
    report("A property is out of alphabetic order: %s", property.name, "Order");
  ++count;
  return true;
}

// With the unit before it, if that is of the same property.
void check_unit_order(const Unit& unit) {
  if (&unit == unit_table.units || (&unit)[-1].property != unit.property) return;
  if (compare_ignoring_case(unit.short_name, (&unit)[-1].short_name) <= 0)
    report("A unit is out of alphabetic order: %s", unit.short_name, "Order");
}

bool read_unit(TFields fields) {
  int& count = unit_table.unit_count;
  if (!has_room(count, UNIT_LIMIT, "Unit array is not large enouph")) return false;
  Unit& unit = unit_table.units[count];
  unit.property = unit_table.property_count - 1;
  unit.code = std::atoi(fields.next().c_str());
  bounded_copy(unit.short_name, sizeof unit.short_name, fields.next().c_str());
  bounded_copy(unit.long_name, sizeof unit.long_name, fields.next().c_str());
  unit.factor = std::strtod(fields.next().c_str(), nullptr);
  unit.offset = std::strtod(fields.last().c_str(), nullptr);
  check_unit_order(unit);
  ++count;
  return true;
}

bool read_constant(TFields fields) {
  int& count = constant_table.count;
  if (!has_room(count, CONSTANT_LIMIT, "Constant array is not large enouph")) return false;
  Constant& row = constant_table.rows[count++];
  bounded_copy(row.name, sizeof row.name, fields.next().c_str());
  bounded_copy(row.unit, sizeof row.unit, fields.next().c_str());
  bounded_copy(row.value, sizeof row.value, fields.last().c_str());
  return true;
}

struct TLineKind {
  std::string_view prefix;
  bool (*read)(TFields fields);
};
constexpr TLineKind line_kinds[] = {
    {"Prop: ", read_property}, {"Unit: ", read_unit}, {"Cons: ", read_constant}};

// False when a table is full.
bool read_units_line(std::string_view line, bool& is_constant) {
  for (const TLineKind& kind : line_kinds) {
    if (line.substr(0, KIND_LENGTH) != kind.prefix) continue;
    is_constant = kind.read == read_constant;
    return kind.read(TFields(line.substr(KIND_LENGTH)));
  }
  return true;
}

void check_codes() {
  int owner[CODE_LIMIT];
  std::fill(owner, owner + CODE_LIMIT, NO_UNIT);
  for (int i = 0; i < unit_table.unit_count; ++i) {
    const int code = unit_table.units[i].code;
    if (code < 0 || code >= CODE_LIMIT) continue;  // shows as a gap
    if (owner[code] != NO_UNIT) platform().show_message("Unit index code already used", "Conversion Units");
    owner[code] = i;
  }
  for (int code = 0; code < unit_table.unit_count; ++code)
    if (owner[code] == NO_UNIT) platform().show_message("Unit index gap exists", "Conversion Units");
}

}  // namespace

std::string read_units_text(TLineReader& reader) {
  std::string others;
  for (;;) {
    const std::string& line = reader.read_line();
    if (line.size() < SHORTEST_LINE || line.size() > LONGEST_LINE) return others;
    bool is_constant = false;
    if (!read_units_line(line, is_constant)) return others;
    if (!is_constant) append_line(others, line);
  }
}

void read_built_in_units(std::string_view text) {
  unit_table = {};
  constant_table = {};
  TLineReader reader(text.data(), text.size());
  read_units_text(reader);
  check_codes();
}

}  // namespace zephyl
