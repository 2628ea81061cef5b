// Editing of the entry line: a token goes in, a token goes out, the cursor moves. Entry always inserts; a
// result that stands is left by the first token (a new expression begins) or by the cursor (the old one is
// edited again).

#include <algorithm>

#include "engine/entry_line.h"
#include "engine/errors.h"
#include "engine/expression.h"
#include "engine/hooks.h"
#include "engine/memory.h"
#include "engine/operation_table.h"
#include "engine/state.h"
#include "engine/tokens.h"
#include "platform/platform.h"

namespace zephyl {

void note_size_limit() { platform().show_message("Reached expression size limit", "Limit"); }

bool wants_left_operand(TToken token) {
  const TDecodedToken& meaning = decode_token(token);
  if (meaning.kind == TOKEN_OPERATION) {
    const int arg_kind = operation_array[meaning.op].arg_kind;
    return arg_kind == KIND_INFIX || arg_kind == KIND_POSTFIX;
  }
  return meaning.special == SPECIAL_STORE || meaning.kind == TOKEN_CONVERSION;
}

bool begins_with_answer(TToken token) {
  return state.fresh_flag && !state.nothing_evaluated && wants_left_operand(token);
}

void show_entry() {
  entry_line.cursor_shown = true;
  hooks.draw_expression(true);
  blank_result_line();
}

void blank_result_line() {
  state.result_text[0] = 0;
  state.result_shown = false;
  hooks.draw_result(true);
}

namespace {

TToken answer_token() {
  if (answers.m_ans_valid) return TOKEN_M_ANS;
  return answers.l_ans_valid ? TOKEN_L_ANS : TOKEN_ANS;
}

void put_at_cursor(TToken token) {
  TExpression& line = entry_line.expression;
  TToken* at = line.tokens + entry_line.cursor;
  std::copy_backward(at, line.tokens + line.count, line.tokens + line.count + 1);
  *at = token;
  ++line.count;
  ++entry_line.cursor;
}

void begin_new_expression(TToken first) {
  const bool with_answer = begins_with_answer(first);
  clear_entry_line();
  state.fresh_flag = false;
  if (with_answer) put_at_cursor(answer_token());
}

void hide_result() {
  entry_line.cursor_shown = true;
  if (state.program_running || state.alpha_active) return;
  state.result_text[0] = 0;
  state.result_shown = false;
}

void remove_at(int index) {
  TExpression& line = entry_line.expression;
  std::copy(line.tokens + index + 1, line.tokens + line.count, line.tokens + index);
  --line.count;
}

bool name_token_at(int index) {
  const TExpression& line = entry_line.expression;
  return index >= 0 && index < line.count && is_name_token(line.tokens[index]);
}

// The last token, with the call that it is part of if it is a character of a program's name.
void remove_last() {
  TExpression& line = entry_line.expression;
  while (name_token_at(line.count - 1)) --line.count;
  if (line.count > 0) --line.count;
}

int step_width(bool big) { return big ? std::max(1, entry_line.expression.count / 5) : 1; }

void end_of_result() {
  state.fresh_flag = false;
  clear_error();
  hooks.redraw_part(PART_AC_AND_ARROWS);
  show_entry();
}

}  // namespace

bool insert_token(bool silent, TToken token) {
  clear_error();
  if (state.fresh_flag) begin_new_expression(token);
  if (entry_line.expression.count >= EXPRESSION_LIMIT) {
    note_size_limit();
    return false;
  }
  put_at_cursor(token);
  if (silent)
    hide_result();
  else
    show_entry();
  return true;
}

void delete_token() {
  if (state.fresh_flag) return;
  TExpression& line = entry_line.expression;
  if (entry_line.cursor >= line.count) {
    remove_last();
  } else {
    do remove_at(entry_line.cursor);
    while (name_token_at(entry_line.cursor));
  }
  entry_line.cursor = std::min(entry_line.cursor, line.count);
  entry_line.cursor_shown = true;
  hooks.draw_expression(true);
}

void cursor_left(bool big) {
  if (!state.fresh_flag) {
    entry_line.cursor = std::max(0, entry_line.cursor - step_width(big));
    while (entry_line.cursor > 0 && name_token_at(entry_line.cursor)) --entry_line.cursor;
  }
  end_of_result();
}

void cursor_right(bool big) {
  if (state.fresh_flag) {
    entry_line.cursor = 0;
  } else if (entry_line.cursor < entry_line.expression.count) {
    entry_line.cursor = std::min(entry_line.expression.count, entry_line.cursor + step_width(big));
    while (name_token_at(entry_line.cursor)) ++entry_line.cursor;
  }
  end_of_result();
}

void cursor_to(int position) {
  entry_line.cursor = std::clamp(position, 0, entry_line.expression.count);
  end_of_result();
}

}  // namespace zephyl
