// Items become steps: what is put in between them, priorities and scan directions, parentheses and their
// keys, registers, frames, the bodies of numeric operators, and every limit.

#include "engine/compiler.h"

#include "compiling.h"
#include "engine/hooks.h"
#include "engine/memory.h"
#include "engine/operation_table.h"
#include "engine/state.h"
#include "engine/tokens.h"

namespace zephyl {
namespace {

constexpr std::uint64_t LEVEL_1 = 97656250000000000u;
constexpr std::uint64_t LEVEL_2 = LEVEL_1 / 50;
constexpr std::uint64_t LEVEL_3 = LEVEL_2 / 50;

// --- Parentheses of functions

TEST_F(compiler, a_missing_close_parenthesis_closes_itself) {
  EXPECT_EQ(steps("2(3"), "r0 = 2*3\n");
  EXPECT_EQ(steps("sin(2+3"), "r0 = 2+3\nr0 = sin(r0)  call 0\n");
  EXPECT_EQ(steps("Max(1,{2,3"), "r0 = 2 ,first-of-list 3\nr0 = 1,r0  call 0\nr0 = Max(r0)  call 0\n");
}

TEST_F(compiler, an_empty_argument_is_a_syntax_error) {
  EXPECT_EQ(error_code("sin("), ERR_SYNTAX);
  EXPECT_EQ(error_code("sin()"), ERR_SYNTAX);
  EXPECT_EQ(error_code("sin()+1"), ERR_SYNTAX);
  EXPECT_EQ(error_code("Max(1,)"), ERR_SYNTAX);
  EXPECT_EQ(error_code("Max(,1)"), ERR_SYNTAX);
}

TEST_F(compiler, a_function_without_arguments_gets_a_zero) {
  EXPECT_EQ(steps("TIME()"), "r0 = TIME()  call 0\n");
  EXPECT_EQ(compiled_.steps[0].operand[0].kind, OPERAND_LITERAL);
  EXPECT_EQ(compiled_.steps[0].operand[0].literal, TValue{});
}

TEST_F(compiler, a_call_without_arguments_gets_a_zero) {
  EXPECT_EQ(steps("area()+1"), "r0 = area(0)  call 0\nr0 = r0+1\n");
}

TEST_F(compiler, two_numbers_in_a_row_are_a_syntax_error) {
  EXPECT_EQ(error_code(from_tokens({34, 10, 35})), ERR_SYNTAX);
  EXPECT_EQ(error_code(from_tokens({34, 10, 35, 18})), ERR_SYNTAX);
}

// --- Strings

TEST_F(compiler, a_string_is_built_from_its_last_character_to_its_first) {
  EXPECT_EQ(steps("\"abc\""), "r0 = 98 , 99\nr0 = 97 ,first-of-string r0\n");
  EXPECT_EQ(steps("\"ab\""), "r0 = 97 ,first-of-string 98\n");
}

TEST_F(compiler, a_string_of_one_character_has_an_operation_of_its_own) {
  EXPECT_EQ(steps("\"a\""), "r0 = string-of-one 97\n");
}

TEST_F(compiler, a_string_is_one_argument) {
  EXPECT_EQ(steps("strSub(\"ab\",1,2)"),
            "r0 = 97 ,first-of-string 98\n"
            "r1 = 1,2  call 0\n"
            "r0 = r0,r1  call 0\n"
            "r0 = strSub(r0)  call 0\n");
}

TEST_F(compiler, a_line_full_of_string_characters_compiles) {
  EXPECT_EQ(error_code("\"" + repeated("a", 99) + "\""), NO_COMPILE_ERROR);
  EXPECT_EQ(compiled_.count, 98);
}

// --- Lists

TEST_F(compiler, the_commas_of_a_list_run_right_to_left) {
  EXPECT_EQ(steps("{1,2,3}"), "r0 = 2 , 3\nr0 = 1 ,first-of-list r0\n");
}

TEST_F(compiler, a_brace_that_begins_with_a_comma_is_a_list_of_one) {
  EXPECT_EQ(steps("{,5}"), "r0 = list-of-one 5\n");
}

TEST_F(compiler, a_brace_that_begins_with_a_comma_takes_no_other) {
  EXPECT_EQ(error_code("{,5,6}"), ERR_SYNTAX);
  EXPECT_EQ(error_code("{,,5}"), ERR_SYNTAX);
}

TEST_F(compiler, a_comma_at_the_end_of_a_list_is_a_syntax_error) {
  EXPECT_EQ(error_code("{1,}"), ERR_SYNTAX);
}

TEST_F(compiler, one_number_in_braces_is_a_number) {
  EXPECT_EQ(steps("{5}"), "5\n");
  EXPECT_TRUE(compiled_.single);
}

TEST_F(compiler, commas_of_a_function_within_a_list_stay_its_own) {
  EXPECT_EQ(steps("{1,Max(2,3),4}"),
            "r0 = 2,3  call 0\n"
            "r0 = Max(r0)  call 0\n"
            "r0 = r0 , 4\n"
            "r0 = 1 ,first-of-list r0\n");
}

TEST_F(compiler, the_first_comma_of_each_list_is_its_own) {
  EXPECT_EQ(steps("{{1,2},3}"), "r0 = 1 ,first-of-list 2\nr0 = r0 ,first-of-list 3\n");
  EXPECT_EQ(steps("{1,2}+{3,4,5}"),
            "r0 = 4 , 5\n"
            "r0 = 3 ,first-of-list r0\n"
            "r1 = 1 ,first-of-list 2\n"
            "r0 = r1+r0\n");
}

TEST_F(compiler, elements_may_be_expressions) {
  EXPECT_EQ(steps("{1+2,-3}"), "r0 = -3\nr1 = 1+2\nr0 = r1 ,first-of-list r0\n");
}

TEST_F(compiler, a_comma_in_plain_parentheses_is_a_syntax_error) {
  EXPECT_EQ(error_code("1,2"), ERR_SYNTAX);
  EXPECT_EQ(error_code("(1,2)"), ERR_SYNTAX);
  EXPECT_EQ(error_code("[1,2]"), ERR_SYNTAX);
  EXPECT_EQ(error_code("Max((1,2))"), ERR_SYNTAX);
  EXPECT_EQ(error_code("{1,(2,3)}"), ERR_SYNTAX);
  EXPECT_EQ(error_code("sin(1),2"), ERR_SYNTAX);
}

// --- Implied multiplication

struct TPair {
  const char* text;
  const char* expected;
};

TEST_F(compiler, multiplies_what_stands_side_by_side) {
  const TPair pairs[] = {
      // a number
      {"2x", "r0 = 2*x\n"},
      {"2(x+1)", "r0 = x+1\nr0 = 2*r0\n"},
      {"2sqRt x", "r0 = sqRt x\nr0 = 2*r0\n"},
      {"2sin(x)", "r0 = sin(x)  call 0\nr0 = 2*r0\n"},
      // an operand
      {"x2", "r0 = x*2\n"},
      {"xy", "r0 = x*y\n"},
      {"x(y+1)", "r0 = y+1\nr0 = x*r0\n"},
      {"x sqRt y", "r0 = sqRt y\nr0 = x*r0\n"},
      {"x sin(y)", "r0 = sin(y)  call 0\nr0 = x*r0\n"},
      // a close parenthesis
      {"(x+1)2", "r0 = x+1\nr0 = r0*2\n"},
      {"(x+1)y", "r0 = x+1\nr0 = r0*y\n"},
      {"(x+1)(y+1)", "r0 = y+1\nr1 = x+1\nr0 = r1*r0\n"},
      {"(x+1)e^y", "r0 = x+1\nr1 = e^y\nr0 = r0*r1\n"},
      {"sin(x)cos(y)", "r0 = cos(y)  call 1\nr1 = sin(x)  call 0\nr0 = r1*r0\n"},
      // a postfix operator
      {"x!2", "r0 = x!\nr0 = r0*2\n"},
      {"x!y", "r0 = x!\nr0 = r0*y\n"},
      {"x!(y+1)", "r0 = y+1\nr1 = x!\nr0 = r1*r0\n"},
      {"x!sqRt y", "r0 = sqRt y\nr1 = x!\nr0 = r1*r0\n"},
      {"x!sin(y)", "r0 = sin(y)  call 0\nr1 = x!\nr0 = r1*r0\n"},
  };
  for (const TPair& pair : pairs) EXPECT_EQ(steps(pair.text), pair.expected) << pair.text;
}

TEST_F(compiler, the_implied_product_before_a_function_is_an_operation_of_its_own) {
  for (const char* text : {"2x", "2(x+1)", "x2", "(x+1)2", "x!y"}) {
    compile(text);
    EXPECT_EQ(step_of(OP_MULTIPLY_OPERAND).op, OP_MULTIPLY_OPERAND) << text;
  }
  for (const char* text : {"2sin(x)", "x e^y", "(x+1)fnInt(y,y,0,1)", "x!TIME()", "2area()", "2Max(1,2)"}) {
    compile(text);
    EXPECT_EQ(step_of(OP_MULTIPLY_FUNCTION).op, OP_MULTIPLY_FUNCTION) << text;
  }
}

TEST_F(compiler, an_operand_before_a_sign_multiplies) {
  EXPECT_EQ(steps(from_tokens({859, TOKEN_NEG, 34})), "r0 = -2\nr0 = x*r0\n");
}

TEST_F(compiler, nothing_multiplies_before_an_infix_or_postfix_operator) {
  EXPECT_EQ(steps("x+y"), "r0 = x+y\n");
  EXPECT_EQ(steps("x!"), "r0 = x!\n");
  EXPECT_EQ(steps("-x"), "r0 = -x\n");
}

TEST_F(compiler, a_number_behind_a_store_multiplies_the_stored_value) {
  EXPECT_EQ(steps("2->A 3"), "r0 = 2 > A\nr0 = r0*3\n");
}

TEST_F(compiler, a_product_with_nothing_on_one_side_is_a_syntax_error) {
  EXPECT_EQ(error_code("2()3"), ERR_SYNTAX);
  EXPECT_EQ(error_code("()"), ERR_SYNTAX);
  EXPECT_EQ(error_code("{}"), ERR_SYNTAX);
}

// --- Priorities

TEST_F(compiler, a_power_waits_for_its_negative_exponent) {
  EXPECT_EQ(steps("2^-3"), "r0 = -3\nr0 = 2^r0\n");
}

TEST_F(compiler, a_sign_binds_looser_than_a_power) { EXPECT_EQ(steps("-2^2"), "r0 = 2^2\nr0 = -r0\n"); }

TEST_F(compiler, a_negative_exponent_takes_the_power_behind_it) {
  EXPECT_EQ(steps("2^-3^2"), "r0 = 3^2\nr0 = -r0\nr0 = 2^r0\n");
}

TEST_F(compiler, powers_with_negative_exponents_run_left_to_right) {
  EXPECT_EQ(steps("2^-3^-4"), "r0 = -3\nr0 = 2^r0\nr1 = -4\nr0 = r0^r1\n");
}

TEST_F(compiler, a_prefix_operator_waits_for_the_sign_behind_it) {
  EXPECT_EQ(steps("e^-2"), "r0 = -2\nr0 = e^r0\n");
  EXPECT_EQ(steps("e^sqRt -2"), "r0 = -2\nr0 = sqRt r0\nr0 = e^r0\n");
  EXPECT_EQ(steps("3-e^-2"), "r0 = -2\nr0 = e^r0\nr0 = 3-r0\n");
}

TEST_F(compiler, an_operator_behind_a_store_waits_for_it) {
  EXPECT_EQ(steps("2->A+3"), "r0 = 2 > A\nr0 = r0+3\n");
  EXPECT_EQ(steps("1+2->A"), "r0 = 1+2\nr0 = r0 > A\n");
}

TEST_F(compiler, conversions_bind_as_products_do) {
  const TToken conversion = FIRST_CONVERSION + 64;
  compile(from_tokens({34, TOKEN_PLUS, 35, conversion}));
  EXPECT_EQ(compiled_.steps[0].op, OP_CONVERSION);
  EXPECT_EQ(compiled_.steps[1].op, OP_PLUS);
  compile(from_tokens({34, TOKEN_POWER, 35, conversion}));
  EXPECT_EQ(compiled_.steps[0].op, OP_POWER);
  EXPECT_EQ(compiled_.steps[1].op, OP_CONVERSION);
}

TEST_F(compiler, a_conversion_step_names_its_units) {
  compile(from_tokens({34, FIRST_CONVERSION + 64 * 37 + 5}));
  EXPECT_EQ(compiled_.steps[0].unit_from, 37);
  EXPECT_EQ(compiled_.steps[0].unit_to, 5);
  EXPECT_TRUE(compiled_.steps[0].unit_by_position);
}

// One infix operation of each priority, tightest first.
TEST_F(compiler, infix_operations_run_by_priority) {
  const char* const by_priority[] = {"^", "*", "+", "<<", " and ", " xor ", "=", "AND", "OR"};
  constexpr int count = sizeof by_priority / sizeof by_priority[0];
  for (int tight = 0; tight < count; ++tight) {
    for (int loose = tight + 1; loose < count; ++loose) {
      const std::string first = by_priority[tight], second = by_priority[loose];
      EXPECT_EQ(steps("1" + first + "2" + second + "3"), "r0 = 1" + first + "2\nr0 = r0" + second + "3\n");
      EXPECT_EQ(steps("1" + second + "2" + first + "3"), "r0 = 2" + first + "3\nr0 = 1" + second + "r0\n");
    }
  }
}

TEST_F(compiler, infix_operations_of_one_priority_run_left_to_right) {
  for (const std::string op :
       {"^",      " Rt ", "*", "/",  " mod ", " d% ", "+", "-",  "<<",  ">>",  " and ", " xor ",
        " xnor ", " or ", "=", "<>", ">",     ">=",   "<", "<=", "AND", "XOR", "OR"})
    EXPECT_EQ(steps("1" + op + "2" + op + "3"), "r0 = 1" + op + "2\nr0 = r0" + op + "3\n");
}

TEST_F(compiler, mixed_operations_of_one_priority_run_left_to_right) {
  EXPECT_EQ(steps("1-2+3"), "r0 = 1-2\nr0 = r0+3\n");
  EXPECT_EQ(steps("8/4*2"), "r0 = 8/4\nr0 = r0*2\n");
  EXPECT_EQ(steps("1/2x"), "r0 = 1/2\nr0 = r0*x\n");
  EXPECT_EQ(steps("-2*3"), "r0 = -2\nr0 = r0*3\n");
  EXPECT_EQ(steps("2*-3"), "r0 = -3\nr0 = 2*r0\n");
}

TEST_F(compiler, prefix_operations_of_the_first_priority_run_right_to_left) {
  EXPECT_EQ(steps("e^(10)^sqRt cubeRt 2"), "r0 = cubeRt 2\nr0 = sqRt r0\nr0 = (10)^r0\nr0 = e^r0\n");
}

TEST_F(compiler, postfix_operations_run_left_to_right) {
  EXPECT_EQ(steps("x!^(2)%"), "r0 = x!\nr0 = r0^(2)\nr0 = r0%\n");
}

TEST_F(compiler, prefix_roots_run_before_postfix_operations) {
  EXPECT_EQ(steps("sqRt 4!"), "r0 = sqRt 4\nr0 = r0!\n");
  EXPECT_EQ(steps("-4!"), "r0 = 4!\nr0 = -r0\n");
}

TEST_F(compiler, base_n_signs_bind_tighter_than_powers) {
  EXPECT_EQ(steps(from_tokens({TOKEN_BASE_NEG, 34, TOKEN_POWER, 34})), "r0 = -2\nr0 = r0^2\n");
  EXPECT_EQ(steps("not 1 and 3"), "r0 = not 1\nr0 = r0 and 3\n");
}

TEST_F(compiler, each_level_is_scanned_as_its_last_row_says) {
  for (int priority = 0; priority < PRIORITY_COUNT; ++priority)
    EXPECT_EQ(scans_right_to_left(priority), priority == 0 || priority == 14) << priority;
}

TEST_F(compiler, a_missing_operand_is_a_syntax_error) {
  for (const char* text :
       {"2+", "*2", "2+*3", "^", "!", "2^", "->A", "sqRt", "(2+)3", "2+()", "-", "sin(x)+", "(-)"})
    EXPECT_EQ(error_code(text), ERR_SYNTAX) << text;
}

// --- Groups and keys

TEST_F(compiler, a_single_operand_is_kept_without_a_step) {
  EXPECT_EQ(steps("((x))"), "x\n");
  EXPECT_TRUE(compiled_.single);
  EXPECT_EQ(compiled_.count, 0);
  EXPECT_EQ(compiled_.only.kind, OPERAND_MEMORY);
  EXPECT_EQ(compiled_.only.reg, SLOT_X);
}

TEST_F(compiler, the_flag_of_a_single_operand_is_taken_back) {
  compile("5");
  compile("5+1");
  EXPECT_FALSE(compiled_.single);
}

TEST_F(compiler, an_expression_without_an_entry_is_a_syntax_error) {
  EXPECT_EQ(error_code(TExpression{}), ERR_SYNTAX);
  EXPECT_EQ(error_code("("), ERR_SYNTAX);
}

TEST_F(compiler, later_groups_run_first) {
  EXPECT_EQ(steps("(1+2)*(3+4)-(5+6)"), "r0 = 5+6\nr1 = 3+4\nr2 = 1+2\nr1 = r2*r1\nr0 = r1-r0\n");
}

TEST_F(compiler, inner_groups_run_before_outer_ones) {
  EXPECT_EQ(steps("(1+(2-(3*4)))"), "r0 = 3*4\nr0 = 2-r0\nr0 = 1+r0\n");
}

TEST_F(compiler, a_key_counts_the_groups_of_each_level) {
  compile("(1+2)-((3*4)/5)");
  EXPECT_EQ(step_of(OP_MINUS).key, 0u);
  EXPECT_EQ(step_of(OP_PLUS).key, LEVEL_1);
  EXPECT_EQ(step_of(OP_DIVIDE).key, 2 * LEVEL_1);
  EXPECT_EQ(step_of(OP_MULTIPLY).key, 2 * LEVEL_1 + LEVEL_2);
}

TEST_F(compiler, a_level_goes_on_counting_in_another_group) {
  compile("((1+2))-((3*4))");
  EXPECT_EQ(step_of(OP_PLUS).key, LEVEL_1 + LEVEL_2);
  EXPECT_EQ(step_of(OP_MULTIPLY).key, 2 * LEVEL_1 + 2 * LEVEL_2);
}

TEST_F(compiler, a_function_has_the_key_of_its_arguments) {
  compile("(2sin(x+1))");
  EXPECT_EQ(step_of(OP_MULTIPLY_FUNCTION).key, LEVEL_1);
  EXPECT_EQ(step_of(OP_SIN).key, LEVEL_1 + LEVEL_2);
  EXPECT_EQ(step_of(OP_PLUS).key, LEVEL_1 + LEVEL_2);
  EXPECT_EQ(step_of(OP_SIN).level, 1);
  EXPECT_EQ(step_of(OP_SIN).group_level, 2);
  EXPECT_EQ(step_of(OP_PLUS).level, 0);
}

TEST_F(compiler, groups_nested_in_a_group_lie_in_its_key_range) {
  compile("Summ(sin((x+1)*(x-1)),x,1,2)+cos(x!)");
  const TStep& call = step_of(OP_SUMM);
  const std::uint64_t end = group_end(call.key, call.group_level);
  EXPECT_EQ(end, 2 * LEVEL_1);
  EXPECT_EQ(step_of(OP_SIN).key, LEVEL_1 + LEVEL_2);
  EXPECT_EQ(step_of(OP_MINUS).key, LEVEL_1 + LEVEL_2 + 2 * LEVEL_3);
  EXPECT_LT(step_of(OP_MINUS).key, end);
  EXPECT_GE(step_of(OP_COS).key, end);
  EXPECT_GE(step_of(OP_FACTORIAL).key, end);
}

TEST_F(compiler, group_end_is_a_group_of_its_level_further) {
  EXPECT_EQ(group_end(7, 11), 8u);
  EXPECT_EQ(group_end(0, 10), 50u);
  EXPECT_EQ(group_end(0, 1), LEVEL_1);
  EXPECT_EQ(group_end(0, 0), 50 * LEVEL_1);
}

TEST_F(compiler, eleven_levels_of_parentheses_are_the_limit) {
  EXPECT_EQ(error_code(repeated("(", 11) + "1"), NO_COMPILE_ERROR);
  EXPECT_EQ(error_code(repeated("(", 12) + "1"), ERR_PARENTHESIS_LEVEL);
  EXPECT_STREQ(errors.error_text, "Parenthesis Level Exceeded");
  EXPECT_EQ(error_code(repeated("sin(", 11) + "1"), NO_COMPILE_ERROR);
  EXPECT_EQ(error_code(repeated("sin(", 12) + "1"), ERR_PARENTHESIS_LEVEL);
  EXPECT_EQ(error_code(repeated("(", 11) + "TIME()"), ERR_PARENTHESIS_LEVEL);
  EXPECT_EQ(error_code(repeated("(", 11) + "\"a\""), ERR_PARENTHESIS_LEVEL);
}

TEST_F(compiler, closed_parentheses_do_not_count_for_the_limit) {
  EXPECT_EQ(error_code(repeated("(", 11) + "1" + repeated(")", 11) + repeated("(", 11) + "1"),
            NO_COMPILE_ERROR);
}

TEST_F(compiler, parentheses_must_match) {
  for (const char* text : {")", "1)", "(1))", "(]", "(1]", "[1)", "{1)", "(1}", "sin(1]", "sin(1}", "{[1})"})
    EXPECT_EQ(error_code(text), ERR_PARENTHESIS_UNBALANCED) << text;
  EXPECT_STREQ(errors.error_text, "Parenthesis Unbalanced");
}

TEST_F(compiler, the_first_error_in_the_text_stands) {
  EXPECT_EQ(error_code("1,2)"), ERR_SYNTAX);
  EXPECT_EQ(error_code("(1]+(1,2)"), ERR_PARENTHESIS_UNBALANCED);
  EXPECT_EQ(error_code(")" + repeated("(", 12)), ERR_PARENTHESIS_UNBALANCED);
}

TEST_F(compiler, square_brackets_group_as_parentheses_do) {
  EXPECT_EQ(steps("[1+2]*[3]"), "r0 = 1+2\nr0 = r0*3\n");
}

TEST_F(compiler, hidden_parentheses_match_visible_ones) {
  EXPECT_EQ(steps(from_tokens({TOKEN_OPEN_HIDDEN, 34, TOKEN_PLUS, 35, TOKEN_CLOSE, 31, 34})),
            "r0 = 2+3\nr0 = r0*2\n");
}

// --- Registers

TEST_F(compiler, registers_are_used_again) {
  EXPECT_EQ(steps("1+2+3+4"), "r0 = 1+2\nr0 = r0+3\nr0 = r0+4\n");
  EXPECT_EQ(steps("1*2+3*4+5*6"), "r0 = 1*2\nr1 = 3*4\nr2 = 5*6\nr0 = r0+r1\nr0 = r0+r2\n");
}

TEST_F(compiler, the_lowest_free_register_is_taken) {
  EXPECT_EQ(steps("(1+2)*3-(4+5)*(6+7)"),
            "r0 = 6+7\n"
            "r1 = 4+5\n"
            "r2 = 1+2\n"
            "r2 = r2*3\n"
            "r0 = r1*r0\n"
            "r0 = r2-r0\n");
}

TEST_F(compiler, the_value_ends_in_register_0) {
  for (const char* text : {"1+2*3", "(1+2)*(3+4)", "Max(1,2)+Min(3,4)", "{1,2}", "\"abc\"", "2^-3^-4"}) {
    ASSERT_GT(compile(text).count, 0) << text;
    EXPECT_EQ(compiled_.steps[compiled_.count - 1].result, 0) << text;
  }
}

TEST_F(compiler, many_values_in_flight_take_many_registers) {
  compile(repeated("1+1*1", 1) + repeated("+1*1", 23));
  EXPECT_EQ(compiled_.steps[22].result, 22);
}

// --- Operands

TEST_F(compiler, operands_keep_their_class) {
  const std::pair<const char*, TOperandClass> cases[] = {
      {"Ans", OPERAND_ANS},           {"(M_Ans)", OPERAND_M_ANS}, {"(L_Ans)", OPERAND_L_ANS},
      {"(str_Ans)", OPERAND_STR_ANS}, {"(i)", OPERAND_I},         {"(Rand)", OPERAND_RANDOM},
      {"pi", OPERAND_LITERAL},        {"x", OPERAND_MEMORY},      {"(xMin)", OPERAND_VARIABLE},
      {"(xMean)", OPERAND_STATISTIC}, {"7", OPERAND_LITERAL}};
  for (const auto& [text, kind] : cases) {
    EXPECT_EQ(compile(text).only.kind, kind) << text;
    EXPECT_EQ(compile("1+" + std::string(text)).steps[0].operand[1].kind, kind) << text;
  }
}

TEST_F(compiler, operands_keep_their_value_or_number) {
  EXPECT_EQ(compile("pi").only.literal, (TValue{3.141592653589793, 0.0}));
  EXPECT_EQ(compile("(i)").only.literal, (TValue{0.0, 1.0}));
  EXPECT_EQ(compile("[C]").only.reg, SLOT_MATRIX_A + 2);
  EXPECT_EQ(compile("(stat 20)").only.reg, 20);
  EXPECT_EQ(compile(from_tokens({1438})).only.reg, 38);
}

TEST_F(compiler, stores_keep_their_target) {
  EXPECT_EQ(compile("1->{J}").steps[0].target, SLOT_LIST_A + 9);
  EXPECT_EQ(compile(from_tokens({34, 1524})).steps[0].target, 24);
}

// --- Frames

TEST_F(compiler, each_call_has_a_frame) {
  EXPECT_EQ(steps("Max(1,Min(2,3))+Max(4,5)"),
            "r0 = 4,5  call 2\n"
            "r0 = Max(r0)  call 2\n"
            "r1 = 2,3  call 1\n"
            "r1 = Min(r1)  call 1\n"
            "r1 = 1,r1  call 0\n"
            "r1 = Max(r1)  call 0\n"
            "r0 = r1+r0\n");
  EXPECT_EQ(compiled_.frame_count, 3);
}

TEST_F(compiler, arguments_are_gathered_from_the_last_to_the_first) {
  EXPECT_EQ(steps("subMatrix([A],1,2,3,4)"),
            "r0 = 3,4  call 0\n"
            "r0 = 2,r0  call 0\n"
            "r0 = 1,r0  call 0\n"
            "r0 = [A],r0  call 0\n"
            "r0 = subMatrix(r0)  call 0\n");
}

TEST_F(compiler, only_commas_and_calls_name_a_frame) {
  compile("Max(1+2,3)");
  EXPECT_EQ(step_of(OP_PLUS).frame, NO_FRAME);
  EXPECT_EQ(step_of(OP_COMMA).frame, 0);
  EXPECT_EQ(step_of(OP_MAX).frame, 0);
}

TEST_F(compiler, frames_start_anew_with_each_expression) {
  compile("sin(cos(1))");
  compile("tan(1)");
  EXPECT_EQ(compiled_.frame_count, 1);
  EXPECT_EQ(step_of(OP_TAN).frame, 0);
}

TEST_F(compiler, a_function_behind_its_arguments_goes_on_with_the_outer_frame) {
  EXPECT_EQ(steps("Max(sin(1),2)"), "r0 = sin(1)  call 1\nr0 = r0,2  call 0\nr0 = Max(r0)  call 0\n");
}

// --- Calls by name

TEST_F(compiler, calls_keep_their_names_in_the_order_of_the_steps) {
  compile("area(2)+zoo()");
  ASSERT_EQ(compiled_.name_count, 2);
  EXPECT_STREQ(compiled_.names[0], "zoo");
  EXPECT_STREQ(compiled_.names[1], "area");
  EXPECT_EQ(step_of(OP_FUNC1).name, 1);
  EXPECT_EQ(step_of(OP_FUNC2).name, 0);
}

TEST_F(compiler, other_steps_have_no_name) {
  compile("sin(1)");
  EXPECT_EQ(step_of(OP_SIN).name, NO_NAME);
}

// `count` calls, ten nested in one another.
std::string nested_calls(int count) {
  std::string text;
  for (int i = 0; i < count; ++i)
    text += i % 10 == 9 || i == count - 1 ? "of(1" + repeated(")", i % 10 + 1) : "of(";
  return text;
}

TEST_F(compiler, an_expression_has_twenty_calls_by_name) {
  EXPECT_EQ(error_code(nested_calls(20)), NO_COMPILE_ERROR);
  EXPECT_EQ(compiled_.name_count, 20);
  EXPECT_EQ(error_code(nested_calls(21)), ERR_MEMORY_LIMIT);
}

// --- Bodies of numeric operators

TEST_F(compiler, the_first_argument_of_a_numeric_operator_is_its_body) {
  EXPECT_EQ(steps("fnInt(x^(2)+x,x,0+1,2)"),
            "r0 = x^(2)  in 0\n"
            "r0 = r0+x  in 0\n"
            "r1 = 0+1\n"
            "r1 = r1,2  call 0\n"
            "r1 = x,r1  call 0\n"
            "r0 = r0,r1  call 0\n"
            "r0 = fnInt(r0)  call 0  nest 0  body from 0\n");
}

TEST_F(compiler, groups_and_calls_in_a_body_belong_to_it) {
  EXPECT_EQ(steps("Summ(Max(x,(x-1)),x,1,2)"),
            "r0 = x-1  in 0\n"
            "r0 = x,r0  call 1  in 0\n"
            "r0 = Max(r0)  call 1  in 0\n"
            "r1 = 1,2  call 0\n"
            "r1 = x,r1  call 0\n"
            "r0 = r0,r1  call 0\n"
            "r0 = Summ(r0)  call 0  nest 0  body from 0\n");
}

TEST_F(compiler, a_body_within_a_body_belongs_to_the_inner_operator) {
  compile("Summ(fnInt(x*y,y,0,1)+x,x,1,2)");
  EXPECT_EQ(step_of(OP_MULTIPLY).numeric_frame, 1);
  EXPECT_EQ(step_of(OP_FN_INT).numeric_frame, 0);
  EXPECT_EQ(step_of(OP_PLUS).numeric_frame, 0);
  EXPECT_EQ(step_of(OP_SUMM).numeric_frame, NO_FRAME);
}

TEST_F(compiler, the_other_arguments_belong_to_the_enclosing_operator) {
  compile("Summ(fnInt(y,y,0,x^2),x,1,2)");
  EXPECT_EQ(step_of(OP_POWER).numeric_frame, 0);
  compile("Summ(x,x,1,fnInt(y^2,y,0,1))");
  EXPECT_EQ(step_of(OP_POWER).numeric_frame, 1);
  EXPECT_EQ(step_of(OP_FN_INT).numeric_frame, NO_FRAME);
}

TEST_F(compiler, a_close_parenthesis_ends_a_body_too) {
  const TToken plot_root = 1997;
  compile(from_tokens({plot_root, 859, 18, TOKEN_CLOSE, TOKEN_PLUS, 34}));
  EXPECT_EQ(step_of(OP_FACTORIAL).numeric_frame, 0);
  EXPECT_EQ(step_of(OP_PLUS).numeric_frame, NO_FRAME);
}

TEST_F(compiler, steps_behind_a_numeric_operator_are_outside) {
  compile("Summ(x,x,1,2)+3!");
  EXPECT_EQ(step_of(OP_FACTORIAL).numeric_frame, NO_FRAME);
  EXPECT_EQ(step_of(OP_PLUS).numeric_frame, NO_FRAME);
}

TEST_F(compiler, a_body_starts_at_the_first_step_of_its_group) {
  compile("(1+2)*Summ(x!,x,1,2)*cos(3)");
  const TStep& call = step_of(OP_SUMM);
  ASSERT_EQ(compiled_.steps[0].op, OP_COS);
  EXPECT_EQ(compiled_.steps[1].op, OP_FACTORIAL);
  EXPECT_EQ(call.body_start, 1);
}

TEST_F(compiler, a_numeric_operator_without_steps_in_its_group_starts_at_itself) {
  const TToken plot_root = 1997;
  compile(from_tokens({34, TOKEN_PLUS, plot_root, 859}));
  EXPECT_EQ(step_of(OP_PLOT_FN_ROOT).body_start, 0);
  compile(from_tokens({plot_root, 859, TOKEN_CLOSE, TOKEN_PLUS, 5, 34}));
  EXPECT_EQ(step_of(OP_PLOT_FN_ROOT).body_start, 1);
}

// --- Nesting of numeric operators

TEST_F(compiler, nested_numeric_operators_are_numbered_from_the_outermost) {
  compile("Prod(Summ(Seq(1,x,1,1),x,1,1),x,1,1)");
  EXPECT_EQ(step_of(OP_PROD).nest, 0);
  EXPECT_EQ(step_of(OP_SUMM).nest, 1);
  EXPECT_EQ(step_of(OP_SEQ).nest, 2);
}

TEST_F(compiler, numeric_operators_side_by_side_are_each_outermost) {
  compile("Prod(1,x,1,1)+Summ(1,x,1,1)");
  EXPECT_EQ(step_of(OP_PROD).nest, 0);
  EXPECT_EQ(step_of(OP_SUMM).nest, 0);
}

TEST_F(compiler, numeric_operators_side_by_side_in_another_are_numbered_apart) {
  compile("Seq(Prod(1,x,1,1)+Summ(1,x,1,1),x,1,1)");
  EXPECT_EQ(step_of(OP_SEQ).nest, 0);
  EXPECT_EQ(step_of(OP_PROD).nest, 1);
  EXPECT_EQ(step_of(OP_SUMM).nest, 2);
}

TEST_F(compiler, numeric_operators_in_any_argument_are_nested) {
  compile("Seq(1,x,1,Prod(1,x,1,1))");
  EXPECT_EQ(step_of(OP_PROD).nest, 1);
}

TEST_F(compiler, other_steps_have_no_nest) {
  compile("Seq(x!,x,1,2)");
  EXPECT_EQ(step_of(OP_FACTORIAL).nest, NO_NEST);
  EXPECT_EQ(step_of(OP_COMMA).nest, NO_NEST);
}

// A numeric operator with `count` others in it.
std::string with_nested(int count) {
  const std::string call = "Summ(1,x,1,1";  // the parenthesis stays open
  return "Seq(" + call + repeated(")" + call, count - 1);
}

TEST_F(compiler, ten_numeric_operators_nest) {
  EXPECT_EQ(error_code(with_nested(9)), NO_COMPILE_ERROR);
  EXPECT_EQ(error_code(with_nested(10)), ERR_FUNCTION_NEST);
  EXPECT_STREQ(errors.error_text, "Function Nest Limit");
}

TEST_F(compiler, ten_numeric_operators_nest_in_one_another) {
  EXPECT_EQ(error_code(repeated("Summ(", 10) + "1"), NO_COMPILE_ERROR);
  EXPECT_EQ(error_code(repeated("Summ(", 11) + "1"), ERR_FUNCTION_NEST);
}

// --- Limits

TEST_F(compiler, an_expression_has_100_operators) {
  EXPECT_EQ(error_code("TIME()TIME()TIME()" + repeated("!", 95)), NO_COMPILE_ERROR);
  EXPECT_EQ(compiled_.count, 100);
  EXPECT_EQ(error_code("TIME()TIME()TIME()" + repeated("!", 96)), ERR_MEMORY_LIMIT);
}

TEST_F(compiler, an_expression_has_200_items_with_all_that_is_put_in) {
  EXPECT_EQ(error_code(repeated("TIME()", 40) + "!"), NO_COMPILE_ERROR);
  EXPECT_EQ(error_code(repeated("TIME()", 40) + "!!"), ERR_MEMORY_LIMIT);
}

TEST_F(compiler, a_full_line_of_side_by_side_operands_compiles) {
  EXPECT_EQ(error_code(repeated("x", 99)), NO_COMPILE_ERROR);
  EXPECT_EQ(compiled_.count, 98);
}

TEST_F(compiler, a_hundred_call_sites_are_never_exceeded) {
  EXPECT_EQ(error_code(repeated("sin(1)", 33)), NO_COMPILE_ERROR);
  EXPECT_EQ(compiled_.frame_count, 33);
}

// --- The error record

TEST_F(compiler, an_error_is_reported_and_kept) {
  EXPECT_FALSE(compile_expression(from_text("1,2"), compiled_));
  EXPECT_TRUE(errors.error_flag);
  EXPECT_EQ(compiled_.error, ERR_SYNTAX);
  EXPECT_EQ(compiled_.count, 0);
}

TEST_F(compiler, an_error_of_the_tokens_is_kept_too) {
  EXPECT_FALSE(compile_expression(from_text("1e999+1"), compiled_));
  EXPECT_EQ(compiled_.error, ERR_OVERFLOW);
}

TEST_F(compiler, the_next_expression_compiles_without_the_error) {
  compile("1,2");
  EXPECT_TRUE(compile_expression(from_text("1+2"), compiled_));
  EXPECT_FALSE(errors.error_flag);
  EXPECT_EQ(compiled_.error, NO_COMPILE_ERROR);
}

TEST_F(compiler, compile_items_tells_whether_an_error_stands) {
  tokens_to_items(from_text("1+2"));
  EXPECT_FALSE(compile_items(compiled_));
  tokens_to_items(from_text("1+"));
  EXPECT_TRUE(compile_items(compiled_));
}

TEST_F(compiler, an_error_in_a_program_is_reported_with_its_line) {
  state.program_running = true;
  hooks.running_program = [](TRunningProgram& program) {
    program = {"orbit", 6, false};
    return true;
  };
  EXPECT_EQ(error_code("1,2"), ERR_SYNTAX);
  EXPECT_TRUE(errors.error_in_program);
  EXPECT_EQ(errors.error_line, 6);
  EXPECT_STREQ(state.result_text, "Invalid Syntax (line 7)");
}

TEST_F(compiler, compiling_changes_no_memory) {
  memory_array[SLOT_CAPITAL_A] = {3.0, 0.0};
  compile("5->A");
  EXPECT_EQ(memory_array[SLOT_CAPITAL_A].re, 3.0);
}

// --- Whole roads

TEST_F(compiler, evaluates_as_the_priorities_say) {
  EXPECT_EQ(value("2(3"), 6.0);
  EXPECT_EQ(value("2^-3"), 0.125);
  EXPECT_EQ(value("-2^2"), -4.0);
  EXPECT_EQ(value("2+3*4^2/8-1"), 7.0);
  EXPECT_EQ(value("(1+2)*(3+4)"), 21.0);
  EXPECT_EQ(value("2^3^2"), 64.0);
  EXPECT_EQ(value("100-10-1"), 89.0);
  EXPECT_EQ(value("1/2(4)"), 2.0);
  EXPECT_EQ(value("Max(1,Min(7,3)+2)"), 5.0);
  EXPECT_EQ(value("3!!"), 720.0);
}

TEST_F(compiler, evaluates_function_slots_as_groups) {
  function_slots[0] = from_text("x+1");
  memory_array[SLOT_X] = {2.0, 0.0};
  EXPECT_EQ(value("2f1(x)^2"), 18.0);
}

}  // namespace
}  // namespace zephyl
