// While an evaluation runs, input waits in the queue; some of it abandons the evaluation.

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPushButton>
#include <QThread>
#include <QTimer>

#include "engine/errors.h"
#include "engine/field_value.h"
#include "engine/hooks.h"
#include "engine/poll.h"
#include "faceplate/key_tables.h"
#include "platform/desktop/dialogs/dialog_window.h"
#include "platform/dialog.h"
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

TEST_F(long_evaluation, of_a_dialog_is_ended_by_escape_there_and_by_nothing_that_came_before) {
  hooks.next_random = slow_random;
  TDialog dialog(1, "Slow");
  dialog.add(button_control("Go"));
  dialog.add(button_control("Exit", BUTTON_CANCEL));
  std::vector<std::string> errors_told;
  dialog.procedure = [&](TDialog&, const TDialogEvent& event) {
    if (event.kind != CONTROL_ACTIVATED || event.control != 0) return;
    double value = 0.0;
    std::string error;
    slow_operands = 0;
    field_value("(Rand)+(Rand)+(Rand)", value, error);
    errors_told.push_back(error);
  };
  bool closed_too_early = false;
  QTimer::singleShot(0, [&] {
    auto* const box = dynamic_cast<TDialogWindow*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    auto* const go = dynamic_cast<QPushButton*>(box->widget_of(0));
    ASSERT_NE(go, nullptr);
    const auto escape = [box] {
      QKeyEvent event(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
      QCoreApplication::sendEvent(box, &event);
    };
    during_evaluation = [] {};
    go->click();
    during_evaluation = escape;
    go->click();
    closed_too_early = dialog.closed();
    escape();
  });
  send_tap(inside_key(23));
  send_key(Qt::Key_Escape);
  platform_->run_dialog(dialog);
  EXPECT_EQ(errors_told, (std::vector<std::string>{"", "Operation Canceled"}));
  EXPECT_FALSE(closed_too_early);
  EXPECT_TRUE(dialog.closed());
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
