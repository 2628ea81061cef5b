// Walks that wait for a custom function: what they have in registers, call sites and an unfinished literal.

#include <algorithm>
#include <iterator>
#include <memory>
#include <new>

#include "engine/errors.h"
#include "engine/evaluator.h"
#include "engine/step_run.h"

namespace zephyl {

namespace {

struct TWaitingWalk {
  TRegister registers[REGISTER_LIMIT];
  TTemporaries temporaries;
  int frame_count = 0;
  TFuncFrame frames[STEP_LIMIT];
  TNumericState numeric[STEP_LIMIT];
  TValue literal[LITERAL_LIMIT];
  int literal_count = 0;
};

std::unique_ptr<TWaitingWalk> waiting[EVALUATION_DEPTH];  // made when a level is reached first
int waiting_count = 0;

// A place for another walk; null, with the error reported, if there is none.
TWaitingWalk* take_place() {
  if (waiting_count >= EVALUATION_DEPTH) {
    report_error(ERR_PROGRAM_NESTING);
    return nullptr;
  }
  std::unique_ptr<TWaitingWalk>& place = waiting[waiting_count];
  if (!place) place.reset(new (std::nothrow) TWaitingWalk);
  if (!place) {
    report_error(ERR_MEMORY_LIMIT);
    return nullptr;
  }
  ++waiting_count;
  return place.get();
}

// Only what the registers hold: most hold numbers.
void copy_aggregates(TTemporaries& to, const TTemporaries& from, const TRegister* held) {
  for (int i = 0; i < AGGREGATE_REGISTER_LIMIT; ++i) {
    if (held[i].type == TYPE_LIST) copy_list(to.lists[i], from.lists[i]);
    if (held[i].type == TYPE_MATRIX) copy_matrix(to.matrices[i], from.matrices[i]);
    if (held[i].type == TYPE_STRING) copy_string(to.strings[i], from.strings[i]);
  }
}

}  // namespace

bool push_evaluation() {
  TWaitingWalk* const walk = take_place();
  if (!walk) return false;
  std::copy(std::begin(registers), std::end(registers), walk->registers);
  copy_aggregates(walk->temporaries, temporaries, registers);
  walk->frame_count = walked_steps() ? walked_steps()->frame_count : 0;
  std::copy(func_frames, func_frames + walk->frame_count, walk->frames);
  std::copy(numeric_states, numeric_states + walk->frame_count, walk->numeric);
  walk->literal_count = copy_literal(walk->literal);
  return true;
}

void pop_evaluation() {
  if (waiting_count == 0) return;
  const TWaitingWalk& walk = *waiting[--waiting_count];
  std::copy(std::begin(walk.registers), std::end(walk.registers), registers);
  copy_aggregates(temporaries, walk.temporaries, registers);
  std::copy(walk.frames, walk.frames + walk.frame_count, func_frames);
  std::copy(walk.numeric, walk.numeric + walk.frame_count, numeric_states);
  set_literal(walk.literal, walk.literal_count);
}

void forget_evaluations() { waiting_count = 0; }

}  // namespace zephyl
