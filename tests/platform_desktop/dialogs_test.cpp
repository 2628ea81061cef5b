// Dialogs above the calculator's window: they wait, stand over it, keep input from it, and show what changes
// behind them.

#include <QApplication>
#include <QCheckBox>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <cstdio>

#include "engine/state.h"
#include "platform/desktop/dialogs/dialog_window.h"
#include "platform/events.h"
#include "platform/surface.h"
#include "platform_desktop/desktop.h"
#include "platform_desktop/sample_dialogs.h"

using namespace zephyl;

namespace {

class desktop_dialogs : public desktop {
 protected:
  // Runs the dialog; each step acts on the box that is in front at its turn.
  void run(TDialog& dialog, std::vector<std::function<void()>> steps) {
    plan(std::move(steps));
    platform_->run_dialog(dialog);
  }
  void plan(std::vector<std::function<void()>> steps) {
    steps_ = std::move(steps);
    QTimer::singleShot(PAUSE, [this] { next_step(0); });
  }
  // A step may open another box and come back late: the next one is due before.
  void next_step(std::size_t step) {
    if (step >= steps_.size()) return;
    QTimer::singleShot(PAUSE, [this, step] { next_step(step + 1); });
    steps_[step]();
  }
  static TDialogWindow* front() { return dynamic_cast<TDialogWindow*>(QApplication::activeModalWidget()); }
  static constexpr int PAUSE = 30;  // milliseconds
  std::vector<std::function<void()>> steps_;
  static void press(int control) { static_cast<QPushButton*>(front()->widget_of(control))->click(); }
};

int ok_of(const TDialog& dialog) { return find_control(dialog, "OK"); }

}  // namespace

TEST_F(desktop_dialogs, running_one_waits_for_its_end) {
  TDialog dialog = variable_sample();
  run(dialog,
      {[&] { EXPECT_FALSE(dialog.closed()); },
       [] { static_cast<QCheckBox*>(front()->widget_of(2))->click(); }, [&] { press(ok_of(dialog)); }});
  EXPECT_EQ(dialog.result(), 0);
  EXPECT_TRUE(dialog[2].checked);
  EXPECT_EQ(front(), nullptr);
}

TEST_F(desktop_dialogs, it_is_told_that_it_opens_before_it_shows) {
  TDialog dialog = variable_sample();
  std::vector<TDialogEventKind> told;
  dialog.procedure = [&](TDialog& opened, const TDialogEvent& event) {
    told.push_back(event.kind);
    EXPECT_EQ(front(), nullptr);
    if (event.kind == DIALOG_OPENED) opened.title = "Other Title";
    opened.close(7);
  };
  platform_->run_dialog(dialog);
  EXPECT_EQ(told, std::vector<TDialogEventKind>{DIALOG_OPENED});
  EXPECT_EQ(dialog.result(), 7);
}

TEST_F(desktop_dialogs, it_stands_over_the_middle_of_the_calculator) {
  window().choose_zoom(1);
  window().move(250, 150);
  settle();
  TDialog dialog = variable_sample();
  run(dialog, {[&] {
        const QPoint distance = front()->frameGeometry().center() - window().frameGeometry().center();
        EXPECT_LE(distance.manhattanLength(), 2);
        EXPECT_EQ(front()->parentWidget(), &window());
        front()->close();
      }});
  EXPECT_EQ(dialog.result(), DIALOG_CANCELLED);
}

TEST_F(desktop_dialogs, it_stays_on_the_screen) {
  window().move(0, 0);
  settle();
  TDialog dialog = setup_sample();
  run(dialog, {[&] {
        EXPECT_TRUE(window().screen()->availableGeometry().contains(front()->frameGeometry().topLeft()));
        front()->close();
      }});
}

TEST_F(desktop_dialogs, input_to_the_calculator_is_lost_meanwhile) {
  TDialog dialog = variable_sample();
  const QString before = entry();
  run(dialog, {[&] {
                 QTest::mouseClick(window().windowHandle(), Qt::LeftButton, {},
                                   QPoint(24, 200) * window().zoom());
                 QTest::keyClick(window().windowHandle(), Qt::Key_7);
               },
               [] { front()->close(); }});
  settle();
  EXPECT_EQ(entry(), before);
  QTest::keyClick(window().windowHandle(), Qt::Key_7);
  settle();
  EXPECT_EQ(entry(), "7");
}

