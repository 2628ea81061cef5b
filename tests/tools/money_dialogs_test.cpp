#include "tools/dialogs/money_dialogs.h"

#include <algorithm>

#include "engine/errors.h"
#include "engine/format.h"
#include "engine/state.h"
#include "support/calculator.h"
#include "tools/tvm_state.h"

namespace zephyl {

namespace {

class money_dialogs : public calculator {
 protected:
  void set(TDialog& dialog, const char* field, const char* text) {
    EXPECT_TRUE(set_text(dialog, find_control(dialog, field), text)) << field;
  }
  void press(TDialog& dialog, const char* button) {
    EXPECT_TRUE(press_button(dialog, find_control(dialog, button))) << button;
  }
  std::string text(TDialog& dialog, const char* field) { return dialog[find_control(dialog, field)].text; }
  // 1000 at 6 percent, paid back by 10 a month.
  void take_loan(double months) {
    set_tvm_value(TVM_N, months);
    set_tvm_value(TVM_I, 6.0);
    set_tvm_value(TVM_PV, 1000.0);
    set_tvm_value(TVM_PMT, -10.0);
  }
  void in_solver(std::function<void(TDialog&)> act) {
    platform_.dialog_answers.push_back(std::move(act));
    show_tvm_solver();
  }
};

TEST_F(money_dialogs, a_payment_is_solved_and_stored) {
  in_solver([this](TDialog& dialog) {
    EXPECT_EQ(text(dialog, "P/Y"), "12");
    set(dialog, "N", "360");
    set(dialog, "I%YR =", "6");
    set(dialog, "PV", "200000");
    press(dialog, "Solve PMT");
    EXPECT_EQ(text(dialog, "PMT"), "-1199.1010503");
    EXPECT_FALSE(dialog.closed());
  });
  EXPECT_NEAR(tvm_value(TVM_PMT), -1199.1010503, 1e-6);
}

TEST_F(money_dialogs, the_due_time_counts_and_defaults_set_everything_back) {
  in_solver([this](TDialog& dialog) {
    set(dialog, "N", "12");
    set(dialog, "I%YR =", "12");
    set(dialog, "PMT", "-100");
    choose_row(dialog, find_control(dialog, "PMT @"), 1);
    press(dialog, "Solve FV");
    EXPECT_EQ(text(dialog, "FV"), "1280.9328043");
    press(dialog, "Defaults");
    EXPECT_EQ(text(dialog, "N"), "0");
    EXPECT_EQ(text(dialog, "C/Y"), "12");
    EXPECT_EQ(dialog[find_control(dialog, "PMT @")].selected, 0);
  });
  EXPECT_FALSE(tvm_state.begin);
}

TEST_F(money_dialogs, a_field_that_can_not_be_read_keeps_the_old_value) {
  set_tvm_value(TVM_N, 24.0);
  in_solver([this](TDialog& dialog) {
    set(dialog, "N", "many");
    press(dialog, "Exit");
  });
  EXPECT_EQ(tvm_value(TVM_N), 24.0);
}

TEST_F(money_dialogs, a_comma_is_the_decimal_mark_only_where_it_is_set) {
  set_tvm_value(TVM_PV, 7.0);
  for (const int mark : {0, 1}) {
    settings.decimalMark = mark;
    in_solver([this](TDialog& dialog) {
      set(dialog, "PV", "200,5");
      press(dialog, "Exit");
    });
    EXPECT_EQ(tvm_value(TVM_PV), mark == 1 ? 200.5 : 7.0);
  }
}

TEST_F(money_dialogs, a_number_is_decimal) {
  set_tvm_value(TVM_PV, 7.0);
  for (const char* text : {"0x10", "inf", "nan", "1e999", " "}) {
    in_solver([this, text](TDialog& dialog) {
      set(dialog, "PV", text);
      press(dialog, "Exit");
    });
    EXPECT_EQ(tvm_value(TVM_PV), 7.0) << text;
  }
}

TEST_F(money_dialogs, a_field_that_nobody_touches_keeps_all_its_digits) {
  const double loan = 200000.0 / 3.0;
  set_tvm_value(TVM_PV, loan);
  in_solver([this](TDialog& dialog) {
    EXPECT_EQ(text(dialog, "PV"), "66666.666667");
    set(dialog, "N", "10");
    press(dialog, "Solve PMT");
    press(dialog, "Exit");
  });
  EXPECT_EQ(tvm_value(TVM_PV), loan);
  EXPECT_EQ(tvm_value(TVM_N), 10.0);
  EXPECT_EQ(tvm_value(TVM_PMT), -loan / 10.0);
}

TEST_F(money_dialogs, an_error_shows_in_a_box_and_is_cleared) {
  in_solver([this](TDialog& dialog) {
    set(dialog, "N", "10");
    set(dialog, "PV", "100");
    set(dialog, "FV", "100");
    press(dialog, "Solve I%YR");
    EXPECT_EQ(message(), "TVM Solver | No TVM Sign Change");
    EXPECT_EQ(text(dialog, "I%YR ="), "0");
  });
  EXPECT_FALSE(errors.error_flag);
}

TEST_F(money_dialogs, what_divides_by_zero_or_overflows_is_said_and_stores_nothing) {
  struct TCase {
    std::initializer_list<std::pair<const char*, const char*>> fields;
    const char* unknown;
    const char* error;
  };
  const TCase cases[] = {
      {{{"PV", "1000"}}, "N", "Division by Zero"},
      {{{"PV", "1000"}}, "PMT", "Division by Zero"},
      {{{"C/Y", "0"}, {"I%YR =", "5"}, {"N", "2"}}, "PV", "Division by Zero"},
      {{{"I%YR =", "12"}, {"N", "10"}, {"PV", "1000"}, {"PMT", "-9"}}, "N", "Domain Error"},
      {{{"PV", "1000"}, {"PMT", "0.000001"}, {"FV", "-500"}}, "I%YR", "Division by Zero"},
      {{{"I%YR =", "1e308"}, {"N", "2000"}, {"PV", "1e308"}}, "FV", "Overflow"},
  };
  for (const TCase& wrong : cases) {
    reset_tvm_state();
    platform_.messages.clear();
    double before[TVM_PMT_AT];
    in_solver([&](TDialog& dialog) {
      for (const auto& [field, value] : wrong.fields) set(dialog, field, value);
      press(dialog, "Exit");
    });
    std::copy(tvm_state.values, tvm_state.values + TVM_PMT_AT, before);
    in_solver([&](TDialog& dialog) {
      press(dialog, ("Solve " + std::string(wrong.unknown)).c_str());
      EXPECT_EQ(message(), "TVM Solver | " + std::string(wrong.error)) << wrong.unknown;
      EXPECT_FALSE(dialog.closed());
    });
    EXPECT_TRUE(std::equal(before, before + TVM_PMT_AT, tvm_state.values)) << wrong.unknown;
    EXPECT_FALSE(errors.error_flag);
  }
}

TEST_F(money_dialogs, each_unknown_is_solved) {
  in_solver([this](TDialog& dialog) {
    set(dialog, "I%YR =", "6");
    set(dialog, "PV", "200000");
    set(dialog, "PMT", "-1199.1010503055");
    press(dialog, "Solve N");
    EXPECT_NEAR(std::stod(text(dialog, "N")), 360.0, 1e-6);
    set(dialog, "N", "360");
    press(dialog, "Solve PV");
    EXPECT_NEAR(std::stod(text(dialog, "PV")), 200000.0, 1e-3);
    set(dialog, "I%YR =", "1");
    press(dialog, "Solve I%YR");
    EXPECT_NEAR(std::stod(text(dialog, "I%YR =")), 6.0, 1e-8);
    EXPECT_TRUE(dialog[find_control(dialog, "Solve I%YR")].enabled);
  });
}

TEST_F(money_dialogs, a_schedule_has_a_row_for_each_payment_up_to_2000) {
  take_loan(2000.0);
  platform_.dialog_answers.push_back([](TDialog& dialog) {
    ASSERT_EQ(dialog[0].rows.size(), 2000u);
    EXPECT_EQ(dialog[0].rows[0], "1\t-5\t-5\t995");
  });
  show_amortization_schedule();
  EXPECT_EQ(platform_.dialogs.back(), "209 Amortization Schedule");
}

TEST_F(money_dialogs, a_longer_schedule_is_refused) {
  in_solver([this](TDialog& dialog) {
    set(dialog, "N", "2001");
    press(dialog, "Amortization Schedule");
    EXPECT_EQ(message(),
              "Amortization Schedule | Can't create schedule due to the TVM N value being greater than 2000.");
  });
  EXPECT_EQ(platform_.dialogs.size(), 1u);
}

TEST_F(money_dialogs, a_schedule_without_payments_has_no_rows) {
  for (const double n : {-3.0, 0.0, 0.9, -1e300}) {
    set_tvm_value(TVM_N, n);
    platform_.dialog_answers.push_back([](TDialog& dialog) { EXPECT_TRUE(dialog[0].rows.empty()); });
    show_amortization_schedule();
  }
}

TEST_F(money_dialogs, a_schedule_has_whole_payments_only_in_the_number_format) {
  settings.numberFormat = FORMAT_FIXED;
  settings.decimalDigits = 2;
  take_loan(2.9);
  platform_.dialog_answers.push_back([](TDialog& dialog) {
    EXPECT_EQ(dialog[0].rows, (std::vector<std::string>{"1\t-5.00\t-5.00\t995.00", "2\t-5.02\t-4.98\t989.98"}));
  });
  show_amortization_schedule();
}

TEST_F(money_dialogs, a_row_that_can_not_be_computed_tells_the_error) {
  set_tvm_value(TVM_N, 1.0);
  set_tvm_value(TVM_I, 5.0);
  set_tvm_value(TVM_PV, 100.0);
  set_tvm_value(TVM_CY, 0.0);
  platform_.dialog_answers.push_back([](TDialog& dialog) {
    EXPECT_EQ(dialog[0].rows[0], "1\tDivision by Zero\tDivision by Zero\tDivision by Zero");
  });
  show_amortization_schedule();
  EXPECT_FALSE(errors.error_flag);
}

}  // namespace

}  // namespace zephyl
