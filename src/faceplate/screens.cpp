#include "faceplate/screens.h"

#include "engine/expression.h"
#include "engine/state.h"
#include "faceplate/alpha_view.h"
#include "faceplate/display.h"
#include "faceplate/entry_line_view.h"
#include "faceplate/gif.h"
#include "faceplate/images.h"
#include "faceplate/program_list.h"
#include "faceplate/indicators.h"
#include "faceplate/resources.h"
#include "faceplate/result_line_view.h"
#include "faceplate/table_screens.h"
#include "faceplate/title.h"
#include "platform/platform.h"
#include "plot/plot.h"
#include "plot/plot_variables.h"

namespace zephyl {

namespace {

constexpr int HIGH_TABS = 54;  // y of the tab line above the keys
constexpr int LOW_TABS = 193;  // below a tall display
constexpr int COMP_TAB = 4;
constexpr int PROGRAM_TAB = 43;
constexpr int PLOT_TAB = 82;
constexpr int FOURTH_TAB = 121;

constexpr TRect PROGRAM_LINE_RECT = {7, 6, 232, 25};
constexpr TRect PROGRAM_LIST_RECT = {7, 36, 232, 185};

const char* dark_fourth_tab() {
  switch (state.dynamic_mode) {
    case BASE_MODE:
      return "enun_base_dark";
    case MATRIX_MODE:
      return "enun_matrix_dark";
    case LIST_MODE:
      return "enun_list_dark";
    default:
      return "enun_stats_dark";
  }
}

struct TTabRow {
  int mode;
  int y;
  const char* lit;
  int x;
};

constexpr TTabRow tab_rows[] = {
    {BASE_MODE, HIGH_TABS, "enun_base", FOURTH_TAB},
    {COMP_MODE, HIGH_TABS, "enun_comp", COMP_TAB},
    {STATS_MODE, HIGH_TABS, "enun_stats", FOURTH_TAB},
    {PROGRAM_EDIT_MODE, LOW_TABS, "enun_prog", PROGRAM_TAB},
    {PLOT_MODE, LOW_TABS, "enun_plot", PLOT_TAB},
    {MATRIX_MODE, HIGH_TABS, "enun_matrix", FOURTH_TAB},
    {LIST_MODE, HIGH_TABS, "enun_list", FOURTH_TAB},
};

void paint_tabs(TSurface& surface) {
  for (const TTabRow& row : tab_rows) {
    if (row.mode != state.calcMode) continue;
    draw_backdrop(surface, "ENUM_LINE", 0, row.y);
    draw_backdrop(surface, row.lit, row.x, row.y);
    if (row.x != FOURTH_TAB) draw_backdrop(surface, dark_fourth_tab(), FOURTH_TAB, row.y);
  }
}

void paint_calculator_front(TSurface& surface, const char* front) {
  draw_backdrop(surface, skinned_name("background_gif"), 0, 0);
  if (state.calcMode == STATS_MODE)
    for (const int x : {83, 122}) draw_picture(surface, skinned_name("small_light_button_gif"), x, 102);
  draw_picture(surface, skinned_name(front), 0, 0);
}

void paint_dynamic_key(TSurface& surface) {
  if (state.calcMode != COMP_MODE) return;
  const bool matrix = state.dynamic_mode == MATRIX_MODE, list = state.dynamic_mode == LIST_MODE;
  const char* const name = matrix ? "matrix_button_gif" : list ? "list_button_gif" : "stats_button_gif";
  draw_picture(surface, skinned_name(name), 147, 192);
}

// With a decimal comma the two keys of point and comma change places.
void paint_decimal_comma(TSurface& surface) {
  if (settings.decimalMark != 1 || state.calcMode == BASE_MODE) return;
  if (state.calcMode == COMP_MODE) draw_key(surface, "small_dot_button_gif", 83, 162);
  draw_picture(surface, skinned_name("comma_button_gif"), 51, 270);
}

// What stands in the upper row of the display.
void paint_upper_line(TSurface& surface) {
  if (state.alpha_active)
    paint_alpha_text(surface);
  else if (shows_entry_line())
    paint_entry_line(surface, entry_line.cursor_shown);
}

void paint_lines(TSurface& surface) {
  paint_upper_line(surface);
  paint_result_line(surface);
}

// The screens with digit keys.
void paint_calculator(TSurface& surface, const char* front) {
  paint_calculator_front(surface, front);
  paint_indicator(surface, PART_AC_AND_ARROWS);
  paint_indicator(surface, PART_BASE_BITS);
  paint_indicator(surface, PART_BASE_TYPE);
  paint_dynamic_key(surface);
  for (const TScreenPart part : {PART_ANGLE, PART_STATS_VAR, PART_REGRESSION, PART_RUN, PART_SHIFTS})
    paint_indicator(surface, part);
  paint_tabs(surface);
  surface.fill(DISPLAY_RECT, display_colour());
  paint_decimal_comma(surface);
  paint_lines(surface);
}

void paint_base(TSurface& surface) { paint_calculator(surface, "base_calculator_gif"); }
void paint_comp(TSurface& surface) { paint_calculator(surface, "calculator_gif"); }
void paint_stats(TSurface& surface) { paint_calculator(surface, "stat_calculator_gif"); }

void paint_program_edit(TSurface& surface) {
  draw_picture(surface, skinned_name("PROGRAM_BACKGROUND_GIF"), 0, 0);
  draw_picture(surface, skinned_name("prog_calculator_gif"), 0, 0);
  paint_indicator(surface, PART_BLUE);
  paint_tabs(surface);
  surface.fill(PROGRAM_LINE_RECT, display_colour());
  surface.fill(PROGRAM_LIST_RECT, display_colour());
  paint_upper_line(surface);
  paint_program_list(surface);
}

void paint_periodic(TSurface& surface) { draw_gif_resource(surface, "periodic_gif", 0, 0, false, false); }

void paint_plot(TSurface& surface) {
  const bool surface_plot = plot_variables.plotType == PLOT_3D;
  draw_backdrop(surface, skinned_name("PLOT_BACKGROUND_GIF"), 0, 0);
  draw_picture(surface,
               skinned_name(surface_plot ? "plot_calculator_3d_gif" : "plot_calculator_function_gif"), 0, 0);
  paint_tabs(surface);
  paint_indicator(surface, PART_PLOT_LEDS);
  paint_indicator(surface, PART_TRACE_LEDS);
  // Last: a plot that takes long shows while it grows, on a front that is complete.
  surface.blit(PLOT_LEFT, PLOT_TOP, PLOT_WIDTH, PLOT_HEIGHT, shown_plot(), 0, 0);
}

void paint_table(TSurface& surface, const char* background, const char* front,
                 void (*paint_cells)(TSurface& surface)) {
  draw_backdrop(surface, skinned_name(background), 0, 0);
  draw_picture(surface, skinned_name(front), 0, 0);
  paint_cells(surface);
  paint_tabs(surface);
  surface.fill(DISPLAY_RECT, display_colour());
  paint_lines(surface);
}

void paint_matrix(TSurface& surface) {
  paint_table(surface, "MATRIX_BACKGROUND_GIF", "matrix_gif", paint_matrix_table);
}
void paint_list(TSurface& surface) {
  paint_table(surface, "LIST_BACKGROUND_GIF", "list_gif", paint_list_table);
}

// By TCalcMode.
constexpr void (*screen_painters[])(TSurface& surface) = {paint_base,         paint_comp,     paint_stats,
                                                          paint_program_edit, paint_periodic, paint_plot,
                                                          paint_matrix,       paint_list};

}  // namespace

void paint_screen(TSurface& surface) {
  refresh_title();
  if (state.calcMode >= BASE_MODE && state.calcMode <= LIST_MODE)
    screen_painters[state.calcMode](surface);
  else
    platform().show_message("bitmap not found", "Bitmap error");
  if (state.alpha_active) paint_alpha_overlay(surface);
}

}  // namespace zephyl
