// What plots look like, pixel by pixel: each type, under each of its cursors.

#include "engine/state.h"
#include "plot/plotting.h"
#include "support/golden.h"

namespace zephyl {
namespace {

class plot_pictures : public plotting {
 protected:
  static void draw_functions() {
    put(PLOT_FUNCTION, 0, "sin(x)/x");
    put(PLOT_FUNCTION, 1, "1/x");
    put(PLOT_FUNCTION, 2, "sqRt(x)");
    put(PLOT_FUNCTION, 3, "tan(x)");
    set_plot_view(-6, -3, 6, 3);
  }
  static void draw_rose() {
    choose(PLOT_POLAR);
    put(PLOT_POLAR, 0, "8sin(3(theta))");
    put(PLOT_POLAR, 1, "(theta)");
  }
  static void draw_knot() {
    choose(PLOT_PARAMETRIC);
    put(PLOT_PARAMETRIC, 0, "8cos(3t)");
    put(PLOT_PARAMETRIC, 1, "8sin(4t)");
    put(PLOT_PARAMETRIC, 2, "5cos(t)");
    put(PLOT_PARAMETRIC, 3, "5sin(t)");
  }
  static void draw_waves() {
    choose(PLOT_3D);
    plot_variables.t = plot_variables.v = {-5.0, 5.0, 0.4};
    put_surface(0, "u", "v", "2cos(sqRt(u^(2)+v^(2)))");
  }
  static void draw_cone() {
    choose(PLOT_3D, PLOT_CYLINDRICAL);
    plot_variables.v = {0.0, 5.0, 0.5};
    plot_variables.t.step = 0.4;
    put_surface(1, "u", "v", "v");
    trace_functions.slot[PLOT_3D] = 3;
  }
  static void draw_ball() {
    choose(PLOT_3D, PLOT_SPHERICAL);
    plot_variables.v = {0.0, 3.141592653589793, 0.2};
    plot_variables.t.step = 0.3;
    put_surface(0, "u", "v", "6");
  }
  static void expect_plot(const std::string& name) { expect_picture("plot_" + name, shown_plot()); }
  // With the pen dragged from one point to another and still down.
  static void expect_under_cursors(const std::string& name, TPoint from, TPoint to) {
    draw();
    expect_plot(name);
    constexpr const char* cursors[] = {"_traced", "_boxed", "_panned", "_turned"};
    for (int cursor = 0; cursor < (plot_variables.plotType == PLOT_3D ? 4 : 3); ++cursor) {
      plot_variables.plotCursor = cursor;
      pen_down(from.x, from.y);
      pen_move(to.x, to.y);
      expect_plot(name + cursors[cursor]);
      forget_pen();
    }
  }
};

TEST_F(plot_pictures, function) {
  draw_functions();
  expect_under_cursors("function", {40, 30}, {150, 100});
}

TEST_F(plot_pictures, function_by_dots) {
  draw_functions();
  plot_variables.connectDots = 0;
  draw();
  expect_plot("function_dots");
}

TEST_F(plot_pictures, polar) {
  draw_rose();
  expect_under_cursors("polar", {40, 30}, {150, 100});
}

TEST_F(plot_pictures, parametric) {
  draw_knot();
  expect_under_cursors("parametric", {40, 30}, {150, 60});
}

TEST_F(plot_pictures, cartesian) {
  draw_waves();
  expect_under_cursors("cartesian", {40, 30}, {150, 100});
}

TEST_F(plot_pictures, cylindrical) {
  draw_cone();
  expect_under_cursors("cylindrical", {40, 30}, {130, 60});
}

TEST_F(plot_pictures, spherical) {
  draw_ball();
  expect_under_cursors("spherical", {40, 30}, {130, 110});
}

TEST_F(plot_pictures, axes_in_the_view) {
  choose(PLOT_3D);
  const double turns[][2] = {{85, 30}, {-60, 200}, {-30, 60}};
  for (int i = 0; i < 3; ++i) {
    plot_variables.rotation_x = turns[i][0];
    plot_variables.rotation_y = turns[i][1];
    draw();
    expect_plot("axes_" + std::to_string(i + 1));
  }
}

TEST_F(plot_pictures, screens) {
  draw_waves();
  request_plot();
  on_paint();
  expect_picture("plot_screen_3d", screen());
  choose(PLOT_FUNCTION);
  draw_functions();
  request_plot();
  on_paint();
  expect_picture("plot_screen_flat", screen());
}

}  // namespace
}  // namespace zephyl
