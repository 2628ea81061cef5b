#include "platform/script/dialog_text.h"

#include "platform/dialog.h"

namespace zephyl {

namespace {

const char* kind_name(TControlKind kind) {
  switch (kind) {
    case CONTROL_LABEL:
      return "label";
    case CONTROL_TEXT:
      return "text";
    case CONTROL_EDIT:
      return "edit";
    case CONTROL_COMBO:
      return "combo";
    case CONTROL_LIST:
      return "list";
    case CONTROL_TABLE:
      return "table";
    case CONTROL_CHECK:
      return "check";
    case CONTROL_RADIO:
      return "radio";
    case CONTROL_BUTTON:
      return "button";
    case CONTROL_SLIDER:
      return "slider";
    case CONTROL_PICTURE:
      return "picture";
  }
  return "";
}

bool has_value(TControlKind kind) { return kind != CONTROL_LABEL && kind != CONTROL_BUTTON; }

std::string replaced(const std::string& text, char old, const char* by) {
  std::string result;
  for (const char c : text) {
    if (c == old)
      result += by;
    else
      result += c;
  }
  return result;
}

std::string picture_size(const TControl& control) {
  if (control.picture.empty()) return "none";
  return std::to_string(control.picture[0].width()) + "x" + std::to_string(control.picture[0].height());
}

std::string value_text(const TControl& control) {
  switch (control.kind) {
    case CONTROL_CHECK:
    case CONTROL_RADIO:
      return control.checked ? "on" : "off";
    case CONTROL_SLIDER:
      return std::to_string(control.value);
    case CONTROL_PICTURE:
      return picture_size(control);
    case CONTROL_COMBO:
    case CONTROL_LIST:
    case CONTROL_TABLE:
      return row_text(selected_text(control));
    default:
      return replaced(control.text, '\n', "\\n");
  }
}

std::string control_line(const TControl& control) {
  std::string line = kind_name(control.kind);
  if (!control.label.empty()) line += " " + control.label;
  if (has_value(control.kind)) {
    const std::string value = value_text(control);
    line += value.empty() ? " =" : " = " + value;
  }
  if (!control.enabled) line += " (disabled)";
  if (!control.visible) line += " (hidden)";
  return line;
}

}  // namespace

std::string row_text(const std::string& row) { return replaced(row, '\t', " | "); }

std::vector<std::string> dialog_lines(const TDialog& dialog) {
  std::vector<std::string> lines = {"dialog " + std::to_string(dialog.id()) + " " + dialog.title};
  for (const TControl& control : dialog.controls) {
    lines.push_back(control_line(control));
    if (!control.visible) continue;
    for (const std::string& row : control.rows) lines.push_back("  " + row_text(row));
  }
  lines.push_back(".");
  return lines;
}

}  // namespace zephyl
