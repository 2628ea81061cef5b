// docs/quirks.md is run: each row of its tables that has an entry and a result is evaluated as it stands.

#include <fstream>
#include <string>
#include <vector>

#include "engine/calculator.h"
#include "support/calculator.h"

namespace zephyl {

namespace {

using TTexts = std::vector<std::string>;

// The parts of a table row, without its outer bars.
TTexts cells_of(const std::string& line) {
  TTexts cells;
  std::size_t start = 1;
  for (std::size_t bar = line.find('|', start); bar != std::string::npos; bar = line.find('|', start)) {
    cells.push_back(line.substr(start, bar - start));
    start = bar + 1;
  }
  return cells;
}

// The texts between backquotes.
TTexts codes_of(const std::string& cell) {
  TTexts codes;
  for (std::size_t open = cell.find('`'); open != std::string::npos;) {
    const std::size_t close = cell.find('`', open + 1);
    if (close == std::string::npos) break;
    codes.push_back(cell.substr(open + 1, close - open - 1));
    open = cell.find('`', close + 1);
  }
  return codes;
}

struct TExample {
  TTexts entries;  // one after the other
  std::string shown;
};

std::vector<TExample> documented_quirks() {
  std::vector<TExample> examples;
  std::ifstream in(SOURCE_FOLDER "/docs/quirks.md");
  for (std::string line; std::getline(in, line);) {
    if (line.compare(0, 3, "| `") != 0) continue;
    const TTexts cells = cells_of(line);
    const TTexts shown = codes_of(cells[1]);
    if (shown.size() == 1) examples.push_back({codes_of(cells[0]), shown[0]});
  }
  return examples;
}

}  // namespace

TEST_F(calculator, documented_quirks_are_as_they_are_told) {
  const std::vector<TExample> examples = documented_quirks();
  EXPECT_GT(examples.size(), 40u);
  for (const TExample& example : examples) {
    reset_engine();
    clear_calculator(false);
    std::string result;
    for (const std::string& entry : example.entries) result = eval(entry);
    EXPECT_EQ(result, example.shown) << example.entries.back();
  }
}

}  // namespace zephyl