TEST_F(desktop_dialogs, the_calculator_shows_what_changes_behind_them) {
  TDialog dialog = colour_sample();
  dialog.procedure = [](TDialog& told, const TDialogEvent& event) {
    if (event.kind != CONTROL_CHANGED) return;
    settings.display_color = told[0].value;
    platform().invalidate(false);
  };
  const TColour before = screen().pixel(100, 24);
  run(dialog, {[&] { set_value(dialog, 0, 255); }, [&] { EXPECT_NE(screen().pixel(100, 24), before); },
               [] { front()->close(); }});
}

TEST_F(desktop_dialogs, one_opened_by_another_stands_above_it) {
  TDialog outer = setup_sample(), inner = words_sample();
  TDialogWindow* below = nullptr;
  outer.procedure = [&](TDialog&, const TDialogEvent& event) {
    if (event.kind == CONTROL_ACTIVATED && event.control == 8) platform().run_dialog(inner);
  };
  run(outer, {[&] {
                below = front();
                press(8);
              },
              [&] {
                EXPECT_EQ(front()->parentWidget(), below);
                EXPECT_EQ(front()->windowTitle(), "Note");
                press(1);
              },
              [&] {
                EXPECT_EQ(front(), below);
                EXPECT_EQ(inner.result(), 0);
                front()->close();
              }});
  EXPECT_EQ(outer.result(), DIALOG_CANCELLED);
}

TEST_F(desktop_dialogs, a_message_stands_above_the_dialog) {
  TDialog dialog = fields_sample();
  dialog.procedure = [](TDialog& told, const TDialogEvent& event) {
    if (event.kind != CONTROL_ACTIVATED || told[event.control].role != BUTTON_DEFAULT) return;
    platform().show_message("Not a number", "Error");
    told.keep_open();
  };
  run(dialog, {[&] { press(ok_of(dialog)); },
               [] {
                 auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
                 ASSERT_TRUE(box);
                 EXPECT_TRUE(dynamic_cast<TDialogWindow*>(box->parentWidget()));
                 box->accept();
               },
               [&] {
                 EXPECT_TRUE(front());
                 EXPECT_FALSE(dialog.closed());
                 front()->close();
               }});
}

TEST_F(desktop_dialogs, time_ticks_in_the_one_in_front_only) {
  TDialog outer = setup_sample(), inner = words_sample();
  int outer_ticks = 0, inner_ticks = 0, outer_ticks_meanwhile = 0;
  outer.tick_interval = inner.tick_interval = 5;
  outer.procedure = [&](TDialog& told, const TDialogEvent& event) {
    if (event.kind != DIALOG_TICK || ++outer_ticks != 3) return;
    platform().run_dialog(inner);
    outer_ticks_meanwhile = outer_ticks - 3;
    told.close(1);
  };
  inner.procedure = [&](TDialog& told, const TDialogEvent& event) {
    if (event.kind == DIALOG_TICK && ++inner_ticks == 4) told.close(1);
  };
  platform_->run_dialog(outer);
  EXPECT_EQ(inner_ticks, 4);
  EXPECT_EQ(outer_ticks_meanwhile, 0);
}

TEST_F(desktop_dialogs, ticks_can_be_switched_on_and_off) {
  TDialog dialog = setup_sample();
  int ticks = 0;
  dialog.procedure = [&](TDialog& told, const TDialogEvent& event) {
    if (event.kind == CONTROL_ACTIVATED && event.control == 8) told.tick_interval = 2;
    if (event.kind == DIALOG_TICK && ++ticks == 3) told.tick_interval = 0;
  };
  run(dialog, {[] {}, [] { press(8); }, [] {}, [] {}, [] { front()->close(); }});
  EXPECT_EQ(ticks, 3);
}

