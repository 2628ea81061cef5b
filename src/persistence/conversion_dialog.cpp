#include "persistence/conversion_dialog.h"

#include <algorithm>
#include <string>
#include <vector>

#include "engine/expression.h"
#include "persistence/units.h"
#include "platform/dialog.h"
#include "platform/platform.h"

namespace zephyl {

namespace {

constexpr int CONVERSION_DIALOG = 138;
enum { PROPERTY_COMBO = 0, FROM_COMBO = 1, TO_COMBO = 2 };

struct TConversionRows {
  int property = 0;
  int from = 0;
  int to = 0;
};
TConversionRows last_rows;

std::vector<std::string> property_rows() {
  std::vector<std::string> rows;
  for (int i = 0; i < unit_table.property_count; ++i) rows.emplace_back(unit_table.properties[i].name);
  return rows;
}

// Indices of the units of a property, as its combos list them.
std::vector<int> units_of(int property) {
  std::vector<int> units;
  for (int i = 0; i < unit_table.unit_count; ++i)
    if (unit_table.units[i].property == property) units.push_back(i);
  return units;
}

std::vector<std::string> unit_rows(int property) {
  std::vector<std::string> rows;
  for (const int i : units_of(property))
    rows.push_back(std::string(unit_table.units[i].short_name) + " (" + unit_table.units[i].long_name + ")");
  return rows;
}

// A row that is gone (the user's file has changed) is the first.
int existing_row(int row, const std::vector<std::string>& rows) {
  return row >= 0 && row < static_cast<int>(rows.size()) ? row : rows.empty() ? -1 : 0;
}

void fill_units(TDialog& dialog, int from, int to) {
  for (const int combo : {FROM_COMBO, TO_COMBO}) {
    dialog[combo].rows = unit_rows(dialog[PROPERTY_COMBO].selected);
    dialog[combo].selected = existing_row(combo == FROM_COMBO ? from : to, dialog[combo].rows);
  }
}

void answer_conversion_dialog(TDialog& dialog, const TDialogEvent& event) {
  if (event.kind == CONTROL_CHANGED && event.control == PROPERTY_COMBO) fill_units(dialog, 0, 0);
}

int code_of(const TConversionRows& rows, int row) {
  const std::vector<int> units = units_of(rows.property);
  return row < 0 ? -1 : unit_table.units[units[static_cast<std::size_t>(row)]].code;
}

}  // namespace

bool select_conversion(int& from, int& position) {
  TDialog dialog(CONVERSION_DIALOG, "Select Conversion");
  const std::vector<std::string> properties = property_rows();
  dialog.add(combo_control("Property:", properties, existing_row(last_rows.property, properties)));
  dialog.add(combo_control("From Unit:", {}));
  dialog.add(combo_control("To Unit:", {}));
  add_ok_cancel(dialog);
  fill_units(dialog, last_rows.from, last_rows.to);
  dialog.procedure = answer_conversion_dialog;
  platform().run_dialog(dialog);
  if (dialog.result() == DIALOG_CANCELLED) return false;
  last_rows = {dialog[PROPERTY_COMBO].selected, dialog[FROM_COMBO].selected, dialog[TO_COMBO].selected};
  from = code_of(last_rows, last_rows.from);
  position = unit_position(from, code_of(last_rows, last_rows.to));
  return fits_conversion_token(from, position);
}

void insert_selected_conversion() {
  int from, position;
  if (select_conversion(from, position)) insert_conversion(from, position);
}

void reset_conversion_dialog() { last_rows = {}; }

}  // namespace zephyl
