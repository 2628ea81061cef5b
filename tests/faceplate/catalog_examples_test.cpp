// Every function of the catalog: it has an example that holds, and taken from the dialog by taps it is what
// the example uses.

#include "faceplate/catalog_examples.h"

#include <algorithm>
#include <cstdio>
#include <map>

#include "engine/errors.h"
#include "engine/expression.h"
#include "engine/records.h"
#include "engine/state.h"
#include "engine/text_form.h"
#include "faceplate/catalog/catalog_text.h"
#include "faceplate/catalog/function_catalog.h"
#include "faceplate/face.h"
#include "plot/drawing.h"

namespace zephyl {

namespace {

constexpr int BLUE_KEY = 1;
constexpr int CATALOG_KEY = 25;
constexpr int AC_KEY = 27;
constexpr int EVALUATE_KEY = 42;

// Examples that stand as they are, with how far the result may be from what they tell.
const std::map<std::string, double> ROUNDED_EXAMPLES = {
    // The interest has three digits behind the point: a payment of 1200 pays back 200000 at 6.0069900081
    // percent.
    {"tvmFV(360,6.007,200000,-1200,12,12) returns 0", 10.0}};

std::string number_text(double value) {
  char text[40];
  std::snprintf(text, sizeof text, "%.10g", value == 0.0 ? 0.0 : value);
  return text;
}

std::string list_text(const ListRecord& list) {
  std::string text = "{";
  for (int i = 0; i <= list.last; ++i) text += (i > 0 ? "," : "") + number_text(list.elements[i].re);
  return text + "}";
}

std::string matrix_text(const MatrixRecord& matrix) {
  std::string text;
  for (int row = 0; row <= matrix.last_row; ++row) {
    text += "[";
    for (int col = 0; col <= matrix.last_col; ++col)
      text += (col > 0 ? "," : "") + number_text(matrix.cells[row][col]);
    text += "]";
  }
  return text;
}

// What a result is called in the help.
std::string told_result(const std::string& line) {
  if (line == "Result in List Answer") return list_text(stores.lists[ANSWER_RECORD]);
  if (line == "Result in Matrix Answer") return matrix_text(stores.matrices[ANSWER_RECORD]);
  return line;
}

std::vector<TColour> drawn_pixels() {
  const TSurface& layer = drawing_bitmap();
  return {layer.pixels(), layer.pixels() + layer.width() * layer.height()};
}

TExpression tokens_of(const std::string& text) {
  TExpression expression;
  char error[200] = "";
  EXPECT_TRUE(text_to_tokens(text.c_str(), expression, error, sizeof error)) << text << ": " << error;
  return expression;
}

// The place of a token in an expression; its length where it isn't there.
int place_of(const TExpression& expression, int token) {
  const TToken* const end = expression.tokens + expression.count;
  return static_cast<int>(std::find(expression.tokens, end, static_cast<TToken>(token)) - expression.tokens);
}

bool uses(const std::string& step, int token) {
  const TExpression expression = tokens_of(step);
  return place_of(expression, token) < expression.count;
}

// The arguments between the outermost parentheses of "name(a,b)" of plain numbers and names.
std::vector<std::string> arguments_of(const std::string& call) {
  std::vector<std::string> arguments(1);
  for (std::size_t i = call.find('(') + 1; call[i] != ')'; ++i)
    if (call[i] == ',')
      arguments.emplace_back();
    else
      arguments.back() += call[i];
  return arguments;
}

bool is_money_solver_call(const TCatalogRow& row) { return row.text.compare(0, 3, "tvm") == 0; }

class catalog_examples : public face {
 protected:
  void start_afresh() {
    restart(platform_.folder);
    platform_.now.weekday = 1;  // the first of January 2024 was a Monday
  }

  // Takes a row out of the dialog as a person does. Its token, or more, stands in the entry line then.
  void take_from_catalog(const TCatalogRow& row) {
    platform_.dialog_answers.push_back([&row](TDialog& dialog) {
      ASSERT_EQ(dialog.id(), 196);
      ASSERT_TRUE(choose_row(dialog, 0, row.group));
      const auto same = [&](const std::string& listed) {
        return listed.substr(listed.find_first_not_of(' ')) == row.text;
      };
      const auto found = std::find_if(dialog[1].rows.begin(), dialog[1].rows.end(), same);
      ASSERT_NE(found, dialog[1].rows.end()) << row.text;
      ASSERT_TRUE(choose_row(dialog, 1, static_cast<int>(found - dialog[1].rows.begin())));
      EXPECT_EQ(dialog[2].text, row.help);
      accept_dialog(dialog);
    });
    tap_keys({BLUE_KEY, CATALOG_KEY});
  }

  // Enters a step whose token comes from the catalog, and taps the equals key.
  std::string eval_through_catalog(const std::string& step, const TCatalogRow& row) {
    const TExpression whole = tokens_of(step);
    const int place = place_of(whole, row.token);
    tap_key(AC_KEY);
    state.fresh_flag = false;
    EXPECT_TRUE(insert_tokens(whole.tokens, place));
    take_from_catalog(row);
    EXPECT_EQ(entry_line.expression.count, place + 1) << row.text;
    EXPECT_EQ(entry_line.expression.tokens[place], row.token) << row.text;
    EXPECT_TRUE(insert_tokens(whole.tokens + place + 1, whole.count - place - 1));
    tap_key(EVALUATE_KEY);
    return result_or_error();
  }

