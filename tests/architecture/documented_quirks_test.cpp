// docs/quirks.md is run: each row of its tables that has an entry and a result is evaluated as it stands.

#include <string>
#include <vector>

#include "architecture/papers.h"
#include "engine/calculator.h"
#include "support/calculator.h"

namespace zephyl {

namespace {

struct TExample {
  TTexts entries;  // one after the other
  std::string shown;
};

std::vector<TExample> documented_quirks() {
  std::vector<TExample> examples;
  for (const std::string& line : lines_of(ROOT / "docs/quirks.md")) {
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
