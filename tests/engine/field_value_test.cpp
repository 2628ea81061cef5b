// Expressions in the fields of dialogs, and what an evaluation on the side leaves behind: nothing.

#include "engine/field_value.h"

#include "engine/backup.h"
#include "engine/compiler.h"
#include "engine/errors.h"
#include "engine/expression.h"
#include "engine/memory.h"
#include "engine/records.h"
#include "engine/state.h"
#include "engine/text_form.h"
#include "support/calculator.h"

namespace zephyl {
namespace {

class field : public calculator {
 protected:
  static std::string reading(const std::string& text) {
    double value = -1.0;
    std::string error;
    if (!field_value(text, value, error)) return error;
    return field_text(value);
  }
};

TEST_F(field, takes_an_expression) {
  EXPECT_EQ(reading("12.5"), "12.5");
  EXPECT_EQ(reading("2+sin(pi/2)"), "3");
  EXPECT_EQ(reading("1e-20"), "1e-20");
  EXPECT_EQ(reading(" -7 "), "-7");
}

TEST_F(field, says_why_it_takes_a_text_not) {
  EXPECT_EQ(reading("?"), "cannot read '?' at column 1");
  EXPECT_EQ(reading(""), "Invalid Syntax");
  EXPECT_EQ(reading("1+"), "Invalid Syntax");
  EXPECT_EQ(reading("1/0"), "Division by Zero");
  EXPECT_EQ(reading("3+(i)"), "Data Type Error");
  EXPECT_EQ(reading("{1,2}"), "Data Type Error");
  EXPECT_EQ(reading("\"text\""), "Data Type Error");
}

TEST_F(field, shows_a_point_and_no_number_as_such) {
  settings.decimalMark = 1;
  EXPECT_EQ(field_text(0.25), "0.25");
  EXPECT_EQ(field_text(undefined_value), "NAN");
}

TEST_F(field, leaves_variables_answers_and_errors_as_they_were) {
  eval("5->A");
  eval("{1,2}->{B}");
  reading("7->A");
  reading("{3,4}->{B}");
  reading("1->f1(x)");
  EXPECT_EQ(memory_array[SLOT_CAPITAL_A].re, 5.0);
  EXPECT_EQ(stores.lists[1].elements[0].re, 1.0);
  EXPECT_EQ(function_slots[0].count, 0);
  EXPECT_TRUE(answers.l_ans_valid);
  EXPECT_FALSE(errors.error_flag);
  EXPECT_EQ(error_of("1/0"), "Division by Zero");
  EXPECT_EQ(reading("2"), "2");
  EXPECT_TRUE(errors.error_flag);
  EXPECT_STREQ(errors.error_text, "Division by Zero");
}

TEST_F(field, keeps_what_the_poll_has_noted_about_the_pen) {
  back_up();
  state.swallow_up = true;
  state.calcMode = BASE_MODE;
  bring_back();
  EXPECT_TRUE(state.swallow_up);
  EXPECT_EQ(state.calcMode, COMP_MODE);
}

TEST_F(field, brings_nothing_back_twice) {
  back_up();
  bring_back();
  memory_array[SLOT_X].re = 3.0;
  bring_back();
  EXPECT_EQ(memory_array[SLOT_X].re, 3.0);
}

}  // namespace
}  // namespace zephyl
