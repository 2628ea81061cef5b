// Changes of the calculator's mode, and the tabs that ask for them.
#pragma once

namespace zephyl {

// mode: a TCalcMode; the one that is set already, the periodic screen and numbers that are no mode change
// nothing. ask: a question may be shown that the new mode raises.
void set_mode(int mode, bool ask);

// The tabs from left to right.
enum TTab { TAB_COMP = 0, TAB_PROGRAMS, TAB_PLOT, TAB_DYNAMIC, TAB_MENU, TAB_SETUP, TAB_COUNT };

void press_tab(int tab);

}  // namespace zephyl
