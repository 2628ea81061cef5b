// The window of dialogs: what it shows of the model, what the model hears of the user, and how the keyboard
// gets about.

#include "platform/desktop/dialogs/dialog_window.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QScrollBar>
#include <QSlider>
#include <QTableView>
#include <QWheelEvent>
#include <algorithm>
#include <memory>
#include <set>

#include "platform_desktop/desktop.h"
#include "platform_desktop/sample_dialogs.h"

using namespace zephyl;

namespace {

class dialog_window : public window_system {
 protected:
  // Opens the dialog as `run_dialog` does, but for the waiting.
  void open(TDialog dialog) {
    dialog_ = std::make_unique<TDialog>(std::move(dialog));
    dialog_->procedure = [this](TDialog& told, const TDialogEvent& event) {
      events_.push_back(event);
      if (then_) then_(told, event);
    };
    window_ = std::make_unique<TDialogWindow>(*dialog_, nullptr, 2);
    window_->show();
    settle();
  }
  static void settle() {
    for (int round = 0; round < 5; ++round) QCoreApplication::processEvents();
  }

  TDialog& dialog() { return *dialog_; }
  // The widget that works a control.
  template <typename TWidget>
  TWidget* widget(int control) {
    return dynamic_cast<TWidget*>(window_->widget_of(control));
  }
  // The filter line of a list or combo: the field in front of it.
  QLineEdit* filter_of(int control) {
    QWidget* before = window_->widget_of(control)->previousInFocusChain();
    while (!dynamic_cast<QLineEdit*>(before)) before = before->previousInFocusChain();
    return static_cast<QLineEdit*>(before);
  }
  QString caption_of(int control) {
    for (const QLabel* label : window_->findChildren<QLabel*>())
      if (label->buddy() == window_->widget_of(control) && !label->isHidden()) return label->text();
    return {};
  }

  static void send_key(QWidget* to, int key, const QString& text = {}) {
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
      QKeyEvent event(type, key, Qt::NoModifier, text);
      QCoreApplication::sendEvent(to, &event);
    }
    settle();
  }
  void press(int key, const QString& text = {}) {
    QWidget* focused = window_->focusWidget();
    send_key(focused ? focused : window_.get(), key, text);
  }

  std::unique_ptr<TDialog> dialog_;
  std::unique_ptr<TDialogWindow> window_;
  std::vector<TDialogEvent> events_;
  TDialog::TProcedure then_;
};

std::vector<std::string> rows(int count) {
  std::vector<std::string> rows;
  for (int i = 0; i < count; ++i) rows.push_back("row " + std::to_string(i));
  return rows;
}

TDialog of(std::vector<TControl> controls) {
  TDialog dialog(1, "Test");
  for (TControl& control : controls) dialog.add(std::move(control));
  return dialog;
}

QString accessible_name(QWidget* widget) {
  return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
}

}  // namespace

TEST_F(dialog_window, shows_what_the_controls_hold) {
  TDialog all =
      of({label_control("Words & more"), text_control("Result:", "1.5"), edit_control("Value:", "abc"),
          combo_control("Group:", rows(5), 3), list_control("Item:", rows(9), 4),
          table_control("", {{"n", 30}, {"x", 0}}, {"1\t2.5", "2\t-7"}), check_control("By Value?", true),
          radio_control("Float", 1, true), radio_control("Fixed", 1, false),
          slider_control("Red:", 0, 255, 7), edit_control("Text:", "one\ntwo")});
  all[10].lines = 4;
  open(std::move(all));
  EXPECT_EQ(window_->windowTitle(), "Test");
  EXPECT_EQ(widget<QLabel>(0)->text(), "Words & more");
  EXPECT_EQ(widget<QLabel>(1)->text(), "1.5");
  EXPECT_EQ(widget<QLineEdit>(2)->text(), "abc");
  EXPECT_EQ(widget<QComboBox>(3)->currentText(), "row 3");
  EXPECT_EQ(widget<QListView>(4)->currentIndex().row(), 4);
  const QTableView* table = widget<QTableView>(5);
  EXPECT_EQ(table->model()->rowCount(), 2);
  EXPECT_EQ(table->model()->headerData(1, Qt::Horizontal).toString(), "x");
  EXPECT_EQ(table->model()->index(1, 1).data().toString(), "-7");
  EXPECT_TRUE(widget<QCheckBox>(6)->isChecked());
  EXPECT_TRUE(widget<QRadioButton>(7)->isChecked());
  EXPECT_FALSE(widget<QRadioButton>(8)->isChecked());
  EXPECT_EQ(widget<QSlider>(9)->value(), 7);
  EXPECT_EQ(widget<QPlainTextEdit>(10)->toPlainText(), "one\ntwo");
  EXPECT_TRUE(events_.empty());
}

