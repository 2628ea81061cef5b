#include "engine/backup.h"

#include <algorithm>
#include <iterator>

#include "engine/compiled.h"
#include "engine/errors.h"
#include "engine/expression.h"
#include "engine/memory.h"
#include "engine/operation_table.h"
#include "engine/records.h"
#include "engine/state.h"

namespace zephyl {

namespace {

// What every evaluation changes.
struct TKeptState {
  TValue memories[MEMORY_COUNT];
  TAnswers answers;
  TErrorState errors;
  TExpression function_slots[FUNCTION_SLOT_COUNT];
  TState state;
};

TKeptState kept;
TStores kept_stores;
TSettings kept_settings;
TEntryLine kept_line;
THistory kept_history;
bool has_kept = false;
bool has_kept_all = false;

constexpr int BACKUP_LIMIT = 16;
TBackup backups[BACKUP_LIMIT];
int backup_count = 0;

// Only what is in use: most records are empty most of the time.
void copy_stores(TStores& to, const TStores& from) {
  for (int i = 0; i < STORE_COUNT; ++i) {
    copy_list(to.lists[i], from.lists[i]);
    copy_matrix(to.matrices[i], from.matrices[i]);
    copy_string(to.strings[i], from.strings[i]);
  }
}

bool is_within(TOp_Code op, TOp_Code first, TOp_Code last) { return op >= first && op <= last; }

// True for a step that may change more than memories and answers.
bool reaches_stores(const TStep& step) {
  if (step.op == OP_SAVE_MEMORY) return step.target >= SLOT_MATRIX_A;
  if (step.op == OP_SAVE_VARIABLE || step.op == OP_FUNC1 || step.op == OP_FUNC2) return true;
  if (is_within(step.op, OP_LINE, OP_JULIA) || is_within(step.op, OP_DELAY, OP_INIT_PLOT)) return true;
  return step.op == OP_NONE || operation_array[step.op].family != SCALAR_FAMILY;
}

}  // namespace

void register_backup(const TBackup& backup) {
  const auto same = [&](const TBackup& other) { return other.save == backup.save; };
  if (backup_count < BACKUP_LIMIT && std::none_of(backups, backups + backup_count, same))
    backups[backup_count++] = backup;
}

void back_up() {
  memory_save_all(kept.memories);
  kept.answers = answers;
  kept.errors = errors;
  std::copy(std::begin(function_slots), std::end(function_slots), kept.function_slots);
  kept.state = state;
  has_kept = true;
  has_kept_all = false;
}

void back_up_for(const TCompiled& compiled) {
  if (!has_kept || std::none_of(compiled.steps, compiled.steps + compiled.count, reaches_stores)) return;
  copy_stores(kept_stores, stores);
  kept_settings = settings;
  kept_line = entry_line;
  kept_history = history;
  for (int i = 0; i < backup_count; ++i) backups[i].save();
  has_kept_all = true;
}

namespace {

// What the poll has noted about the pen meanwhile stays.
void bring_back_state() {
  const bool swallow_up = state.swallow_up;
  state = kept.state;
  state.swallow_up = swallow_up;
}

void bring_back_all() {
  copy_stores(stores, kept_stores);
  settings = kept_settings;
  entry_line = kept_line;
  history = kept_history;
  for (int i = 0; i < backup_count; ++i) backups[i].restore();
}

}  // namespace

bool is_evaluated_aside() { return has_kept; }

void bring_back() {
  if (!has_kept) return;
  memory_restore_all(kept.memories);
  answers = kept.answers;
  errors = kept.errors;
  std::copy(std::begin(kept.function_slots), std::end(kept.function_slots), function_slots);
  bring_back_state();
  if (has_kept_all) bring_back_all();
  has_kept = has_kept_all = false;
}

}  // namespace zephyl
