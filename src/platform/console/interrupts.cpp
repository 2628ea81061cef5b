#include "platform/console/interrupts.h"

#include <csignal>

namespace zephyl {

namespace {

volatile std::sig_atomic_t interrupt_flag = 0;

void note_interrupt(int) { interrupt_flag = 1; }

// Without SA_RESTART: a call that waits returns, and its caller looks at the flag.
void set_action(void (*action)(int)) {
  struct sigaction wanted = {};
  wanted.sa_handler = action;
  sigemptyset(&wanted.sa_mask);
  sigaction(SIGINT, &wanted, nullptr);
}

}  // namespace

void catch_interrupts() { set_action(note_interrupt); }
void release_interrupts() { set_action(SIG_DFL); }

bool interrupted() { return interrupt_flag != 0; }
void clear_interrupt() { interrupt_flag = 0; }

}  // namespace zephyl