TEST_F(dialog_window, each_doing_of_the_user_is_told_once) {
  TDialog all =
      of({edit_control("Value:", ""), combo_control("Group:", rows(5)), list_control("Item:", rows(9)),
          table_control("", {{"n", 30}}, rows(9)), check_control("By Value?", false),
          radio_control("Float", 1, true), radio_control("Fixed", 1, false),
          slider_control("Red:", 0, 255, 7), edit_control("Text:", ""), button_control("About")});
  all[8].lines = 3;
  open(std::move(all));
  const std::vector<std::function<void()>> acts = {[&] { send_key(widget<QLineEdit>(0), 0, "7"); },
                                                   [&] { widget<QComboBox>(1)->setCurrentIndex(2); },
                                                   [&] { send_key(widget<QListView>(2), Qt::Key_Down); },
                                                   [&] { send_key(widget<QTableView>(3), Qt::Key_Down); },
                                                   [&] { widget<QCheckBox>(4)->click(); },
                                                   [&] {},
                                                   [&] { widget<QRadioButton>(6)->click(); },
                                                   [&] { send_key(widget<QSlider>(7), Qt::Key_Right); },
                                                   [&] { send_key(widget<QPlainTextEdit>(8), 0, "x"); },
                                                   [&] { widget<QPushButton>(9)->click(); }};
  for (int i = 0; i < dialog().count(); ++i) {
    events_.clear();
    acts[static_cast<std::size_t>(i)]();
    ASSERT_EQ(events_.size(), i == 5 ? 0u : 1u) << i;
    if (i != 5) {
      EXPECT_EQ(events_[0].control, i);
    }
  }
  EXPECT_EQ(dialog()[0].text, "7");
  EXPECT_EQ(dialog()[1].selected, 2);
  EXPECT_EQ(dialog()[2].selected, 1);
  EXPECT_EQ(dialog()[4].checked, true);
  EXPECT_EQ(dialog()[5].checked, false);
  EXPECT_EQ(dialog()[6].checked, true);
  EXPECT_EQ(dialog()[7].value, 8);
  EXPECT_EQ(dialog()[8].text, "x");
  EXPECT_EQ(events_[0].kind, CONTROL_ACTIVATED);
}

TEST_F(dialog_window, widgets_follow_the_procedure) {
  open(of({button_control("Change"), edit_control("Value:", "old"), combo_control("Group:", rows(3)),
           list_control("Item:", rows(3)), check_control("Mark", false), radio_control("A", 1, true),
           radio_control("B", 1, false), slider_control("Red:", 0, 9, 1), button_control("Other"),
           text_control("Result:", "1")}));
  then_ = [](TDialog& told, const TDialogEvent&) {
    told.title = "Changed";
    told[1].text = "new";
    set_rows(told[2], {"x", "y", "z"}, 2);
    set_rows(told[3], rows(5), 4);
    told[4].checked = true;
    told[5].checked = false;
    told[6].checked = true;
    told[7].maximum = 99;
    told[7].value = 50;
    told[8].label = "More & more";
    told[8].enabled = false;
    told[9].text = "2";
    told[9].visible = false;
  };
  widget<QPushButton>(0)->click();
  EXPECT_EQ(events_.size(), 1u);
  EXPECT_EQ(window_->windowTitle(), "Changed");
  EXPECT_EQ(widget<QLineEdit>(1)->text(), "new");
  EXPECT_EQ(widget<QComboBox>(2)->currentText(), "z");
  EXPECT_EQ(widget<QListView>(3)->currentIndex().row(), 4);
  EXPECT_TRUE(widget<QCheckBox>(4)->isChecked());
  EXPECT_FALSE(widget<QRadioButton>(5)->isChecked());
  EXPECT_TRUE(widget<QRadioButton>(6)->isChecked());
  EXPECT_EQ(widget<QSlider>(7)->value(), 50);
  EXPECT_EQ(widget<QPushButton>(8)->text().remove('&').trimmed(), "More  more");
  EXPECT_FALSE(widget<QPushButton>(8)->isEnabled());
  EXPECT_TRUE(window_->widget_of(9)->isHidden());
  EXPECT_EQ(caption_of(9), "");
}

