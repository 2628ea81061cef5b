#include "faceplate/dialogs/setup.h"

#include <algorithm>

#include "engine/calculator.h"
#include "engine/errors.h"
#include "engine/hooks.h"
#include "engine/state.h"
#include "faceplate/alpha_entry.h"
#include "faceplate/dialogs/about.h"
#include "faceplate/dialogs/colour.h"
#include "persistence/constant_dialogs.h"
#include "persistence/settings.h"
#include "persistence/state_file.h"
#include "platform/dialog.h"
#include "platform/platform.h"

namespace zephyl {

namespace {

// What closes the dialog beside OK and Cancel.
enum TSetupResult { SETUP_OK = 0, SETUP_EDIT_CONSTANTS = 1, SETUP_LOADED = 2 };

constexpr const char* FORMAT_NAMES[] = {"Float", "Fixed", "Scientific", "Engineering"};
constexpr int FORMAT_COUNT = 4;
constexpr int MOST_DIGITS = 10;

std::vector<std::string> digit_rows() {
  std::vector<std::string> rows;
  for (int digits = 0; digits <= MOST_DIGITS; ++digits) rows.push_back(std::to_string(digits));
  return rows;
}

class TSetup {
 public:
  TSetup();
  int run();
  // What the controls say becomes true.
  void take_over() const;

 private:
  void add_formats();
  void add_button(const char* label, void (*act)(TDialog& dialog));
  void press(int control);

  TDialog dialog_{103, "Setup Options"};
  int first_format_, digits_, mark_, complex_, click_;
  // By the control's index.
  std::vector<void (*)(TDialog& dialog)> acts_;
};

void close_for_constants(TDialog& dialog) { dialog.close(SETUP_EDIT_CONSTANTS); }

void close_if_loaded(TDialog& dialog) {
  if (load_state_pressed()) dialog.close(SETUP_LOADED);
}

TSetup::TSetup() {
  add_formats();
  digits_ = dialog_.add(combo_control("Decimal Digits:", digit_rows(), settings.decimalDigits));
  mark_ = dialog_.add(combo_control("Decimal Mark:", {"Dot(.)", "Comma(,)"}, settings.decimalMark));
  complex_ = dialog_.add(
      combo_control("Complex Format:", {"Real only", "a+bi (rectangular)", "re^((theta)i) (polar)"},
                    settings.complexFormat));
  click_ = dialog_.add(check_control("Key Click?", settings.keyClick != 0));
  add_button("Display Color/Skin", [](TDialog&) { select_colour_and_skin(); });
  add_button("Edit Constants", close_for_constants);
  add_button("Save State", [](TDialog&) { save_state_pressed(); });
  add_button("Load State", close_if_loaded);
  add_button("Help", [](TDialog&) { platform().show_help(); });
  add_button("About", [](TDialog&) { show_about(); });
  add_ok_cancel(dialog_);
  dialog_.procedure = [this](TDialog&, const TDialogEvent& event) {
    if (event.kind == CONTROL_ACTIVATED) press(event.control);
  };
}

void TSetup::add_formats() {
  first_format_ = dialog_.count();
  for (int format = 0; format < FORMAT_COUNT; ++format)
    dialog_.add(radio_control(FORMAT_NAMES[format], 0, settings.numberFormat == format));
}

void TSetup::add_button(const char* label, void (*act)(TDialog& dialog)) {
  const int control = dialog_.add(button_control(label));
  acts_.resize(static_cast<std::size_t>(control) + 1, nullptr);
  acts_.back() = act;
}

void TSetup::press(int control) {
  const std::size_t index = static_cast<std::size_t>(control);
  if (index < acts_.size() && acts_[index]) acts_[index](dialog_);
}

int TSetup::run() {
  platform().run_dialog(dialog_);
  return dialog_.result();
}

void TSetup::take_over() const {
  for (int format = 0; format < FORMAT_COUNT; ++format)
    if (dialog_[first_format_ + format].checked) settings.numberFormat = format;
  settings.decimalDigits = dialog_[digits_].selected;
  settings.decimalMark = dialog_[mark_].selected;
  settings.complexFormat = dialog_[complex_].selected;
  settings.keyClick = dialog_[click_].checked;
  settings.display_color = pending_display.colour;
  settings.brightness = pending_display.brightness;
  settings.skin = pending_display.skin;
}

void change_constants() {
  if (edit_constants()) start_alpha_entry(ALPHA_CONSTANT_NAME);
}

// The result line, the plot and the picture follow what has changed.
void refresh_all() {
  refresh_result();
  hooks.plot_changed();
  platform().invalidate(false);
}

}  // namespace

void show_setup() {
  if (errors.error_flag || state.program_running) return;
  pending_display = {settings.display_color, settings.brightness, settings.skin};
  TSetup setup;
  const int result = setup.run();
  if (result == SETUP_EDIT_CONSTANTS) return change_constants();
  if (result == SETUP_OK) setup.take_over();
  if (result != DIALOG_CANCELLED) refresh_all();
  save_settings();
}

}  // namespace zephyl
