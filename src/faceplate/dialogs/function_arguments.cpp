// Dialog 162, "Custom Function Arguments": what a `func(` statement declares.

#include <iterator>

#include "engine/memory.h"
#include "faceplate/dialogs/running.h"
#include "faceplate/dialogs/statement_operands.h"
#include "faceplate/dialogs/statement_rows.h"
#include "programs/function_header.h"
#include "programs/program.h"

namespace zephyl {

namespace {

constexpr int ARGUMENT_LIMIT = 6;

TFunctionHeader arguments;  // what the dialog was left on

struct TArgumentKind {
  const char* type;
  int first_slot;
  int count;
};
constexpr TArgumentKind kinds[] = {{"Value", SLOT_R0, SCALAR_COUNT},
                                   {"List", SLOT_LIST_A, 10},
                                   {"Matrix", SLOT_MATRIX_A, 10},
                                   {"Function", SLOT_F1, FUNCTION_COUNT},
                                   {"String", SLOT_STR1, 9}};

// The kind of a slot, as a row of `kinds`; 0 for a slot of none.
int kind_of(int slot) {
  for (int kind = 0; kind < static_cast<int>(std::size(kinds)); ++kind)
    if (slot >= kinds[kind].first_slot && slot < kinds[kind].first_slot + kinds[kind].count) return kind;
  return 0;
}

// The controls of argument i are a type and a name, behind the count.
constexpr int ARGUMENT_COUNT_CONTROL = 0;
constexpr int type_control(int argument) { return 1 + 2 * argument; }
constexpr int name_control(int argument) { return 2 + 2 * argument; }

TRows kind_rows(int kind) {
  TRows rows;
  add_variable_names(rows, kinds[kind].first_slot, kinds[kind].count);
  return rows;
}

void add_argument(TDialog& dialog, int argument) {
  const int slot = arguments.slots[argument];
  const int kind = kind_of(slot);
  TRows types;
  for (const TArgumentKind& row : kinds) types.emplace_back(row.type);
  dialog.add(combo_control("Arg " + std::to_string(argument + 1) + ":", std::move(types), kind));
  dialog.add(beside(combo_control("Name " + std::to_string(argument + 1) + ":", kind_rows(kind),
                                  slot - kinds[kind].first_slot)));
}

void enable_arguments(TDialog& dialog) {
  for (int argument = 0; argument < ARGUMENT_LIMIT; ++argument)
    dialog[type_control(argument)].enabled = dialog[name_control(argument)].enabled =
        argument < dialog[ARGUMENT_COUNT_CONTROL].selected;
}

void handle_arguments(TDialog& dialog, const TDialogEvent& event) {
  if (event.kind != CONTROL_CHANGED) return;
  for (int argument = 0; argument < ARGUMENT_LIMIT; ++argument)
    if (event.control == type_control(argument)) {
      dialog[name_control(argument)].rows = kind_rows(dialog[event.control].selected);
      dialog[name_control(argument)].selected = 0;
    }
  enable_arguments(dialog);
}

void read_arguments(const TDialog& dialog) {
  arguments.count = dialog[ARGUMENT_COUNT_CONTROL].selected;
  std::string text;
  for (int argument = 0; argument < ARGUMENT_LIMIT; ++argument) {
    const int slot =
        kinds[dialog[type_control(argument)].selected].first_slot + dialog[name_control(argument)].selected;
    arguments.slots[argument] = slot;
    if (argument < arguments.count) text += static_cast<char>(slot + FUNC_SLOT_OFFSET);
  }
  set_statement_text(text);
}

}  // namespace

bool ask_arguments() {
  TDialog dialog(162, "Custom Function Arguments");
  dialog.add(
      combo_control("Argument Count:", {"0 (no arguments)", "1", "2", "3", "4", "5", "6"}, arguments.count));
  for (int argument = 0; argument < ARGUMENT_LIMIT; ++argument) add_argument(dialog, argument);
  enable_arguments(dialog);
  dialog.procedure = handle_arguments;
  if (!confirmed_with_ok(dialog)) return false;
  read_arguments(dialog);
  return true;
}

void reset_argument_dialog() { arguments = {}; }

}  // namespace zephyl