TEST_F(dialog_window, a_group_of_radio_buttons_may_be_all_off) {
  open(of({radio_control("A", 1, true), radio_control("B", 1, false), button_control("None")}));
  then_ = [](TDialog& told, const TDialogEvent& event) {
    if (event.control == 2) told[0].checked = told[1].checked = false;
  };
  widget<QPushButton>(2)->click();
  EXPECT_FALSE(widget<QRadioButton>(0)->isChecked());
  widget<QRadioButton>(1)->click();
  EXPECT_TRUE(dialog()[1].checked);
}

TEST_F(dialog_window, a_procedure_may_put_other_controls_in) {
  open(of({button_control("More"), edit_control("A:", "1")}));
  then_ = [](TDialog& told, const TDialogEvent&) {
    told.controls.pop_back();
    told.add(check_control("B", true));
    told.add(list_control("C:", rows(4)));
  };
  widget<QPushButton>(0)->click();
  ASSERT_TRUE(widget<QCheckBox>(1));
  ASSERT_TRUE(widget<QListView>(2));
  EXPECT_TRUE(widget<QListView>(2)->isVisible());
  widget<QPushButton>(0)->click();
  EXPECT_EQ(dialog().count(), 4);
}

TEST_F(dialog_window, enter_is_the_default_button_from_any_field) {
  open(of({edit_control("Value:", ""), combo_control("Group:", rows(3)), list_control("Item:", rows(3)),
           button_control("OK", BUTTON_DEFAULT), button_control("Cancel", BUTTON_CANCEL)}));
  for (const int control : {0, 1, 2}) {
    then_ = [](TDialog& told, const TDialogEvent&) { told.keep_open(); };
    events_.clear();
    window_->widget_of(control)->setFocus();
    press(Qt::Key_Return);
    ASSERT_EQ(events_.size(), 1u) << control;
    EXPECT_EQ(events_[0].control, 3);
  }
  then_ = nullptr;
  press(Qt::Key_Enter);
  EXPECT_TRUE(dialog().closed());
  EXPECT_EQ(dialog().result(), 0);
  EXPECT_FALSE(window_->isVisible());
}

TEST_F(dialog_window, enter_in_a_field_presses_nothing_where_no_button_is_the_default) {
  open(of({edit_control("N", ""), button_control("Solve N"), button_control("Exit", BUTTON_CANCEL)}));
  events_.clear();
  window_->widget_of(0)->setFocus();
  press(Qt::Key_Return);
  EXPECT_TRUE(events_.empty());
  EXPECT_FALSE(widget<QPushButton>(1)->isDefault());
  window_->widget_of(1)->setFocus();
  press(Qt::Key_Return);
  ASSERT_EQ(events_.size(), 1u);
  EXPECT_EQ(events_[0].control, 1);
}

TEST_F(dialog_window, a_table_wider_than_its_window_shows_all_its_lines) {
  std::vector<TColumn> columns;
  for (int i = 0; i < 30; ++i) columns.push_back({"Column", 90});
  TControl table = table_control("Table:", columns, rows(50));
  table.lines = 9;
  open(of({table}));
  auto* view = widget<QTableView>(0);
  ASSERT_TRUE(view->horizontalScrollBar()->isVisible());
  EXPECT_GE(view->viewport()->height(), 9 * view->rowHeight(0));
}

TEST_F(dialog_window, hears_nothing_while_it_works_but_the_wish_to_end_it) {
  open(of({edit_control("Value:", ""), button_control("Recalc", BUTTON_DEFAULT), button_control("Exit", BUTTON_CANCEL)}));
  bool wished_before = true, wished_then = false;
  then_ = [&](TDialog& told, const TDialogEvent&) {
    told.keep_open();
    wished_before = window_->cancel_wished();
    press(Qt::Key_Return);
    press(Qt::Key_Escape);
    wished_then = window_->cancel_wished();
  };
  events_.clear();
  press(Qt::Key_Return);
  EXPECT_EQ(events_.size(), 1u);
  EXPECT_FALSE(wished_before);
  EXPECT_TRUE(wished_then);
  EXPECT_FALSE(window_->cancel_wished());
  EXPECT_FALSE(dialog().closed());
  then_ = nullptr;
  press(Qt::Key_Escape);
  EXPECT_TRUE(dialog().closed());
}

