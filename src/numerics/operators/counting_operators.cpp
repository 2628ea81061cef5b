// Operators that count their variable from one integer to another, up or down: Summ(, Prod(, Seq(; and
// fnEval(, which takes one place.

#include "engine/errors.h"
#include "numerics/complex_functions.h"
#include "numerics/operators/operator_state.h"
#include "numerics/operators/operators.h"

namespace zephyl {

namespace {

constexpr int INTEGER_LIMIT = 1000000000;

struct TCounter {
  int at, end, step;

  bool at_end() const { return at == end; }
};

// The bounds of the first call; what their expressions give later, when the variable has moved, doesn't
// count.
bool begin_counting(TScalarCall& call, TCounter& counter) {
  const int start = checked_integer(call.args[2].re, -INTEGER_LIMIT, INTEGER_LIMIT, ERR_DOMAIN);
  const int end = checked_integer(call.args[3].re, -INTEGER_LIMIT, INTEGER_LIMIT, ERR_DOMAIN);
  if (errors.error_flag || !begin_operator(call)) return false;
  counter = {start, end, start > end ? -1 : 1};
  ask_at(call, start);
  return true;
}

struct TAccumulation {
  TCounter counter;
  TValue total;
};

template <TValue (*join)(TValue, TValue)>
void accumulate(TScalarCall& call, double neutral) {
  TAccumulation& sum = method_state<TAccumulation>(call);
  if (begins(call)) {
    sum.total = {neutral, 0.0};
    begin_counting(call, sum.counter);
    return;
  }
  sum.total = join(sum.total, call.args[0]);
  if (sum.counter.at_end()) return finish_operator(call, sum.total);
  sum.counter.at += sum.counter.step;
  ask_at(call, sum.counter.at);
}

TValue plus(TValue z, TValue w) { return z + w; }
TValue times(TValue z, TValue w) { return z * w; }

void summation(TScalarCall& call) { accumulate<plus>(call, 0.0); }
void product(TScalarCall& call) { accumulate<times>(call, 1.0); }

// Elements are gathered apart from the register: the expression may use that register's list itself.
struct TSequence {
  TCounter counter;
  int count;
  TValue elements[LIST_LIMIT];
};

void deliver_sequence(TScalarCall& call, const TSequence& sequence) {
  finish_operator(call, {});
  call.keeps_register = true;
  ListRecord* list = set_list_result(call.result_register);
  if (!list) return;
  for (int i = 0; i < sequence.count; ++i) list->elements[i] = sequence.elements[i];
  list->last = sequence.count - 1;
  list->defined = true;
}

void sequence_of(TScalarCall& call) {
  TSequence& sequence = method_state<TSequence>(call);
  if (begins(call)) {
    sequence.count = 0;
    begin_counting(call, sequence.counter);
    return;
  }
  if (sequence.count >= LIST_LIMIT) return report_error(ERR_LIST_SIZE);
  sequence.elements[sequence.count++] = call.args[0];
  if (sequence.counter.at_end()) return deliver_sequence(call, sequence);
  sequence.counter.at += sequence.counter.step;
  ask_at(call, sequence.counter.at);
}

void evaluate_at(TScalarCall& call) {
  if (!begins(call)) return finish_operator(call, call.args[0]);
  if (begin_operator(call)) ask_at(call, call.args[2]);
}

}  // namespace

void register_counting_operators() {
  operations[OP_SUMM].scalar = summation;
  operations[OP_PROD].scalar = product;
  operations[OP_SEQ].scalar = sequence_of;
  operations[OP_FN_EVAL].scalar = evaluate_at;
}

}  // namespace zephyl
