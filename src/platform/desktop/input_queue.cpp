#include "platform/desktop/input_queue.h"

#include <algorithm>

namespace zephyl {

namespace {

bool is_pen_down(const TInput& input) { return input.kind == INPUT_PEN_DOWN; }

bool is_cancel(const TInput& input) {
  return input.kind == INPUT_CLOSE || (input.kind == INPUT_CHARACTER && input.code == ESCAPE_CHARACTER);
}

}  // namespace

void TInputQueue::push(const TInput& input) {
  const bool both_move =
      !inputs_.empty() && inputs_.back().kind == INPUT_PEN_MOVE && input.kind == INPUT_PEN_MOVE;
  if (both_move) inputs_.pop_back();
  inputs_.push_back(input);
}

bool TInputQueue::pop(TInput& input) {
  if (inputs_.empty()) return false;
  input = inputs_.front();
  inputs_.pop_front();
  return true;
}

bool TInputQueue::find_pen_down(TPoint& at) const {
  const auto found = std::find_if(inputs_.begin(), inputs_.end(), is_pen_down);
  if (found == inputs_.end()) return false;
  at = found->at;
  return true;
}

void TInputQueue::remove_pen_down() {
  const auto found = std::find_if(inputs_.begin(), inputs_.end(), is_pen_down);
  if (found != inputs_.end()) inputs_.erase(found);
}

bool TInputQueue::holds_cancel() const { return std::any_of(inputs_.begin(), inputs_.end(), is_cancel); }

}  // namespace zephyl
