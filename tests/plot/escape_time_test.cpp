// The Mandelbrot and Julia sets: every kernel counts as the plain loop does, and every pixel has the colour
// of its count.

#include "plot/fractals/escape_time.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

#include "engine/faults.h"
#include "engine/hooks.h"
#include "engine/state.h"
#include "plot/fractals/fractals.h"
#include "plot/fractals/palette.h"
#include "plot/plot_variables.h"
#include "support/drawing.h"

namespace zephyl {
namespace {

// The definition, as it stands in a book.
int rounds_by_definition(double z_re, double z_im, double c_re, double c_im) {
  int round = 0;
  while (round < ESCAPE_ROUNDS && z_re * z_re + z_im * z_im <= 4.0) {
    const double next_re = z_re * z_re - z_im * z_im + c_re;
    z_im = 2.0 * z_re * z_im + c_im;
    z_re = next_re;
    ++round;
  }
  return round;
}

void fill_at_random(TEscapeBatch& batch, int count, std::mt19937& random) {
  std::uniform_real_distribution<double> part(-2.2, 2.2), kind(0, 1);
  batch.count = count;
  for (int i = 0; i < count; ++i) {
    const bool julia = kind(random) < 0.5;
    batch.z_re[i] = julia ? part(random) : 0.0;
    batch.z_im[i] = julia ? part(random) : 0.0;
    batch.c_re[i] = part(random) * 0.7;
    batch.c_im[i] = part(random) * 0.7;
  }
}

TEST(escape_time, every_kernel_counts_as_the_definition_does) {
  std::mt19937 random(4);
  int kernel_count;
  const TNamedEscapeKernel* kernels = escape_kernels(kernel_count);
  ASSERT_GE(kernel_count, 1);
  EXPECT_STREQ(kernels[kernel_count - 1].name, "plain");
  for (int repeat = 0; repeat < 100; ++repeat) {
    static TEscapeBatch batch;
    fill_at_random(batch, static_cast<int>(random() % (TEscapeBatch::LIMIT + 1)), random);
    for (int k = 0; k < kernel_count; ++k) {
      std::fill(batch.rounds, batch.rounds + batch.count, std::uint8_t{200});
      kernels[k].kernel(batch);
      for (int i = 0; i < batch.count; ++i)
        ASSERT_EQ(batch.rounds[i],
                  rounds_by_definition(batch.z_re[i], batch.z_im[i], batch.c_re[i], batch.c_im[i]))
            << kernels[k].name << " z " << batch.z_re[i] << ' ' << batch.z_im[i] << " c " << batch.c_re[i]
            << ' ' << batch.c_im[i];
    }
  }
}

TEST(escape_time, every_kernel_takes_the_edges_of_the_doubles) {
  const double parts[] = {0.0, -0.0, 2.0, -2.0, std::nextafter(2.0, 3.0), 1e-320, 1e308, -1e308, 0.25, -0.75};
  int kernel_count;
  const TNamedEscapeKernel* kernels = escape_kernels(kernel_count);
  static TEscapeBatch batch;
  batch.count = 0;
  for (const double a : parts)
    for (const double b : parts) {
      batch.z_re[batch.count] = a;
      batch.z_im[batch.count] = b;
      batch.c_re[batch.count] = b;
      batch.c_im[batch.count++] = a;
    }
  for (int k = 0; k < kernel_count; ++k) {
    kernels[k].kernel(batch);
    for (int i = 0; i < batch.count; ++i)
      EXPECT_EQ(batch.rounds[i],
                rounds_by_definition(batch.z_re[i], batch.z_im[i], batch.c_re[i], batch.c_im[i]))
          << kernels[k].name << " z " << batch.z_re[i] << ' ' << batch.z_im[i];
  }
}

TEST(escape_palette, goes_once_around_the_hues_and_gets_dark) {
  const TColour* palette = escape_palette();
  // v = 1/128: hue and value of a point that escapes at once.
  EXPECT_EQ(palette[128], hsv_to_rgb(0.0078125, 0.8, 1.1 - std::pow(0.0078125, 3)));
  EXPECT_EQ(red_of(palette[128]), 255);
  EXPECT_EQ(palette[1], hsv_to_rgb(1.0, 0.8, 0.1 + 1e-17));
  EXPECT_LT(std::max({red_of(palette[0]), green_of(palette[0]), blue_of(palette[0])}), 25);
}

TEST(escape_palette, has_six_sectors_of_hue) {
  EXPECT_EQ(hsv_to_rgb(0.3, 0.0, 0.5), rgb(127, 127, 127));
  EXPECT_EQ(hsv_to_rgb(0.0, 1.0, 1.0), rgb(255, 0, 0));
  EXPECT_EQ(hsv_to_rgb(1.5 / 6, 1.0, 1.0), rgb(127, 255, 0));
  EXPECT_EQ(hsv_to_rgb(2.5 / 6, 1.0, 1.0), rgb(0, 255, 127));
  EXPECT_EQ(hsv_to_rgb(3.5 / 6, 1.0, 1.0), rgb(0, 127, 255));
  EXPECT_EQ(hsv_to_rgb(4.5 / 6, 1.0, 1.0), rgb(127, 0, 255));
  EXPECT_EQ(hsv_to_rgb(5.5 / 6, 1.0, 1.0), rgb(255, 0, 127));
  EXPECT_EQ(hsv_to_rgb(6.03125 / 6, 1.0, 1.0), rgb(255, 0, 247))
      << "beyond the circle the last sector begins anew";
  EXPECT_EQ(hsv_to_rgb(0.0, 1.0, 1.1), rgb(255, 0, 0));
}

class escape_fractal : public drawn {
 protected:
  TColour entry(int number) { return escape_palette()[number]; }

