// The menu statements and the description.

#include "programs/menu.h"

#include <cstdio>

#include "programs/dialogs/menu_item.h"
#include "programs/dialogs/program_description.h"
#include "programs/run_state.h"
#include "programs/statements.h"

namespace zephyl {

TMenu menu;

void clear_menu() { menu = {}; }

int run_menu_item(const ProgramStatement& statement) {
  if (in_custom_function()) return next_statement();
  if (menu.count >= MENU_LIMIT) return fail_at_limit("Reached maximum number of menu items");
  std::snprintf(menu.text[menu.count], MENU_TEXT_SIZE, "%s", statement.text);
  menu.label[menu.count++] = statement.label;
  return next_statement();
}

int run_menu_title(const ProgramStatement& statement) {
  if (!in_custom_function()) std::snprintf(menu.title, sizeof menu.title, "%s", statement.text);
  return next_statement();
}

int run_menu_clear(const ProgramStatement&) {
  if (!in_custom_function()) clear_menu();
  return next_statement();
}

// Cancel goes on. The items stay for the next time.
int run_menu_display(const ProgramStatement&) {
  if (in_custom_function()) return next_statement();
  const int item = select_menu_item(menu);
  return item < 0 || item >= menu.count ? next_statement() : jump_to_label(menu.label[item]);
}

int run_description(const ProgramStatement&) {
  if (!in_custom_function()) show_program_description(program.description);
  return next_statement();
}

}  // namespace zephyl
