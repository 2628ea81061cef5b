// Every system variable of the catalog: taken from the dialog by taps it is read, and written where it can
// be.

#include <algorithm>
#include <set>

#include "engine/errors.h"
#include "engine/expression.h"
#include "engine/memory.h"
#include "engine/state.h"
#include "engine/text_entry.h"
#include "faceplate/catalog/catalog_text.h"
#include "faceplate/catalog/variable_catalog.h"
#include "faceplate/face.h"

namespace zephyl {

namespace {

constexpr int ORANGE_KEY = 0;
constexpr int CATALOG_KEY = 25;
constexpr int AC_KEY = 27;
constexpr int EVALUATE_KEY = 42;
constexpr int READ = 0;
constexpr int WRITE = 1;
constexpr int FIRST_FUNCTION_GROUP = 2;
constexpr int LAST_FUNCTION_GROUP = 5;

const std::set<std::string> READ_ONLY = {"plotButton", "plotStylus", "tickCount"};

// The memory that the functions of a group depend on.
std::string memory_of(int group) {
  return std::vector<std::string>{"x", "t", "(theta)",
                                  "x"}[static_cast<std::size_t>(group - FIRST_FUNCTION_GROUP)];
}

bool is_function(const TCatalogRow& row) {
  return row.group >= FIRST_FUNCTION_GROUP && row.group <= LAST_FUNCTION_GROUP;
}

class catalog_of_variables : public face {
 protected:
  void start_afresh() { restart(platform_.folder); }

  // Takes a row of a group out of the dialog as a person does; its token stands at the cursor then.
  void take_from_catalog(int group, const TCatalogRow& row, int action) {
    const std::vector<std::string> listed = variable_rows(group);
    platform_.dialog_answers.push_back([=, &row](TDialog& dialog) {
      ASSERT_EQ(dialog.id(), 214);
      ASSERT_TRUE(choose_row(dialog, 0, group));
      const auto same = [&](const std::string& text) {
        return text.compare(0, row.text.size(), row.text) == 0;
      };
      const auto found = std::find_if(dialog[1].rows.begin(), dialog[1].rows.end(), same);
      ASSERT_NE(found, dialog[1].rows.end()) << row.text;
      ASSERT_TRUE(choose_row(dialog, 1, static_cast<int>(found - dialog[1].rows.begin())));
      EXPECT_EQ(dialog[2].text, row.help);
      ASSERT_TRUE(choose_row(dialog, 3, action));
      accept_dialog(dialog);
    });
    tap_keys({ORANGE_KEY, CATALOG_KEY});
  }

  // The value that reading it by taps gives.
  double read(int group, const TCatalogRow& row) {
    tap_key(AC_KEY);
    take_from_catalog(group, row, READ);
    EXPECT_EQ(entry_line.expression.count, 1) << row.text;
    EXPECT_EQ(entry_line.expression.tokens[0], row.token) << row.text;
    tap_key(EVALUATE_KEY);
    EXPECT_FALSE(errors.error_flag) << row.text << ": " << result_or_error();
    return answers.ans.re;
  }

  // Writes a value or an expression to it by taps; what the result line says.
  std::string write(int group, const TCatalogRow& row, const std::string& text) {
    state.calcMode = COMP_MODE;
    char error[200] = "";
    EXPECT_TRUE(enter_text(text.c_str(), error, sizeof error)) << error;
    take_from_catalog(group, row, WRITE);
    tap_key(EVALUATE_KEY);
    return result_or_error();
  }

  void expect_reads_and_writes(int group, const TCatalogRow& row) {
    start_afresh();
    if (is_function(row)) {
      const std::string memory = memory_of(row.group);
      write(group, row, memory + "+1");
      eval("4->" + memory);
      EXPECT_EQ(read(group, row), 5.0) << row.text;
    } else if (READ_ONLY.count(row.text)) {
      read(group, row);
      EXPECT_EQ(write(group, row, "1"), "Unexpected Error") << row.text;
    } else {
      const double other = read(group, row) == 2.0 ? 1.0 : 2.0;
      write(group, row, other == 2.0 ? "2" : "1");
      EXPECT_FALSE(errors.error_flag) << row.text << ": " << result_or_error();
      state.calcMode = COMP_MODE;
      EXPECT_EQ(read(group, row), row.text == "calcMode" ? 1.0 : other) << row.text;
    }
  }
};

TEST_F(catalog_of_variables, every_row_is_read_and_written_by_taps) {
  for (const TCatalogRow& row : catalog_variables().rows) expect_reads_and_writes(row.group, row);
}

TEST_F(catalog_of_variables, every_row_is_read_and_written_from_the_list_of_all) {
  for (const TCatalogRow& row : catalog_variables().rows) expect_reads_and_writes(ALL_VARIABLES_GROUP, row);
}

TEST_F(catalog_of_variables, writing_the_mode_changes_it) {
  const TCatalogRow* const row = catalog_row(catalog_variables(), std::string("calcMode"));
  write(row->group, *row, "5");
  EXPECT_EQ(state.calcMode, BASE_MODE);
}

}  // namespace

}  // namespace zephyl
