// Dialogs made up for tests of the window's renderer, with all kinds of controls in the places they usually
// have.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/dialog.h"

namespace zephyl {

TDialog setup_sample();
TDialog variable_sample();
TDialog string_sample();
TDialog table_sample(int rows);
TDialog program_sample(int programs);
TDialog colour_sample();
TDialog help_sample();
TDialog fields_sample();
TDialog arguments_sample();
TDialog clear_sample();
TDialog buttons_sample();
TDialog words_sample();
TDialog menu_sample();
// 30 lines of controls.
TDialog long_sample();

// All of them, by name.
std::vector<std::pair<std::string, std::function<TDialog()>>> sample_dialogs();

}  // namespace zephyl
