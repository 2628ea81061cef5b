#include "faceplate/faceplate.h"

#include "engine/hooks.h"
#include "faceplate/dialogs/stats_list.h"
#include "faceplate/entry_line_view.h"
#include "faceplate/hit_test.h"
#include "faceplate/indicators.h"
#include "faceplate/modes.h"
#include "faceplate/resources.h"
#include "faceplate/result_line_view.h"
#include "faceplate/title.h"
#include "stats/stats.h"

namespace zephyl {

void register_faceplate_hooks() {
  hooks.draw_expression = draw_expression;
  hooks.draw_result = draw_result;
  hooks.redraw_part = redraw_part;
  hooks.redraw_title = refresh_title;
  hooks.set_mode = set_mode;
  hooks.tap_kind = tap_kind;
  show_stats_list = show_stats_rows;
  hooks.character_glyph = [](unsigned char character) { return &character_glyph(character); };
}

}  // namespace zephyl
