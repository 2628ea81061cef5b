// The window as a screen reader meets it, and the ring that the keyboard moves over the keys.

#include "platform/desktop/accessible/calculator_accessible.h"

#include <QAccessible>
#include <QCoreApplication>
#include <QKeyEvent>
#include <algorithm>
#include <set>

#include "engine/state.h"
#include "faceplate/alpha_entry.h"
#include "faceplate/key_names.h"
#include "faceplate/key_tables.h"
#include "platform/desktop/accessible/shown_keys.h"
#include "platform_desktop/desktop.h"

using namespace zephyl;

namespace {

struct TTold {
  QAccessible::Event kind;
  QString name;
};
std::vector<TTold> told;

void hear(QAccessibleEvent& event) {
  QAccessibleInterface* part = event.accessibleInterface();
  told.push_back({event.type(), part ? part->text(QAccessible::Name) : QString()});
}

class desktop_accessible : public desktop {
 protected:
  desktop_accessible() {
    platform_->announcer().speak_to(hear);
    told.clear();
    settle();
    type("1");
    press(Qt::Key_Escape);
  }

  QAccessibleInterface* whole() { return QAccessible::queryAccessibleInterface(&window()); }
  QAccessibleInterface* part(TDisplayPart part) { return accessible_display(window(), part); }
  QAccessibleInterface* key(int number) { return accessible_key(window(), number); }
  QString name_of(TDisplayPart display) { return part(display)->text(QAccessible::Name); }
  // From now on.
  void listen() { told.clear(); }
  bool heard(QAccessible::Event kind, const QString& name) {
    return std::any_of(told.begin(), told.end(),
                       [&](const TTold& one) { return one.kind == kind && one.name == name; });
  }
  void press_and_release(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
      QKeyEvent event(type, key, modifiers);
      QCoreApplication::sendEvent(&window(), &event);
    }
    settle();
  }
};

}  // namespace

TEST_F(desktop_accessible, the_window_holds_the_texts_and_a_button_for_each_key) {
  EXPECT_EQ(whole()->childCount(), DISPLAY_PART_COUNT + 52);
  std::set<QString> names;
  for (int i = DISPLAY_PART_COUNT; i < whole()->childCount(); ++i) {
    QAccessibleInterface* child = whole()->child(i);
    EXPECT_TRUE(names.insert(child->text(QAccessible::Name)).second);
    EXPECT_EQ(child->parent(), whole());
    EXPECT_EQ(whole()->indexOfChild(child), i);
    EXPECT_TRUE(child->actionInterface());
  }
  EXPECT_EQ(names.count(""), 0u);
  EXPECT_EQ(whole()->child(-1), nullptr);
  EXPECT_EQ(whole()->child(whole()->childCount()), nullptr);
}

TEST_F(desktop_accessible, keys_say_their_name_and_what_the_shifts_make_of_them) {
  EXPECT_EQ(key(5)->text(QAccessible::Name), "Sine");
  EXPECT_EQ(key(5)->text(QAccessible::Description), "Blue: inverse sine.");
  EXPECT_EQ(key(5)->role(), QAccessible::Button);
  EXPECT_EQ(key(1)->role(), QAccessible::CheckBox);
  EXPECT_FALSE(key(1)->state().checked);
  tap_key(1);
  EXPECT_TRUE(key(1)->state().checked);
}

TEST_F(desktop_accessible, keys_lie_where_they_are_drawn) {
  window().choose_zoom(2);
  settle();
  const QPoint corner = window().mapToGlobal(QPoint(0, 0));
  EXPECT_EQ(key(23)->rect(), QRect(3 * 2, 192 * 2, 43 * 2, 22 * 2).translated(corner));
  EXPECT_EQ(whole()->childAt(corner.x() + 20, corner.y() + 400), key(23));
  EXPECT_EQ(whole()->childAt(corner.x() + 20, corner.y() + 20), part(DISPLAY_ENTRY));
}

TEST_F(desktop_accessible, a_key_can_be_pressed) {
  for (const int number : {34, 36, 35, 42})
    key(number)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  settle();
  EXPECT_EQ(copied(), "5");
}

TEST_F(desktop_accessible, every_key_that_shows_can_be_pressed) {
  for (const int mode : {COMP_MODE, BASE_MODE, STATS_MODE, PROGRAM_EDIT_MODE, PERIODIC_MODE, PLOT_MODE,
                         MATRIX_MODE, LIST_MODE}) {
    state.calcMode = mode;
    for (const int number : shown_keys()) {
      TPoint at;
      EXPECT_TRUE(point_of_key(number, at)) << mode << " " << number;
    }
  }
  state.calcMode = COMP_MODE;
}

