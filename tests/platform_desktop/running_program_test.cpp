// A program runs while the window stays alive.

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QMouseEvent>
#include <QPaintEvent>
#include <algorithm>

#include "engine/errors.h"
#include "engine/memory.h"
#include "engine/state.h"
#include "engine/text_form.h"
#include "platform_desktop/desktop.h"
#include "programs/interpreter.h"
#include "programs/program.h"

using namespace zephyl;

namespace {

constexpr int RUN_KEY = 49;

// Counts how often the window is painted.
class TPaintCounter : public QObject {
 public:
  explicit TPaintCounter(QObject& window) { window.installEventFilter(this); }
  int count = 0;

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    count += event->type() == QEvent::Paint;
    return false;
  }
};

class running_program : public desktop {
 protected:
  void add(int number, const char* expression = "", int operand = 0) {
    ProgramStatement& statement = program.statements[program.statement_count++];
    statement = {};
    statement.number = number;
    statement.var0 = static_cast<std::int16_t>(operand);
    TExpression tokens;
    char error[200];
    ASSERT_TRUE(text_to_tokens(expression, tokens, error, sizeof error)) << error;
    statement.key_count = tokens.count;
    std::copy(tokens.tokens, tokens.tokens + tokens.count, statement.keys);
  }

  // Counts in A and shows it, without an end.
  void start_counting() {
    add(STATEMENT_LABEL);
    add(STATEMENT_EXPRESS, "A+1->A");
    add(STATEMENT_OUT, "", SLOT_CAPITAL_A + 1);
    add(STATEMENT_GOTO);
    start_run();
    platform_->invalidate(false);
  }

  void pass(int milliseconds) {
    QElapsedTimer timer;
    for (timer.start(); timer.elapsed() < milliseconds;)
      QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
  }
};

}  // namespace

TEST_F(running_program, goes_on_by_itself_and_keeps_the_picture_moving) {
  start_counting();
  TPaintCounter paints(window());
  pass(1000);
  EXPECT_TRUE(state.program_running);
  EXPECT_GT(memory_array[SLOT_CAPITAL_A].re, 100.0);
  EXPECT_GE(paints.count, 20) << "30 on a machine that is not busy";
}

TEST_F(running_program, stops_at_once_at_a_tap_on_its_key) {
  start_counting();
  pass(100);
  QElapsedTimer timer;
  timer.start();
  tap_key(RUN_KEY);
  EXPECT_LT(timer.elapsed(), 200);
  EXPECT_FALSE(state.program_running);
  EXPECT_EQ(errors.error_code, ERR_PROGRAM_STOPPED);
}

TEST_F(running_program, lets_the_window_close) {
  start_counting();
  pass(100);
  window().close();
  EXPECT_TRUE(platform_->stopped());
}
