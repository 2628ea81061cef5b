#include "engine/text_entry.h"

#include <cstdio>

#include "engine/entry_line.h"
#include "engine/errors.h"
#include "engine/expression.h"
#include "engine/hooks.h"
#include "engine/state.h"
#include "engine/text_form.h"
#include "platform/platform.h"

namespace zephyl {

namespace {

constexpr int REASON_SIZE = 200;

// Why no token would be taken now; null if one would.
const char* refusal() {
  if (errors.error_flag) return "an error stands";
  if (program_works()) return "a program runs";
  return nullptr;
}

bool insert_all(const TExpression& expression, char* error, int error_size) {
  if (insert_tokens(expression.tokens, expression.count)) return true;
  std::snprintf(error, static_cast<std::size_t>(error_size), "%s", "the line is full");
  return false;
}

}  // namespace

bool insert_text(const char* text, char* error, int error_size) {
  if (const char* reason = refusal()) {
    std::snprintf(error, static_cast<std::size_t>(error_size), "%s", reason);
    return false;
  }
  TExpression expression;
  return text_to_tokens(text, expression, error, error_size) && insert_all(expression, error, error_size);
}

bool enter_text(const char* text, char* error, int error_size) {
  TExpression expression;
  if (!text_to_tokens(text, expression, error, error_size)) return false;
  if (errors.error_flag) {
    clear_error();
    hooks.redraw_part(PART_AC_AND_ARROWS);
  }
  clear_entry_line();
  state.fresh_flag = false;
  if (expression.count == 0) show_entry();
  return insert_all(expression, error, error_size);
}

void paste_text(const char* text) {
  if (refusal()) return;
  TExpression expression;
  char error[REASON_SIZE] = "";
  if (!text_to_tokens(text, expression, error, sizeof error)) {
    platform().show_message(error, "Paste");
    return;
  }
  insert_tokens(expression.tokens, expression.count);
}

}  // namespace zephyl