TEST_F(dialog_window, escape_and_closing_are_cancel) {
  for (const bool by_key : {true, false}) {
    open(of({edit_control("Value:", ""), button_control("OK", BUTTON_DEFAULT),
             button_control("Cancel", BUTTON_CANCEL)}));
    events_.clear();
    if (by_key)
      press(Qt::Key_Escape);
    else
      window_->close();
    ASSERT_EQ(events_.size(), 1u);
    EXPECT_EQ(events_[0].control, 2);
    EXPECT_EQ(dialog().result(), DIALOG_CANCELLED);
    EXPECT_FALSE(window_->isVisible());
  }
}

TEST_F(dialog_window, the_keyboard_is_in_the_control_that_the_dialog_names) {
  TDialog named =
      of({edit_control("A:", "1"), edit_control("B:", "22"), button_control("OK", BUTTON_DEFAULT)});
  named.focus = 1;
  open(std::move(named));
  EXPECT_EQ(window_->focusWidget(), window_->widget_of(1));
  EXPECT_EQ(widget<QLineEdit>(1)->selectedText(), "22");
}

TEST_F(dialog_window, else_it_is_in_the_first_control_that_can_be_worked) {
  TDialog dialog = of({label_control("Words"), text_control("T:", "x"), edit_control("A:", "1"),
                       edit_control("B:", "2"), button_control("OK", BUTTON_DEFAULT)});
  dialog[2].enabled = false;
  open(std::move(dialog));
  EXPECT_EQ(window_->focusWidget(), window_->widget_of(3));
}

TEST_F(dialog_window, the_tab_key_goes_through_every_control_in_order) {
  for (const auto& [name, make] : sample_dialogs()) {
    open(make());
    std::vector<int> way;
    QWidget* const first = window_->focusWidget();
    for (int step = 0; step < 100 && (step == 0 || window_->focusWidget() != first); ++step) {
      way.push_back(window_->control_of(window_->focusWidget()));
      press(Qt::Key_Tab, "\t");
    }
    EXPECT_EQ(window_->focusWidget(), first) << name;
    while (way.size() > 1 && way.back() == way.front())
      way.pop_back();  // a filter line in front of the first
    EXPECT_TRUE(std::is_sorted(way.begin(), way.end())) << name;
    for (int i = 0; i < dialog().count(); ++i) {
      const TControl& control = dialog()[i];
      const bool only_shown = control.kind == CONTROL_LABEL || control.kind == CONTROL_PICTURE ||
                              (control.kind == CONTROL_TEXT && control.lines == 1);
      const bool by_arrows = control.kind == CONTROL_RADIO && !control.checked;
      const bool expected = !only_shown && !by_arrows && control.enabled;
      EXPECT_EQ(std::count(way.begin(), way.end(), i) > 0, expected) << name << " " << i;
    }
  }
}

TEST_F(dialog_window, arrows_go_through_radio_buttons) {
  open(setup_sample());
  window_->widget_of(0)->setFocus();
  press(Qt::Key_Down);
  press(Qt::Key_Down);
  EXPECT_TRUE(dialog()[2].checked);
  EXPECT_FALSE(dialog()[0].checked);
}

TEST_F(dialog_window, captions_lead_to_their_controls_by_letters_of_their_own) {
  for (const auto& [name, make] : sample_dialogs()) {
    open(make());
    std::set<QString> letters;
    for (const QLabel* label : window_->findChildren<QLabel*>()) {
      if (!label->buddy()) continue;
      const QKeySequence letter = QKeySequence::mnemonic(label->text());
      if (!letter.isEmpty()) {
        EXPECT_TRUE(letters.insert(letter.toString()).second) << name << " " << qPrintable(label->text());
      }
    }
    for (const QAbstractButton* button : window_->findChildren<QAbstractButton*>()) {
      const QKeySequence letter = QKeySequence::mnemonic(button->text());
      if (!letter.isEmpty()) {
        EXPECT_TRUE(letters.insert(letter.toString()).second) << name << " " << qPrintable(button->text());
      }
    }
  }
}

