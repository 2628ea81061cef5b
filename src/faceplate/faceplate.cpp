#include "faceplate/faceplate.h"

#include "engine/hooks.h"
#include "engine/state.h"
#include "faceplate/alpha_entry.h"
#include "faceplate/dialogs/stats_list.h"
#include "faceplate/display.h"
#include "faceplate/entry_line_view.h"
#include "faceplate/gif.h"
#include "faceplate/hit_test.h"
#include "faceplate/indicators.h"
#include "faceplate/modes.h"
#include "faceplate/picture_writer.h"
#include "faceplate/program_edit.h"
#include "faceplate/resources.h"
#include "faceplate/result_line_view.h"
#include "faceplate/title.h"
#include "persistence/constants.h"
#include "platform/platform.h"
#include "plot/plot.h"
#include "stats/stats.h"

namespace zephyl {

namespace {

void draw_image(TSurface& surface, const char* name, int x, int y) {
  if (find_picture(name))
    blit_bitmap(surface, name, x, y);
  else
    draw_gif_resource(surface, name, x, y, false, false);
}

void show_plot_picture(const TSurface& plot, bool at_once) {
  if (state.calcMode != PLOT_MODE || state.alpha_active) return;
  screen_surface().blit(PLOT_LEFT, PLOT_TOP, PLOT_WIDTH, PLOT_HEIGHT, plot, 0, 0);
  platform().present(at_once);
}

// The second step of a constant, whose value is Ans. A name that is in use ends it too.
bool add_typed_constant(int, const char* unit) {
  add_constant(alpha_entry.constant_name, unit);
  return true;
}

}  // namespace

void register_faceplate_hooks() {
  register_program_edit();
  hooks.draw_expression = draw_expression;
  hooks.draw_result = draw_result;
  hooks.redraw_part = redraw_part;
  hooks.redraw_title = refresh_title;
  hooks.set_mode = set_mode;
  hooks.tap_kind = tap_kind;
  set_alpha_taker(ALPHA_CONSTANT_UNIT, add_typed_constant);
  show_stats_list = show_stats_rows;
  hooks.write_picture = write_picture;
  hooks.read_picture = [](TSurface& picture, const std::uint8_t* bytes, std::size_t size) {
    draw_gif_pairs(picture, bytes, size);
  };
  hooks.bitmap = load_bitmap;
  hooks.draw_image = draw_image;
  hooks.show_plot = show_plot_picture;
  hooks.character_glyph = [](unsigned char character) { return &character_glyph(character); };
}

}  // namespace zephyl
