// What the fuzz targets share: a calculator that is started once and must answer 2+2 after whatever it was fed.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "app/start_up.h"
#include "engine/calculator.h"
#include "engine/errors.h"
#include "engine/expression.h"
#include "engine/format.h"
#include "engine/memory.h"
#include "engine/state.h"
#include "engine/text_form.h"
#include "platform/events.h"
#include "platform/silent_platform.h"

namespace zephyl {

// A clock that runs with every look at it, and somebody who taps a key when an evaluation takes long.
class TFuzzPlatform : public TSilentPlatform {
 public:
  bool impatient = false;
  std::string folder = "/dev/null/data";  // the data folder; at first none

  std::uint32_t tick_count() override { return ticks_ += 600; }
  void sleep(std::uint32_t milliseconds) override { ticks_ += milliseconds; }
  bool peek_pen_down(TPoint& at) override {
    at = {20, 200};  // the key 7
    return impatient && ++looks_ > 1;
  }
  bool peek_cancel() override { return impatient; }
  const char* data_folder() override { return folder.c_str(); }

  void be_impatient(bool on) {
    impatient = on;
    looks_ = 0;
  }

 private:
  std::uint32_t ticks_ = 0;
  int looks_ = 0;
};

inline TFuzzPlatform& fuzz_platform() {
  static TFuzzPlatform platform;
  return platform;
}

inline void start_once() {
  static const bool started = [] {
    set_platform(&fuzz_platform());
    register_families();
    on_start();
    return true;
  }();
  (void)started;
}

// Evaluates an expression as the evaluate key does.
inline void evaluate(const TExpression& expression, bool impatient = true) {
  fuzz_platform().be_impatient(impatient);
  clear_error();
  entry_line.expression = expression;
  entry_line.cursor = expression.count;
  state.fresh_flag = false;
  evaluate_expression(false);
}

// Settings as at the start, stores and memories as the input left them.
inline void must_answer() {
  settings = {};
  state.calcMode = COMP_MODE;
  state.program_running = false;
  TExpression expression;
  char error[200];
  if (!text_to_tokens("2+2", expression, error, sizeof error)) std::abort();
  evaluate(expression, false);
  if (errors.error_flag || answers.ans.re != 4.0 || std::strcmp(state.result_text, "4") != 0) {
    std::fprintf(stderr, "2+2 gave '%s' (%s)\n", state.result_text, errors.error_text);
    std::abort();
  }
}

}  // namespace zephyl
