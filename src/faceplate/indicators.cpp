#include "faceplate/indicators.h"

#include <algorithm>

#include "engine/errors.h"
#include "engine/state.h"
#include "faceplate/alpha_view.h"
#include "faceplate/display.h"
#include "faceplate/images.h"
#include "faceplate/key_feedback.h"
#include "faceplate/resources.h"
#include "faceplate/title.h"
#include "platform/platform.h"
#include "plot/plot_variables.h"
#include "plot/zoom_locks.h"
#include "programs/programs.h"

namespace zephyl {

namespace {

constexpr int mode_bit(int mode) { return 1 << mode; }
constexpr int ANY_MODE = ~0;
constexpr int DIGIT_KEY_MODES = mode_bit(BASE_MODE) | mode_bit(COMP_MODE) | mode_bit(STATS_MODE);

bool shown_in(int modes) {
  return state.calcMode >= BASE_MODE && state.calcMode <= LIST_MODE && (modes & mode_bit(state.calcMode));
}

// The picture of a setting; for a value out of range, with the alarm of that, the first.
template <int COUNT>
const char* choice(const char* const (&names)[COUNT], int value) {
  if (value >= 0 && value < COUNT) return names[value];
  platform().show_message("bitmap not found", "Bitmap error");
  return names[0];
}

void paint_ac_and_arrows(TSurface& surface) {
  const bool error = errors.error_flag;
  draw_picture(surface, skinned_name(error ? "red_ac_button_gif" : "ac_button_gif"), 194, 192);
  draw_key(surface, error ? "left_arrow_button_red_gif" : "left_arrow_button_gif", 161, 162);
  draw_key(surface, error ? "right_arrow_button_red_gif" : "right_arrow_button_gif", 200, 162);
}

void paint_orange(TSurface& surface) {
  draw_skinned_key(surface, state.orange_shift ? "orange_dot_button_gif" : "orange_shift_button_gif", 44, 72);
}

TPoint blue_place() {
  if (state.calcMode == COMP_MODE) return {83, 72};
  return {44, state.calcMode == PROGRAM_EDIT_MODE ? 211 : 72};
}

void paint_blue(TSurface& surface) {
  const TPoint at = blue_place();
  draw_skinned_key(surface, state.blue_shift ? "blue_dot_button_gif" : "blue_shift_button_gif", at.x, at.y);
}

void paint_hyp(TSurface& surface) {
  draw_key(surface, state.hyp_shift ? "white_dot_button_gif" : "hyp_button_gif", 122, 72);
}

void paint_stats_var(TSurface& surface) {
  draw_key(surface, choice({"1_var_gif", "2_var_gif"}, settings.statsVar), 83, 72);
}

void paint_regression(TSurface& surface) {
  const char* const name = choice({"linr_gif", "logr_gif", "expr_gif", "powr_gif"}, settings.statsRegress);
  draw_key(surface, name, 161, 102, "small_light_button_gif");
}

void paint_base_type(TSurface& surface) {
  draw_key(surface, choice({"bin_gif", "oct_gif", "dec_gif", "hex_gif"}, settings.baseType), 83, 72);
}

void paint_base_bits(TSurface& surface) {
  draw_key(surface, choice({"8_bit_gif", "16_bit_gif", "32_bit_gif"}, settings.baseBits), 122, 72);
}

void paint_angle(TSurface& surface) {
  draw_key(surface, choice({"rad_gif", "deg_gif", "grad_gif"}, settings.angleMode), 200, 132);
}

void paint_run(TSurface& surface) {
  if (program_can_be_stopped())
    draw_skinned_key(surface, "stop_button_gif", 5, 72);
  else
    draw_key(surface, "run_button_gif", 5, 72);
}

void paint_trace_leds(TSurface& surface) {
  const bool surface_plot = plot_variables.plotType == PLOT_3D;
  for (int i = 0; i < (surface_plot ? 4 : 3); ++i)
    blit_bitmap(surface, i == active_plot_cursor() ? "green_trace_led" : "grey_trace_led", 12 + 21 * i, 221);
}

// A lamp is green while its axis is locked against zooming.
void paint_plot_leds(TSurface& surface) {
  const bool surface_plot = plot_variables.plotType == PLOT_3D;
  const auto paint_led = [&surface](bool on, int y) {
    draw_picture(surface, on ? "green_led_gif" : "red_led_gif", 102, y);
  };
  paint_led(zoom_locks.x, surface_plot ? 242 : 250);
  paint_led(zoom_locks.y, surface_plot ? 259 : 269);
}

struct TIndicator {
  TScreenPart part;
  int modes;
  TRect rect;  // all that it covers, in any mode
  void (*paint)(TSurface& surface);
};

constexpr TRect small_key(int left, int top) { return {left, top, left + 35, top + 18}; }

constexpr TIndicator indicators[] = {
    {PART_AC_AND_ARROWS, DIGIT_KEY_MODES, {161, 162, 236, 213}, paint_ac_and_arrows},
    {PART_ORANGE, mode_bit(COMP_MODE), small_key(44, 72), paint_orange},
    {PART_BLUE, DIGIT_KEY_MODES | mode_bit(PROGRAM_EDIT_MODE), {44, 72, 118, 229}, paint_blue},
    {PART_HYP, mode_bit(COMP_MODE), small_key(122, 72), paint_hyp},
    {PART_ALPHA_SHIFT, ANY_MODE, ALPHA_SHIFT_RECT, paint_alpha_shift},
    {PART_STATS_VAR, mode_bit(STATS_MODE), small_key(83, 72), paint_stats_var},
    {PART_REGRESSION, mode_bit(STATS_MODE), small_key(161, 102), paint_regression},
    {PART_BASE_TYPE, mode_bit(BASE_MODE), small_key(83, 72), paint_base_type},
    {PART_ANGLE, mode_bit(COMP_MODE), small_key(200, 132), paint_angle},
    {PART_BASE_BITS, mode_bit(BASE_MODE), small_key(122, 72), paint_base_bits},
    {PART_RUN, DIGIT_KEY_MODES, small_key(5, 72), paint_run},
    {PART_PLOT_LEDS, mode_bit(PLOT_MODE), {102, 242, 110, 277}, paint_plot_leds},
    {PART_TRACE_LEDS, mode_bit(PLOT_MODE), {12, 221, 77, 223}, paint_trace_leds},
};

const TIndicator* find_indicator(TScreenPart part) {
  const TIndicator* found = std::find_if(std::begin(indicators), std::end(indicators),
                                         [part](const TIndicator& row) { return row.part == part; });
  return found != std::end(indicators) && shown_in(found->modes) ? found : nullptr;
}

}  // namespace

void paint_indicator(TSurface& surface, TScreenPart part) {
  if (part == PART_SHIFTS) {
    for (const TScreenPart shift : {PART_ORANGE, PART_BLUE, PART_HYP}) paint_indicator(surface, shift);
  } else if (const TIndicator* indicator = find_indicator(part)) {
    indicator->paint(surface);
  }
}

void redraw_part(TScreenPart part) {
  // The overlay lies over all other indicators.
  if (state.alpha_active != (part == PART_ALPHA_SHIFT)) return;
  if (part == PART_SHIFTS) {
    for (const TScreenPart shift : {PART_ORANGE, PART_BLUE, PART_HYP}) redraw_part(shift);
  } else if (const TIndicator* indicator = find_indicator(part)) {
    const TKeyLifted lifted(indicator->rect);
    indicator->paint(screen_surface());
    platform().present(false);
  }
}

}  // namespace zephyl
