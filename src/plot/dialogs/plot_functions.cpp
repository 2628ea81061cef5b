// Plot Functions: the expressions of the current plot type and which of them the trace cursor follows.

#include <string>

#include "engine/hooks.h"
#include "engine/text_form.h"
#include "engine/tokens.h"
#include "platform/dialog.h"
#include "platform/platform.h"
#include "plot/plot.h"
#include "plot/plot_names.h"
#include "plot/plot_slots.h"

namespace zephyl {

namespace {

constexpr int PLOT_FUNCTIONS = 186;

// A line is an edit, a box in the colour of its plot and a button.
enum TLineControl { EXPRESSION = 0, COLOUR_BOX, CLEAR, LINE_CONTROLS };
constexpr int TRACE = PLOT_SLOT_COUNT * LINE_CONTROLS;
constexpr int OK = TRACE + 1;

int control_of(int slot, TLineControl part) { return slot * LINE_CONTROLS + part; }

std::string slot_text(int slot) {
  char text[4000];
  expression_text(plot_slot(plot_variables.plotType, slot), text, sizeof text);
  return text;
}

// --- Building

TSurface colour_box(int slot) {
  TSurface box(16, 16);
  hooks.draw_image(box, colour_box_name(plot_variables.plotType, slot), 0, 0);
  return box;
}

void add_line(TDialog& dialog, int slot) {
  TControl box = picture_control("", colour_box(slot));
  TControl clear = button_control("Clear");
  box.beside = clear.beside = true;
  dialog.add(edit_control(slot_label(slot), slot_text(slot)));
  dialog.add(box);
  dialog.add(clear);
}

void add_controls(TDialog& dialog) {
  for (int slot = 0; slot < PLOT_SLOT_COUNT; ++slot) add_line(dialog, slot);
  const int traced = trace_function() / slots_per_plot(plot_variables.plotType);
  dialog.add(combo_control("Trace Function:", curve_labels(), traced));
  add_ok_cancel(dialog);
}

// --- OK

// A line that wasn't touched keeps its tokens: some of them don't read back from their text.
bool read_line(const TDialog& dialog, int slot, TExpression& to) {
  const std::string& text = dialog[control_of(slot, EXPRESSION)].text;
  if (text == slot_text(slot)) return true;
  char error[200] = "";
  if (text_to_tokens(text.c_str(), to, error, sizeof error)) return true;
  platform().show_message(error, "Error");
  return false;
}

void accept(TDialog& dialog) {
  const int type = plot_variables.plotType;
  TExpression wanted[PLOT_SLOT_COUNT];
  for (int slot = 0; slot < PLOT_SLOT_COUNT; ++slot) {
    wanted[slot] = plot_slot(type, slot);
    if (!read_line(dialog, slot, wanted[slot])) return dialog.keep_open();
  }
  for (int slot = 0; slot < PLOT_SLOT_COUNT; ++slot) plot_slot(type, slot) = wanted[slot];
  trace_functions.slot[type] = dialog[TRACE].selected * slots_per_plot(type);
  hooks.plot_changed();
}

void follow(TDialog& dialog, const TDialogEvent& event) {
  if (event.kind != CONTROL_ACTIVATED) return;
  if (event.control == OK) return accept(dialog);
  if (event.control < TRACE && event.control % LINE_CONTROLS == CLEAR)
    dialog[event.control - CLEAR + EXPRESSION].text.clear();
}

}  // namespace

void open_plot_functions() {
  TDialog dialog(PLOT_FUNCTIONS, "Plot Functions");
  add_controls(dialog);
  dialog.procedure = follow;
  platform().run_dialog(dialog);
}

}  // namespace zephyl