TEST_F(desktop_dialogs, the_cursor_of_waiting_goes_for_as_long_as_one_is_open) {
  platform_->set_wait_cursor(true);
  TDialog dialog = words_sample();
  run(dialog, {[] {
        EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
        front()->close();
      }});
  EXPECT_NE(QGuiApplication::overrideCursor(), nullptr);
  platform_->set_wait_cursor(false);
}

TEST_F(desktop_dialogs, the_end_of_the_program_cancels_them) {
  TDialog dialog = variable_sample();
  run(dialog, {[] { QApplication::closeAllWindows(); }});
  EXPECT_EQ(dialog.result(), DIALOG_CANCELLED);
}

TEST_F(desktop_dialogs, a_file_is_asked_for_with_its_type) {
  TFileQuestion question;
  question.title = "Save State";
  question.type_name = "State Files";
  question.extension = "state";
  question.save = true;
  std::string path;
  plan({[&] {
    auto* box = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    ASSERT_TRUE(box);
    EXPECT_EQ(box->windowTitle(), "Save State");
    EXPECT_EQ(box->nameFilters(), QStringList{"State Files (*.state)"});
    EXPECT_EQ(box->acceptMode(), QFileDialog::AcceptSave);
    EXPECT_EQ(box->directory().absolutePath(), QDir(folder_.path()).absolutePath());
    // As typed: selectFile would leave a line alone that has the keyboard.
    box->findChild<QLineEdit*>("fileNameEdit")->setText("mine");
    QMetaObject::invokeMethod(box, "accept");
  }});
  EXPECT_TRUE(platform_->choose_file(question, path));
  EXPECT_EQ(QString::fromStdString(path), QDir(folder_.path()).absoluteFilePath("mine.state"));
}

TEST_F(desktop_dialogs, replacing_a_file_is_asked_for_the_name_that_will_be_written) {
  const QString existing = QDir(folder_.path()).absoluteFilePath("my.plot.state");
  QFile(existing).open(QIODevice::WriteOnly);
  QFile(QDir(folder_.path()).absoluteFilePath("my.plot")).open(QIODevice::WriteOnly);
  TFileQuestion question;
  question.title = "Save State";
  question.type_name = "State Files";
  question.extension = "state";
  question.save = true;
  const auto accept_name = [] {
    auto* box = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    ASSERT_TRUE(box);
    box->findChild<QLineEdit*>("fileNameEdit")->setText("my.plot");
    QMetaObject::invokeMethod(box, "accept");
  };
  const auto answer = [](QMessageBox::StandardButton button) {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_TRUE(box);
    EXPECT_TRUE(box->text().startsWith("my.plot.state already exists.")) << qPrintable(box->text());
    box->button(button)->click();
  };
  std::string path;
  // After a No the question for the file is there again.
  plan({accept_name, [&] { answer(QMessageBox::No); }, accept_name, [&] { answer(QMessageBox::Yes); }});
  EXPECT_TRUE(platform_->choose_file(question, path));
  EXPECT_EQ(QString::fromStdString(path), existing);
}

TEST_F(desktop_dialogs, a_file_that_is_not_chosen_leaves_the_path) {
  TFileQuestion question;
  std::string path = "before";
  plan({[] { QApplication::activeModalWidget()->close(); }});
  EXPECT_FALSE(platform_->choose_file(question, path));
  EXPECT_EQ(path, "before");
}

// Prints how long it takes until the window has been painted.
TEST_F(desktop_dialogs, long_ones_open_at_once) {
  struct {
    const char* name;
    TDialog dialog;
  } dialogs[] = {{"warm-up", long_sample()},
                 {"30 lines", long_sample()},
                 {"table of 2000 rows", table_sample(2000)},
                 {"list of 2000 rows", program_sample(2000)}};
  for (auto& [name, dialog] : dialogs) {
    QElapsedTimer time;
    time.start();
    TDialogWindow open(dialog, &window(), 1);
    open.show();
    open.repaint();
    QCoreApplication::processEvents();
    std::printf("  %-20s %6.1f ms\n", name, static_cast<double>(time.nsecsElapsed()) / 1e6);
    EXPECT_LT(time.elapsed(), 1000) << name;
  }
}
