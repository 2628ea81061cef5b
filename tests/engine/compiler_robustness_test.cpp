// Whatever tokens come in, the compiler ends with steps that keep within every table, or with an error.

#include <random>

#include "compiling.h"
#include "engine/operation_table.h"
#include "engine/state.h"
#include "engine/tokens.h"

namespace zephyl {
namespace {

class compiler_robustness : public compiler {
 protected:
  std::mt19937 generator_{20240101};

  int below(int limit) { return static_cast<int>(generator_() % static_cast<unsigned>(limit)); }

  // Mostly tokens that fit together, some from anywhere.
  TToken random_token() {
    constexpr int common[] = {33,   34,   35,   38,   39,   40,  3,   4,     103,   104, 203, 204, 42,   43,
                              20,   13,   17,   31,   32,   36,  37,  5,     18,    14,  111, 400, 401,  387,
                              468,  481,  479,  1997, 859,  910, 41,  120,   765,   766, 181, 182, 5065, 1424,
                              1524, 1600, 1601, 1650, 1651, 540, 606, 32800, 20000, 10,  511, 518, 1016};
    switch (below(10)) {
      case 0:
        return static_cast<TToken>(below(65536));
      case 1:
        return operation_token(static_cast<TOp_Code>(below(OPERATION_COUNT)));
      case 2:
        return static_cast<TToken>(below(3200));
      default:
        return static_cast<TToken>(common[below(sizeof common / sizeof common[0])]);
    }
  }

  TExpression random_expression(int limit) {
    TExpression expression;
    const int length = 1 + below(limit);
    while (expression.count < length) expression.tokens[expression.count++] = random_token();
    return expression;
  }

  void expect_sound() {
    EXPECT_LE(compiled_.count, STEP_LIMIT);
    EXPECT_LE(compiled_.frame_count, STEP_LIMIT);
    EXPECT_EQ(compiled_.single, compiled_.count == 0);
    bool written[REGISTER_LIMIT] = {};
    for (int i = 0; i < compiled_.count; ++i) {
      const TStep& step = compiled_.steps[i];
      const int operands = operation_array[step.op].arg_kind == KIND_INFIX ? 2 : 1;
      for (int k = 0; k < operands; ++k) {
        ASSERT_NE(step.operand[k].kind, OPERAND_NONE);
        if (step.operand[k].kind == OPERAND_REGISTER) {
          ASSERT_TRUE(written[step.operand[k].reg]);
          written[step.operand[k].reg] = false;
        }
      }
      ASSERT_FALSE(written[step.result]);
      written[step.result] = true;
      ASSERT_LT(step.frame, compiled_.frame_count);
      ASSERT_LT(step.numeric_frame, compiled_.frame_count);
      ASSERT_EQ(step.frame >= 0, step.op == OP_COMMA || is_function_kind(operation_array[step.op].arg_kind));
    }
    for (int reg = 1; reg < REGISTER_LIMIT; ++reg) ASSERT_FALSE(written[reg]);
  }
};

TEST_F(compiler_robustness, random_tokens_end_in_sound_steps_or_an_error) {
  int compiled_well = 0;
  for (int i = 0; i < 200000 && !HasFatalFailure(); ++i) {
    if (i % 100 == 0) function_slots[below(2)] = random_expression(20);
    state.calcMode = below(4) ? COMP_MODE : BASE_MODE;
    if (error_code(random_expression(i % 2 ? 8 : EXPRESSION_LIMIT)) != NO_COMPILE_ERROR) continue;
    expect_sound();
    ++compiled_well;
  }
  EXPECT_GT(compiled_well, 10000);
  state.calcMode = COMP_MODE;
  EXPECT_EQ(steps("2+2"), "r0 = 2+2\n");
}

TEST_F(compiler_robustness, random_steps_are_described_within_any_size) {
  for (int i = 0; i < 20000; ++i) {
    compile(random_expression(10));
    char text[300];
    const int size = 1 + below(sizeof text - 1);
    text[size] = 'x';
    describe_steps(compiled_, text, size);
    ASSERT_EQ(text[size], 'x');
    ASSERT_LT(std::string(text).size(), static_cast<std::size_t>(size));
  }
}

}  // namespace
}  // namespace zephyl
