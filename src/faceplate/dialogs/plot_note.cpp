#include "faceplate/dialogs/plot_note.h"

#include "platform/dialog.h"
#include "platform/platform.h"

namespace zephyl {

void show_plot_note() {
  TDialog dialog(187, "Note");
  dialog.add(text_control("",
                          "While in COMP mode an expression can be entered for plotting. Use the "
                          "<orange shift> 'x,t,(theta)...' key to enter the dependent variable. Use the "
                          "<blue shift> 'Plot' key to enter the expression into the function list for "
                          "plotting.",
                          6));
  dialog.add(button_control("OK", BUTTON_DEFAULT));
  platform().run_dialog(dialog);
}

}  // namespace zephyl
