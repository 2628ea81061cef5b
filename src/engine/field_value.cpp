#include "engine/field_value.h"

#include <algorithm>

#include "engine/backup.h"
#include "engine/compiler.h"
#include "engine/errors.h"
#include "engine/evaluator.h"
#include "engine/format.h"
#include "engine/state.h"
#include "engine/text_form.h"
#include "platform/dialog.h"
#include "platform/platform.h"

namespace zephyl {

namespace {

constexpr int FIELD_DECIMALS = 10;

void run(const TExpression& expression) {
  static TCompiled compiled;
  clear_error();
  if (expression.count == 0) return report_error(ERR_SYNTAX);
  if (!compile_expression(expression, compiled)) return;
  back_up_for(compiled);
  run_sample(compiled);
  const TRegister& result = registers[0];
  if (result.type != TYPE_NUMBER || !is_real(result.value)) report_error(ERR_DATA_TYPE);
}

}  // namespace

bool field_value(const std::string& text, double& value, std::string& error) {
  TExpression expression;
  char reason[200] = "";
  if (!text_to_tokens(text.c_str(), expression, reason, sizeof reason)) {
    error = reason;
    return false;
  }
  back_up();
  run(expression);
  const bool good = !errors.error_flag;
  if (good) value = registers[0].value.re;
  error = good ? "" : errors.error_text;
  bring_back();
  return good;
}

bool read_field(const TControl& edit, double& value) {
  if (edit.text == field_text(value)) return true;
  std::string error;
  if (field_value(edit.text, value, error)) return true;
  platform().show_message(error.c_str(), "Error");
  return false;
}

std::string field_text(double value) {
  if (value == undefined_value) return "NAN";
  char text[RESULT_TEXT_SIZE];
  format_real(text, value, FORMAT_FLOAT, FIELD_DECIMALS, false);
  std::replace(text, text + RESULT_TEXT_SIZE, ',', '.');
  return text;
}

}  // namespace zephyl
