// Commands that fill the entry line without keys, and the one that opens a file.

#include <cstdint>
#include <vector>

#include "engine/calculator.h"
#include "engine/expression.h"
#include "engine/text_entry.h"
#include "platform/script/answers.h"
#include "platform/script/arguments.h"
#include "platform/script/commands.h"
#include "platform/script/script.h"
#include "programs/open_file.h"

namespace zephyl {

namespace {

constexpr int REASON_SIZE = 200;

bool obey_enter(TScript& script, const std::string& text) {
  char reason[REASON_SIZE] = "";
  if (!enter_text(text.c_str(), reason, sizeof reason)) script.refuse(reason);
  return true;
}

bool obey_insert(TScript& script, const std::string& text) {
  char reason[REASON_SIZE] = "";
  if (!insert_text(text.c_str(), reason, sizeof reason)) script.refuse(reason);
  return true;
}

bool obey_tokens(TScript&, const std::string& text) {
  std::vector<std::int64_t> numbers;
  if (!read_integers(text, numbers) || numbers.empty()) return false;
  for (const std::int64_t number : numbers)
    if (number < 0 || number > UINT16_MAX) return false;
  for (const std::int64_t number : numbers) insert_token(false, static_cast<TToken>(number));
  return true;
}

bool obey_eval(TScript& script, const std::string& text) {
  char reason[REASON_SIZE] = "";
  if (!enter_text(text.c_str(), reason, sizeof reason)) {
    script.refuse(reason);
    return true;
  }
  evaluate_expression(false);
  if (!script.broken_off()) script.answer(result_line_text());
  return true;
}

bool obey_open(TScript&, const std::string& text) {
  if (text.empty()) return false;
  open_file(text);
  return true;
}

constexpr TCommand COMMANDS[] = {
    {"enter", "enter TEXT", obey_enter, NOT_IN_DIALOG},
    {"insert", "insert TEXT", obey_insert, NOT_IN_DIALOG},
    {"tokens", "tokens N N ..., each from 0 to 65535", obey_tokens, NOT_IN_DIALOG},
    {"eval", "eval TEXT", obey_eval, NOT_IN_DIALOG},
    {"open", "open PATH", obey_open, NOT_IN_DIALOG},
};

}  // namespace

TCommandGroup entry_commands() { return {COMMANDS, static_cast<int>(std::size(COMMANDS))}; }

}  // namespace zephyl
