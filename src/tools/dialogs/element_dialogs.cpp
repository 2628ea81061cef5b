#include "tools/dialogs/element_dialogs.h"

#include "engine/expression.h"
#include "engine/hooks.h"
#include "engine/state.h"
#include "platform/dialog.h"
#include "platform/platform.h"
#include "tools/elements.h"

namespace zephyl {

namespace {

constexpr int INFORMATION_DIALOG = 177;
constexpr int TABLE_DIALOG = 203;

enum TInformationControl { FACTS, SELECT_CONSTANT };

std::vector<std::string> fact_lines(int index) {
  std::vector<std::string> lines;
  for (int row = 0; row < ELEMENT_ROW_COUNT; ++row) lines.push_back(element_text_for(index, row, ELEMENT_LINE));
  return lines;
}

void enable_select(TDialog& dialog, int index) {
  dialog[SELECT_CONSTANT].enabled = !element_constant(index, dialog[FACTS].selected).empty();
}

void take_constant(const std::string& value) {
  if (hooks.set_mode) hooks.set_mode(COMP_MODE, false);
  insert_constant_string(value.c_str(), true);
}

std::string element_row(int index) {
  std::string cells;
  for (int row = 0; row < ELEMENT_ROW_COUNT; ++row) {
    if (row > 0) cells += '\t';
    cells += element_text_for(index, row, ELEMENT_VALUE);
  }
  return cells;
}

std::vector<TColumn> fact_columns() {
  std::vector<TColumn> columns;
  for (int row = 0; row < ELEMENT_ROW_COUNT; ++row)
    columns.push_back({element_text_for(0, row, ELEMENT_HEADING), row == 0 ? 50 : row == 1 ? 70 : 90});
  return columns;
}

}  // namespace

void show_element_information(int index) {
  if (!load_periodical(index)) return;
  TDialog dialog(INFORMATION_DIALOG, "Element Information");
  TControl facts = list_control("Element", fact_lines(index));
  facts.lines = ELEMENT_ROW_COUNT;
  dialog.add(std::move(facts));
  dialog.add(button_control("Select Constant", BUTTON_DEFAULT));
  dialog.add(beside(button_control("Back to Table", BUTTON_CANCEL)));
  enable_select(dialog, index);
  dialog.procedure = [index](TDialog& shown, const TDialogEvent& event) {
    if (event.kind == CONTROL_CHANGED) enable_select(shown, index);
  };
  platform().run_dialog(dialog);
  if (dialog.result() != DIALOG_CANCELLED) take_constant(element_constant(index, dialog[FACTS].selected));
}

void show_element_table() {
  std::vector<std::string> rows;
  for (int index = 0; index < ELEMENT_COUNT; ++index) rows.push_back(element_row(index));
  TDialog dialog(TABLE_DIALOG, "Element Data Table");
  TControl table = table_control("Elements", fact_columns(), std::move(rows));
  table.lines = 14;
  dialog.add(std::move(table));
  dialog.add(button_control("Back to Periodic Table", BUTTON_DEFAULT));
  platform().run_dialog(dialog);
}

}  // namespace zephyl
