// Commands that work the dialog in front.

#include <cstdint>
#include <optional>

#include "platform/dialog.h"
#include "platform/script/arguments.h"
#include "platform/script/commands.h"
#include "platform/script/dialog_text.h"
#include "platform/script/script.h"

namespace zephyl {

namespace {

// The dialog, the control that a command names, and what stands behind the name.
struct TTarget {
  TDialog& dialog;
  int index;
  TControl& control;
  std::string rest;
};

using TAct = bool (*)(TScript& script, const TTarget& target);

// Refuses what there is no control for, or none that can be used.
std::optional<int> usable_control(TScript& script, const TDialog& dialog, const std::string& name) {
  const int index = find_control(dialog, name);
  if (index < 0)
    script.refuse("the dialog has no control " + name);
  else if (!dialog[index].visible)
    script.refuse(name + " is hidden");
  else if (!dialog[index].enabled)
    script.refuse(name + " is disabled");
  else
    return index;
  return std::nullopt;
}

// Reads the control's name and acts on it. False if the command can't be read.
bool with_control(TScript& script, const std::string& text, TAct act) {
  TDialog* dialog = script.platform.front_dialog();
  if (!dialog) {
    script.refuse("no dialog is open");
    return true;
  }
  std::string name, rest;
  if (!read_name(text, name, rest)) return false;
  const std::optional<int> index = usable_control(script, *dialog, name);
  return !index || act(script, {*dialog, *index, (*dialog)[*index], rest});
}

void refuse_kind(TScript& script, const TTarget& target, const char* reason) {
  const std::string& label = target.control.label;
  script.refuse((label.empty() ? "#" + std::to_string(target.index) : label) + " " + reason);
}

int row_with_text(const TControl& control, const std::string& text) {
  for (std::size_t i = 0; i < control.rows.size(); ++i)
    if (control.rows[i] == text || row_text(control.rows[i]) == text) return static_cast<int>(i);
  return -1;
}

void choose(TScript& script, const TTarget& target, int row) {
  const TControlKind kind = target.control.kind;
  if (kind != CONTROL_COMBO && kind != CONTROL_LIST && kind != CONTROL_TABLE)
    refuse_kind(script, target, "has no rows");
  else if (!choose_row(target.dialog, target.index, row))
    refuse_kind(script, target, "has no such row");
}

bool act_choose(TScript& script, const TTarget& target) {
  std::int64_t number = -1;
  std::string row, behind;
  const bool quoted_row = !target.rest.empty() && target.rest[0] == '"';
  if (quoted_row ? !read_name(target.rest, row, behind) || !behind.empty()
                 : !read_integer(target.rest, INT32_MIN, INT32_MAX, number))
    return false;
  choose(script, target, quoted_row ? row_with_text(target.control, row) : static_cast<int>(number));
  return true;
}

void slide(TScript& script, const TTarget& target) {
  std::int64_t value = 0;
  const bool fits = read_integer(target.rest, target.control.minimum, target.control.maximum, value);
  if (!fits || !set_value(target.dialog, target.index, static_cast<int>(value)))
    refuse_kind(script, target,
                ("goes from " + std::to_string(target.control.minimum) + " to " +
                 std::to_string(target.control.maximum))
                    .c_str());
}

bool act_set(TScript& script, const TTarget& target) {
  switch (target.control.kind) {
    case CONTROL_EDIT:
      set_text(target.dialog, target.index, with_line_ends(target.rest));
      return true;
    case CONTROL_SLIDER:
      slide(script, target);
      return true;
    case CONTROL_COMBO:
      choose(script, target, row_with_text(target.control, target.rest));
      return true;
    default:
      refuse_kind(script, target, "can't be set");
      return true;
  }
}

bool act_check(TScript& script, const TTarget& target) {
  if (target.rest != "on" && target.rest != "off") return false;
  const TControlKind kind = target.control.kind;
  if (kind != CONTROL_CHECK && kind != CONTROL_RADIO)
    refuse_kind(script, target, "can't be checked");
  else if (!set_checked(target.dialog, target.index, target.rest == "on"))
    refuse_kind(script, target, "goes off when another of its group goes on");
  return true;
}

bool act_press(TScript& script, const TTarget& target) {
  if (!target.rest.empty()) return false;
  if (!press_button(target.dialog, target.index)) refuse_kind(script, target, "is no button");
  return true;
}

bool act_scroll(TScript& script, const TTarget& target) {
  std::int64_t rows = 0;
  if (!read_integer(target.rest, INT32_MIN, INT32_MAX, rows)) return false;
  if (!scroll_rows(target.dialog, target.index, static_cast<int>(rows)))
    refuse_kind(script, target, "doesn't scroll");
  return true;
}

bool obey_dialog(TScript& script, const std::string&) {
  const TDialog* dialog = script.platform.front_dialog();
  if (!dialog) {
    script.answer("none");
    return true;
  }
  for (const std::string& line : dialog_lines(*dialog)) script.answer(line);
  return true;
}

bool obey_close(TScript& script, const std::string&) {
  TDialog* dialog = script.platform.front_dialog();
  if (dialog)
    cancel_dialog(*dialog);
  else
    script.refuse("no dialog is open");
  return true;
}

bool obey_choose(TScript& script, const std::string& text) { return with_control(script, text, act_choose); }
bool obey_set(TScript& script, const std::string& text) { return with_control(script, text, act_set); }
bool obey_check(TScript& script, const std::string& text) { return with_control(script, text, act_check); }
bool obey_press(TScript& script, const std::string& text) { return with_control(script, text, act_press); }
bool obey_scroll(TScript& script, const std::string& text) { return with_control(script, text, act_scroll); }

constexpr TCommand COMMANDS[] = {
    {"dialog", "dialog", obey_dialog},
    {"choose", "choose CONTROL ROW, a number or a text in double quotes", obey_choose},
    {"set", "set CONTROL TEXT", obey_set},
    {"check", "check CONTROL on|off", obey_check},
    {"press", "press CONTROL", obey_press},
    {"scroll", "scroll CONTROL ROWS, down or, below 0, up", obey_scroll},
    {"close", "close", obey_close},
};

}  // namespace

TCommandGroup dialog_commands() { return {COMMANDS, static_cast<int>(std::size(COMMANDS))}; }

}  // namespace zephyl
