// Where the controls of a dialog stand, before any widget is made: lines of the body, a column of buttons
// beside it, and the row at the bottom.
#pragma once

#include <vector>

namespace zephyl {

class TDialog;
struct TControl;

struct TDialogPlan {
  // Each line is one control, or several from left to right.
  std::vector<std::vector<int>> lines;
  // Buttons below one another at the end of the body: three or more.
  std::vector<int> column;
  // The row at the bottom: from the line that closes the dialog on, and a single button above it.
  std::vector<int> bottom;
};

TDialogPlan plan_of(const TDialog& dialog);

// Fills lines of text, and has its caption above it: a list, a table, a text or edit of several lines, a
// picture.
bool is_tall(const TControl& control);
// Its label stands beside or above it, not on it.
bool has_caption(const TControl& control);
// A label that speaks for the control behind it, which has none of its own.
bool leads_to_next(const TDialog& dialog, int control);

}  // namespace zephyl
