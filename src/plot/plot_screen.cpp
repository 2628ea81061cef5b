#include "plot/plot_screen.h"

#include <cstdint>

#include "engine/hooks.h"
#include "platform/platform.h"
#include "plot/plot.h"

namespace zephyl {

namespace {

constexpr std::uint32_t GROWTH_INTERVAL = 45;  // milliseconds
constexpr int QUICK_SAMPLES = 64;              // between two looks at the clock

std::uint32_t last_growth = 0;
int samples_to_look = 0;

// True when it is time to show again what is being drawn.
bool growth_is_due() {
  const std::uint32_t now = platform().tick_count();
  if (now - last_growth < GROWTH_INTERVAL) return false;
  last_growth = now;
  return true;
}

void copy_picture(TSurface& to, const TSurface& from) { to.blit(0, 0, PLOT_WIDTH, PLOT_HEIGHT, from, 0, 0); }

}  // namespace

TPlotScreen& plot_screen() {
  static TPlotScreen screen;
  return screen;
}

TSurface& begin_marks() {
  TPlotScreen& screen = plot_screen();
  copy_picture(screen.marks, screen.plot);
  return screen.marks;
}

void show_marks() {
  plot_screen().marks_shown = true;
  hooks.show_plot(plot_screen().marks, false);
}

void show_plot() {
  plot_screen().marks_shown = false;
  hooks.show_plot(plot_screen().plot, false);
}

void begin_growth() {
  last_growth = platform().tick_count();
  samples_to_look = QUICK_SAMPLES;
}

void grow(bool quick) {
  if (quick && --samples_to_look > 0) return;
  samples_to_look = QUICK_SAMPLES;
  if (growth_is_due()) hooks.show_plot(plot_screen().plot, true);
}

void show_progress() { hooks.show_plot(plot_screen().plot, growth_is_due()); }

void reset_plot_screen() {
  TPlotScreen& screen = plot_screen();
  screen.plot.fill(PLOT_AREA, WHITE);
  screen.marks_shown = screen.plotting = false;
  screen.needs_drawing = true;
}

}  // namespace zephyl
