// Tells a screen reader what has changed: what was typed, a new result or error, another mode, other keys.
#pragma once

#include <functional>
#include <string>
#include <vector>

class QAccessibleEvent;
class QAccessibleInterface;

namespace zephyl {

class TCalculatorWindow;

class TAnnouncer {
 public:
  explicit TAnnouncer(TCalculatorWindow& window) : window_(window) {}

  // Somebody else hears what screen readers would, whether there is one or not; empty for nobody.
  void speak_to(std::function<void(QAccessibleEvent&)> listener) { listener_ = std::move(listener); }

  // Looks at the display and tells what is new since the last look. Costs nothing while no screen reader is
  // there.
  void look();
  // The ring has moved, or has gone.
  void focus_moved();

 private:
  bool has_listeners() const;
  void tell(QAccessibleEvent& event);
  void tell(QAccessibleInterface* part, int what);
  void tell_mark(QAccessibleInterface* key);
  void tell_entry();
  void tell_result();
  void tell_mode();
  void tell_keys();

  TCalculatorWindow& window_;
  std::function<void(QAccessibleEvent&)> listener_;
  bool looked_ = false;
  std::string entry_;
  int cursor_ = 0;
  std::string result_;
  std::string mode_;
  std::vector<int> keys_;
  std::vector<std::string> key_names_;
  std::vector<int> key_marks_;
};

}  // namespace zephyl
