// The examples in the help texts of the function catalog, as the head of resources/texts/catalog.txt
// describes them.
#pragma once

#include <string>
#include <vector>

namespace zephyl {

enum TExampleOutcome { EXAMPLE_RETURNS, EXAMPLE_ENDS_IN, EXAMPLE_DRAWS };

struct TCatalogExample {
  std::string line;                // as the help has it
  std::vector<std::string> steps;  // entries, evaluated one after the other
  TExampleOutcome outcome = EXAMPLE_RETURNS;
  std::string told;  // the result, the error, or in words what is drawn
};

// The lines below "Example:", each an example; faults are lines that are none.
struct TCatalogExamples {
  std::vector<TCatalogExample> examples;
  std::vector<std::string> faults;
};

TCatalogExamples examples_in(const std::string& help);

}  // namespace zephyl
