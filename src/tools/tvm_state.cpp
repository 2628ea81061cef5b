#include "tools/tvm_state.h"

#include "engine/backup.h"
#include "engine/system_variables.h"

namespace zephyl {

TvmState tvm_state;

double tvm_value(int index) {
  if (index == TVM_PMT_AT) return tvm_state.begin ? 1.0 : 0.0;
  return tvm_state.values[index];
}

void set_tvm_value(int index, double value) {
  if (value == undefined_value) return;
  if (index == TVM_PMT_AT)
    tvm_state.begin = value != 0.0;
  else
    tvm_state.values[index] = value;
}

void reset_tvm_state() { tvm_state = {}; }

namespace {

static_assert(VAR_TVM_PMT_AT - VAR_TVM_N == TVM_PMT_AT);

TValue read_value(int number) { return {tvm_value(number - VAR_TVM_N), 0.0}; }
void write_value(int number, double value) { set_tvm_value(number - VAR_TVM_N, value); }

TValue read_payment_at(int) { return {tvm_value(TVM_PMT_AT) + 1.0, 0.0}; }

void write_payment_at(int, double value) {
  int choice;
  if (value != undefined_value && take_choice(value, 1, 2, choice)) set_tvm_value(TVM_PMT_AT, choice - 1);
}

}  // namespace

void register_tvm_variables() {
  register_backup_of<&tvm_state>();
  for (int number = VAR_TVM_N; number < VAR_TVM_PMT_AT; ++number) {
    system_variables[number].read = read_value;
    system_variables[number].write = write_value;
  }
  system_variables[VAR_TVM_PMT_AT].read = read_payment_at;
  system_variables[VAR_TVM_PMT_AT].write = write_payment_at;
}

}  // namespace zephyl
