// The compiled form as text, for whoever debugs an expression: what the walk will do, a step a line.

#include <algorithm>
#include <cstdarg>
#include <cstdio>

#include "engine/compiler.h"
#include "engine/errors.h"
#include "engine/memory.h"
#include "engine/operation_table.h"
#include "engine/tokens.h"

namespace zephyl {

namespace {

struct TText {
  char* at;
  int left;  // bytes, the final 0 among them
};

[[gnu::format(printf, 2, 3)]] void add(TText& text, const char* form, ...) {
  if (text.left <= 1) return;
  std::va_list arguments;
  va_start(arguments, form);
  const int length = std::vsnprintf(text.at, static_cast<std::size_t>(text.left), form, arguments);
  va_end(arguments);
  const int written = std::min(std::max(length, 0), text.left - 1);
  text.at += written;
  text.left -= written;
}

void add_operand(TText& text, const TOperand& operand) {
  switch (operand.kind) {
    case OPERAND_REGISTER:
      return add(text, "r%d", operand.reg);
    case OPERAND_LITERAL:
      return add(text, "%.15g", operand.literal.re);
    case OPERAND_ANS:
      return add(text, "Ans");
    case OPERAND_M_ANS:
      return add(text, "M_Ans");
    case OPERAND_L_ANS:
      return add(text, "L_Ans");
    case OPERAND_STR_ANS:
      return add(text, "str_Ans");
    case OPERAND_RANDOM:
      return add(text, "Rand");
    case OPERAND_MEMORY:
      return add(text, "%s", slot_name(operand.reg, true));
    case OPERAND_STATISTIC:
      return add(text, "stat %d", operand.reg);
    case OPERAND_I:
      return add(text, "i");
    case OPERAND_VARIABLE:
      return add(text, "%s", variable_name(operand.reg));
    case OPERAND_NONE:
      return add(text, "?");
  }
}

// Names of the operations that have no text of their own in the table.
const char* operation_text(TOp_Code op) {
  switch (op) {
    case OP_CONVERSION:
      return " conversion";
    case OP_LIST_FIRST_COMMA:
      return " ,first-of-list ";
    case OP_LIST_COMMA:
      return " , ";
    case OP_LIST_LEADING_COMMA:
      return "list-of-one ";
    case OP_STRING_FIRST_COMMA:
      return " ,first-of-string ";
    case OP_STRING_SINGLE:
      return "string-of-one ";
    default:
      return operation_array[op].display_text;
  }
}

void add_target(TText& text, const TStep& step) {
  if (step.op == OP_SAVE_MEMORY) add(text, " > %s", slot_name(step.target, true));
  if (step.op == OP_SAVE_VARIABLE) add(text, " > %s", variable_name(step.target));
}

void add_call(TText& text, const TCompiled& compiled, const TStep& step, int arg_kind) {
  if (step.name != NO_NAME)
    add(text, "%s(", compiled.names[step.name]);
  else
    add(text, "%s", operation_text(step.op));
  if (arg_kind == KIND_NO_ARGUMENT) return;
  add_operand(text, step.operand[0]);
  add(text, ")");
}

void add_expression(TText& text, const TCompiled& compiled, const TStep& step) {
  const int kind = operation_array[step.op].arg_kind;
  if (is_function_kind(kind)) return add_call(text, compiled, step, kind);
  if (step.op == OP_SAVE_MEMORY || step.op == OP_SAVE_VARIABLE) {
    add_operand(text, step.operand[0]);
    return add_target(text, step);
  }
  if (kind != KIND_PREFIX) add_operand(text, step.operand[0]);
  add(text, "%s", operation_text(step.op));
  if (kind != KIND_POSTFIX) add_operand(text, step.operand[kind == KIND_INFIX ? 1 : 0]);
}

// call: the call site that the step is or adds to; in: the numeric operator whose body holds it.
void add_places(TText& text, const TStep& step) {
  if (step.frame != NO_FRAME) add(text, "  call %d", step.frame);
  if (step.numeric_frame != NO_FRAME) add(text, "  in %d", step.numeric_frame);
  if (step.nest != NO_NEST) add(text, "  nest %d  body from %d", step.nest, step.body_start);
}

}  // namespace

void describe_steps(const TCompiled& compiled, char* out, int size) {
  TText text{out, size};
  if (size > 0) *out = 0;
  if (compiled.error != NO_COMPILE_ERROR) return add(text, "%s\n", error_message(compiled.error));
  if (compiled.single) {
    add_operand(text, compiled.only);
    return add(text, "\n");
  }
  for (int i = 0; i < compiled.count; ++i) {
    add(text, "r%d = ", compiled.steps[i].result);
    add_expression(text, compiled, compiled.steps[i]);
    add_places(text, compiled.steps[i]);
    add(text, "\n");
  }
}

}  // namespace zephyl
