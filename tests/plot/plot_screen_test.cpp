// When the plot is drawn, how a long one shows, and what ends it.

#include <functional>

#include "engine/errors.h"
#include "engine/evaluator.h"
#include "engine/hooks.h"
#include "engine/memory.h"
#include "engine/poll.h"
#include "engine/state.h"
#include "platform/platform.h"
#include "plot/custom_function.h"
#include "plot/drawing.h"
#include "plot/plotting.h"

namespace zephyl {
namespace {

class plot_screen_drawing : public plotting {
 protected:
  plot_screen_drawing() {
    shown() = 0;
    hooks.show_plot = [](const TSurface&, bool) { ++shown(); };
  }
  // How often the picture went to the screen.
  static int& shown() {
    static int count;
    return count;
  }
  static bool draws_again() {
    const TColour no_curve = rgb(1, 2, 3);
    drawing_bitmap().set_pixel(100, 100, no_curve);
    const bool again = shown_plot().pixel(100, 100) == no_curve;
    drawing_bitmap().set_pixel(100, 100, WHITE);
    return again;
  }
};

TEST_F(plot_screen_drawing, happens_once_for_a_change) {
  draw();
  EXPECT_FALSE(draws_again());
  request_plot();
  EXPECT_TRUE(draws_again());
}

TEST_F(plot_screen_drawing, follows_every_change_of_the_view_and_the_switches) {
  const std::function<void()> changes[] = {[] { set_plot_view(-1, -1, 1, 1); }, [] { set_plot_defaults(); },
                                           [] { zoom_out(); }, [] { hooks.plot_changed(); },
                                           [] { clear_items(CLEAR_PLOT_FUNCTIONS); }};
  for (const auto& change : changes) {
    draw();
    change();
    EXPECT_TRUE(draws_again());
  }
}

TEST_F(plot_screen_drawing, begins_with_the_drawing_layer) {
  without_grid();
  drawing_bitmap().set_pixel(7, 8, RED);
  draw();
  EXPECT_EQ(shown_plot().pixel(7, 8), RED);
  EXPECT_EQ(ink(), 1);
}

TEST_F(plot_screen_drawing, ends_with_the_labels_on_top) {
  put(PLOT_FUNCTION, 0, "9.5");
  draw();
  int covered = 0;
  for (int column = 2; column < 40; ++column) covered += rows_of(BLUE, column).empty();
  EXPECT_GT(covered, 5);
}

TEST_F(plot_screen_drawing, refuses_an_unknown_type) {
  plot_variables.plotType = 4;
  plot_it();
  EXPECT_EQ(message(), "Bug (plot_it) | Undefined Plot Type");
  plot_variables.plotType = PLOT_FUNCTION;
}

// --- Programs and evaluations

TEST_F(plot_screen_drawing, only_notes_a_plot_while_a_program_runs) {
  put(PLOT_FUNCTION, 0, "5");
  state.program_running = true;
  drawing_bitmap().set_pixel(7, 150, RED);
  draw();
  EXPECT_EQ(count_of(BLUE), 0);
  EXPECT_EQ(shown_plot().pixel(7, 150), RED);
  EXPECT_GT(count_of(GRID_GREY), 0);
  state.program_running = false;
  EXPECT_GT(count_of(BLUE), 0);
}

TEST_F(plot_screen_drawing, shows_what_a_command_of_a_program_draws_at_once) {
  without_grid();
  draw();
  state.program_running = true;
  drawing_bitmap().set_pixel(7, 8, RED);
  platform_.paint_requested = false;
  drawing_changed();
  EXPECT_EQ(shown(), 1);
  EXPECT_EQ(shown_plot().pixel(7, 8), RED);
  EXPECT_FALSE(platform_.paint_requested);
  state.program_running = false;
  hooks.request_plot_redraw();
  EXPECT_TRUE(platform_.paint_requested);
}

TEST_F(plot_screen_drawing, waits_for_the_end_of_an_evaluation_that_paints) {
  put(PLOT_FUNCTION, 0, "5");
  platform_.ticks_per_look = 600;
  platform_.paint_requested = true;
  request_plot();
  EXPECT_EQ(eval("Summ(A,A,1,2000)+1"), "2001001");
  EXPECT_GT(count_of(BLUE), 0);
}

// --- Long plots

TEST_F(plot_screen_drawing, shows_a_long_plot_20_times_a_second) {
  put(PLOT_FUNCTION, 0, "Summ(A,A,1,20)+x");
  platform_.ticks_per_look = 1;
  draw();
  const std::uint32_t begin = platform_.ticks;
  shown() = 0;
  draw();
  const std::uint32_t milliseconds = platform_.ticks - begin;
  EXPECT_GT(milliseconds, 200u);
  EXPECT_GE(shown() * 1000.0 / milliseconds, 19.0);
}

TEST_F(plot_screen_drawing, shows_a_quick_plot_when_it_is_complete) {
  put(PLOT_FUNCTION, 0, "x");
  draw();
  EXPECT_EQ(shown(), 0);
}

TEST_F(plot_screen_drawing, stops_at_a_tap_on_a_key_and_stays_as_far_as_it_had_come) {
  without_grid();
  put(PLOT_FUNCTION, 0, "Summ(1,A,1,200)-195");
  put(PLOT_FUNCTION, 1, "1");
  platform_.ticks_per_look = 1;
  platform_.pen_downs = {{20, 250}};  // Plot Setup
  draw();
  EXPECT_TRUE(plot_cancelled);
  EXPECT_GT(count_of(BLUE), 0);
  EXPECT_LT(count_of(BLUE), 226);
  EXPECT_EQ(count_of(RED), 0);
  EXPECT_FALSE(errors.error_flag);
  EXPECT_EQ(message(), "none");
  EXPECT_EQ(platform_.pen_downs.size(), 1u);
  EXPECT_FALSE(draws_again());
}

TEST_F(plot_screen_drawing, stops_within_600_milliseconds_of_a_tap) {
  for (const int type : {PLOT_FUNCTION, PLOT_POLAR, PLOT_PARAMETRIC, PLOT_3D}) {
    choose(type);
    for (int slot = 0; slot < 6; ++slot) put(type, slot, "Summ(A,A,1,500)+1");
    platform_.ticks_per_look = 1;
    platform_.pen_downs = {{20, 250}};
    const std::uint32_t begin = platform_.ticks;
    draw();
    EXPECT_TRUE(plot_cancelled) << type;
    EXPECT_LT(platform_.ticks - begin, 600u) << type;
  }
}

TEST_F(plot_screen_drawing, goes_on_through_taps_on_its_own_keys) {
  put(PLOT_FUNCTION, 0, "Summ(1,A,1,200)-195");
  platform_.ticks_per_look = 5;
  platform_.pen_downs = {{109, 230}, {60, 60}};  // zoom in, the plot itself
  draw();
  EXPECT_FALSE(plot_cancelled);
  EXPECT_TRUE(platform_.pen_downs.empty());
}

TEST_F(plot_screen_drawing, is_not_begun_anew_by_what_its_functions_do) {
  put(PLOT_FUNCTION, 0, "Circle(0,0,x)");
  put(PLOT_FUNCTION, 1, "x->xMin");
  draw();
  EXPECT_FALSE(draws_again());
  EXPECT_EQ(plot_variables.xMin, -10.0);
}

TEST_F(plot_screen_drawing, of_functions_that_only_fail_leaves_no_error) {
  for (const int type : {PLOT_FUNCTION, PLOT_POLAR, PLOT_PARAMETRIC, PLOT_3D}) {
    choose(type);
    for (int slot = 0; slot < 6; ++slot) put(type, slot, "1/0");
    draw();
    EXPECT_FALSE(errors.error_flag) << type;
    EXPECT_EQ(count_of(BLUE), 0) << type;
  }
  EXPECT_EQ(message(), "none");
}

}  // namespace
}  // namespace zephyl