TEST_F(desktop_accessible, the_display_is_text) {
  type("2+3");
  EXPECT_EQ(part(DISPLAY_ENTRY)->text(QAccessible::Value), "2+3");
  EXPECT_EQ(part(DISPLAY_ENTRY)->textInterface()->cursorPosition(), 3);
  EXPECT_EQ(part(DISPLAY_ENTRY)->textInterface()->text(1, 3), "+3");
  EXPECT_EQ(part(DISPLAY_ENTRY)->textInterface()->characterCount(), 3);
  EXPECT_EQ(name_of(DISPLAY_ENTRY), "Entry line");
  press(Qt::Key_Return);
  EXPECT_EQ(name_of(DISPLAY_RESULT), "Result: 5");
  EXPECT_EQ(name_of(DISPLAY_MODE), "Mode: COMP, radians");
}

TEST_F(desktop_accessible, a_result_is_announced) {
  type("2+3");
  listen();
  press(Qt::Key_Return);
  EXPECT_TRUE(heard(QAccessible::NameChanged, "Result: 5"));
  EXPECT_TRUE(heard(QAccessible::Alert, "Result: 5"));
}

TEST_F(desktop_accessible, an_error_is_announced) {
  type("1/0");
  listen();
  press(Qt::Key_Return);
  EXPECT_TRUE(heard(QAccessible::Alert, "Error: Division by Zero"));
}

TEST_F(desktop_accessible, what_is_typed_is_told) {
  listen();
  type("7");
  EXPECT_TRUE(heard(QAccessible::TextUpdated, "Entry line") ||
              heard(QAccessible::TextInserted, "Entry line"));
  EXPECT_TRUE(heard(QAccessible::TextCaretMoved, "Entry line"));
  told.clear();
  press(Qt::Key_Left);
  EXPECT_TRUE(heard(QAccessible::TextCaretMoved, "Entry line"));
  EXPECT_FALSE(heard(QAccessible::TextUpdated, "Entry line"));
}

TEST_F(desktop_accessible, keys_that_show_a_state_tell_of_its_change) {
  listen();
  tap_key(16);
  EXPECT_TRUE(heard(QAccessible::NameChanged, "Angle unit: grads"));
  EXPECT_TRUE(heard(QAccessible::Alert, "Mode: COMP, grads"));
  told.clear();
  tap_key(1);
  EXPECT_TRUE(heard(QAccessible::StateChanged, "Blue shift"));
}

TEST_F(desktop_accessible, another_screen_has_other_keys) {
  start_alpha_entry(ALPHA_STRING);
  listen();
  platform_->invalidate(false);
  settle();
  EXPECT_EQ(whole()->childCount(), DISPLAY_PART_COUNT + 42);
  EXPECT_EQ(key(10)->text(QAccessible::Name), "q");
  EXPECT_EQ(name_of(DISPLAY_ENTRY), "String text");
  EXPECT_TRUE(std::any_of(told.begin(), told.end(),
                          [](const TTold& one) { return one.kind == QAccessible::ObjectReorder; }));
}

TEST_F(desktop_accessible, the_focus_is_on_the_entry_line_or_the_ringed_key) {
  window().activateWindow();
  window().setFocus();
  settle();
  ASSERT_TRUE(window().hasFocus());
  EXPECT_EQ(whole()->focusChild(), part(DISPLAY_ENTRY));
  listen();
  key(23)->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
  EXPECT_EQ(window().ring_key(), 23);
  EXPECT_EQ(whole()->focusChild(), key(23));
  EXPECT_TRUE(key(23)->state().focused);
  EXPECT_TRUE(heard(QAccessible::Focus, "7"));
  told.clear();
  type("1");
  EXPECT_EQ(window().ring_key(), -1);
  EXPECT_TRUE(heard(QAccessible::Focus, "Entry line"));
}

// The ring.

