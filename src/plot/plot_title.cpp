// The title of the window in PLOT_MODE.

#include <cstdio>

#include "platform/platform.h"
#include "plot/plot.h"
#include "plot/plot_types.h"
#include "plot/plot_variables.h"

namespace zephyl {

namespace {

constexpr const char* cursor_names[] = {" (trace)", " (box zoom)", " (pan)", " (rotate)"};

const char* report_bug(const char* text) {
  platform().show_message(text, "Bug (Set_WindowText_with_Plot_Data)");
  return "";
}

const char* type_name() {
  const int kind = plot_kind(plot_variables.plotType, plot_variables.plotType3D);
  return kind >= 0 ? plot_kind_name(kind) : report_bug("Undefined Plot Type");
}

const char* cursor_name() {
  const int cursor = active_plot_cursor();
  const bool known = cursor >= CURSOR_TRACE && cursor <= CURSOR_ROTATE;
  return known ? cursor_names[cursor] : report_bug("Undefined Cursor Type");
}

}  // namespace

void plot_title(char* out, int size) {
  std::snprintf(out, static_cast<std::size_t>(size), "%s%s", type_name(), cursor_name());
}

}  // namespace zephyl
