// What an evaluation may change, put away and brought back: for those that evaluate on the side, as plots and
// the fields of dialogs do, and must leave no trace. One at a time.
#pragma once

#include <type_traits>

namespace zephyl {

struct TCompiled;

// Puts away what any evaluation changes: memories, answers, errors, function slots, the state record. To be
// called before the expression is compiled, which stores into function slots.
void back_up();
// Puts away also all that stores and commands reach, the entry line and its history among it, if the expression has any.
void back_up_for(const TCompiled& compiled);
// Brings back what is put away; nothing if nothing is.
void bring_back();
// True in between: something is evaluated on the side, and nothing else may be.
bool is_evaluated_aside();

// --- Owners of state that commands reach, once at start.

struct TBackup {
  void (*save)();
  void (*restore)();
};
void register_backup(const TBackup& backup);

// A plain struct and its one instance.
template <auto* instance>
void register_backup_of() {
  static std::remove_pointer_t<decltype(instance)> copy;
  register_backup({[] { copy = *instance; }, [] { *instance = copy; }});
}

}  // namespace zephyl
