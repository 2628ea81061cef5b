// The look into the event queue during a long evaluation, at most twice a second.

#include "engine/poll.h"
#include "engine/errors.h"
#include "engine/evaluator.h"
#include "engine/faults.h"
#include "engine/hooks.h"
#include "engine/state.h"
#include "platform/events.h"
#include "platform/platform.h"

namespace zephyl {

int poll_budget = 0;

namespace {

constexpr std::uint32_t POLL_INTERVAL = 500;  // milliseconds
constexpr int POLL_ROUNDS = 10;               // looks for a tap between two looks for a cancel
constexpr int POLL_BUDGET = 100;              // steps between two looks at the clock

std::uint32_t last_poll = 0;
int poll_counter = 0;

bool abandon() {
  report_error(ERR_CANCELED);
  return true;
}

void paint_what_waits() {
  if (!platform().take_paint_request()) return;
  on_paint();
  platform().present(true);
}

// A tap on a key cancels and stays in the queue; any other tap is used up here.
bool look_for_tap() {
  TPoint at;
  if (!platform().peek_pen_down(at)) {
    paint_what_waits();
    return false;
  }
  if (hooks.tap_kind(at.x, at.y) == TAP_KEY) return abandon();
  platform().remove_pen_down();
  state.swallow_up = true;
  return false;
}

}  // namespace

bool pump_messages() {
  if (errors.error_flag && errors.error_code == ERR_CANCELED) return true;
  if (++poll_counter <= POLL_ROUNDS) return look_for_tap();
  poll_counter = 0;
  return platform().peek_cancel() && abandon();
}

bool poll_cancel() {
  poll_budget = POLL_BUDGET;
  const std::uint32_t now = platform().tick_count();
  // A clock that reads less than before has wrapped: look at once.
  if (now >= last_poll && now - last_poll <= POLL_INTERVAL) return false;
  last_poll = now;
  // What painting computes is no fault of the evaluation.
  const bool faulted = fault_raised();
  const bool abandoned = pump_messages();
  if (!faulted) clear_faults();
  return abandoned;
}

void reset_poll() {
  last_poll = 0;
  poll_counter = 0;
  poll_budget = 0;
}

}  // namespace zephyl
