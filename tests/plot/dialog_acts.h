// What a user does in a dialog of the plot, each control by its label.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "platform/dialog.h"

namespace zephyl {

inline void write(TDialog& dialog, const std::string& control, const std::string& text) {
  ASSERT_TRUE(set_text(dialog, find_control(dialog, control), text)) << control;
}
inline void select(TDialog& dialog, const std::string& control, int row) {
  ASSERT_TRUE(choose_row(dialog, find_control(dialog, control), row)) << control;
}
inline void check(TDialog& dialog, const std::string& control, bool on) {
  ASSERT_TRUE(set_checked(dialog, find_control(dialog, control), on)) << control;
}
inline void press(TDialog& dialog, const std::string& control) {
  ASSERT_TRUE(press_button(dialog, find_control(dialog, control))) << control;
}
// The labels in sight.
inline std::string labels(const TDialog& dialog) {
  std::string text;
  for (const TControl& control : dialog.controls)
    if (control.visible) text += control.label + "|";
  return text;
}
inline std::string text_of(const TDialog& dialog, const std::string& control) {
  return dialog[find_control(dialog, control)].text;
}
inline std::string row_of(const TDialog& dialog, const std::string& control) {
  return selected_text(dialog[find_control(dialog, control)]);
}

}  // namespace zephyl
