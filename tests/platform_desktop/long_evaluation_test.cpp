// While an evaluation runs, input waits in the queue; some of it abandons the evaluation.

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QThread>

#include "engine/errors.h"
#include "engine/hooks.h"
#include "engine/poll.h"
#include "faceplate/key_tables.h"
#include "platform_desktop/desktop.h"

using namespace zephyl;

namespace {

constexpr unsigned long LONGER_THAN_A_POLL = 520;  // milliseconds

std::function<void()> during_evaluation;
int slow_operands = 0;

// A random number that takes its time. What the user does meanwhile happens in the first one.
double slow_random() {
  if (++slow_operands == 1) during_evaluation();
  QThread::msleep(LONGER_THAN_A_POLL);
  poll_budget = 0;
  return 1.0;
}

class long_evaluation : public desktop {
 protected:
  ~long_evaluation() override { hooks.next_random = usual_random_; }

  // Evaluates a sum of three slow numbers.
  void evaluate_and(std::function<void()> act) {
    slow_operands = 0;
    during_evaluation = std::move(act);
    hooks.next_random = slow_random;
    paste("(Rand)+(Rand)+(Rand)");
    press(Qt::Key_Return);
  }

  void send_tap(TPoint at) {
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease})
      send_mouse(type, at);
  }

  void send_key(int key, const QString& text = {}) {
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(&window(), &event);
  }

  double (*usual_random_)() = hooks.next_random;
};

TPoint inside_key(int number) {
  KeyRect key;
  EXPECT_TRUE(key_rect(number, key));
  return {key.left + 2, key.top + 2};
}

}  // namespace

TEST_F(long_evaluation, goes_to_its_end_when_nothing_is_done) {
  evaluate_and([] {});
  EXPECT_EQ(copied(), "3");
  EXPECT_EQ(slow_operands, 3);
}

TEST_F(long_evaluation, is_abandoned_by_a_tap_on_a_key) {
  evaluate_and([this] { send_tap(inside_key(23)); });
  EXPECT_LT(slow_operands, 3);
  EXPECT_EQ(copied(), "Operation Canceled");
}

TEST_F(long_evaluation, is_not_disturbed_by_a_tap_beside_the_keys) {
  evaluate_and([this] { send_tap({120, 50}); });
  EXPECT_EQ(copied(), "3");
}

TEST_F(long_evaluation, escape_abandons_it_and_clears) {
  evaluate_and([this] { send_key(Qt::Key_Escape); });
  EXPECT_LT(slow_operands, 3);
  EXPECT_FALSE(errors.error_flag);
  EXPECT_EQ(entry(), "");
}

TEST_F(long_evaluation, characters_wait_for_its_end) {
  evaluate_and([this] {
    send_key(0, "4");
    send_key(0, "5");
  });
  EXPECT_EQ(slow_operands, 3);
  EXPECT_EQ(entry(), "45");
}

TEST_F(long_evaluation, closing_the_window_abandons_it_and_stops) {
  evaluate_and([this] { EXPECT_FALSE(window().close()); });
  EXPECT_LT(slow_operands, 3);
  EXPECT_TRUE(platform_->stopped());
  EXPECT_FALSE(window().isVisible());
}
