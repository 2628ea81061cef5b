// The table of the functions that are plotted: its cells, what it keeps of them, and its dialog.

#include "plot/plot_table.h"

#include "engine/errors.h"
#include "engine/hooks.h"
#include "engine/memory.h"
#include "engine/state.h"
#include "plot/dialog_acts.h"
#include "plot/plot_labels.h"
#include "plot/plotting.h"

namespace zephyl {
namespace {

using TTexts = std::vector<std::string>;

class plot_table : public plotting {
 protected:
  using TAct = std::function<void(TDialog&)>;

  void open(const TAct& act) {
    platform_.dialog_answers.push_back(act);
    open_plot_table();
  }
  // A column of a table's rows, 0 the parameter.
  static TTexts column(const TTexts& rows, int wanted) {
    TTexts cells;
    for (const std::string& row : rows) {
      std::size_t begin = 0;
      for (int i = 0; i < wanted; ++i) begin = row.find('\t', begin) + 1;
      cells.push_back(row.substr(begin, row.find('\t', begin) - begin));
    }
    return cells;
  }
  // The cell of f1(x) in the first row, at 0.
  static std::string cell_of(const std::string& function) {
    put(PLOT_FUNCTION, 0, function);
    TPlotTable table;
    table.recalculate(0.0, 1.0);
    return column(table.rows(), 1)[0];
  }
};

// --- Cells

TEST_F(plot_table, has_ten_rows_a_delta_apart) {
  put(PLOT_FUNCTION, 0, "x^2");
  const TTexts rows = TPlotTable().rows();
  ASSERT_EQ(rows.size(), 10u);
  EXPECT_EQ(rows[0], "-10.0000\t100.0000");
  EXPECT_EQ(rows[1], "-9.9000\t98.0100");
  EXPECT_EQ(rows[9], "-9.1000\t82.8100");
}

TEST_F(plot_table, begins_at_the_left_of_the_view_by_tenths) {
  set_plot_view(2.5, -1, 3, 1);
  const TPlotTable table;
  EXPECT_EQ(table.start(), 2.5);
  EXPECT_EQ(table.delta(), 0.1);
}

TEST_F(plot_table, of_curves_begins_with_the_range_of_their_parameter) {
  plot_variables.t = {0.5, 6.0, 0.25};
  for (const int type : {PLOT_POLAR, PLOT_PARAMETRIC}) {
    choose(type);
    const TPlotTable table;
    EXPECT_EQ(table.start(), 0.5);
    EXPECT_EQ(table.delta(), 0.25);
  }
}

TEST_F(plot_table, has_a_column_a_function_in_use) {
  put(PLOT_FUNCTION, 1, "x");
  put(PLOT_FUNCTION, 5, "2x");
  TPlotTable table;
  EXPECT_EQ(table.headings(), (TTexts{"x", "f2(x)", "f6(x)"}));
  EXPECT_EQ(table.rows()[0], "-10.0000\t-10.0000\t-20.0000");
}

TEST_F(plot_table, of_polar_curves_names_the_angle_mode) {
  choose(PLOT_POLAR);
  for (int slot = 0; slot < 6; ++slot) put(PLOT_POLAR, slot, "(theta)");
  const char* const names[] = {"theta (Rad)", "theta (Deg)", "theta (Grad)"};
  for (int mode = RADIANS; mode <= GRADS; ++mode) {
    settings.angleMode = mode;
    EXPECT_EQ(TPlotTable().headings(), (TTexts{names[mode], "R1(theta)", "R2(theta)", "R3(theta)",
                                               "R4(theta)", "R5(theta)", "R6(theta)"}));
  }
}

TEST_F(plot_table, of_parametric_curves_has_both_functions_of_a_pair) {
  choose(PLOT_PARAMETRIC);
  put(PLOT_PARAMETRIC, 0, "t");
  put(PLOT_PARAMETRIC, 1, "-t");
  put(PLOT_PARAMETRIC, 5, "2t");
  plot_variables.t = {1.0, 6.0, 1.0};
  TPlotTable table;
  EXPECT_EQ(table.headings(), (TTexts{"t", "X1(t)", "Y1(t)", "X3(t)", "Y3(t)"}));
  EXPECT_EQ(table.rows()[2], "3.0000\t3.0000\t-3.0000\tUndefined\t6.0000");
}

TEST_F(plot_table, without_functions_has_the_parameter_alone) {
  TPlotTable table;
  EXPECT_EQ(table.headings(), TTexts{"x"});
  EXPECT_EQ(table.rows()[0], "-10.0000");
}

TEST_F(plot_table, numbers_have_four_decimals_and_the_decimal_mark) {
  settings.numberFormat = FORMAT_SCIENTIFIC;
  settings.decimalDigits = 2;
  EXPECT_EQ(cell_of("2/3"), "0.6667");
  EXPECT_EQ(cell_of("-12345678"), "-1.2346e7");
  settings.decimalMark = 1;
  EXPECT_EQ(cell_of("2/3"), "0,6667");
}

TEST_F(plot_table, a_value_that_is_none_is_a_word) {
  EXPECT_EQ(cell_of("170!*1e300"), "Overflow");
  EXPECT_EQ(cell_of("1/x"), "Div by Zero");
  EXPECT_EQ(cell_of("ln(x-1)"), "Domain");
  EXPECT_EQ(cell_of("1+"), "Syntax");
  EXPECT_EQ(cell_of("sin(1,2)"), "Syntax");
  EXPECT_EQ(cell_of("1)"), "Syntax");
  EXPECT_EQ(cell_of("(xMean)"), "No Stats Data");
  EXPECT_EQ(cell_of("x+(i)"), "Data Type");
  EXPECT_EQ(cell_of("{x,2}"), "Data Type");
  EXPECT_EQ(cell_of("fnRoot(y^2+1,y,0,1)"), "No Root Found");
  EXPECT_EQ(cell_of("Nothing(x)"), "Error");
}

TEST_F(plot_table, every_error_has_its_word) {
  const struct {
    int code;
    const char* word;
  } rows[] = {{0, "Overflow"},      {1, "Overflow"},        {2, "Div by Zero"},
              {3, "Domain"},        {4, "Domain"},          {5, "Syntax"},
              {17, "Syntax"},       {31, "Syntax"},         {34, "Syntax"},
              {6, "No Stats Data"}, {7, "No Stats y Data"}, {15, "Data Type"},
              {18, "Data Type"},    {32, "No Root Found"},  {33, "No Intersection Found"},
              {50, "Undefined"},    {8, "Error"},           {25, "Error"},
              {49, "Error"}};
  for (const auto& row : rows) EXPECT_STREQ(error_word_text(row.code), row.word) << row.code;
}

TEST_F(plot_table, leaves_no_trace) {
  state.calcMode = COMP_MODE;
  eval("3.5->x");
  state.calcMode = PLOT_MODE;
  put(PLOT_FUNCTION, 0, "x->A");
  put(PLOT_FUNCTION, 1, "1/0");
  TPlotTable().rows();
  EXPECT_EQ(memory_get(SLOT_X, 0), 3.5);
  EXPECT_EQ(memory_get(SLOT_CAPITAL_A, 0), 0.0);
  EXPECT_FALSE(errors.error_flag);
}

TEST_F(plot_table, with_a_delta_of_0_has_ten_equal_rows) {
  put(PLOT_FUNCTION, 0, "2x");
  TPlotTable table;
  table.recalculate(3, 0);
  EXPECT_EQ(table.rows(), TTexts(10, "3.0000\t6.0000"));
  EXPECT_TRUE(table.move(1));
  EXPECT_EQ(table.rows(), TTexts(10, "3.0000\t6.0000"));
}

TEST_F(plot_table, a_parameter_too_large_for_a_number_is_an_overflow) {
  put(PLOT_FUNCTION, 0, "1");
  TPlotTable table;
  table.recalculate(1e308, 5e307);
  const TTexts rows = table.rows();
  EXPECT_EQ(rows[1], "1.5000e308\t1.0000");
  EXPECT_EQ(rows[2], "Overflow\tOverflow");
  EXPECT_FALSE(errors.error_flag);
  EXPECT_FALSE(table.move(2));
  EXPECT_EQ(table.start(), 1e308);
  EXPECT_TRUE(table.move(1));
}

// --- Moving

TEST_F(plot_table, moves_by_rows) {
  put(PLOT_FUNCTION, 0, "x");
  TPlotTable table;
  table.recalculate(0, 2);
  table.rows();
  EXPECT_TRUE(table.move(3));
  EXPECT_EQ(table.start(), 6.0);
  EXPECT_EQ(column(table.rows(), 1)[0], "6.0000");
  EXPECT_TRUE(table.move(-5));
  EXPECT_EQ(column(table.rows(), 1)[0], "-4.0000");
  EXPECT_EQ(column(table.rows(), 1)[9], "14.0000");
}

TEST_F(plot_table, moving_does_not_add_up_the_rounding) {
  TPlotTable table;
  table.recalculate(-10, 0.1);
  for (int i = 0; i < 100; ++i) table.move(1);
  EXPECT_EQ(table.start(), 0.0);
  EXPECT_EQ(table.rows()[0], "0.0000");
}

// A function that isn't the same twice: what is kept shows again.
TEST_F(plot_table, evaluates_only_the_rows_that_come_in) {
  put(PLOT_FUNCTION, 0, "(Rand)");
  put(PLOT_FUNCTION, 1, "(Rand)*100000");
  TPlotTable table;
  table.recalculate(0, 1);
  for (const int wanted : {1, 2}) {
    const TTexts before = column(table.rows(), wanted);
    EXPECT_EQ(column(table.rows(), wanted), before);
    table.move(1);
    const TTexts down = column(table.rows(), wanted);
    EXPECT_TRUE(std::equal(before.begin() + 1, before.end(), down.begin()));
    table.move(-3);
    const TTexts up = column(table.rows(), wanted);
    EXPECT_TRUE(std::equal(up.begin() + 3, up.end(), down.begin()));
    EXPECT_NE(up[2], before[0]);
    table.move(10);
    const TTexts page = column(table.rows(), wanted);
    for (const std::string& cell : page) EXPECT_EQ(std::count(up.begin(), up.end(), cell), 0);
    table.recalculate(table.start(), 1);
    EXPECT_NE(column(table.rows(), wanted), page);
  }
}

TEST_F(plot_table, a_tap_ends_a_long_evaluation) {
  put(PLOT_FUNCTION, 0, "x");
  put(PLOT_FUNCTION, 1, "Summ(y,y,1,1000000000)");
  put(PLOT_FUNCTION, 2, "x");
  hooks.tap_kind = [](int, int) { return TAP_KEY; };
  platform_.ticks_per_look = 600;
  TPlotTable table;
  table.recalculate(0, 1);
  table.move(1);
  for (int round = 0; round < 2; ++round) {
    platform_.pen_downs.assign(1, {5, 5});
    const TTexts rows = table.rows();
    EXPECT_EQ(column(rows, 2), TTexts(10, "Error"));
    platform_.pen_downs.clear();
  }
  put(PLOT_FUNCTION, 1, "2x");
  EXPECT_EQ(table.rows()[1], "2.0000\t2.0000\t4.0000\t2.0000");
  EXPECT_FALSE(errors.error_flag);
}

// --- Its dialog

TEST_F(plot_table, dialog_has_the_table_and_its_range) {
  put(PLOT_FUNCTION, 0, "x");
  open([](TDialog& dialog) {
    EXPECT_EQ(dialog.id(), 213);
    EXPECT_EQ(dialog.title, "Plot Table");
    EXPECT_EQ(labels(dialog), "|x start:|x delta:|Recalc|Exit|");
    ASSERT_EQ(dialog[0].columns.size(), 2u);
    EXPECT_EQ(dialog[0].columns[1].heading, "f1(x)");
    EXPECT_EQ(dialog[0].lines, 10);
    EXPECT_EQ(dialog[0].rows.size(), 10u);
    EXPECT_EQ(text_of(dialog, "x start"), "-10");
    EXPECT_EQ(text_of(dialog, "x delta"), "0.1");
    press(dialog, "Exit");
    EXPECT_TRUE(dialog.closed());
  });
}

TEST_F(plot_table, dialog_names_the_parameter_of_the_type) {
  choose(PLOT_POLAR);
  open([](TDialog& dialog) { EXPECT_EQ(labels(dialog), "|theta start:|theta delta:|Recalc|Exit|"); });
  choose(PLOT_PARAMETRIC);
  open([](TDialog& dialog) { EXPECT_EQ(labels(dialog), "|t start:|t delta:|Recalc|Exit|"); });
}

TEST_F(plot_table, dialog_calculates_from_expressions_and_stays) {
  put(PLOT_FUNCTION, 0, "x^2");
  open([](TDialog& dialog) {
    write(dialog, "x start", "2*3");
    write(dialog, "x delta", "-1/2");
    EXPECT_EQ(dialog[0].rows[0], "-10.0000\t100.0000");
    press(dialog, "Recalc");
    EXPECT_FALSE(dialog.closed());
    EXPECT_EQ(dialog[0].rows[0], "6.0000\t36.0000");
    EXPECT_EQ(dialog[0].rows[1], "5.5000\t30.2500");
  });
}

TEST_F(plot_table, dialog_keeps_values_that_were_not_touched_with_all_their_digits) {
  put(PLOT_FUNCTION, 0, "x*1e12-333333333333");
  set_plot_view(1.0 / 3, -10, 10, 10);
  open([](TDialog& dialog) {
    EXPECT_EQ(text_of(dialog, "x start"), "0.3333333333");
    press(dialog, "Recalc");
    EXPECT_EQ(dialog[0].rows[0], "0.3333\t0.3333");
  });
}

TEST_F(plot_table, dialog_scrolls) {
  put(PLOT_FUNCTION, 0, "x");
  open([](TDialog& dialog) {
    choose_row(dialog, 0, 4);
    EXPECT_TRUE(scroll_rows(dialog, 0, 1));
    EXPECT_EQ(dialog[0].rows[0], "-9.9000\t-9.9000");
    EXPECT_EQ(dialog[0].selected, 4);
    EXPECT_EQ(text_of(dialog, "x start"), "-9.9");
    EXPECT_TRUE(scroll_rows(dialog, 0, -11));
    EXPECT_EQ(dialog[0].rows[0], "-11.0000\t-11.0000");
    EXPECT_EQ(text_of(dialog, "x start"), "-11");
  });
}

TEST_F(plot_table, dialog_stays_open_with_a_message_for_what_is_no_number) {
  put(PLOT_FUNCTION, 0, "x");
  open([this](TDialog& dialog) {
    const TTexts before = dialog[0].rows;
    for (const char* field : {"x start", "x delta"}) {
      for (const std::string& nonsense :
           {std::string(), std::string("what?"), std::string("1/0"), std::string("{1,2}"), std::string("(i)"),
            std::string(10000, '('), std::string(10000, '9')}) {
        write(dialog, field, nonsense);
        press(dialog, "Recalc");
        EXPECT_FALSE(dialog.closed()) << nonsense;
        EXPECT_EQ(message().substr(0, 8), "Error | ") << nonsense;
        EXPECT_EQ(dialog[0].rows, before);
      }
      write(dialog, field, "1");
    }
  });
}

TEST_F(plot_table, dialog_takes_any_range) {
  put(PLOT_FUNCTION, 0, "x");
  open([](TDialog& dialog) {
    const std::string extremes[] = {"0", "1e308", "-1e308", "1e-308", "-1", "1e15"};
    for (const std::string& start : extremes)
      for (const std::string& delta : extremes) {
        write(dialog, "x start", start);
        write(dialog, "x delta", delta);
        press(dialog, "Recalc");
        EXPECT_EQ(dialog[0].rows.size(), 10u);
        for (const int rows : {1, -1, 10, -10, INT32_MAX, INT32_MAX, INT32_MIN}) scroll_rows(dialog, 0, rows);
      }
  });
  EXPECT_EQ(message(), "none");
}

}  // namespace
}  // namespace zephyl
