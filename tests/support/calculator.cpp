#include "support/calculator.h"

#include "app/start_up.h"
#include "engine/calculator.h"
#include "engine/errors.h"
#include "engine/expression.h"
#include "engine/format.h"
#include "engine/memory.h"
#include "engine/state.h"
#include "engine/text_form.h"
#include "engine/tokens.h"
#include "platform/events.h"

namespace zephyl {

std::uint32_t TTestPlatform::tick_count() { return ticks += ticks_per_look; }

bool TTestPlatform::peek_pen_down(TPoint& at) {
  if (pen_downs.empty()) return false;
  at = pen_downs.front();
  return true;
}

void TTestPlatform::remove_pen_down() {
  if (!pen_downs.empty()) pen_downs.pop_front();
}

bool TTestPlatform::take_paint_request() {
  const bool was_requested = paint_requested;
  paint_requested = false;
  return was_requested;
}

void TTestPlatform::show_message(const char* text, const char* title_word) {
  messages.push_back(std::string(title_word) + " | " + text);
}

bool TTestPlatform::ask_question(const char* text, const char* title_word) {
  questions.push_back(std::string(title_word) + " | " + text);
  return answer;
}

void TTestPlatform::run_dialog(TDialog& dialog) {
  dialogs.push_back(std::to_string(dialog.id()) + " " + dialog.title);
  dialog.tell(DIALOG_OPENED);
  if (!dialog_answers.empty()) {
    const auto answer_it = dialog_answers.front();
    dialog_answers.pop_front();
    answer_it(dialog);
  }
  cancel_dialog(dialog);
}

bool TTestPlatform::choose_file(const TFileQuestion&, std::string& path) {
  path = file_answers.empty() ? "" : file_answers.front();
  if (!file_answers.empty()) file_answers.pop_front();
  return !path.empty();
}

calculator::calculator() {
  set_platform(&platform_);
  register_families();
  on_start();
}

calculator::~calculator() {
  on_stop();
  set_platform(nullptr);
}

void calculator::restart(const std::string& folder) {
  on_stop();
  platform_.folder = folder;
  on_start();
}

std::string calculator::eval(const std::string& text) {
  clear_error();
  clear_entry_line();
  TExpression expression;
  char error[200] = "";
  if (!text_to_tokens(text.c_str(), expression, error, sizeof error)) return error;
  // As a paste does: the tokens go in at the cursor.
  state.fresh_flag = false;
  if (!insert_tokens(expression.tokens, expression.count)) return "does not fit";
  evaluate_expression(false);
  return result_or_error();
}

std::string calculator::result_or_error() const { return errors.error_flag ? errors.error_text : result(); }

std::string calculator::result() const {
  char plain[RESULT_TEXT_SIZE * 3];
  plain_text(state.result_text, plain, sizeof plain);
  return plain;
}

std::string calculator::error_of(const std::string& text) {
  const std::string result = eval(text);
  return errors.error_flag ? result : "";
}

double calculator::value(const std::string& text) {
  const std::string result = eval(text);
  EXPECT_FALSE(errors.error_flag) << text << ": " << result;
  return answers.ans.re;
}

double calculator::imaginary(const std::string& text) {
  value(text);
  return answers.ans.im;
}

std::string calculator::entry() const {
  char text[2000];
  expression_text(entry_line.expression, text, sizeof text);
  return text;
}

std::string calculator::codes() const {
  std::string text;
  for (int i = 0; i < entry_line.expression.count; ++i)
    text += (i ? " " : "") + std::to_string(entry_line.expression.tokens[i]);
  return text;
}

std::string calculator::message() {
  if (platform_.messages.empty()) return "none";
  const std::string oldest = platform_.messages.front();
  platform_.messages.erase(platform_.messages.begin());
  return oldest;
}

}  // namespace zephyl
