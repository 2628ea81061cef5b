// How the walk knows when to look at the clock without reading it at each step.
#pragma once

namespace zephyl {

// Units of work (about a step each) until the clock is read again; poll_cancel fills it up.
extern int poll_budget;

// Counts `work` off; looks at the clock, and perhaps into the queue, when the budget is used up. True: abandon the walk.
bool poll_cancel();
inline bool poll_after(int work) { return (poll_budget -= work) < 0 && poll_cancel(); }

void reset_poll();

}  // namespace zephyl
