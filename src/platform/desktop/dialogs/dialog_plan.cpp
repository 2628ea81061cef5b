#include "platform/desktop/dialogs/dialog_plan.h"

#include <algorithm>
#include <cstddef>

#include "platform/dialog.h"

namespace zephyl {

namespace {

using TLine = std::vector<int>;

constexpr std::size_t SHORTEST_COLUMN = 3;

std::vector<TLine> lines_of(const TDialog& dialog) {
  std::vector<TLine> lines;
  for (int i = 0; i < dialog.count(); ++i) {
    if (!dialog[i].beside || lines.empty()) lines.emplace_back();
    lines.back().push_back(i);
  }
  return lines;
}

bool all_buttons(const TDialog& dialog, const TLine& line) {
  return std::all_of(line.begin(), line.end(), [&](int i) { return dialog[i].kind == CONTROL_BUTTON; });
}

bool closes(const TDialog& dialog, const TLine& line) {
  return std::any_of(line.begin(), line.end(), [&](int i) { return dialog[i].role != BUTTON_PLAIN; });
}

// The first of the lines that make the bottom row.
std::size_t bottom_line(const TDialog& dialog, const std::vector<TLine>& lines) {
  std::size_t first = lines.size();
  for (std::size_t i = lines.size(); i > 0 && all_buttons(dialog, lines[i - 1]); --i)
    if (closes(dialog, lines[i - 1])) first = i - 1;
  return first;
}

// Moves the controls of the last lines, from line `first` on, into one row.
TLine take_lines(std::vector<TLine>& lines, std::size_t first) {
  TLine row;
  for (std::size_t i = first; i < lines.size(); ++i) row.insert(row.end(), lines[i].begin(), lines[i].end());
  lines.resize(first);
  return row;
}

// The first of the last lines that are a button each.
std::size_t single_buttons(const TDialog& dialog, const std::vector<TLine>& lines) {
  std::size_t first = lines.size();
  while (first > 0 && lines[first - 1].size() == 1 && all_buttons(dialog, lines[first - 1])) --first;
  return first;
}

// One button by itself goes with those that close; many make a column.
void place_single_buttons(const TDialog& dialog, TDialogPlan& plan) {
  const std::size_t first = single_buttons(dialog, plan.lines);
  const std::size_t count = plan.lines.size() - first;
  if (count >= SHORTEST_COLUMN) plan.column = take_lines(plan.lines, first);
  if (count != 1 || first == 0 || plan.bottom.empty()) return;
  const TLine single = take_lines(plan.lines, first);
  plan.bottom.insert(plan.bottom.begin(), single.begin(), single.end());
}

bool can_have_caption(TControlKind kind) {
  switch (kind) {
    case CONTROL_LABEL:
    case CONTROL_CHECK:
    case CONTROL_RADIO:
    case CONTROL_BUTTON:
      return false;
    default:
      return true;
  }
}

}  // namespace

TDialogPlan plan_of(const TDialog& dialog) {
  TDialogPlan plan;
  plan.lines = lines_of(dialog);
  plan.bottom = take_lines(plan.lines, bottom_line(dialog, plan.lines));
  place_single_buttons(dialog, plan);
  return plan;
}

bool is_tall(const TControl& control) {
  switch (control.kind) {
    case CONTROL_LIST:
    case CONTROL_TABLE:
    case CONTROL_PICTURE:
      return true;
    case CONTROL_TEXT:
    case CONTROL_EDIT:
      return control.lines > 1;
    default:
      return false;
  }
}

bool leads_to_next(const TDialog& dialog, int control) {
  if (dialog[control].kind != CONTROL_LABEL || control + 1 >= dialog.count()) return false;
  return dialog[control + 1].label.empty() && can_have_caption(dialog[control + 1].kind);
}

bool has_caption(const TControl& control) { return !control.label.empty() && can_have_caption(control.kind); }

}  // namespace zephyl