TEST_F(dialog_window, a_screen_reader_hears_every_control_by_its_label) {
  open(of({edit_control("Decimal Digits:", "1"), list_control("Item:", rows(50)),
           slider_control("Red:", 0, 9, 1), check_control("Key Click?", false), button_control("Save & Quit"),
           text_control("Result:", "1.5"), label_control("Columns:"), table_control("", {{"n", 0}}, rows(3)),
           picture_control("Sample:", TSurface(4, 4))}));
  const char* names[] = {"Decimal Digits", "Item",     "Red",     "Key Click?", "Save & Quit",
                         "Result: 1.5",    "Columns:", "Columns", "Sample"};
  for (int i = 0; i < dialog().count(); ++i) EXPECT_EQ(accessible_name(window_->widget_of(i)), names[i]) << i;
  EXPECT_EQ(QAccessible::queryAccessibleInterface(window_->widget_of(8))->role(), QAccessible::Graphic);
}

// Some systems call a combo by its value, and find its label by this relation.
TEST_F(dialog_window, labels_are_tied_to_their_controls) {
  open(of({combo_control("Group:", rows(3)), label_control("Unit & more:"), combo_control("", rows(3))}));
  for (const int control : {0, 2}) {
    const auto relations = QAccessible::queryAccessibleInterface(window_->widget_of(control))->relations();
    ASSERT_EQ(relations.size(), 1) << control;
    EXPECT_EQ(relations[0].second, QAccessible::Label);
    EXPECT_EQ(relations[0].first->text(QAccessible::Name), control == 0 ? "Group:" : "Unit & more:");
  }
}

TEST_F(dialog_window, typed_letters_jump_to_a_row) {
  const std::vector<std::string> names = {"ampere", "coulomb", "metre", "mile", "second"};
  open(of({list_control("Unit:", names), combo_control("Unit:", names)}));
  for (const int control : {0, 1}) {
    send_key(window_->widget_of(control), Qt::Key_M, "m");
    send_key(window_->widget_of(control), Qt::Key_I, "i");
    EXPECT_EQ(selected_text(dialog()[control]), "mile") << control;
  }
}

TEST_F(dialog_window, long_lists_and_combos_have_a_filter_line) {
  open(of({list_control("A:", rows(41)), combo_control("B:", rows(41)), list_control("C:", rows(40)),
           combo_control("D:", rows(40)), table_control("", {{"n", 0}}, rows(200))}));
  EXPECT_TRUE(filter_of(0)->isVisible());
  EXPECT_TRUE(filter_of(1)->isVisible());
  EXPECT_FALSE(filter_of(2)->isVisible());
  EXPECT_FALSE(filter_of(3)->isVisible());
  EXPECT_FALSE(filter_of(4)->isVisible());
}

TEST_F(dialog_window, the_filter_leaves_rows_with_all_its_words) {
  for (const bool combo : {false, true}) {
    open(of({combo ? combo_control("A:", rows(300)) : list_control("A:", rows(300))}));
    events_.clear();
    filter_of(0)->setText("29 ROW");
    const QAbstractItemModel* model = combo ? widget<QComboBox>(0)->model() : widget<QListView>(0)->model();
    EXPECT_EQ(model->rowCount(), 13);  // 29, 129, 229, 290 to 299
    EXPECT_EQ(selected_text(dialog()[0]), "row 29");
    EXPECT_EQ(events_.size(), 1u);
    send_key(filter_of(0), Qt::Key_Down);
    EXPECT_EQ(selected_text(dialog()[0]), "row 129");
    filter_of(0)->clear();
    EXPECT_EQ(model->rowCount(), 300);
    EXPECT_EQ(selected_text(dialog()[0]), "row 129");
    EXPECT_EQ(combo ? widget<QComboBox>(0)->currentIndex() : widget<QListView>(0)->currentIndex().row(), 129);
  }
}

