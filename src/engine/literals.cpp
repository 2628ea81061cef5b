// List and string literals: one buffer that the separators fill from the last element to the first.

#include <algorithm>

#include "engine/errors.h"
#include "engine/step_run.h"

namespace zephyl {

namespace {

struct TLiteral {
  TValue elements[LITERAL_LIMIT];
  int count = 0;
} literal;

bool is_number(const TArgument& argument) {
  return argument.matrix < 0 && argument.list < 0 && argument.string < 0;
}

bool add_element(const TArgument& argument) {
  if (!is_number(argument)) {
    report_error(ERR_DATA_TYPE);
    return false;
  }
  if (literal.count >= LITERAL_LIMIT) {
    report_error(ERR_MEMORY_LIMIT);
    return false;
  }
  literal.elements[literal.count++] = argument.value;
  return true;
}

void deliver_list(int reg) {
  ListRecord* list = set_list_result(reg);
  if (!list) return;
  for (int i = 0; i < literal.count; ++i) list->elements[i] = literal.elements[literal.count - 1 - i];
  list->last = literal.count - 1;
  list->defined = true;
}

void deliver_string(int reg) {
  TString* string = set_string_result(reg);
  if (!string) return;
  for (int i = 0; i < literal.count; ++i)
    string->text[i] = static_cast<char>(to_int32(literal.elements[literal.count - 1 - i].re));
  string->text[literal.count] = 0;
}

}  // namespace

void clear_literal() { literal.count = 0; }

int copy_literal(TValue* to) {
  std::copy(literal.elements, literal.elements + literal.count, to);
  return literal.count;
}

void set_literal(const TValue* from, int count) {
  std::copy(from, from + count, literal.elements);
  literal.count = count;
}

void run_literal_step(TStepRun& run) {
  const TOp_Code op = run.step.op;
  const bool single = op == OP_LIST_LEADING_COMMA || op == OP_STRING_SINGLE;
  if (literal.count == 0 && !single && !add_element(run.args[1])) return;
  if (!add_element(run.args[0])) return;
  if (op == OP_LIST_COMMA) return set_number_result(run.step.result, {});
  if (op == OP_STRING_FIRST_COMMA || op == OP_STRING_SINGLE)
    deliver_string(run.step.result);
  else
    deliver_list(run.step.result);
  clear_literal();
}

}  // namespace zephyl
