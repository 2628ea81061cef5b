// Dialog 103, "Setup Options": the settings, and the ways to what has no key of its own.
#pragma once

namespace zephyl {

// What three of its buttons do. Their owners put them in at start; until then the buttons do nothing.
struct TSetupActions {
  // Dialog 181; the Setup dialog is closed by then.
  void (*edit_constants)() = nullptr;
  // The items to save and the file; the Setup dialog stays open.
  void (*save_state)() = nullptr;
  // The file; true if one was loaded, and Setup then closes.
  bool (*load_state)() = nullptr;
};
extern TSetupActions setup_actions;

// Opens it; nothing in the error state and while a program runs. OK takes the settings over; however it closes, but for
// the way to the constants, the settings are saved.
void show_setup();

}  // namespace zephyl
