// Random expressions in random slots, in random views and ranges, plotted and worked with the pen. Nothing
// may hang, write beside the picture, show a box or leave an error behind; 2+2 stays 4.

#include <cstdint>
#include <string>

#include "fuzz_calculator.h"
#include "plot/plot.h"
#include "plot/plot_slots.h"

namespace {

using namespace zephyl;

class TBytes {
 public:
  TBytes(const std::uint8_t* data, std::size_t size) : data_(data), size_(size) {}
  std::uint8_t next() { return at_ < size_ ? data_[at_++] : 0; }
  bool left() const { return at_ < size_; }

 private:
  const std::uint8_t* data_;
  std::size_t size_;
  std::size_t at_ = 0;
};

// Numbers of all sizes, the odd ones among them.
double number(TBytes& bytes) {
  constexpr double odd[] = {0.0,   1.0, -1.0, 1e-300, 5e-324, 1e100, -1e100, 1e308, -1e308, 6.283185307179586,
                            360.0, 0.36};
  const std::uint8_t choice = bytes.next();
  if (choice < 128) return odd[choice % (sizeof odd / sizeof odd[0])];
  return (bytes.next() - 128) * (choice & 1 ? 1.0 : 0.01);
}

// Pieces that expressions are made of, so that many of them can be read.
std::string expression(TBytes& bytes) {
  constexpr const char* pieces[] = {
      "x",       "t",     "u",           "v",         "(theta)",    "+",     "-",     "*",
      "/",       "^(",    ")",           "sin(",      "ln(",        "sqRt(", "1e308", "0.5",
      "2",       "f1(x)", "f2(x)",       "R1(theta)", "X1(t)",      "abs(",  "10^(",  ",",
      "->xMin",  "->x",   "->A",         "->tStep",   "->plotType", "(i)",   "{x,1}", "fnDeriv(x^2,x,",
      "(xMean)", "!",     "Circle(x,0,", "clrDraw()", "(xMax)",     "Rand",  "tan(",  "mod",
      "(Ans)"};
  std::string text;
  for (int count = bytes.next() % 24; count > 0; --count)
    text += pieces[bytes.next() % (sizeof pieces / sizeof pieces[0])];
  return text;
}

void fill_slots(TBytes& bytes) {
  for (int count = bytes.next() % 8; count > 0; --count) {
    char error[200];
    const int type = bytes.next() % PLOT_TYPE_COUNT, slot = bytes.next() % PLOT_SLOT_COUNT;
    TExpression tokens;
    if (text_to_tokens(expression(bytes).c_str(), tokens, error, sizeof error))
      plot_slot(type, slot) = tokens;
  }
}

void choose_view(TBytes& bytes) {
  plot_variables = {};
  TPlotVariables& plot = plot_variables;
  plot.plotType = bytes.next() % 4;
  plot.plotType3D = bytes.next() % 3;
  plot.plotCursor = bytes.next() % 4;
  plot.connectDots = bytes.next() % 2;
  plot.displayGrid = bytes.next() % 2;
  const double x = number(bytes), y = number(bytes);
  set_plot_view(x, y, x + number(bytes), y + number(bytes));
  plot.t = {number(bytes), number(bytes), number(bytes)};
  plot.v = {number(bytes), number(bytes), number(bytes)};
  // Samples by the ten thousand say nothing that a thousand don't.
  const double least = (plot.t.max - plot.t.min) / 500.0;
  if (plot.t.step < least) plot.t.step = least;
  plot.zScale = number(bytes);
  settings.angleMode = bytes.next() % 3;
}

void work(TBytes& bytes) {
  for (int count = 0; count < 6 && bytes.left(); ++count) {
    const std::uint8_t act = bytes.next();
    if (act < 32)
      zoom_in();
    else if (act < 64)
      zoom_out();
    else if (act < 80)
      pan_up();
    else if (act < 96)
      cursor_home();
    else if (act < 112)
      set_plot_cursor(act % 4);
    else if (act < 150)
      plot_pen_down(bytes.next(), bytes.next());
    else if (act < 200)
      plot_pen_move(bytes.next() * 3 - 200, bytes.next() * 3 - 200);
    else
      plot_pen_up(bytes.next(), bytes.next());
    shown_plot();
  }
  forget_pen();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  start_once();
  TBytes bytes(data, size);
  settings = {};
  clear_error();
  fuzz_platform().be_impatient(true);
  state.calcMode = PLOT_MODE;
  for (int type = 0; type < PLOT_TYPE_COUNT; ++type)
    for (int slot = 0; slot < PLOT_SLOT_COUNT; ++slot) plot_slot(type, slot) = {};
  fill_slots(bytes);
  choose_view(bytes);
  request_plot();
  shown_plot();
  work(bytes);
  if (errors.error_flag || state.calcMode != PLOT_MODE || is_plotting()) std::abort();
  fuzz_platform().be_impatient(false);
  must_answer();
  return 0;
}
