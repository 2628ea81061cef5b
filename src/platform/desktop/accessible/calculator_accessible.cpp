#include "platform/desktop/accessible/calculator_accessible.h"

#include <QAccessibleWidget>
#include <algorithm>
#include <vector>

#include "faceplate/key_names.h"
#include "faceplate/screen_text.h"
#include "platform/desktop/accessible/shown_keys.h"
#include "platform/desktop/calculator_window.h"
#include "platform/events.h"

namespace zephyl {

namespace {

// What all parts of the window have in common: a place in the picture, and no children.
class TPart : public QAccessibleInterface {
 public:
  explicit TPart(TCalculatorWindow& window) : window_(window) {}

  bool isValid() const override { return true; }
  QObject* object() const override { return nullptr; }
  QWindow* window() const override { return window_.windowHandle(); }
  QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(&window_); }
  QAccessibleInterface* child(int) const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }
  void setText(QAccessible::Text, const QString&) override {}
  QRect rect() const override { return window_.place_on_screen(picture_rect()); }

 protected:
  virtual TRect picture_rect() const = 0;

  TCalculatorWindow& window_;
};

class TKeyPart : public TPart, public QAccessibleActionInterface {
 public:
  TKeyPart(TCalculatorWindow& window, int key) : TPart(window), key_(key) {}
  int key() const { return key_; }

  QAccessible::Role role() const override {
    return key_mark(key_) == KEY_WITHOUT_MARK ? QAccessible::Button : QAccessible::CheckBox;
  }
  QString text(QAccessible::Text kind) const override {
    if (kind == QAccessible::Name) return QString::fromStdString(key_name(key_));
    if (kind == QAccessible::Description) return QString::fromStdString(key_shift_names(key_));
    return {};
  }
  QAccessible::State state() const override {
    QAccessible::State state;
    state.focusable = true;
    state.focused = window_.hasFocus() && window_.ring_key() == key_;
    state.checkable = key_mark(key_) != KEY_WITHOUT_MARK;
    state.checked = key_mark(key_) == KEY_ON;
    return state;
  }
  void* interface_cast(QAccessible::InterfaceType type) override {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
  }

  QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }
  void doAction(const QString& name) override {
    if (name == pressAction()) window_.press_key(key_);
    if (name == setFocusAction()) window_.show_ring(key_);
  }
  QStringList keyBindingsForAction(const QString&) const override { return {}; }

 protected:
  TRect picture_rect() const override { return rect_of_key(key_); }

 private:
  int key_;
};

// A text of the display, which can be read letter by letter.
class TDisplayText : public TPart, public QAccessibleTextInterface {
 public:
  TDisplayText(TCalculatorWindow& window, TDisplayPart part) : TPart(window), part_(part) {}

  QString content() const {
    if (part_ == DISPLAY_ENTRY) return QString::fromStdString(shown_entry());
    return QString::fromStdString(part_ == DISPLAY_RESULT ? shown_result() : shown_mode());
  }

  QAccessible::Role role() const override {
    return part_ == DISPLAY_ENTRY ? QAccessible::EditableText : QAccessible::StaticText;
  }
  QString text(QAccessible::Text kind) const override {
    if (kind == QAccessible::Value) return content();
    if (kind != QAccessible::Name) return {};
    if (part_ == DISPLAY_ENTRY) return QString::fromStdString(shown_entry_name());
    return heading() + ": " + content();
  }
  QAccessible::State state() const override {
    QAccessible::State state;
    state.readOnly = part_ != DISPLAY_ENTRY;
    state.focusable = part_ == DISPLAY_ENTRY;
    state.focused = part_ == DISPLAY_ENTRY && window_.hasFocus() && window_.ring_key() < 0;
    return state;
  }
  void* interface_cast(QAccessible::InterfaceType type) override {
    return type == QAccessible::TextInterface ? static_cast<QAccessibleTextInterface*>(this) : nullptr;
  }

  void selection(int, int* start, int* end) const override { *start = *end = 0; }
  int selectionCount() const override { return 0; }
  void addSelection(int, int) override {}
  void removeSelection(int) override {}
  void setSelection(int, int, int) override {}
  int cursorPosition() const override {
    if (part_ != DISPLAY_ENTRY) return 0;
    const std::string front = shown_entry().substr(0, static_cast<std::size_t>(shown_entry_cursor()));
    return static_cast<int>(QString::fromStdString(front).size());
  }
  void setCursorPosition(int) override {}
  QString text(int start, int end) const override { return content().mid(start, end - start); }
  int characterCount() const override { return static_cast<int>(content().size()); }
  QRect characterRect(int) const override { return rect(); }
  int offsetAtPoint(const QPoint&) const override { return -1; }
  void scrollToSubstring(int, int) override {}
  QString attributes(int, int* start, int* end) const override {
    *start = 0;
    *end = characterCount();
    return {};
  }

