// The one state record of the key path and the settings. Every field is owned by the part its comment names and
// may be read by all.
#pragma once

#include <cstdint>

namespace zephyl {

enum TCalcMode { BASE_MODE = 0, COMP_MODE = 1, STATS_MODE = 2, PROGRAM_EDIT_MODE = 3, PERIODIC_MODE = 4, PLOT_MODE = 5,
                 MATRIX_MODE = 6, LIST_MODE = 7 };
enum TAngleMode { RADIANS = 0, DEGREES = 1, GRADS = 2 };
enum TBaseBits { BITS_8 = 0, BITS_16 = 1, BITS_32 = 2 };
enum TBaseType { U_BIN = 0, U_OCT = 1, U_DEC = 2, U_HEX = 3 };
enum TComplexFormat { ST_REAL = 0, ST_COMPLEX_R = 1, ST_COMPLEX_P = 2 };
enum TNumberFormat { FORMAT_FLOAT = 0, FORMAT_FIXED = 1, FORMAT_SCIENTIFIC = 2, FORMAT_ENGINEERING = 3 };
enum TRegression { R_LINEAR = 0, R_LOGARITHMIC = 1, R_EXPON = 2, R_POWER = 3 };

// Held from 0; the system variables of the same names read them from 1.
struct TSettings {
  int angleMode = RADIANS;
  int baseBits = BITS_16;
  int baseType = U_DEC;
  int complexFormat = ST_REAL;
  int decimalDigits = 4;
  int decimalMark = 0;  // 0 point, 1 comma
  int keyClick = 0;
  int numberFormat = FORMAT_FLOAT;
  int statsRegress = R_LINEAR;
  int statsVar = 0;
  int display_color = 10406866;  // red in the low byte
  int brightness = 128;
  int skin = 0;
};
extern TSettings settings;

constexpr int RESULT_TEXT_SIZE = 120;

struct TState {
  int calcMode = COMP_MODE;
  int dynamic_mode = STATS_MODE;  // where the fourth tab leads
  bool blue_shift = false;
  bool orange_shift = false;
  bool hyp_shift = false;
  bool init_done = false;
  bool fresh_flag = true;  // a result stands; the next token starts a new expression
  bool nothing_evaluated = true;
  bool program_running = false;
  std::uint32_t program_start_tick = 0;  // of the clock, while one runs
  bool at_prompt = false;
  bool at_function_prompt = false;
  bool key_wait = false;
  bool alpha_active = false;
  bool drag_in_progress = false;
  bool swallow_up = false;
  int plot_button = -1;
  double plot_stylus_x = 0.0;
  double plot_stylus_y = 0.0;
  bool result_shown = false;             // the result line holds a result
  char result_text[RESULT_TEXT_SIZE] = "";  // small text: glyph codes of format.h
  int result_offset = 0;                 // characters scrolled off to the left
  char prompt_text[RESULT_TEXT_SIZE] = "";
};
extern TState state;

// A program runs and asks for nothing: what is entered and evaluated by keys has to wait.
inline bool program_works() { return state.program_running && !state.at_prompt; }

void reset_settings();
void reset_state();

}  // namespace zephyl
