// What the fuzz targets share: a calculator that is started once and must answer 2+2 after whatever it was fed.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "app/start_up.h"
#include "engine/calculator.h"
#include "engine/errors.h"
#include "engine/expression.h"
#include "engine/format.h"
#include "engine/memory.h"
#include "engine/state.h"
#include "engine/text_form.h"
#include "platform/events.h"

namespace zephyl {

inline void start_once() {
  static const bool started = [] {
    register_families();
    on_start();
    return true;
  }();
  (void)started;
}

// Evaluates an expression as the evaluate key does.
inline void evaluate(const TExpression& expression) {
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
  evaluate(expression);
  if (errors.error_flag || answers.ans.re != 4.0 || std::strcmp(state.result_text, "4") != 0) {
    std::fprintf(stderr, "2+2 gave '%s' (%s)\n", state.result_text, errors.error_text);
    std::abort();
  }
}

}  // namespace zephyl
