// Commands that look at the picture.

#include <cstdio>

#include "platform/events.h"
#include "platform/script/arguments.h"
#include "platform/script/commands.h"
#include "platform/script/png_writer.h"
#include "platform/script/script.h"
#include "platform/surface.h"
#include "plot/plot.h"

namespace zephyl {

namespace {

std::string hexadecimal(std::uint32_t number, int digits) {
  char text[12];
  std::snprintf(text, sizeof text, "%0*x", digits, static_cast<unsigned>(number));
  return text;
}

bool obey_pixel(TScript& script, const std::string& text) {
  int x = 0, y = 0;
  if (!read_point(text, x, y)) return false;
  if (x < 0 || y < 0 || x >= screen().width() || y >= screen().height())
    script.refuse("outside of the picture");
  else
    script.answer(hexadecimal(screen().pixel(x, y), 6));
  return true;
}

bool obey_plot(TScript& script, const std::string& text) {
  int x = 0, y = 0;
  if (!read_point(text, x, y)) return false;
  if (!PLOT_AREA.contains(x, y))
    script.refuse("outside of the plot");
  else
    script.answer(hexadecimal(shown_plot().pixel(x, y), 6));
  return true;
}

bool obey_png(TScript& script, const std::string& text) {
  if (text.empty()) return false;
  if (!write_png(screen(), text.c_str())) script.refuse("cannot write " + text);
  return true;
}

bool obey_hash(TScript& script, const std::string&) {
  script.answer(hexadecimal(picture_hash(screen()), 8));
  return true;
}

constexpr TCommand COMMANDS[] = {
    {"pixel", "pixel X Y", obey_pixel},
    {"plot", "plot X Y", obey_plot},
    {"png", "png PATH", obey_png},
    {"hash", "hash", obey_hash},
};

}  // namespace

TCommandGroup picture_commands() { return {COMMANDS, static_cast<int>(std::size(COMMANDS))}; }

}  // namespace zephyl
