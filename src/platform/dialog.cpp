#include "platform/dialog.h"

#include <algorithm>
#include <utility>

namespace zephyl {

namespace {

bool has_rows(const TControl& control) {
  return control.kind == CONTROL_COMBO || control.kind == CONTROL_LIST || control.kind == CONTROL_TABLE;
}

bool can_be_used(const TDialog& dialog, int control) {
  return !dialog.closed() && control >= 0 && control < dialog.count() && dialog[control].enabled &&
         dialog[control].visible;
}

TControl control_of(TControlKind kind, std::string label) {
  TControl control;
  control.kind = kind;
  control.label = std::move(label);
  return control;
}

TControl rows_control(TControlKind kind, std::string label, std::vector<std::string> rows, int selected) {
  TControl control = control_of(kind, std::move(label));
  set_rows(control, std::move(rows), selected);
  return control;
}

bool begins_character(char byte) { return (static_cast<unsigned char>(byte) & 0xC0) != 0x80; }

// The first `limit` characters of UTF-8; all of them for 0.
std::string limited(const std::string& text, int limit) {
  if (limit <= 0) return text;
  int characters = 0;
  for (std::size_t i = 0; i < text.size(); ++i)
    if (begins_character(text[i]) && ++characters > limit) return text.substr(0, i);
  return text;
}

bool is_number(const std::string& text) {
  return !text.empty() && text.size() < 7 && text.find_first_not_of("0123456789") == std::string::npos;
}

bool is_named(const TControl& control, const std::string& name) {
  return !control.label.empty() && (control.label == name || control.label == name + ":");
}

// Of two controls of one name the user means the one that can be worked.
int rank(const TDialog& dialog, int control) {
  return (dialog[control].kind != CONTROL_LABEL ? 2 : 0) + (can_be_used(dialog, control) ? 1 : 0);
}

int button_of_role(const TDialog& dialog, TButtonRole role) {
  for (int i = 0; i < dialog.count(); ++i)
    if (dialog[i].kind == CONTROL_BUTTON && dialog[i].role == role) return i;
  return -1;
}

void clear_group(TDialog& dialog, int group) {
  for (TControl& control : dialog.controls)
    if (control.kind == CONTROL_RADIO && control.group == group) control.checked = false;
}

}  // namespace

int TDialog::add(TControl control) {
  controls.push_back(std::move(control));
  return count() - 1;
}

void TDialog::close(int result) {
  closed_ = true;
  result_ = result;
}

// The procedure may itself act on the dialog; what it said about its own event stands through that.
void TDialog::tell(TDialogEventKind kind, int control, int rows) {
  if (closed_) return;
  const bool outer_keep_open = std::exchange(keep_open_, false);
  if (procedure) procedure(*this, {kind, control, rows});
  if (!closed_ && kind == CONTROL_ACTIVATED && control >= 0 && control < count()) after_activation(control);
  keep_open_ = outer_keep_open;
}

void TDialog::after_activation(int control) {
  const TControl& activated = (*this)[control];
  const bool pressed = activated.kind == CONTROL_BUTTON;
  if (pressed && activated.role == BUTTON_CANCEL) return close(DIALOG_CANCELLED);
  if (keep_open_) return;
  if (pressed && activated.role == BUTTON_DEFAULT) close(0);
  if (activated.kind == CONTROL_LIST) accept_dialog(*this);
}

TControl label_control(std::string text) { return control_of(CONTROL_LABEL, std::move(text)); }

TControl text_control(std::string label, std::string text, int lines) {
  TControl control = control_of(CONTROL_TEXT, std::move(label));
  control.text = std::move(text);
  control.lines = lines;
  return control;
}

TControl edit_control(std::string label, std::string text, int limit) {
  TControl control = control_of(CONTROL_EDIT, std::move(label));
  control.text = std::move(text);
  control.text_limit = limit;
  return control;
}

TControl combo_control(std::string label, std::vector<std::string> rows, int selected) {
  return rows_control(CONTROL_COMBO, std::move(label), std::move(rows), selected);
}

TControl list_control(std::string label, std::vector<std::string> rows, int selected) {
  TControl control = rows_control(CONTROL_LIST, std::move(label), std::move(rows), selected);
  control.lines = 8;
  return control;
}

TControl table_control(std::string label, std::vector<TColumn> columns, std::vector<std::string> rows) {
  TControl control = rows_control(CONTROL_TABLE, std::move(label), std::move(rows), 0);
  control.columns = std::move(columns);
  control.lines = 10;
  return control;
}

TControl check_control(std::string label, bool checked) {
  TControl control = control_of(CONTROL_CHECK, std::move(label));
  control.checked = checked;
  return control;
}

TControl radio_control(std::string label, int group, bool checked) {
  TControl control = control_of(CONTROL_RADIO, std::move(label));
  control.group = group;
  control.checked = checked;
  return control;
}

TControl button_control(std::string label, TButtonRole role) {
  TControl control = control_of(CONTROL_BUTTON, std::move(label));
  control.role = role;
  return control;
}

TControl slider_control(std::string label, int minimum, int maximum, int value) {
  TControl control = control_of(CONTROL_SLIDER, std::move(label));
  control.minimum = minimum;
  control.maximum = maximum;
  control.value = std::clamp(value, minimum, maximum);
  return control;
}

TControl picture_control(std::string label, TSurface picture) {
  TControl control = control_of(CONTROL_PICTURE, std::move(label));
  control.picture.push_back(std::move(picture));
  return control;
}

TControl beside(TControl control) {
  control.beside = true;
  return control;
}

void add_ok_cancel(TDialog& dialog) {
  dialog.add(button_control("OK", BUTTON_DEFAULT));
  dialog.add(beside(button_control("Cancel", BUTTON_CANCEL)));
}

void set_rows(TControl& control, std::vector<std::string> rows, int selected) {
  control.selected = rows.empty() ? -1 : std::clamp(selected, 0, static_cast<int>(rows.size()) - 1);
  control.rows = std::move(rows);
}

std::string selected_text(const TControl& control) {
  const bool inside = control.selected >= 0 && control.selected < static_cast<int>(control.rows.size());
  return inside ? control.rows[static_cast<std::size_t>(control.selected)] : "";
}

bool choose_row(TDialog& dialog, int control, int row) {
  if (!can_be_used(dialog, control) || !has_rows(dialog[control])) return false;
  if (row < 0 || row >= static_cast<int>(dialog[control].rows.size())) return false;
  dialog[control].selected = row;
  dialog.tell(CONTROL_CHANGED, control);
  return true;
}

bool set_text(TDialog& dialog, int control, const std::string& text) {
  if (!can_be_used(dialog, control) || dialog[control].kind != CONTROL_EDIT) return false;
  dialog[control].text = limited(text, dialog[control].text_limit);
  dialog.tell(CONTROL_CHANGED, control);
  return true;
}

bool set_value(TDialog& dialog, int control, int value) {
  if (!can_be_used(dialog, control) || dialog[control].kind != CONTROL_SLIDER) return false;
  if (value < dialog[control].minimum || value > dialog[control].maximum) return false;
  dialog[control].value = value;
  dialog.tell(CONTROL_CHANGED, control);
  return true;
}

bool set_checked(TDialog& dialog, int control, bool on) {
  if (!can_be_used(dialog, control)) return false;
  const TControlKind kind = dialog[control].kind;
  if (kind != CONTROL_CHECK && !(kind == CONTROL_RADIO && on)) return false;
  if (kind == CONTROL_RADIO) clear_group(dialog, dialog[control].group);
  dialog[control].checked = on;
  dialog.tell(CONTROL_CHANGED, control);
  return true;
}

bool press_button(TDialog& dialog, int control) {
  if (!can_be_used(dialog, control) || dialog[control].kind != CONTROL_BUTTON) return false;
  dialog.tell(CONTROL_ACTIVATED, control);
  return true;
}

bool activate_row(TDialog& dialog, int control) {
  if (!can_be_used(dialog, control) || dialog[control].selected < 0) return false;
  if (dialog[control].kind != CONTROL_LIST && dialog[control].kind != CONTROL_TABLE) return false;
  dialog.tell(CONTROL_ACTIVATED, control);
  return true;
}

bool scroll_rows(TDialog& dialog, int control, int rows) {
  if (!can_be_used(dialog, control) || !dialog[control].scrolls) return false;
  dialog.tell(CONTROL_SCROLLED, control, rows);
  return true;
}

void cancel_dialog(TDialog& dialog) {
  if (dialog.closed()) return;
  const int button = button_of_role(dialog, BUTTON_CANCEL);
  if (!press_button(dialog, button) || !dialog.closed()) dialog.close(DIALOG_CANCELLED);
}

int find_control(const TDialog& dialog, const std::string& name) {
  if (name.size() > 1 && name[0] == '#') {
    const std::string digits = name.substr(1);
    return is_number(digits) && std::stoi(digits) < dialog.count() ? std::stoi(digits) : -1;
  }
  int best = -1;
  for (int i = 0; i < dialog.count(); ++i)
    if (is_named(dialog[i], name) && (best < 0 || rank(dialog, i) > rank(dialog, best))) best = i;
  return best;
}

bool accept_dialog(TDialog& dialog) { return press_button(dialog, button_of_role(dialog, BUTTON_DEFAULT)); }

}  // namespace zephyl