 protected:
  TRect picture_rect() const override {
    constexpr TRect lines[DISPLAY_PART_COUNT] = {{7, 6, 233, 26}, {7, 27, 233, 47}, {4, 54, 235, 66}};
    return lines[part_];
  }

 private:
  QString heading() const {
    if (part_ == DISPLAY_MODE) return "Mode";
    return shows_error() ? "Error" : "Result";
  }

  TDisplayPart part_;
};

class TCalculatorAccessible : public QAccessibleWidget {
 public:
  explicit TCalculatorAccessible(TCalculatorWindow* window)
      : QAccessibleWidget(window, QAccessible::Window), window_(*window) {
    for (int part = 0; part < DISPLAY_PART_COUNT; ++part)
      add(new TDisplayText(window_, static_cast<TDisplayPart>(part)));
    add_keys();
  }
  ~TCalculatorAccessible() override { remove_parts(0); }

  void renew_keys() {
    remove_parts(DISPLAY_PART_COUNT);
    add_keys();
  }
  QAccessibleInterface* key(int number) const {
    const auto found = std::find(keys_.begin(), keys_.end(), number);
    return found == keys_.end() ? nullptr
                                : child(DISPLAY_PART_COUNT + static_cast<int>(found - keys_.begin()));
  }

  int childCount() const override { return static_cast<int>(parts_.size()); }
  QAccessibleInterface* child(int index) const override {
    const bool there = index >= 0 && index < childCount();
    return there ? QAccessible::accessibleInterface(parts_[static_cast<std::size_t>(index)]) : nullptr;
  }
  int indexOfChild(const QAccessibleInterface* part) const override {
    for (int i = 0; i < childCount(); ++i)
      if (child(i) == part) return i;
    return -1;
  }
  QAccessibleInterface* childAt(int x, int y) const override {
    for (int i = 0; i < childCount(); ++i)
      if (child(i)->rect().contains(x, y)) return child(i);
    return nullptr;
  }
  QAccessibleInterface* focusChild() const override {
    if (!window_.hasFocus()) return nullptr;
    QAccessibleInterface* ringed = key(window_.ring_key());
    return ringed ? ringed : child(DISPLAY_ENTRY);
  }

 private:
  void add(QAccessibleInterface* part) { parts_.push_back(QAccessible::registerAccessibleInterface(part)); }
  void add_keys() {
    keys_ = shown_keys();
    for (const int number : keys_) add(new TKeyPart(window_, number));
  }
  void remove_parts(std::size_t first) {
    for (std::size_t i = first; i < parts_.size(); ++i) QAccessible::deleteAccessibleInterface(parts_[i]);
    parts_.resize(first);
    keys_.clear();
  }

  TCalculatorWindow& window_;
  std::vector<QAccessible::Id> parts_;
  std::vector<int> keys_;  // of the parts behind the texts
};

QAccessibleInterface* make_interface(const QString&, QObject* object) {
  auto* window = dynamic_cast<TCalculatorWindow*>(object);
  return window ? new TCalculatorAccessible(window) : nullptr;
}

TCalculatorAccessible* interface_of(TCalculatorWindow& window) {
  return dynamic_cast<TCalculatorAccessible*>(QAccessible::queryAccessibleInterface(&window));
}

}  // namespace

void offer_calculator_to_screen_readers() {
  static bool offered = false;
  if (!offered) QAccessible::installFactory(make_interface);
  offered = true;
}

QAccessibleInterface* accessible_display(TCalculatorWindow& window, TDisplayPart part) {
  const TCalculatorAccessible* whole = interface_of(window);
  return whole ? whole->child(part) : nullptr;
}

QAccessibleInterface* accessible_key(TCalculatorWindow& window, int key) {
  const TCalculatorAccessible* whole = interface_of(window);
  return whole ? whole->key(key) : nullptr;
}

void renew_accessible_keys(TCalculatorWindow& window) {
  if (TCalculatorAccessible* whole = interface_of(window)) whole->renew_keys();
}

}  // namespace zephyl
