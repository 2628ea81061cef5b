#include "platform/console/dialog_talk.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "platform/dialog.h"

namespace zephyl {

namespace {

constexpr std::size_t MOST_ROWS = 60;  // longer lists aren't printed

bool has_rows(const TControl& control) {
  return control.kind == CONTROL_COMBO || control.kind == CONTROL_LIST || control.kind == CONTROL_TABLE;
}

bool can_be_worked(const TControl& control) {
  const bool only_shows =
      control.kind == CONTROL_LABEL || control.kind == CONTROL_TEXT || control.kind == CONTROL_PICTURE;
  return control.visible && control.enabled && !only_shows;
}

std::string face_of(const TControl& control) {
  switch (control.kind) {
    case CONTROL_CHECK:
      return (control.checked ? "[x] " : "[ ] ") + control.label;
    case CONTROL_RADIO:
      return (control.checked ? "(x) " : "( ) ") + control.label;
    case CONTROL_BUTTON:
      return "<" + control.label + ">";
    case CONTROL_SLIDER:
      return control.label + " " + std::to_string(control.value);
    case CONTROL_COMBO:
    case CONTROL_LIST:
    case CONTROL_TABLE:
      return control.label + " " + selected_text(control);
    case CONTROL_PICTURE:
      return "";
    default:
      return control.label + (control.label.empty() || control.text.empty() ? "" : " ") + control.text;
  }
}

// Prints the dialog; the numbers on it count the controls in `workable`, from 1.
std::vector<int> print_dialog(const TDialog& dialog) {
  std::vector<int> workable;
  std::printf("%s\n", dialog.title.c_str());
  for (int i = 0; i < dialog.count(); ++i) {
    const std::string face = face_of(dialog[i]);
    if (!dialog[i].visible || face.empty()) continue;
    if (can_be_worked(dialog[i])) {
      workable.push_back(i);
      std::printf("%4d  %s\n", static_cast<int>(workable.size()), face.c_str());
    } else {
      std::printf("      %s\n", face.c_str());
    }
  }
  return workable;
}

// A number from 1 to count, as an index; -1 for anything else.
int index_of(const std::string& line, std::size_t count) {
  const long number = std::strtol(line.c_str(), nullptr, 10);
  return number >= 1 && number <= static_cast<long>(count) ? static_cast<int>(number - 1) : -1;
}

void print_rows(const TControl& control) {
  for (std::size_t i = 0; i < control.rows.size() && control.rows.size() <= MOST_ROWS; ++i)
    std::printf("%4d  %s\n", static_cast<int>(i + 1), control.rows[i].c_str());
}

// "+3" or "-3" rows; 0 for anything else.
int rows_to_scroll(const std::string& line) {
  constexpr long farthest = 1000000;
  const bool is_way = !line.empty() && (line[0] == '+' || line[0] == '-');
  return is_way ? static_cast<int>(std::clamp(std::strtol(line.c_str(), nullptr, 10), -farthest, farthest)) : 0;
}

bool work_rows(TDialog& dialog, int control, const TAsk& ask) {
  const std::size_t count = dialog[control].rows.size();
  print_rows(dialog[control]);
  std::string line;
  const std::string scrolling = dialog[control].scrolls ? ", +ROWS or -ROWS to scroll" : "";
  if (!ask("row 1 to " + std::to_string(count) + scrolling + ": ", line)) return false;
  if (!dialog[control].scrolls || rows_to_scroll(line) == 0)
    choose_row(dialog, control, index_of(line, count));
  else
    scroll_rows(dialog, control, rows_to_scroll(line));
  return true;
}

bool work_text(TDialog& dialog, int control, const TAsk& ask) {
  std::string line;
  if (!ask(dialog[control].label + " ", line)) return false;
  if (dialog[control].kind == CONTROL_EDIT)
    set_text(dialog, control, line);
  else
    set_value(dialog, control, std::atoi(line.c_str()));
  return true;
}

// False when there is nobody to ask.
bool work(TDialog& dialog, int control, const TAsk& ask) {
  const TControlKind kind = dialog[control].kind;
  if (has_rows(dialog[control])) return work_rows(dialog, control, ask);
  if (kind == CONTROL_EDIT || kind == CONTROL_SLIDER) return work_text(dialog, control, ask);
  if (kind == CONTROL_BUTTON)
    press_button(dialog, control);
  else
    set_checked(dialog, control, kind == CONTROL_RADIO || !dialog[control].checked);
  return true;
}

bool talk_once(TDialog& dialog, const TAsk& ask) {
  const std::vector<int> workable = print_dialog(dialog);
  std::string line;
  if (!ask("number, Enter or cancel: ", line) || line == "cancel") return false;
  if (line.empty()) return accept_dialog(dialog);
  const int choice = index_of(line, workable.size());
  return choice < 0 || work(dialog, workable[static_cast<std::size_t>(choice)], ask);
}

}  // namespace

void talk_through(TDialog& dialog, const TAsk& ask) {
  while (!dialog.closed() && talk_once(dialog, ask)) {
  }
  cancel_dialog(dialog);
}

}  // namespace zephyl
