// Shorthands of the tests that compile expressions: from text or token codes to steps.
#pragma once

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>

#include "engine/compiler.h"
#include "engine/errors.h"
#include "engine/expression.h"
#include "engine/text_form.h"
#include "support/calculator.h"

namespace zephyl {

inline TExpression from_text(const std::string& text) {
  TExpression expression;
  char error[200] = "";
  EXPECT_TRUE(text_to_tokens(text.c_str(), expression, error, sizeof error)) << error;
  return expression;
}

inline TExpression from_tokens(std::initializer_list<int> tokens) {
  TExpression expression;
  for (int token : tokens) expression.tokens[expression.count++] = static_cast<TToken>(token);
  return expression;
}

// `count` copies of a text behind one another.
inline std::string repeated(const std::string& text, int count) {
  std::string all;
  for (int i = 0; i < count; ++i) all += text;
  return all;
}

class compiler : public calculator {
 protected:
  TCompiled compiled_;

  const TCompiled& compile(const TExpression& expression) {
    compile_expression(expression, compiled_);
    return compiled_;
  }
  const TCompiled& compile(const std::string& text) { return compile(from_text(text)); }

  // The steps as describe_steps writes them, or the message of the error that the text ends in.
  std::string steps(const TExpression& expression) {
    compile(expression);
    char text[8000];
    describe_steps(compiled_, text, sizeof text);
    return text;
  }
  std::string steps(const std::string& text) { return steps(from_text(text)); }

  // The error's code, NO_COMPILE_ERROR if there is none. It is reported and kept alike.
  int error_code(const TExpression& expression) {
    compile(expression);
    EXPECT_EQ(errors.error_flag, compiled_.error != NO_COMPILE_ERROR);
    if (errors.error_flag) {
      EXPECT_EQ(errors.error_code, compiled_.error);
    }
    return compiled_.error;
  }
  int error_code(const std::string& text) { return error_code(from_text(text)); }

  // The step with this operation; the first of several.
  const TStep& step_of(TOp_Code op) {
    for (int i = 0; i < compiled_.count; ++i)
      if (compiled_.steps[i].op == op) return compiled_.steps[i];
    ADD_FAILURE() << "no step of operation " << op;
    return compiled_.steps[0];
  }
};

}  // namespace zephyl
