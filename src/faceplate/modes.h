// Changes of the calculator's mode, and the tabs that ask for them.
#pragma once

namespace zephyl {

// mode: a TCalcMode; the one that is set already, the periodic screen and numbers that are no mode change
// nothing. ask: the new mode may show a note, as when there is nothing to plot yet.
void set_mode(int mode, bool ask);

// The bare change: title, result line and picture of a mode, without a question or a refusal.
void show_mode(int mode);

// The way to the periodic screen, which no tab leads to.
void show_periodic_screen();

// Leaves the screens without an entry line for COMP_MODE.
void leave_plot_and_program_edit();

// The tabs from left to right.
enum TTab { TAB_COMP = 0, TAB_PROGRAMS, TAB_PLOT, TAB_DYNAMIC, TAB_MENU, TAB_SETUP, TAB_COUNT };

void press_tab(int tab);

}  // namespace zephyl