  // Enters a call of the money solver's functions, whose arguments the catalog fills with the solver's
  // values.
  std::string eval_money_call(const std::string& step, const TCatalogRow& row) {
    const std::vector<std::string> names = arguments_of(row.text);
    const std::vector<std::string> values = arguments_of(step);
    EXPECT_EQ(names.size(), values.size()) << row.text;
    for (std::size_t i = 0; i < names.size(); ++i) eval(values[i] + "->tvm" + names[i]);
    tap_key(AC_KEY);
    take_from_catalog(row);
    EXPECT_EQ(entry_line.expression.tokens[0], row.token) << row.text;
    tap_key(EVALUATE_KEY);
    return result_or_error();
  }

  // Runs an example; where a row is given, the step that uses its token takes that from the catalog.
  void expect_holds(const TCatalogExample& example, const TCatalogRow* from_catalog = nullptr) {
    start_afresh();
    std::string line;
    std::vector<TColour> before;
    for (const std::string& step : example.steps) {
      before = drawn_pixels();
      if (!from_catalog || !uses(step, from_catalog->token))
        line = eval(step);
      else if (is_money_solver_call(*from_catalog))
        line = eval_money_call(step, *from_catalog);
      else
        line = eval_through_catalog(step, *from_catalog);
    }
    expect_outcome(example, line, drawn_pixels() != before);
  }

  static void expect_outcome(const TCatalogExample& example, const std::string& line, bool drew) {
    const auto rounded = ROUNDED_EXAMPLES.find(example.line);
    if (rounded != ROUNDED_EXAMPLES.end()) {
      EXPECT_NEAR(std::stod(line), std::stod(example.told), rounded->second) << example.line;
    } else if (example.outcome == EXAMPLE_DRAWS) {
      EXPECT_EQ(line, "0") << example.line;
      EXPECT_TRUE(drew) << example.line;
    } else {
      EXPECT_EQ(told_result(line), example.told) << example.line;
      EXPECT_EQ(errors.error_flag, example.outcome == EXAMPLE_ENDS_IN) << example.line;
    }
  }
};

TEST_F(catalog_examples, every_row_but_a_heading_has_one_that_uses_it) {
  int rows = 0;
  for (const TCatalogRow& row : catalog_functions().rows) {
    const TCatalogExamples read = examples_in(row.help);
    EXPECT_TRUE(read.faults.empty()) << row.text << ": " << read.faults.front();
    if (row.token == HEADING_TOKEN) {
      EXPECT_TRUE(read.examples.empty()) << row.text;
      continue;
    }
    bool used = false;
    for (const TCatalogExample& example : read.examples)
      for (const std::string& step : example.steps) used = used || uses(step, row.token);
    EXPECT_TRUE(used) << row.text << " has no example";
    ++rows;
  }
  EXPECT_EQ(rows, 223);
}

TEST_F(catalog_examples, every_one_holds) {
  for (const TCatalogRow& row : catalog_functions().rows)
    for (const TCatalogExample& example : examples_in(row.help).examples) expect_holds(example);
}

TEST_F(catalog_examples, every_row_taken_by_taps_is_what_its_example_uses) {
  for (const TCatalogRow& row : catalog_functions().rows)
    for (const TCatalogExample& example : examples_in(row.help).examples) {
      const auto uses_row = [&](const std::string& step) { return uses(step, row.token); };
      if (std::any_of(example.steps.begin(), example.steps.end(), uses_row)) expect_holds(example, &row);
    }
}

TEST_F(catalog_examples, every_heading_taken_by_taps_enters_nothing) {
  int headings = 0;
  for (const TCatalogRow& row : catalog_functions().rows) {
    if (row.token != HEADING_TOKEN) continue;
    take_from_catalog(row);
    EXPECT_EQ(entry(), "") << row.text;
    ++headings;
  }
  EXPECT_EQ(headings, 5);
}

TEST(catalog_example_reader, knows_steps_and_outcomes) {
  const TCatalogExamples read = examples_in(
      "What it does, and that it returns something.\nExample:\n5->A then A+1 returns 6\nPoint(0,0) draws a "
      "point\n"
      "1/0 ends in Division by Zero\nnothing of the kind");
  ASSERT_EQ(read.examples.size(), 3u);
  EXPECT_EQ(read.examples[0].steps, (std::vector<std::string>{"5->A", "A+1"}));
  EXPECT_EQ(read.examples[0].told, "6");
  EXPECT_EQ(read.examples[1].outcome, EXAMPLE_DRAWS);
  EXPECT_EQ(read.examples[2].outcome, EXAMPLE_ENDS_IN);
  EXPECT_EQ(read.examples[2].told, "Division by Zero");
  EXPECT_EQ(read.faults, std::vector<std::string>{"nothing of the kind"});
}

}  // namespace

}  // namespace zephyl
