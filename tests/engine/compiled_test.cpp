// The links of a compiled expression: what its operands point at, which steps run on plain numbers, what a
// copy takes along; and its description.

#include "engine/compiled.h"

#include "compiling.h"
#include "engine/evaluator.h"
#include "engine/memory.h"
#include "engine/operations.h"

namespace zephyl {
namespace {

double add(double left, double right) { return left + right; }
void keep_first(TScalarCall& call) { call.result = call.args[0]; }

class compiled : public compiler {
 protected:
  // 'S' for a step on plain numbers, 'G' for any other, in order.
  std::string paths(const TExpression& expression) {
    compile(expression);
    std::string text;
    for (int i = 0; i < compiled_.count; ++i) text += compiled_.steps[i].path == PATH_SCALAR ? 'S' : 'G';
    return text;
  }
  std::string paths(const std::string& text) { return paths(from_text(text)); }
};

TEST_F(compiled, operands_point_at_what_they_name) {
  const TStep& sum = compile("x+Ans").steps[0];
  EXPECT_EQ(sum.cell[0], &memory_array[SLOT_X]);
  EXPECT_EQ(sum.cell[1], &answers.ans);
  const TStep& product = compile("2*(i)").steps[0];
  EXPECT_EQ(product.cell[0], &product.operand[0].literal);
  EXPECT_EQ(product.cell[1], &product.operand[1].literal);
  EXPECT_EQ(compile("1+2+3").steps[1].cell[0], &registers[0].value);
}

TEST_F(compiled, operands_that_are_not_plain_numbers_point_nowhere) {
  for (const char* text :
       {"(M_Ans)", "(L_Ans)", "(str_Ans)", "(Rand)", "(xMin)", "(xMean)", "[A]", "[E]", "{A}", "str1"})
    EXPECT_EQ(compile("1+" + std::string(text)).steps[0].cell[1], nullptr) << text;
}

TEST_F(compiled, the_second_cell_of_one_operand_is_a_zero) {
  const TStep& step = compile("x!").steps[0];
  ASSERT_NE(step.cell[1], nullptr);
  EXPECT_EQ(*step.cell[1], TValue{});
}

TEST_F(compiled, a_step_points_at_its_register) {
  compile("1*2+3*4");
  EXPECT_EQ(compiled_.steps[0].out, &registers[0]);
  EXPECT_EQ(compiled_.steps[1].out, &registers[1]);
}

TEST_F(compiled, a_step_takes_along_its_row) {
  operations[OP_PLUS] = {};
  operations[OP_PLUS].real = add;
  operations[OP_PLUS].real_use = REAL_WHEN_FORCED;
  operations[OP_PLUS].real_is_composite = true;
  const TStep& step = compile("1+2").steps[0];
  EXPECT_EQ(step.handlers, &operations[OP_PLUS]);
  EXPECT_EQ(step.real, &add);
  EXPECT_EQ(step.real_use, REAL_WHEN_FORCED);
  EXPECT_TRUE(step.reads_flags);
  EXPECT_EQ(step.arg_kind, 0);
}

TEST_F(compiled, a_step_without_a_real_rule_never_uses_one) {
  operations[OP_PLUS] = {};
  operations[OP_PLUS].real_use = REAL_ON_REAL;
  operations[OP_PLUS].scalar = keep_first;
  EXPECT_EQ(compile("1+2").steps[0].real_use, REAL_NEVER);
}

// --- Paths

TEST_F(compiled, steps_on_numbers_alone_are_scalar) {
  EXPECT_EQ(paths("2+x*Ans-(i)"), "SSS");
  EXPECT_EQ(paths("-x!"), "SS");
  EXPECT_EQ(paths("sin(x)^2"), "SS");
  EXPECT_TRUE(compiled_.all_plain);
}

TEST_F(compiled, operands_that_may_be_something_else_are_general) {
  for (const char* text :
       {"(M_Ans)", "(L_Ans)", "(str_Ans)", "(Rand)", "(xMin)", "(xMean)", "[A]", "[E]", "{A}", "str1"}) {
    EXPECT_EQ(paths("1+" + std::string(text)), "G") << text;
    EXPECT_EQ(paths(std::string(text) + "+1"), "G") << text;
    EXPECT_EQ(paths("-" + std::string(text)), "G") << text;
    EXPECT_FALSE(compiled_.all_plain);
  }
}

TEST_F(compiled, a_step_on_the_value_of_a_general_step_is_general) {
  EXPECT_EQ(paths("1+[A]*2"), "GG");
  EXPECT_EQ(paths("x*2+[A]*2"), "SGG");
  EXPECT_EQ(paths("sin({A})+1"), "GG");
}

TEST_F(compiled, a_register_that_a_scalar_step_has_taken_over_is_scalar) {
  // r0 holds first a list, then a number.
  EXPECT_EQ(paths("listSum({A}+1)"), "GG");
  EXPECT_EQ(paths("x+1-({A}+1)"), "GSG");
  EXPECT_EQ(steps("x+1-({A}+1)"), "r0 = {A}+1\nr1 = x+1\nr0 = r1-r0\n");
}

TEST_F(compiled, functions_of_several_arguments_are_general) {
  EXPECT_EQ(paths("Max(1,2)"), "GG");
  EXPECT_EQ(paths("Summ(x!,x,1,2)"), "SGGGG");
  EXPECT_EQ(paths("TIME()"), "G");
  EXPECT_EQ(paths("area()"), "G");
}

TEST_F(compiled, a_short_function_with_commas_is_general) {
  EXPECT_EQ(paths("sin(1,2)"), "GG");
  EXPECT_EQ(paths("sin(1)+sin(2,3)"), "GGSG");
}

TEST_F(compiled, stores_and_literals_are_general) {
  EXPECT_EQ(paths("1->A"), "G");
  EXPECT_EQ(paths("{1,2}"), "G");
  EXPECT_EQ(paths("\"ab\""), "G");
  EXPECT_EQ(paths("\"a\""), "G");
}

TEST_F(compiled, integer_operations_are_general) {
  for (const char* text : {"1 and 2", "1<<2", "not 1", "1 mod 2"}) EXPECT_EQ(paths(text), "G") << text;
}

TEST_F(compiled, operations_of_the_other_families_are_general) {
  EXPECT_EQ(paths("x^T"), "G");
  EXPECT_EQ(paths("Det(x)"), "G");
  EXPECT_EQ(paths("strLen(x)"), "G");
}

TEST_F(compiled, a_function_that_makes_a_string_is_general) {
  operations[OP_NUM_TO_STRING].scalar = keep_first;
  EXPECT_EQ(paths("numToString(x)+1"), "GG");
}

TEST_F(compiled, an_operation_without_a_scalar_handler_is_general) {
  operations[OP_PLUS] = {};
  EXPECT_EQ(paths("1+2"), "G");
  operations[OP_PLUS].scalar = keep_first;
  EXPECT_EQ(paths("1+2"), "S");
  operations[OP_PLUS] = {};
  operations[OP_PLUS].real = add;
  EXPECT_EQ(paths("1+2"), "S");
}

// --- Copies

TEST_F(compiled, a_copy_points_at_its_own_literals) {
  compile("2+area(3)");
  const TCompiled copy = compiled_;
  ASSERT_EQ(copy.count, compiled_.count);
  const TStep& sum = copy.steps[1];
  EXPECT_EQ(sum.cell[0], &sum.operand[0].literal);
  EXPECT_EQ(sum.cell[1], &registers[0].value);
  EXPECT_EQ(sum.cell[0]->re, 2.0);
}

TEST_F(compiled, a_copy_is_described_alike) {
  for (const char* text : {"2+area(3)-zoo()", "5", "1,2", "Summ(x,x,1,2)"}) {
    const std::string original = steps(text);
    TCompiled copy;
    copy = compiled_;
    char description[1000];
    describe_steps(copy, description, sizeof description);
    EXPECT_EQ(description, original);
    EXPECT_EQ(copy.frame_count, compiled_.frame_count);
    EXPECT_EQ(copy.all_plain, compiled_.all_plain);
  }
}

TEST_F(compiled, assignment_to_itself_changes_nothing) {
  compile("1+2");
  const TCompiled& same = compiled_;
  compiled_ = same;
  EXPECT_EQ(compiled_.count, 1);
  EXPECT_EQ(compiled_.steps[0].cell[0]->re, 1.0);
}

// --- Descriptions

TEST_F(compiled, a_description_is_cut_to_its_size) {
  compile("1+2*3");
  char text[8];
  describe_steps(compiled_, text, sizeof text);
  EXPECT_STREQ(text, "r0 = 2*");
  char nothing[1] = {'x'};
  describe_steps(compiled_, nothing, 1);
  EXPECT_EQ(nothing[0], 0);
}

TEST_F(compiled, a_description_shows_every_kind_of_operand_and_target) {
  EXPECT_EQ(steps("Ans+(M_Ans)+(L_Ans)+(str_Ans)+(Rand)+(i)+(xMin)+(stat 3)"),
            "r0 = Ans+M_Ans\n"
            "r0 = r0+L_Ans\n"
            "r0 = r0+str_Ans\n"
            "r0 = r0+Rand\n"
            "r0 = r0+i\n"
            "r0 = r0+xMin\n"
            "r0 = r0+stat 3\n");
  EXPECT_EQ(steps("1->A->xMin"), "r0 = 1 > A\nr0 = r0 > xMin\n");
  EXPECT_EQ(steps(from_tokens({34, 32800})), "r0 = 2 conversion\n");
}

TEST_F(compiled, a_description_of_an_error_is_its_message) { EXPECT_EQ(steps("1,2"), "Invalid Syntax\n"); }

}  // namespace
}  // namespace zephyl
