// Puts the widgets of a dialog's controls in their places.
#pragma once

#include <memory>
#include <vector>

#include "platform/desktop/dialogs/control_widget.h"

namespace zephyl {

using TControlWidgets = std::vector<std::unique_ptr<TControlWidget>>;

struct TLaidOut {
  // Can use more height than it needs: a list, a table, a text of several lines.
  bool can_grow = false;
  // What the keyboard reaches, as it goes from one to the next.
  std::vector<QWidget*> tab_stops;
};

// widgets: one for each control, children of `parent`, which gets a layout.
TLaidOut lay_out(const TDialog& dialog, const TControlWidgets& widgets, QWidget* parent);

}  // namespace zephyl
