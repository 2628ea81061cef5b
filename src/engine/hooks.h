// The few calls that go upward: what the engine asks of folders above it. Each hook does nothing (or gives the value
// in its comment) until its owner puts a function in, at start.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "engine/values.h"

namespace zephyl {

// Indicators that can be repainted by themselves.
enum TScreenPart {
  PART_AC_AND_ARROWS = 0, PART_SHIFTS, PART_ORANGE, PART_BLUE, PART_HYP, PART_ALPHA_SHIFT, PART_STATS_VAR, PART_REGRESSION,
  PART_BASE_TYPE, PART_ANGLE, PART_BASE_BITS, PART_RUN, PART_PLOT_LEDS, PART_TRACE_LEDS
};

// What a tap at a point would be, for the poll of a long evaluation.
enum TTapKind { TAP_NO_KEY, TAP_CANCEL_PROOF_KEY, TAP_KEY };

// A unit of the conversion table; result = (x - from.offset) * from.factor / to.factor + to.offset.
struct TUnit {
  const char* short_name;
  double factor;
  double offset;
};

struct TRunningProgram {
  const char* name;
  int statement;  // current statement number, from 0
  bool paused;    // stands at a prompt or a pause
};

struct TFuncFrame;
class TSurface;
struct TBitmap;
class TSurface;

// What a custom function's first statement declares.
struct TFunctionHeader {
  int count = 0;      // of arguments, 0 to 6
  int slots[6] = {};  // the memory slot each goes to; its class is the argument's type
};

struct THooks {
  // faceplate
  void (*draw_expression)(bool with_cursor) = [](bool) {};
  void (*draw_result)(bool home) = [](bool) {};
  void (*redraw_part)(TScreenPart part) = [](TScreenPart) {};
  void (*redraw_title)() = [] {};
  void (*set_mode)(int mode, bool ask) = nullptr;  // null: the mode is only stored
  TTapKind (*tap_kind)(int x, int y) = [](int, int) { return TAP_KEY; };
  // The line glyph of a character, 17 pixels high; null: there are no glyphs.
  const TBitmap* (*character_glyph)(unsigned char character) = [](unsigned char) -> const TBitmap* { return nullptr; };
  // A named glyph, "SMALL_XMIN". Null, with a message box, for a name that there is none of.
  const TBitmap* (*bitmap)(const char* name) = [](const char*) -> const TBitmap* { return nullptr; };
  // Draws the image or the coloured box of that name at a place of a surface.
  void (*draw_image)(TSurface& surface, const char* name, int x, int y) = [](TSurface&, const char*, int, int) {};
  // The plot's picture has changed: it goes to its place on the PLOT screen. at_once: not only when the driver comes
  // round to it, for what is drawn in the midst of a long run.
  void (*show_plot)(const TSurface& plot, bool at_once) = [](const TSurface&, bool) {};
  // A picture as the bytes of a GIF with 16-bit colours, and drawn from them; what can't be read is told.
  void (*write_picture)(const TSurface& picture, std::vector<std::uint8_t>& bytes) = nullptr;
  void (*read_picture)(TSurface& picture, const std::uint8_t* bytes, std::size_t size) = nullptr;
  // plot
  void (*plot_changed)() = [] {};         // the plot must be drawn again
  void (*request_plot_redraw)() = [] {};  // a drawing operation ran
  // stats: value 0 to 20, reports its own errors. Null: ERR_UNEXPECTED.
  double (*statistics_value)(int index) = nullptr;
  // stats: statsVar has changed between one and two variables
  void (*stats_variables_changed)() = [] {};
  // numerics: a uniform random number, for the random operand
  double (*next_random)() = [] { return 0.0; };
  // persistence: a unit by its code; null for an unknown one.
  const TUnit* (*unit_by_code)(int code) = [](int) -> const TUnit* { return nullptr; };
  // The code of the unit at a position of the property that the unit `code` belongs to; -1 unknown.
  int (*unit_at_position)(int code, int position) = [](int, int) { return -1; };
  // Finds two units of one property by their short names; false if there are none. For the text form.
  bool (*find_units)(const char* from, std::size_t from_length, const char* to, std::size_t to_length, int& from_code,
                     int& to_position) = nullptr;
  // programs
  bool (*running_program)(TRunningProgram& program) = [](TRunningProgram&) { return false; };
  // The header of a custom function; false if there is no such program. Null: there are no programs at all.
  bool (*function_header)(const char* name, TFunctionHeader& header) = nullptr;
  // Runs a custom function with its arguments to the end, with the evaluator's state saved; its value is left in the
  // answers. Reports its own errors.
  void (*run_function)(const char* name, const TFuncFrame& arguments) = [](const char*, const TFuncFrame&) {};
  // Before a matrix, list or string store changes: slot 90 to 129.
  void (*about_to_store)(int slot) = [](int) {};
  // A list, matrix or string store (slot 90 to 129) keeps its value when the running program ends. NO_SLOT stands for a
  // value that is no named store: ERR_ARGUMENT_TYPE while a program runs.
  void (*make_global)(int slot) = [](int) {};
  // An evaluation from the keyboard, or a plot, begins: what was read of programs before may have changed.
  void (*evaluation_begins)() = [] {};
  // The evaluate key at the prompt of an `in` statement, before its expression runs.
  void (*prompt_entered)() = [] {};
  // The value that an `in` statement waits for has arrived.
  void (*prompt_answered)() = [] {};
  // The evaluate key at the prompt of an `in f()` statement, with an expression on the line.
  void (*function_prompt_answered)() = [] {};
  // Any owner: clears item n of TClearItem that the engine does not hold.
  void (*clear_item)(int n) = [](int) {};
};
extern THooks hooks;

}  // namespace zephyl
