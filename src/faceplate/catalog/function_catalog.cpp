#include "faceplate/catalog/function_catalog.h"

#include "engine/expression.h"
#include "engine/state.h"
#include "engine/tokens.h"
#include "faceplate/catalog/catalog_text.h"
#include "faceplate/dialogs/running.h"
#include "programs/dialogs/program_description.h"
#include "programs/function_header.h"
#include "programs/program_files.h"

namespace zephyl {

namespace {

constexpr int FUNCTION_DIALOG = 196;
constexpr int DRAWING_GROUP = 9;
constexpr int FINANCIAL_GROUP = 10;
constexpr int LIST_MATH_GROUP = 5;
constexpr int MATRIX_MATH_GROUP = 7;
constexpr int FIRST_TVM_CALL = 1250;
constexpr int LAST_TVM_CALL = 1254;
constexpr const char* NO_CUSTOM_FUNCTIONS = "(Found no Custom Functions)";

enum TFunctionControl { GROUPS, FUNCTIONS, DESCRIPTION };

int last_token = NO_FUNCTION_TOKEN;
std::string last_name;  // of the custom function inserted last

bool is_call(int token) { return token == TOKEN_FUNC1 || token == TOKEN_FUNC2; }

// Entries below a heading are set in.
bool has_headings(int group) { return group == DRAWING_GROUP || group == FINANCIAL_GROUP; }

std::string listed_text(const TCatalogRow& row, bool below_heading) {
  return below_heading && row.token != HEADING_TOKEN ? "   " + row.text : row.text;
}

std::string bare_text(const std::string& listed) { return listed.substr(listed.find_first_not_of(' ')); }

std::vector<std::string> custom_rows() {
  std::vector<std::string> rows;
  for (const std::string& name : function_names()) {
    TFunctionHeader header;
    read_function_header(name.c_str(), header);
    rows.push_back(name + "(" + arguments_text(header) + ")");
  }
  if (rows.empty()) rows.emplace_back(NO_CUSTOM_FUNCTIONS);
  return rows;
}

// The name in front of the last "(".
std::string name_in(const std::string& row) { return row.substr(0, row.rfind('(')); }

std::string custom_help(const std::string& row) {
  if (row == NO_CUSTOM_FUNCTIONS)
    return "Note: Your custom function will appear here after creating it by means of a program.";
  TFunctionHeader header;
  std::string description;
  read_function_header(name_in(row).c_str(), header, &description);
  return shown_description(description);
}

std::string help_of(int group, const std::string& listed) {
  if (group == CUSTOM_FUNCTION_GROUP) return custom_help(listed);
  const TCatalogRow* const row = catalog_row(catalog_functions(), bare_text(listed));
  return row ? row->help : "";
}

std::string chosen_text(const TDialog& dialog) {
  const int row = dialog[FUNCTIONS].selected;
  return row < 0 ? "" : dialog[FUNCTIONS].rows[static_cast<std::size_t>(row)];
}

void show_help_of_row(TDialog& dialog) {
  dialog[DESCRIPTION].text = help_of(dialog[GROUPS].selected, chosen_text(dialog));
}

// Selects the row with a text, else the first.
void fill(TDialog& dialog, const std::string& text) {
  TControl& list = dialog[FUNCTIONS];
  list.rows = function_rows(dialog[GROUPS].selected);
  list.selected = 0;
  for (std::size_t i = 0; i < list.rows.size(); ++i)
    if (bare_text(list.rows[i]) == text) list.selected = static_cast<int>(i);
  show_help_of_row(dialog);
}

struct TPlace {
  int group;
  std::string text;
};

// The screens of lists and matrices open on their functions, until another was taken.
TPlace opening_place() {
  if (is_call(last_token)) {
    for (const std::string& row : custom_rows())
      if (name_in(row) == last_name) return {CUSTOM_FUNCTION_GROUP, row};
    return {CUSTOM_FUNCTION_GROUP, ""};
  }
  const TCatalogRow* const row =
      last_token == NO_FUNCTION_TOKEN ? nullptr : catalog_row(catalog_functions(), last_token);
  const int group = row ? row->group : 0;
  if (state.calcMode == LIST_MODE && group != LIST_MATH_GROUP && group != LIST_MATH_GROUP + 1)
    return {LIST_MATH_GROUP, ""};
  if (state.calcMode == MATRIX_MODE && group != MATRIX_MATH_GROUP && group != MATRIX_MATH_GROUP + 1)
    return {MATRIX_MATH_GROUP, ""};
  return {group, row ? row->text : ""};
}

std::vector<std::string> group_names() {
  std::vector<std::string> names = catalog_functions().groups;
  names.emplace_back("Custom Function");
  return names;
}

// Puts a call of a custom function into the expression.
void insert_custom_function(const std::string& row) {
  if (row == NO_CUSTOM_FUNCTIONS) return;
  last_name = name_in(row);
  last_token = function_token(last_name.c_str());
  insert_name_tokens(last_name.c_str(), static_cast<TToken>(last_token));
}

int take(const std::string& listed) {
  const TCatalogRow* const row = catalog_row(catalog_functions(), bare_text(listed));
  if (!row || row->token == HEADING_TOKEN) return NO_FUNCTION_TOKEN;
  last_token = row->token;
  if (last_token < FIRST_TVM_CALL || last_token > LAST_TVM_CALL) return last_token;
  insert_tvm_call(static_cast<TToken>(last_token));
  return NO_FUNCTION_TOKEN;
}

}  // namespace

std::vector<std::string> function_rows(int group) {
  if (group == CUSTOM_FUNCTION_GROUP) return custom_rows();
  std::vector<const TCatalogRow*> rows = catalog_group(catalog_functions(), group);
  if (!has_headings(group)) sort_rows(rows);
  std::vector<std::string> texts;
  bool below_heading = false;
  for (const TCatalogRow* row : rows) {
    below_heading = below_heading || row->token == HEADING_TOKEN;
    texts.push_back(listed_text(*row, below_heading));
  }
  return texts;
}

int select_function() {
  const TPlace place = opening_place();
  TDialog dialog(FUNCTION_DIALOG, "Select Function");
  dialog.add(combo_control("Function Type:", group_names(), place.group));
  dialog.add(list_control("Function:", {}));
  dialog.add(text_control("Function Description:", "", 8));
  add_ok_cancel(dialog);
  dialog.focus = FUNCTIONS;
  fill(dialog, place.text);
  dialog.procedure = [](TDialog& open, const TDialogEvent& event) {
    if (event.kind == CONTROL_CHANGED && event.control == GROUPS) fill(open, "");
    if (event.kind == CONTROL_CHANGED && event.control == FUNCTIONS) show_help_of_row(open);
  };
  if (!confirmed(dialog) || dialog[FUNCTIONS].selected < 0) return NO_FUNCTION_TOKEN;
  const std::string text = chosen_text(dialog);
  if (dialog[GROUPS].selected != CUSTOM_FUNCTION_GROUP) return take(text);
  insert_custom_function(text);
  return NO_FUNCTION_TOKEN;
}

void reset_function_catalog() {
  last_token = NO_FUNCTION_TOKEN;
  last_name.clear();
}

}  // namespace zephyl