  // All pixels against the definition, with the bound of 3.
  void expect_picture_of(bool julia, TValue c, bool bounded) {
    const TPlotVariables& view = plot_variables;
    const double dx = (view.xMax - view.xMin) * 0.004424778761061947,
                 dy = (view.yMin - view.yMax) * 0.005555555555555556;
    for (int row = 0; row < PLOT_HEIGHT; ++row)
      for (int column = 0; column < PLOT_WIDTH; ++column) {
        const double x = column * dx + view.xMin, y = row * dy + view.yMax;
        const bool outside = bounded && (std::fabs(x) >= 3 || std::fabs(y) >= 3);
        const int rounds = outside ? 0
                           : julia ? rounds_by_definition(x, y, c.re, c.im)
                                   : rounds_by_definition(0, 0, x, y);
        ASSERT_EQ(at(column, row), entry(ESCAPE_ROUNDS - rounds)) << column << ' ' << row;
      }
  }
};

TEST_F(escape_fractal, the_mandelbrot_set_in_many_views) {
  const double views[][4] = {{-10, -10, 10, 10},
                             {-2.2, -1.2, 0.8, 1.2},
                             {-0.76, 0.08, -0.73, 0.105},
                             {0.2499, -0.001, 0.2512, 0.001},
                             {-1.2505, -0.01, -1.2495, 0.01},
                             {-0.751, -0.002, -0.749, 0.002},
                             {-0.125, 0.744, -0.123, 0.7445}};
  for (const auto& view : views) {
    ASSERT_TRUE(set_plot_view(view[0], view[1], view[2], view[3]));
    EXPECT_EQ(eval("Mandelbrot()"), "0");
    expect_picture_of(false, {}, true);
  }
}

TEST_F(escape_fractal, julia_sets) {
  ASSERT_TRUE(set_plot_view(-1.7, -1.35, 1.7, 1.35));
  for (const TValue& c :
       {TValue{-0.8, 0.156}, TValue{0, 0}, TValue{0.285, 0.01}, TValue{-1, 0}, TValue{2.5, 0}}) {
    julia_picture(c);
    EXPECT_EQ(eval("Julia(" + std::to_string(c.re) + "+" + std::to_string(c.im) + "(i))"), "0");
    expect_picture_of(true, c, true);
  }
}

TEST_F(escape_fractal, a_disc_belongs_to_the_julia_set_of_zero) {
  ASSERT_TRUE(set_plot_view(-2, -2, 2, 2));
  eval("Julia(0)");
  EXPECT_EQ(at(113, 90), entry(0));
  EXPECT_EQ(at(60, 90), entry(0));
  EXPECT_NE(at(55, 90), entry(0));
}

TEST_F(escape_fractal, a_view_far_from_the_set_has_one_colour) {
  ASSERT_TRUE(set_plot_view(100, 100, 200, 200));
  eval("Mandelbrot()");
  for (const TColour colour : pixels()) ASSERT_EQ(colour, entry(128));
}

TEST_F(escape_fractal, a_constant_of_three_is_outside_everywhere) {
  ASSERT_TRUE(set_plot_view(-1, -1, 1, 1));
  for (const char* command : {"Julia(3)", "Julia(-3(i))", "Julia(1+4(i))"}) {
    eval(command);
    for (const TColour colour : pixels()) ASSERT_EQ(colour, entry(128)) << command;
  }
}

// Where a step is finer than 3e-8 there is no bound: a point beyond 3 takes its first round.
TEST_F(escape_fractal, the_finest_views_have_no_bound) {
  ASSERT_TRUE(set_plot_view(3.5, 3.5, 3.5 + 1e-6, 3.6));
  eval("Mandelbrot()");
  expect_picture_of(false, {}, false);
  EXPECT_EQ(at(0, 0), entry(127));
  ASSERT_TRUE(set_plot_view(3.5, 3.5, 3.6, 3.6));
  eval("Mandelbrot()");
  EXPECT_EQ(at(0, 0), entry(128));
}

TEST_F(escape_fractal, a_tiny_constant_has_no_bound) {
  ASSERT_TRUE(set_plot_view(-1, -1, 4, 4));
  eval("Julia(1E-9)");
  expect_picture_of(true, {1e-9, 0}, false);
  eval("Julia(0)");
  expect_picture_of(true, {0, 0}, true);
}

TEST_F(escape_fractal, takes_the_narrowest_and_the_widest_view) {
  ASSERT_TRUE(set_plot_view(-1e100, -1e100, 1e100, 1e100));
  EXPECT_EQ(eval("Mandelbrot()"), "0");
  ASSERT_TRUE(set_plot_view(0, 0, 1e-300, 5e-324));
  EXPECT_EQ(eval("Mandelbrot()"), "0");
  EXPECT_EQ(at(100, 100), entry(0));
  EXPECT_EQ(eval("Julia(1E308+1E308(i))"), "0");
}

int redraws = 0;
int rows_at_first_redraw = 0;

TEST_F(escape_fractal, shows_every_tenth_row) {
  state.calcMode = PLOT_MODE;
  redraws = 0;
  hooks.request_plot_redraw = [] {
    if (redraws++ > 0) return;
    rows_at_first_redraw = 0;
    while (drawing_bitmap().pixel(0, rows_at_first_redraw) != WHITE) ++rows_at_first_redraw;
  };
  eval("Mandelbrot()");
  EXPECT_EQ(rows_at_first_redraw, 10);
  EXPECT_EQ(redraws, 19) << "18 on the way and one at the end";
  EXPECT_TRUE(drawing.drawing_used);
}

TEST_F(escape_fractal, a_tap_stops_it_and_what_is_drawn_stays) {
  ASSERT_TRUE(set_plot_view(-2, -1.2, 0.8, 1.2));
  platform_.pen_downs.push_back({111, 200});
  platform_.ticks_per_look = 100;
  EXPECT_EQ(error_of("Mandelbrot()"), "Operation Canceled");
  const TRect box = ink_box();
  EXPECT_EQ(box.top, 0);
  EXPECT_GE(box.bottom, 3);
  EXPECT_LT(box.bottom, 12) << "not more than 600 milliseconds of rows";
}

}  // namespace
}  // namespace zephyl