TEST_F(dialog_window, a_filter_that_nothing_matches_changes_nothing) {
  open(of({list_control("A:", rows(300), 177)}));
  filter_of(0)->setText("77");
  EXPECT_EQ(widget<QListView>(0)->model()->rowCount(), 3);
  filter_of(0)->setText("77x");
  EXPECT_EQ(widget<QListView>(0)->model()->rowCount(), 3);
  EXPECT_EQ(dialog()[0].selected, 177);
  EXPECT_EQ(filter_of(0)->accessibleDescription(), "No row matches");
  EXPECT_TRUE(events_.empty());
}

TEST_F(dialog_window, other_rows_end_the_filter) {
  open(of({list_control("A:", rows(300)), button_control("Few")}));
  then_ = [](TDialog& told, const TDialogEvent& event) {
    if (event.control == 1) set_rows(told[0], rows(3), 2);
  };
  filter_of(0)->setText("29");
  widget<QPushButton>(1)->click();
  EXPECT_FALSE(filter_of(0)->isVisible());
  EXPECT_EQ(widget<QListView>(0)->model()->rowCount(), 3);
  EXPECT_EQ(widget<QListView>(0)->currentIndex().row(), 2);
}

// Tables that show a part of more rows.

class scrolling_table : public dialog_window {
 protected:
  scrolling_table() {
    TControl table = table_control("", {{"n", 60}}, rows(10));
    table.scrolls = true;
    open(of({table}));
  }
  QTableView* view() { return widget<QTableView>(0); }
  // How far the dialog was asked to scroll since the last time, act by act.
  std::vector<int> scrolled() {
    std::vector<int> acts;
    for (const TDialogEvent& event : events_)
      if (event.kind == CONTROL_SCROLLED) acts.push_back(event.rows);
    events_.clear();
    return acts;
  }
  void turn_wheel(int angle) {
    QWheelEvent event({20, 40}, view()->mapToGlobal(QPointF{20, 40}), {}, {0, angle}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(view()->viewport(), &event);
    settle();
  }
};

TEST_F(scrolling_table, keys_move_within_the_rows_and_then_beyond_them) {
  send_key(view(), Qt::Key_Up);
  EXPECT_EQ(scrolled(), std::vector<int>{-1});
  send_key(view(), Qt::Key_Down);
  EXPECT_EQ(dialog()[0].selected, 1);
  EXPECT_EQ(scrolled(), std::vector<int>{});
  for (int i = 0; i < 10; ++i) send_key(view(), Qt::Key_Down);
  EXPECT_EQ(dialog()[0].selected, 9);
  EXPECT_EQ(scrolled(), (std::vector<int>{1, 1}));
  send_key(view(), Qt::Key_PageDown);
  send_key(view(), Qt::Key_PageUp);
  EXPECT_EQ(scrolled(), (std::vector<int>{10, -10}));
}

TEST_F(scrolling_table, the_wheel_moves_three_rows_a_notch) {
  turn_wheel(-120);
  turn_wheel(120);
  EXPECT_EQ(scrolled(), (std::vector<int>{3, -3}));
}

TEST_F(scrolling_table, small_turns_of_the_wheel_add_up) {
  for (int i = 0; i < 4; ++i) turn_wheel(-15);
  EXPECT_EQ(scrolled(), std::vector<int>{1});
}

TEST_F(scrolling_table, the_bar_moves_the_rows_and_springs_back) {
  QScrollBar* bar = view()->verticalScrollBar();
  EXPECT_TRUE(bar->isVisible());
  bar->triggerAction(QAbstractSlider::SliderSingleStepAdd);
  bar->triggerAction(QAbstractSlider::SliderPageStepSub);
  EXPECT_EQ(scrolled(), (std::vector<int>{1, -10}));
  EXPECT_EQ(bar->value(), 0);
  bar->setSliderDown(true);
  for (const int place : {4, 7, 2})
    bar->setSliderPosition(place), bar->triggerAction(QAbstractSlider::SliderMove);
  EXPECT_EQ(scrolled(), (std::vector<int>{4, 3, -5}));
  bar->setSliderDown(false);
  EXPECT_EQ(bar->value(), 0);
  EXPECT_EQ(scrolled(), std::vector<int>{});
}

TEST_F(scrolling_table, other_rows_come_under_the_same_line) {
  then_ = [](TDialog& told, const TDialogEvent& event) {
    if (event.kind == CONTROL_SCROLLED) set_rows(told[0], rows(20), told[0].selected);
  };
  for (int i = 0; i < 4; ++i) send_key(view(), Qt::Key_Down);
  send_key(view(), Qt::Key_PageDown);
  EXPECT_EQ(view()->currentIndex().row(), 4);
  EXPECT_EQ(dialog()[0].selected, 4);
}

TEST_F(scrolling_table, a_table_that_has_all_its_rows_does_not_scroll) {
  open(of({table_control("", {{"n", 60}}, rows(10))}));
  send_key(view(), Qt::Key_Up);
  send_key(view(), Qt::Key_PageDown);
  turn_wheel(-120);
  EXPECT_EQ(scrolled(), std::vector<int>{});
  EXPECT_EQ(dialog()[0].selected, 9);
}

TEST_F(dialog_window, a_double_click_on_a_list_is_ok) {
  open(program_sample(12));
  Q_EMIT widget<QListView>(0)->doubleClicked(widget<QListView>(0)->currentIndex());
  EXPECT_TRUE(dialog().closed());
  EXPECT_EQ(dialog().result(), 0);
}

TEST_F(dialog_window, an_edit_takes_as_many_characters_as_it_may) {
  TDialog limited = of({edit_control("A:", "", 3), edit_control("B:", "", 5), edit_control("C:", "")});
  limited[1].lines = 3;
  open(std::move(limited));
  widget<QLineEdit>(0)->insert("abcdef");
  EXPECT_EQ(widget<QLineEdit>(0)->text(), "abc");
  widget<QPlainTextEdit>(1)->setPlainText("abcdefgh");
  EXPECT_EQ(dialog()[1].text, "abcde");
  EXPECT_EQ(widget<QPlainTextEdit>(1)->toPlainText(), "abcde");
  for (const QChar character : QString(10000, 'x')) {
    QKeyEvent event(QEvent::KeyPress, 0, Qt::NoModifier, QString(character));
    QCoreApplication::sendEvent(widget<QLineEdit>(2), &event);
  }
  EXPECT_EQ(dialog()[2].text.size(), 10000u);
}

TEST_F(dialog_window, a_picture_is_sharp_at_a_whole_multiple) {
  TSurface surface(8, 6);
  for (int y = 0; y < 6; ++y)
    for (int x = 0; x < 8; ++x) surface.set_pixel(x, y, rgb(x * 30, y * 40, (x + y) % 2 * 255));
  open(of({picture_control("", surface)}));
  const QImage shown = widget<QLabel>(0)->pixmap(Qt::ReturnByValue).toImage();
  ASSERT_EQ(shown.size(), QSize(16, 12));
  for (int y = 0; y < 12; ++y)
    for (int x = 0; x < 16; ++x) ASSERT_EQ(shown.pixel(x, y) & 0xffffffu, surface.pixel(x / 2, y / 2));
}

TEST_F(dialog_window, a_large_picture_leaves_half_of_the_screen_free) {
  open(of({picture_control("", TSurface(200, 213))}));
  const int height = widget<QLabel>(0)->pixmap(Qt::ReturnByValue).height();
  EXPECT_LE(height, window_->screen()->availableSize().height() / 2);
  EXPECT_EQ(height % 213, 0);
}

TEST_F(dialog_window, a_text_to_read_shows_as_a_whole) {
  QString text;
  for (int i = 0; i < 60; ++i) text += "words and more words ";
  TDialog long_text = of({text_control("Help:", text.toStdString(), 2)});
  open(std::move(long_text));
  const auto* area = widget<QPlainTextEdit>(0);
  EXPECT_GE(area->height(), 10 * area->fontMetrics().lineSpacing());
}

TEST_F(dialog_window, nothing_is_cut_off) {
  for (const auto& [name, make] : sample_dialogs()) {
    open(make());
    for (const QWidget* widget : window_->findChildren<QWidget*>()) {
      if (!widget->isVisible() || widget->isWindow() || widget->inherits("QAbstractScrollArea")) continue;
      const bool is_plain =
          qobject_cast<const QLabel*>(widget) || qobject_cast<const QAbstractButton*>(widget);
      if (!is_plain || widget->parentWidget()->inherits("QLineEdit")) continue;
      EXPECT_GE(widget->width(), widget->minimumSizeHint().width())
          << name << " " << widget->metaObject()->className();
      EXPECT_GE(widget->height(), widget->minimumSizeHint().height()) << name;
    }
  }
}
