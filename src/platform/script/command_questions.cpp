// Commands that ask, and those that say what boxes get.

#include <cstdint>

#include "engine/errors.h"
#include "engine/expression.h"
#include "engine/hooks.h"
#include "engine/memory.h"
#include "engine/records.h"
#include "engine/state.h"
#include "engine/system_variables.h"
#include "engine/tokens.h"
#include "platform/script/answers.h"
#include "platform/script/arguments.h"
#include "platform/script/commands.h"
#include "platform/script/script.h"
#include "programs/program.h"
#include "programs/statement_text.h"

namespace zephyl {

namespace {

constexpr int LISTING_SIZE = 4000;
constexpr int STATISTICS_COUNT = 21;

// A question may make the calculator report an error of its own; what stood before stands again afterwards.
class TErrorsKept {
 public:
  TErrorsKept() : errors_(errors), result_shown_(state.result_shown) { clear_error(); }
  ~TErrorsKept() {
    errors = errors_;
    state.result_shown = result_shown_;
  }
  TErrorsKept(const TErrorsKept&) = delete;
  TErrorsKept& operator=(const TErrorsKept&) = delete;

 private:
  TErrorState errors_;
  bool result_shown_;
};

bool obey_result(TScript& script, const std::string&) {
  script.answer(result_line_text());
  return true;
}

bool obey_entry(TScript& script, const std::string&) {
  char listing[LISTING_SIZE] = "";
  expression_text(entry_line.expression, listing, sizeof listing);
  script.answer(listing);
  return true;
}

bool obey_codes(TScript& script, const std::string&) {
  std::string codes;
  for (int i = 0; i < entry_line.expression.count; ++i)
    codes.append(i ? " " : "").append(std::to_string(entry_line.expression.tokens[i]));
  script.answer(codes);
  return true;
}

bool obey_cursor(TScript& script, const std::string&) {
  script.answer(std::to_string(entry_line.cursor) + (entry_line.cursor_shown ? " shown" : " hidden"));
  return true;
}

bool obey_error(TScript& script, const std::string&) {
  script.answer(errors.error_flag ? std::to_string(errors.error_code) + " " + errors.error_text : "none");
  return true;
}

bool obey_ans(TScript& script, const std::string&) {
  script.answer(exact_text(answers.ans));
  return true;
}

bool obey_value(TScript& script, const std::string& text) {
  std::int64_t slot = 0;
  if (!read_integer(text, 0, MEMORY_COUNT - 1, slot)) return false;
  script.answer(exact_text(memory_array[slot]));
  return true;
}

bool obey_list(TScript& script, const std::string& text) {
  std::int64_t number = 0;
  if (!read_integer(text, 0, STORE_COUNT - 1, number)) return false;
  script.answer(exact_text(stores.lists[number]));
  return true;
}

bool obey_matrix(TScript& script, const std::string& text) {
  std::int64_t number = 0;
  if (!read_integer(text, 0, STORE_COUNT - 1, number)) return false;
  script.answer(exact_text(stores.matrices[number]));
  return true;
}

bool obey_string(TScript& script, const std::string& text) {
  std::int64_t number = 0;
  if (!read_integer(text, 0, STORE_COUNT - 1, number)) return false;
  script.answer(quoted(stores.strings[number].text));
  return true;
}

bool obey_variable(TScript& script, const std::string& text) {
  const int number = system_variable_number(text.c_str());
  if (number < 0) {
    script.refuse("no system variable " + text);
    return true;
  }
  const TErrorsKept kept;
  const TValue value = read_system_variable(number);
  if (errors.error_flag)
    script.refuse(errors.error_text);
  else
    script.answer(is_real(value) ? exact_text(value.re) : exact_text(value));
  return true;
}

bool obey_stat(TScript& script, const std::string& text) {
  std::int64_t number = 0;
  if (!read_integer(text, 0, STATISTICS_COUNT - 1, number)) return false;
  const TErrorsKept kept;
  double value = 0.0;
  if (hooks.statistics_value)
    value = hooks.statistics_value(static_cast<int>(number));
  else
    report_error(ERR_UNEXPECTED);
  script.answer(errors.error_flag ? "error " + std::to_string(errors.error_code) : exact_text(value));
  return true;
}

bool obey_mode(TScript& script, const std::string&) {
  constexpr const char* names[] = {"BASE_MODE",     "COMP_MODE", "STATS_MODE",  "PROGRAM_EDIT_MODE",
                                   "PERIODIC_MODE", "PLOT_MODE", "MATRIX_MODE", "LIST_MODE"};
  const bool known = state.calcMode >= BASE_MODE && state.calcMode <= LIST_MODE;
  script.answer(known ? names[state.calcMode] : std::to_string(state.calcMode));
  return true;
}

bool obey_title(TScript& script, const std::string&) {
  script.answer(script.platform.title);
  return true;
}

bool obey_shifts(TScript& script, const std::string&) {
  std::string shifts;
  if (state.blue_shift) shifts += " blue";
  if (state.orange_shift) shifts += " orange";
  if (state.hyp_shift) shifts += " hyp";
  script.answer(shifts.empty() ? "none" : shifts.substr(1));
  return true;
}

bool obey_program(TScript& script, const std::string&) {
  for (int i = 0; i < program.statement_count; ++i) script.answer(statement_text(i, NAMES_IN_WORDS));
  script.answer(".");
  return true;
}

bool obey_message(TScript& script, const std::string&) {
  std::deque<std::string>& messages = script.platform.messages;
  script.answer(messages.empty() ? "none" : messages.front());
  if (!messages.empty()) messages.pop_front();
  return true;
}

bool obey_answer(TScript& script, const std::string& text) {
  if (text != "yes" && text != "no") return false;
  script.platform.answer = text == "yes";
  return true;
}

bool obey_file(TScript& script, const std::string& text) {
  if (text.empty()) return false;
  script.platform.file = text;
  return true;
}

bool obey_sounds(TScript& script, const std::string&) {
  script.answer(std::to_string(script.platform.sounds));
  return true;
}

constexpr TCommand COMMANDS[] = {
    {"result", "result", obey_result},
    {"entry", "entry", obey_entry},
    {"codes", "codes", obey_codes},
    {"cursor", "cursor", obey_cursor},
    {"error", "error", obey_error},
    {"ans", "ans", obey_ans},
    {"value", "value SLOT, from 0 to 94", obey_value},
    {"list", "list N, from 0 to 10", obey_list},
    {"matrix", "matrix N, from 0 to 10", obey_matrix},
    {"string", "string N, from 0 to 10", obey_string},
    {"variable", "variable NAME", obey_variable},
    {"stat", "stat N, from 0 to 20", obey_stat},
    {"mode", "mode", obey_mode},
    {"title", "title", obey_title},
    {"shifts", "shifts", obey_shifts},
    {"program", "program", obey_program},
    {"message", "message", obey_message},
    {"answer", "answer yes|no", obey_answer},
    {"file", "file PATH", obey_file},
    {"sounds", "sounds", obey_sounds},
};

}  // namespace

TCommandGroup question_commands() { return {COMMANDS, static_cast<int>(std::size(COMMANDS))}; }

}  // namespace zephyl
