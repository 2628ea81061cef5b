// The schedule of a loan: what each payment brings.

#include <cmath>

#include "engine/errors.h"
#include "engine/format.h"
#include "engine/state.h"
#include "platform/dialog.h"
#include "platform/platform.h"
#include "tools/dialogs/money_dialogs.h"
#include "tools/tvm_solver.h"

namespace zephyl {

namespace {

constexpr int SCHEDULE_DIALOG = 209;

std::string cell(double value) {
  char text[RESULT_TEXT_SIZE];
  format_real(text, value, settings.numberFormat, settings.decimalDigits, false);
  return text;
}

// The cells of payment k; the words of the error where it can't be computed.
std::string payment_row(int k) {
  clear_error();
  const TPayment payment = amortize(tvm_state, k);
  const bool finite = std::isfinite(payment.interest) && std::isfinite(payment.principal) && std::isfinite(payment.balance);
  if (!finite && !errors.error_flag)
    report_error(tvm_state.values[TVM_CY] == 0.0 ? ERR_ZERO_DIVIDE : ERR_OVERFLOW);
  std::string cells[3] = {cell(payment.principal), cell(payment.interest), cell(payment.balance)};
  if (errors.error_flag)
    for (std::string& text : cells) text = errors.error_text;
  clear_error();
  return std::to_string(k) + "\t" + cells[0] + "\t" + cells[1] + "\t" + cells[2];
}

}  // namespace

void show_amortization_schedule() {
  std::vector<std::string> rows;
  for (int k = 1; k <= tvm_state.values[TVM_N]; ++k) rows.push_back(payment_row(k));
  TDialog dialog(SCHEDULE_DIALOG, "Amortization Schedule");
  TControl table = table_control("Payments", {{"#", 30}, {"Principal", 56}, {"Interest", 56}, {"Balance", 90}},
                                 std::move(rows));
  table.lines = 14;
  dialog.add(std::move(table));
  dialog.add(button_control("Back to TVM Solver", BUTTON_DEFAULT));
  platform().run_dialog(dialog);
}

}  // namespace zephyl
