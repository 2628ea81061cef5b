#include "platform/desktop/accessible/announcer.h"

#include <QAccessible>
#include <QString>
#include <utility>

#include "faceplate/key_names.h"
#include "faceplate/screen_text.h"
#include "platform/desktop/accessible/calculator_accessible.h"
#include "platform/desktop/accessible/shown_keys.h"
#include "platform/desktop/calculator_window.h"

namespace zephyl {

void TAnnouncer::tell(QAccessibleEvent& event) {
  if (listener_)
    listener_(event);
  else
    QAccessible::updateAccessibility(&event);
}

void TAnnouncer::tell(QAccessibleInterface* part, int what) {
  if (!part) return;
  QAccessibleEvent event(part, static_cast<QAccessible::Event>(what));
  tell(event);
}

void TAnnouncer::tell_mark(QAccessibleInterface* key) {
  if (!key) return;
  QAccessible::State changed;
  changed.checked = true;
  QAccessibleStateChangeEvent event(key, changed);
  tell(event);
}

bool TAnnouncer::has_listeners() const { return listener_ || QAccessible::isActive(); }

void TAnnouncer::look() {
  if (!has_listeners()) return;
  tell_keys();
  tell_entry();
  tell_mode();
  tell_result();
  looked_ = true;
}

void TAnnouncer::focus_moved() {
  if (!has_listeners()) return;
  const int key = window_.ring_key();
  tell(key >= 0 ? accessible_key(window_, key) : accessible_display(window_, DISPLAY_ENTRY),
       QAccessible::Focus);
}

void TAnnouncer::tell_entry() {
  const std::string old = std::exchange(entry_, shown_entry());
  const int old_cursor = std::exchange(cursor_, shown_entry_cursor());
  QAccessibleInterface* part = accessible_display(window_, DISPLAY_ENTRY);
  if (!looked_ || !part) return;
  if (old != entry_) {
    QAccessibleTextUpdateEvent event(part, 0, QString::fromStdString(old), QString::fromStdString(entry_));
    tell(event);
  }
  if (old == entry_ && old_cursor == cursor_) return;
  QAccessibleTextCursorEvent event(part, part->textInterface()->cursorPosition());
  tell(event);
}

void TAnnouncer::tell_result() {
  const std::string old = std::exchange(result_, shown_result());
  if (!looked_ || old == result_) return;
  QAccessibleInterface* part = accessible_display(window_, DISPLAY_RESULT);
  tell(part, QAccessible::NameChanged);
  if (!result_.empty()) tell(part, QAccessible::Alert);
}

void TAnnouncer::tell_mode() {
  const std::string old = std::exchange(mode_, shown_mode());
  if (!looked_ || old == mode_) return;
  QAccessibleInterface* part = accessible_display(window_, DISPLAY_MODE);
  tell(part, QAccessible::NameChanged);
  tell(part, QAccessible::Alert);
}

// Where a key goes or comes all of them are made anew; else their names and marks are looked at.
void TAnnouncer::tell_keys() {
  const std::vector<int> old_keys = std::exchange(keys_, shown_keys());
  const std::vector<std::string> old_names = std::exchange(key_names_, {});
  const std::vector<int> old_marks = std::exchange(key_marks_, {});
  for (const int key : keys_) {
    key_names_.push_back(key_name(key));
    key_marks_.push_back(key_mark(key));
  }
  if (keys_ != old_keys) {
    renew_accessible_keys(window_);
    QAccessibleEvent event(&window_, QAccessible::ObjectReorder);
    if (looked_) tell(event);
    return;
  }
  for (std::size_t i = 0; i < keys_.size(); ++i) {
    if (key_names_[i] != old_names[i]) tell(accessible_key(window_, keys_[i]), QAccessible::NameChanged);
    if (key_marks_[i] != old_marks[i]) tell_mark(accessible_key(window_, keys_[i]));
  }
}

}  // namespace zephyl