TEST_F(desktop, tab_goes_from_key_to_key_line_by_line) {
  std::vector<int> way;
  for (int i = 0; i < 52; ++i) {
    press(Qt::Key_Tab);
    way.push_back(window().ring_key());
  }
  EXPECT_EQ(std::vector<int>(way.begin(), way.begin() + 10),
            (std::vector<int>{50, 51, 43, 44, 45, 46, 47, 48, 49, 0}));
  EXPECT_EQ(way.back(), 42);
  EXPECT_EQ(std::set<int>(way.begin(), way.end()).size(), 52u);
  press(Qt::Key_Tab);
  EXPECT_EQ(window().ring_key(), 50);
  press(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(window().ring_key(), 42);
}

TEST_F(desktop, ctrl_and_an_arrow_go_in_its_direction) {
  window().show_ring(29);
  const struct {
    int arrow, key;
  } steps[] = {{Qt::Key_Up, 24},   {Qt::Key_Right, 25}, {Qt::Key_Down, 30},
               {Qt::Key_Left, 29}, {Qt::Key_Left, 28},  {Qt::Key_Left, 28}};
  for (const auto& [arrow, key] : steps) {
    press(arrow, Qt::ControlModifier);
    EXPECT_EQ(window().ring_key(), key);
  }
}

TEST_F(desktop, arrows_reach_every_key_of_every_screen) {
  for (const int mode : {COMP_MODE, PROGRAM_EDIT_MODE, PERIODIC_MODE, PLOT_MODE, MATRIX_MODE, LIST_MODE}) {
    state.calcMode = mode;
    const std::vector<int> keys = shown_keys();
    std::set<int> reached = {keys[0]};
    for (std::vector<int> ways = {keys[0]}; !ways.empty();) {
      const int from = ways.back();
      ways.pop_back();
      for (const auto& [dx, dy] : {std::pair(1, 0), std::pair(-1, 0), std::pair(0, 1), std::pair(0, -1)})
        if (reached.insert(key_towards(from, dx, dy)).second) ways.push_back(key_towards(from, dx, dy));
    }
    for (const int key : keys) EXPECT_EQ(reached.count(key), 1u) << mode << " " << key;
  }
  state.calcMode = COMP_MODE;
}

TEST_F(desktop_accessible, space_and_enter_press_the_ringed_key) {
  window().show_ring(34);
  press_and_release(Qt::Key_Space);
  EXPECT_EQ(entry(), "2");
  press_and_release(Qt::Key_Return);
  EXPECT_EQ(entry(), "22");
  EXPECT_EQ(window().ring_key(), 34);
}

TEST_F(desktop, a_key_held_by_the_keyboard_is_pressed_once_and_looks_pressed) {
  const QImage before = window().enlarged_picture(window().size());
  window().show_ring(34);
  QKeyEvent down(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier);
  QCoreApplication::sendEvent(&window(), &down);
  settle();
  const QImage held = window().enlarged_picture(window().size());
  QKeyEvent again(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, " ", true);
  QCoreApplication::sendEvent(&window(), &again);
  QKeyEvent up(QEvent::KeyRelease, Qt::Key_Space, Qt::NoModifier);
  QCoreApplication::sendEvent(&window(), &up);
  settle();
  EXPECT_EQ(entry(), "2");
  EXPECT_TRUE(held != before);
  EXPECT_TRUE(held != window().enlarged_picture(window().size()));
}

TEST_F(desktop, typing_goes_on_as_without_the_ring) {
  window().show_ring(34);
  type("4");
  EXPECT_EQ(window().ring_key(), -1);
  type("+5");
  press(Qt::Key_Return);
  EXPECT_EQ(copied(), "9");
  press(Qt::Key_Tab);
  EXPECT_EQ(window().ring_key(), 34);
}

TEST_F(desktop, escape_and_the_pen_send_the_ring_away) {
  type("4");
  window().show_ring(34);
  press(Qt::Key_Escape);
  EXPECT_EQ(window().ring_key(), -1);
  EXPECT_EQ(entry(), "4");
  window().show_ring(34);
  tap({120, 50});
  EXPECT_EQ(window().ring_key(), -1);
}

TEST_F(desktop, the_ring_finds_its_place_on_another_screen) {
  window().show_ring(45);
  state.calcMode = PLOT_MODE;
  const int key = window().ring_key();
  EXPECT_FALSE(key_name(key).empty());
  state.calcMode = COMP_MODE;
  EXPECT_EQ(window().ring_key(), 45);
}

TEST_F(desktop, the_ring_is_no_part_of_the_picture) {
  const QImage before = window().enlarged_picture(window().size());
  const QImage grabbed_before = window().grab().toImage();
  window().show_ring(34);
  EXPECT_TRUE(window().enlarged_picture(window().size()) == before);
  EXPECT_TRUE(window().grab().toImage() != grabbed_before);
}
