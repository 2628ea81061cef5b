// What the screens look like, pixel by pixel: each in every skin, and the marks that lie on them.

#include <string>

#include "engine/errors.h"
#include "engine/state.h"
#include "faceplate/alpha_entry.h"
#include "faceplate/face.h"
#include "plot/plot_variables.h"
#include "programs/run_state.h"
#include "support/golden.h"

namespace zephyl {
namespace {

constexpr int SKINS = 3;

class pictures : public face {
 protected:
  // The screen as it is composed now, in each skin.
  static void expect_in_every_skin(const std::string& name) {
    for (settings.skin = 0; settings.skin < SKINS; ++settings.skin)
      expect_screen(name + "_skin_" + std::to_string(settings.skin));
    settings.skin = 0;
  }
  static void expect_screen(const std::string& name) {
    paint();
    expect_picture(name, screen());
  }
};

TEST_F(pictures, comp_with_a_line_and_its_result) {
  settings.angleMode = DEGREES;
  eval("2+sin(30)*sqRt 2");
  expect_in_every_skin("comp");
}

TEST_F(pictures, comp_with_a_cursor_in_a_line_that_is_written) {
  for (const char* text = "12.5*(7+"; *text; ++text) on_char(static_cast<unsigned char>(*text));
  expect_screen("comp_entry");
}

TEST_F(pictures, base_with_a_hexadecimal_number) {
  state.calcMode = state.dynamic_mode = BASE_MODE;
  settings.baseType = U_HEX;
  eval("255*16");
  expect_in_every_skin("base");
}

TEST_F(pictures, stats) {
  state.calcMode = state.dynamic_mode = STATS_MODE;
  eval("12.5/4");
  expect_in_every_skin("stats");
}

TEST_F(pictures, stats_of_two_variables) {
  state.calcMode = state.dynamic_mode = STATS_MODE;
  settings.statsVar = 1;
  settings.statsRegress = R_POWER;
  expect_screen("stats_two_variables");
}

TEST_F(pictures, periodic) {
  state.calcMode = PERIODIC_MODE;
  expect_screen("periodic");
}

TEST_F(pictures, matrix_and_list_without_data) {
  state.calcMode = state.dynamic_mode = MATRIX_MODE;
  expect_in_every_skin("matrix");
  state.calcMode = state.dynamic_mode = LIST_MODE;
  expect_in_every_skin("list");
}

TEST_F(pictures, shifts_that_are_on) {
  state.blue_shift = state.orange_shift = state.hyp_shift = true;
  expect_in_every_skin("comp_shifts");
}

TEST_F(pictures, an_error) {
  eval("1/0");
  expect_in_every_skin("comp_error");
}

TEST_F(pictures, a_decimal_comma) {
  settings.decimalMark = 1;
  eval("1/8");
  expect_in_every_skin("comp_comma");
  state.calcMode = STATS_MODE;
  expect_screen("stats_comma");
}

TEST_F(pictures, a_running_program) {
  state.program_running = run.key_run = true;
  expect_in_every_skin("comp_running");
  state.program_running = run.key_run = false;
}

TEST_F(pictures, the_program_editor) {
  state.calcMode = PROGRAM_EDIT_MODE;
  expect_in_every_skin("program_edit");
}

TEST_F(pictures, the_keys_of_plots) {
  state.calcMode = PLOT_MODE;
  expect_in_every_skin("plot_function");
  plot_variables.plotType = PLOT_3D;
  plot_variables.plotCursor = CURSOR_ROTATE;
  expect_in_every_skin("plot_3d");
}

class text_entry_pictures : public pictures {
 protected:
  static void begin(int kind, const std::string& text) {
    start_alpha_entry(kind);
    for (const char c : text) on_char(static_cast<unsigned char>(c));
  }
};

TEST_F(text_entry_pictures, letters) {
  begin(ALPHA_STRING, "Hello, w");
  expect_in_every_skin("alpha_letters");
  tap_key(36);
  expect_screen("alpha_letters_shifted");
}

TEST_F(text_entry_pictures, symbols) {
  begin(ALPHA_STRING, "a");
  tap_key(39);
  tap_key(36);
  expect_screen("alpha_symbols_long_shifted");
  begin(ALPHA_NEW_PROGRAM, "Sum");
  tap_key(39);
  expect_screen("alpha_symbols_short");
  tap_key(36);
  expect_screen("alpha_symbols_short_shifted");
}

TEST_F(text_entry_pictures, prompts) {
  constexpr TRect PROMPT = {4, 58, 200, 82};
  TSurface all(PROMPT.width(), ALPHA_PROMPT_COUNT * PROMPT.height());
  for (int kind = 0; kind < ALPHA_PROMPT_COUNT; ++kind) {
    begin(kind, "");
    paint();
    all.blit(0, kind * PROMPT.height(), PROMPT.width(), PROMPT.height(), screen(), PROMPT.left, PROMPT.top);
  }
  expect_picture("alpha_prompts", all);
}

TEST_F(pictures, brightness_and_colour_of_the_display) {
  settings.brightness = 200;
  settings.display_color = 0xE0F0C0;
  eval("1/3");
  expect_screen("comp_bright");
}

TEST_F(pictures, a_key_under_the_pen) {
  press_key_down(33);
  expect_picture("comp_pressed", screen());
  on_pen_up(0, 0);
}

}  // namespace
}  // namespace zephyl
