// Plot Calculate.

#include <string>

#include "engine/state.h"
#include "faceplate/key_path.h"
#include "platform/dialog.h"
#include "plot/dialog_acts.h"
#include "plot/plot_calculate.h"
#include "plot/plot_screen.h"
#include "plot/plotting.h"

namespace zephyl {
namespace {

class plot_calculate_dialog : public plotting {
 protected:
  using TAct = std::function<void(TDialog&)>;

  void open(const TAct& act) {
    platform_.dialog_answers.push_back(act);
    open_plot_calculate();
  }
  void open_and(const TAct& act) {
    open([&](TDialog& dialog) {
      act(dialog);
      press(dialog, "OK");
      EXPECT_TRUE(dialog.closed());
    });
  }
  static std::string rows(const TDialog& dialog, const std::string& control) {
    std::string text;
    for (const std::string& row : dialog[find_control(dialog, control)].rows) text += row + "|";
    return text;
  }
  static std::string description(const TDialog& dialog) { return dialog[1].text; }
};

TEST_F(plot_calculate_dialog, offers_seven_calculations_of_functions) {
  open([](TDialog& dialog) {
    EXPECT_EQ(dialog.id(), 212);
    EXPECT_EQ(dialog.title, "Plot Calculate");
    EXPECT_EQ(rows(dialog, "Calculation"), "Value|Root|Minimum|Maximum|Intersection|Slope|Table|");
    EXPECT_EQ(labels(dialog), "Calculation:||Function:|x Value:|OK|Cancel|");
    EXPECT_EQ(rows(dialog, "Function"), "f1(x)|f2(x)|f3(x)|f4(x)|f5(x)|f6(x)|");
  });
}

TEST_F(plot_calculate_dialog, offers_value_and_table_of_curves) {
  choose(PLOT_POLAR);
  settings.angleMode = RADIANS;
  open([](TDialog& dialog) {
    EXPECT_EQ(rows(dialog, "Calculation"), "Value|Table|");
    EXPECT_EQ(labels(dialog), "Calculation:||Function:|theta Value: (Rad)|OK|Cancel|");
    EXPECT_EQ(rows(dialog, "Function"), "R1(theta)|R2(theta)|R3(theta)|R4(theta)|R5(theta)|R6(theta)|");
  });
  choose(PLOT_PARAMETRIC);
  open([](TDialog& dialog) {
    EXPECT_EQ(rows(dialog, "Calculation"), "Value|Table|");
    EXPECT_EQ(labels(dialog), "Calculation:||Function:|t Value:|OK|Cancel|");
    EXPECT_EQ(rows(dialog, "Function"), "X1(t), Y1(t)|X2(t), Y2(t)|X3(t), Y3(t)|");
  });
}

TEST_F(plot_calculate_dialog, names_the_angle_mode_of_theta) {
  choose(PLOT_POLAR);
  const char* const labels_of[] = {"theta Value: (Rad)", "theta Value: (Deg)", "theta Value: (Grad)"};
  for (int mode = RADIANS; mode <= GRADS; ++mode) {
    settings.angleMode = mode;
    open([&](TDialog& dialog) { EXPECT_NE(find_control(dialog, labels_of[mode]), -1) << mode; });
  }
}

TEST_F(plot_calculate_dialog, asks_for_what_a_calculation_needs) {
  open([](TDialog& dialog) {
    const char* const needed[] = {"Calculation:||Function:|x Value:|OK|Cancel|",
                                  "Calculation:||Function:|OK|Cancel|",
                                  "Calculation:||Function:|OK|Cancel|",
                                  "Calculation:||Function:|OK|Cancel|",
                                  "Calculation:||Functions:|OK|Cancel|",
                                  "Calculation:||Function:|x Value:|OK|Cancel|",
                                  "Calculation:||OK|Cancel|"};
    for (int calculation = 0; calculation < CALCULATION_COUNT; ++calculation) {
      select(dialog, "Calculation", calculation);
      EXPECT_EQ(labels(dialog), needed[calculation]) << calculation;
    }
  });
}

TEST_F(plot_calculate_dialog, describes_each_calculation) {
  open([](TDialog& dialog) {
    const char* const texts[] = {
        "Calculates a function value for a given x. Select the function and enter the x value below.",
        "Finds a root (x-intercept) of a function. Select the function below. Only one root is returned even "
        "if "
        "the function has more than one root. Zoom in on a function to find a particular root. The minimum x "
        "value and maximum x value of the plot area are used as the extremes for finding a root.",
        "Finds a minimum of a function. Select the function below. Zoom in on a function to find a "
        "particular "
        "minimum. The minimum x value and maximum x value of the plot area are used as the extremes for "
        "finding a minimum.",
        "Finds a maximum of a function. Select the function below. Zoom in on a function to find a "
        "particular "
        "maximum. The minimum x value and maximum x value of the plot area are used as the extremes for "
        "finding a maximum.",
        "Finds an intersection of two functions. Select the two functions below. Only one intersection is "
        "returned even if the functions have more than one intersection. Zoom in on a function to find a "
        "particular intersection. The minimum x value and maximum x value of the plot area are used as the "
        "extremes for finding an intersection.",
        "Finds the slope (numeric derivative) of a function for a given x. Select the function and enter the "
        "x "
        "value below.",
        "Calculates a table of values for the displayed functions."};
    for (int calculation = 0; calculation < CALCULATION_COUNT; ++calculation) {
      select(dialog, "Calculation", calculation);
      EXPECT_EQ(description(dialog), texts[calculation]);
    }
  });
  choose(PLOT_POLAR);
  open([](TDialog& dialog) {
    EXPECT_EQ(description(dialog),
              "Calculates a function value for a given theta. Select the function and enter the theta value "
              "below.");
    select(dialog, "Calculation", 1);
    EXPECT_EQ(description(dialog), "Calculates a table of values for the displayed functions.");
  });
  choose(PLOT_PARAMETRIC);
  open([](TDialog& dialog) {
    EXPECT_EQ(description(dialog),
              "Calculates a function value for a given t. Select the function and enter the t value below.");
  });
}

TEST_F(plot_calculate_dialog, lists_the_ordered_pairs_of_functions) {
  open([](TDialog& dialog) {
    select(dialog, "Calculation", CALCULATE_INTERSECTION);
    const TControl& pairs = dialog[find_control(dialog, "Functions:")];
    ASSERT_EQ(pairs.rows.size(), 30u);
    EXPECT_EQ(pairs.rows[0], "f1(x) & f2(x)");
    EXPECT_EQ(pairs.rows[4], "f1(x) & f6(x)");
    EXPECT_EQ(pairs.rows[5], "f2(x) & f1(x)");
    EXPECT_EQ(pairs.rows[29], "f6(x) & f5(x)");
  });
}

TEST_F(plot_calculate_dialog, functions_and_pairs_keep_their_choices_apart) {
  open_and([](TDialog& dialog) {
    select(dialog, "Function", 3);
    select(dialog, "Calculation", CALCULATE_INTERSECTION);
    EXPECT_EQ(row_of(dialog, "Functions"), "f1(x) & f2(x)");
    select(dialog, "Functions", 7);
    select(dialog, "Calculation", CALCULATE_ROOT);
    EXPECT_EQ(row_of(dialog, "Function"), "f4(x)");
  });
  EXPECT_EQ(plot_calculation.function, 3);
  EXPECT_EQ(plot_calculation.pair, 7);
}

TEST_F(plot_calculate_dialog, calculates_what_is_chosen) {
  put(PLOT_FUNCTION, 1, "x^2");
  open_and([](TDialog& dialog) {
    select(dialog, "Calculation", CALCULATE_SLOPE);
    select(dialog, "Function", 1);
    write(dialog, "x Value", "6/2");
  });
  const TSurface marked = shown_plot();
  EXPECT_TRUE(plot_screen().marks_shown);
  plot_calculate(CALCULATE_SLOPE, 3.0);
  EXPECT_TRUE(same_picture(marked, shown_plot()));
}

TEST_F(plot_calculate_dialog, opens_on_what_was_chosen_last) {
  open_and([](TDialog& dialog) {
    select(dialog, "Calculation", CALCULATE_SLOPE);
    select(dialog, "Function", 5);
    write(dialog, "x Value", "1/3");
  });
  open_and([](TDialog& dialog) {
    EXPECT_EQ(row_of(dialog, "Calculation"), "Slope");
    EXPECT_EQ(row_of(dialog, "Function"), "f6(x)");
    EXPECT_EQ(text_of(dialog, "x Value"), "0.3333333333");
  });
  EXPECT_EQ(plot_calculation.value, 1.0 / 3.0);
}

TEST_F(plot_calculate_dialog, opens_on_what_there_is_where_the_last_choice_is_not_offered) {
  plot_calculation = {CALCULATE_ROOT, 5, 12, 2.0};
  choose(PLOT_PARAMETRIC);
  open_and([](TDialog& dialog) {
    EXPECT_EQ(row_of(dialog, "Calculation"), "Value");
    EXPECT_EQ(row_of(dialog, "Function"), "X3(t), Y3(t)");
  });
  EXPECT_EQ(plot_calculation.function, 2);
  plot_calculation.calculation = CALCULATE_TABLE;
  open([](TDialog& dialog) { EXPECT_EQ(row_of(dialog, "Calculation"), "Table"); });
}

TEST_F(plot_calculate_dialog, forgets_what_is_cancelled) {
  put(PLOT_FUNCTION, 0, "x");
  open([](TDialog& dialog) {
    select(dialog, "Calculation", CALCULATE_SLOPE);
    select(dialog, "Function", 5);
    write(dialog, "x Value", "7");
    press(dialog, "Cancel");
  });
  EXPECT_EQ(plot_calculation.calculation, CALCULATE_VALUE);
  EXPECT_EQ(plot_calculation.function, 0);
  EXPECT_EQ(plot_calculation.value, 0.0);
  EXPECT_FALSE(plot_screen().marks_shown);
}

TEST_F(plot_calculate_dialog, begins_anew_at_a_start) {
  plot_calculation = {CALCULATE_SLOPE, 5, 12, 2.0};
  restart("/dev/null/data");
  EXPECT_EQ(plot_calculation.calculation, CALCULATE_VALUE);
  EXPECT_EQ(plot_calculation.function, 0);
  EXPECT_EQ(plot_calculation.pair, 0);
  EXPECT_EQ(plot_calculation.value, 0.0);
}

TEST_F(plot_calculate_dialog, stays_open_with_a_message_for_a_value_that_is_none) {
  open([this](TDialog& dialog) {
    for (const std::string& nonsense :
         {std::string(), std::string("what?"), std::string("1/0"), std::string("{1,2}"), std::string("(i)"),
          std::string("1+"), std::string("\"a\""), std::string("1e308*10"), std::string("Summ("),
          std::string(10000, '('), std::string(10000, '9'), std::string("\xFF\x01\x80")}) {
      write(dialog, "x Value", nonsense);
      press(dialog, "OK");
      EXPECT_FALSE(dialog.closed()) << nonsense;
      EXPECT_EQ(message().substr(0, 8), "Error | ") << nonsense;
    }
  });
  EXPECT_EQ(plot_calculation.value, 0.0);
}

TEST_F(plot_calculate_dialog, reads_no_value_that_it_does_not_ask_for) {
  put(PLOT_FUNCTION, 0, "x");
  open_and([](TDialog& dialog) {
    write(dialog, "x Value", "what?");
    select(dialog, "Calculation", CALCULATE_ROOT);
  });
  EXPECT_EQ(message(), "none");
  EXPECT_TRUE(plot_screen().marks_shown);
}

TEST_F(plot_calculate_dialog, table_opens_the_table) {
  open_and([](TDialog& dialog) { select(dialog, "Calculation", CALCULATE_TABLE); });
  EXPECT_EQ(platform_.dialogs.back(), "213 Plot Table");
  EXPECT_FALSE(plot_screen().marks_shown);
}

TEST_F(plot_calculate_dialog, a_key_opens_it_on_a_plane) {
  for (const int type : {PLOT_FUNCTION, PLOT_POLAR, PLOT_PARAMETRIC}) {
    choose(type);
    platform_.dialogs.clear();
    on_char('c');
    ASSERT_EQ(platform_.dialogs.size(), 1u);
    EXPECT_EQ(platform_.dialogs[0], "212 Plot Calculate");
  }
}

TEST_F(plot_calculate_dialog, the_key_rotates_in_3d) {
  choose(PLOT_3D);
  on_char('C');
  EXPECT_TRUE(platform_.dialogs.empty());
  EXPECT_EQ(plot_variables.plotCursor, CURSOR_ROTATE);
}

// Every row of every type, with texts of all kinds: it ends, and never in an error.
TEST_F(plot_calculate_dialog, whatever_is_chosen_and_typed_it_ends_well) {
  put(PLOT_FUNCTION, 0, "tan(x)/x");
  put(PLOT_FUNCTION, 1, "Rand*x");
  put(PLOT_POLAR, 0, "ln((theta))");
  put(PLOT_PARAMETRIC, 0, "t!");
  put(PLOT_PARAMETRIC, 1, "1/t");
  const std::string values[] = {
      "0", "-1e308", "1e308", "170.5", "1/0", "xyz", "(Rand)", std::string(10000, 'e'), "((((", "-"};
  for (const int type : {PLOT_FUNCTION, PLOT_POLAR, PLOT_PARAMETRIC}) {
    choose(type);
    int calculations = 1;
    for (int row = 0; row < calculations; ++row)
      for (const std::string& value : values)
        for (int function = 0; function < 3; ++function)
          open([&](TDialog& dialog) {
            calculations = static_cast<int>(dialog[0].rows.size());
            choose_row(dialog, 0, row);
            choose_row(dialog, 2, function);
            set_text(dialog, 3, value);
            press(dialog, "OK");
          });
  }
  EXPECT_FALSE(errors.error_flag);
  for (const std::string& told : platform_.messages) EXPECT_EQ(told.substr(0, 8), "Error | ");
}

}  // namespace
}  // namespace zephyl
