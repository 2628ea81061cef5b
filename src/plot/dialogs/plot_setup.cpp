// Plot Setup: the view, the parameter ranges, what is plotted and how.

#include <initializer_list>
#include <string>
#include <vector>

#include "engine/field_value.h"
#include "engine/hooks.h"
#include "platform/dialog.h"
#include "platform/platform.h"
#include "plot/dialogs/coordinate_system.h"
#include "plot/plot.h"
#include "plot/plot_types.h"
#include "plot/plot_variables.h"

namespace zephyl {

namespace {

constexpr int PLOT_SETUP = 185;

// In the order of the form.
enum TSetupControl {
  X_MIN = 0,
  X_MAX,
  Y_MIN,
  Y_MAX,
  T_MIN,
  T_MAX,
  T_STEP,
  V_MIN,
  V_MAX,
  V_STEP,
  TYPE,
  SYSTEM,
  CURSOR,
  GRID,
  DOTS,
  DISABLED,
  Z_SCALE,
  OK,
  DEFAULTS,
  CANCEL
};
constexpr int FIELD_COUNT = V_STEP + 2;  // the edits up to v step, and the one of the z scale

constexpr int fields[FIELD_COUNT] = {X_MIN,  X_MAX, Y_MIN, Y_MAX,  T_MIN,  T_MAX,
                                     T_STEP, V_MIN, V_MAX, V_STEP, Z_SCALE};

double& variable_of(TPlotVariables& plot, int field) {
  switch (field) {
    case X_MIN:
      return plot.xMin;
    case X_MAX:
      return plot.xMax;
    case Y_MIN:
      return plot.yMin;
    case Y_MAX:
      return plot.yMax;
    case T_MIN:
      return plot.t.min;
    case T_MAX:
      return plot.t.max;
    case T_STEP:
      return plot.t.step;
    case V_MIN:
      return plot.v.min;
    case V_MAX:
      return plot.v.max;
    case V_STEP:
      return plot.v.step;
    default:
      return plot.zScale;
  }
}

std::string shown_value(int field) { return field_text(variable_of(plot_variables, field)); }

// --- Building

void add_fields(TDialog& dialog, const std::string& name, std::initializer_list<const char*> parts) {
  for (const char* part : parts) dialog.add(edit_control(name + part, ""));
}

std::vector<std::string> kind_names() {
  std::vector<std::string> names;
  for (int kind = 0; kind < PLOT_KIND_COUNT; ++kind) names.push_back(plot_kind_name(kind));
  return names;
}

void add_controls(TDialog& dialog) {
  for (const char* axis : {"x", "y"}) add_fields(dialog, axis, {" min:", " max:"});
  for (const char* parameter : {"t", "v"}) add_fields(dialog, parameter, {" min:", " max:", " step:"});
  dialog.add(combo_control("Plot Type:", kind_names()));
  dialog.add(beside(button_control("?")));
  dialog.add(combo_control("Plot Cursor:", {"Trace", "Box Zoom", "Pan", "Rotate"}));
  for (const char* label : {"Display Grid?", "Connect Dots?", "Disable Plots?"})
    dialog.add(check_control(label, false));
  dialog.add(edit_control("z Scale:", ""));
  dialog.add(button_control("OK", BUTTON_DEFAULT));
  dialog.add(beside(button_control("Defaults")));
  dialog.add(beside(button_control("Cancel", BUTTON_CANCEL)));
}

// --- What the form shows

// The first range under the names that the type has for its parameter, the second only where there are two.
void relabel(TDialog& dialog) {
  constexpr const char* letters[] = {"t", "theta", "t", "u"};
  constexpr const char* ends[] = {" min:", " max:", " step:"};
  const int type = plot_type_of_kind(dialog[TYPE].selected);
  for (int i = 0; i < 3; ++i) {
    dialog[T_MIN + i].label = std::string(letters[type]) + ends[i];
    dialog[V_MIN + i].visible = type == PLOT_3D;
  }
}

void show_variables(TDialog& dialog) {
  const TPlotVariables& plot = plot_variables;
  for (const int field : fields) dialog[field].text = shown_value(field);
  dialog[TYPE].selected = plot_kind(plot.plotType, plot.plotType3D);
  dialog[CURSOR].selected = plot.plotCursor;
  dialog[GRID].checked = plot.displayGrid;
  dialog[DOTS].checked = plot.connectDots;
  dialog[DISABLED].checked = !plot.enablePlots;
  relabel(dialog);
}

// --- OK

void take_choices(const TDialog& dialog, TPlotVariables& to) {
  to.plotType3D = plot_type_3d_of_kind(dialog[TYPE].selected);
  to.plotCursor = dialog[CURSOR].selected;
  to.displayGrid = dialog[GRID].checked;
  to.connectDots = dialog[DOTS].checked;
  to.enablePlots = !dialog[DISABLED].checked;
}

// A view that can't be one leaves the old one, in silence.
void take(const TDialog& dialog, TPlotVariables wanted) {
  take_choices(dialog, wanted);
  const TPlotVariables before = plot_variables;
  plot_variables = wanted;
  plot_variables.xMin = before.xMin;
  plot_variables.xMax = before.xMax;
  plot_variables.yMin = before.yMin;
  plot_variables.yMax = before.yMax;
  set_plot_type(plot_type_of_kind(dialog[TYPE].selected));
  set_plot_view(wanted.xMin, wanted.yMin, wanted.xMax, wanted.yMax);
}

void accept(TDialog& dialog) {
  TPlotVariables wanted = plot_variables;
  for (const int field : fields)
    if (!read_field(dialog[field], variable_of(wanted, field))) return dialog.keep_open();
  take(dialog, wanted);
  dialog.close(0);
}

void restore_defaults(TDialog& dialog) {
  set_plot_defaults();
  show_variables(dialog);
}

void activated(TDialog& dialog, int control) {
  if (control == SYSTEM) return show_coordinate_system(dialog[TYPE].selected);
  if (control == DEFAULTS) return restore_defaults(dialog);
  if (control == OK) accept(dialog);
}

void follow(TDialog& dialog, const TDialogEvent& event) {
  if (event.kind == DIALOG_OPENED) return show_variables(dialog);
  if (event.kind == CONTROL_CHANGED && event.control == TYPE) return relabel(dialog);
  if (event.kind == CONTROL_ACTIVATED) activated(dialog, event.control);
}

}  // namespace

void open_plot_setup() {
  TDialog dialog(PLOT_SETUP, "Plot Setup");
  add_controls(dialog);
  show_variables(dialog);
  dialog.procedure = follow;
  const TPlotVariables before = plot_variables;
  platform().run_dialog(dialog);
  if (dialog.result() == DIALOG_CANCELLED) plot_variables = before;
  hooks.plot_changed();
  hooks.redraw_title();
  platform().invalidate(false);
}

}  // namespace zephyl
