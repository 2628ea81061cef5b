#include "faceplate/catalog/variable_catalog.h"

#include <algorithm>

#include "engine/expression.h"
#include "engine/tokens.h"
#include "faceplate/catalog/catalog_text.h"
#include "faceplate/dialogs/running.h"

namespace zephyl {

namespace {

constexpr int VARIABLE_DIALOG = 214;
constexpr int STORE_DISTANCE = 100;  // from the token that reads a variable to the one that stores
constexpr int FUNCTION_STORE_DISTANCE = 50;
constexpr int EXPRESSION_TEXT_SIZE = 2000;

enum TVariableControl { GROUPS, VARIABLES, DESCRIPTION, ACTION };

struct TLast {
  int group = 0;
  int row = 0;
  int action = 0;
};
TLast last;

bool is_function(const TCatalogRow& row) { return row.token >= FIRST_FUNCTION_READ; }

// A function variable is followed by its expression.
std::string listed_text(const TCatalogRow& row) {
  if (!is_function(row)) return row.text;
  char text[EXPRESSION_TEXT_SIZE];
  expression_text(function_slots[row.token - FIRST_FUNCTION_READ], text, sizeof text);
  return row.text + " " + text;
}

std::vector<const TCatalogRow*> rows_of(int group) {
  if (group != ALL_VARIABLES_GROUP) return catalog_group(catalog_variables(), group);
  std::vector<const TCatalogRow*> rows;
  for (const TCatalogRow& row : catalog_variables().rows) rows.push_back(&row);
  sort_rows(rows);
  return rows;
}

const TCatalogRow* chosen(const TDialog& dialog) {
  const std::vector<const TCatalogRow*> rows = rows_of(dialog[GROUPS].selected);
  const int row = dialog[VARIABLES].selected;
  return row < 0 ? nullptr : rows[static_cast<std::size_t>(row)];
}

void show_help_of_row(TDialog& dialog) {
  if (const TCatalogRow* row = chosen(dialog)) dialog[DESCRIPTION].text = row->help;
}

void fill(TDialog& dialog, int row) {
  TControl& list = dialog[VARIABLES];
  list.rows = variable_rows(dialog[GROUPS].selected);
  list.selected = std::clamp(row, 0, static_cast<int>(list.rows.size()) - 1);
  show_help_of_row(dialog);
}

std::vector<std::string> group_names() {
  std::vector<std::string> names = catalog_variables().groups;
  names.emplace_back("Catalog of Variables");
  return names;
}

int token_of(const TCatalogRow& row, bool store) {
  if (!store) return row.token;
  return row.token + (is_function(row) ? FUNCTION_STORE_DISTANCE : STORE_DISTANCE);
}

}  // namespace

std::vector<std::string> variable_rows(int group) {
  std::vector<std::string> texts;
  for (const TCatalogRow* row : rows_of(group)) texts.push_back(listed_text(*row));
  return texts;
}

int select_system_variable() {
  TDialog dialog(VARIABLE_DIALOG, "Select Variable");
  dialog.add(combo_control("Variable Type:", group_names(), last.group));
  dialog.add(list_control("Variable:", {}));
  dialog.add(text_control("Variable Description:", "", 5));
  dialog.add(combo_control("Action:", {"Read from variable", "Write to variable"}, last.action));
  add_ok_cancel(dialog);
  dialog.focus = VARIABLES;
  fill(dialog, last.row);
  dialog.procedure = [](TDialog& open, const TDialogEvent& event) {
    if (event.kind == CONTROL_CHANGED && event.control == GROUPS) fill(open, 0);
    if (event.kind == CONTROL_CHANGED && event.control == VARIABLES) show_help_of_row(open);
  };
  if (!confirmed(dialog)) return NO_VARIABLE_TOKEN;
  const TCatalogRow* const row = chosen(dialog);
  if (!row) return NO_VARIABLE_TOKEN;
  last = {dialog[GROUPS].selected, dialog[VARIABLES].selected, dialog[ACTION].selected};
  return token_of(*row, last.action == 1);
}

void reset_variable_catalog() { last = {}; }

}  // namespace zephyl
