// Random drawing commands and fractals with random and extreme arguments, in random views. Each command is a
// byte that chooses it, and a byte an argument: a number of the table below, or eight bytes as they are.

#include <cstdint>
#include <cstring>
#include <iterator>

#include "engine/evaluator.h"
#include "engine/operations.h"
#include "engine/records.h"
#include "fuzz_calculator.h"
#include "plot/drawing.h"
#include "plot/plot_mapping.h"
#include "plot/plot_variables.h"

namespace {

using namespace zephyl;

constexpr TOp_Code scalar_commands[] = {OP_LINE,    OP_RECT,      OP_FILL_RECT, OP_POINT,       OP_CIRCLE,
                                        OP_ARC,     OP_FILL_CIRC, OP_ELLIPSE,   OP_FILL_ELLIP,  OP_MOVE_TO,
                                        OP_LINE_TO, OP_COLOR,     OP_CLR_DRAW,  OP_UPDATE_DRAW, OP_INIT_DRAW,
                                        OP_JULIA,   OP_MANDELBROT};
constexpr int SCALAR_COUNT = static_cast<int>(std::size(scalar_commands));
enum TOtherCommand {
  DRAW_LIST_Y = SCALAR_COUNT,
  DRAW_LIST_XY,
  DRAW_STRING,
  L_SYSTEM,
  IFS_FRACTAL,
  VIEW,
  COMMAND_COUNT
};

constexpr double extremes[] = {0.0,   -0.0,   1.0,   -1.0,   2.0,   0.5,    3.0,    10.0,
                               -10.0, 90.0,   1e308, -1e308, 1e300, -1e300, 1e-300, 5e-324,
                               1e100, -1e100, 1e16,  100.0,  3000,  -3000,  1e9,    2147483648.0,
                               0.1,   25.0,   60.0,  1e-8,   3e-8,  7.0,    105.0,  undefined_value};
constexpr int EXTREME_COUNT = static_cast<int>(std::size(extremes));

class TInput {
 public:
  TInput(const std::uint8_t* data, std::size_t size) : data_(data), left_(size) {}

  bool empty() const { return left_ == 0; }
  int byte() {
    if (left_ == 0) return 0;
    --left_;
    return *data_++;
  }
  // Never infinite or no number: no expression hands such a value on.
  double number() {
    const int choice = byte();
    if (choice < 128) return extremes[choice % EXTREME_COUNT];
    if (choice < 240) return (choice - 184) / 5.0;
    std::uint8_t bytes[8];
    for (std::uint8_t& b : bytes) b = static_cast<std::uint8_t>(byte());
    double value;
    std::memcpy(&value, bytes, sizeof value);
    return value - value == 0.0 ? value : 1.0;
  }

 private:
  const std::uint8_t* data_;
  std::size_t left_;
};

void fill_list(TInput& input, ListRecord& list) {
  list.defined = true;
  list.last = input.byte() % 12;
  for (int i = 0; i <= list.last; ++i) list.elements[i] = {input.number(), 0.0};
}

void fill_matrix(TInput& input, MatrixRecord& matrix) {
  matrix.defined = true;
  matrix.last_row = input.byte() % 5;
  matrix.last_col = input.byte() % 8 == 7 ? 5 : 6;
  for (int row = 0; row <= matrix.last_row; ++row)
    for (int column = 0; column <= matrix.last_col; ++column) matrix.cells[row][column] = input.number();
}

// Mostly what a grammar is made of.
void fill_string(TInput& input, TString& string) {
  constexpr char letters[] = "FG+-[]|,=XABFXA0129 zf";
  const int length = input.byte();
  int at = 0;
  for (; at < length && !input.empty(); ++at) {
    const int code = input.byte();
    string.text[at] =
        static_cast<char>(code < 240 ? letters[code % static_cast<int>(sizeof letters - 1)] : code);
  }
  string.text[at] = 0;
}

void run_scalar(TInput& input, TOp_Code op) {
  TScalarCall call{};
  call.op = op;
  call.count = 5;
  for (int i = 0; i < call.count; ++i) call.args[i].re = input.number();
  if (op == OP_JULIA) call.args[0].im = input.number();
  operations[op].scalar(call);
}

TFamilyCall family_call(TInput& input, TOp_Code op) {
  TFamilyCall call{};
  call.op = op;
  call.number_count = 5;
  for (int i = 0; i < call.number_count; ++i) call.numbers[i].re = input.number();
  return call;
}

void run_list(TInput& input, TOp_Code op) {
  TFamilyCall call = family_call(input, op);
  for (int i = 0; i < 2; ++i) fill_list(input, stores.lists[call.lists[i] = i]);
  operations[op].list(call);
}

void run_string(TInput& input, TOp_Code op) {
  TFamilyCall call = family_call(input, op);
  fill_string(input, stores.strings[call.strings[0] = 0]);
  operations[op].string(call);
}

void run_matrix(TInput& input) {
  TFamilyCall call = family_call(input, OP_IFS_FRACTAL);
  call.numbers[0].re = input.byte() * 20.0;
  fill_matrix(input, stores.matrices[call.matrices[0] = 0]);
  operations[OP_IFS_FRACTAL].matrix(call);
}

void run_command(TInput& input) {
  const int command = input.byte() % COMMAND_COUNT;
  switch (command) {
    case DRAW_LIST_Y:
      return run_list(input, OP_DRAW_LIST_Y);
    case DRAW_LIST_XY:
      return run_list(input, OP_DRAW_LIST_XY);
    case DRAW_STRING:
      return run_string(input, OP_DRAW_STRING);
    case L_SYSTEM:
      return run_string(input, OP_L_SYSTEM);
    case IFS_FRACTAL:
      return run_matrix(input);
    case VIEW:
      set_plot_view(input.number(), input.number(), input.number(), input.number());
      return;
    default:
      return run_scalar(input, scalar_commands[command]);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  start_once();
  set_plot_defaults();
  reset_drawing();
  TInput input(data, size);
  settings.angleMode = input.byte() % 3;
  for (int commands = 0; commands < 40 && !input.empty(); ++commands) {
    clear_error();
    fuzz_platform().be_impatient(true);
    run_command(input);
  }
  if (drawing_bitmap().width() != PLOT_WIDTH || drawing_bitmap().height() != PLOT_HEIGHT) std::abort();
  must_answer();
  return 0;
}
