#include "faceplate/catalog_examples.h"

#include <algorithm>

namespace zephyl {

namespace {

const std::string STEP_END = " then ";

struct TVerb {
  const char* word;
  TExampleOutcome outcome;
};
constexpr TVerb VERBS[] = {
    {" returns ", EXAMPLE_RETURNS}, {" ends in ", EXAMPLE_ENDS_IN}, {" draws ", EXAMPLE_DRAWS}};

std::vector<std::string> parts(const std::string& text, const std::string& separator) {
  std::vector<std::string> found;
  for (std::size_t from = 0; from <= text.size();) {
    const std::size_t end = std::min(text.find(separator, from), text.size());
    found.push_back(text.substr(from, end - from));
    from = end + separator.size();
  }
  return found;
}

bool read_example(const std::string& line, TCatalogExample& example) {
  for (const TVerb& verb : VERBS) {
    const std::string word = verb.word;
    const std::size_t at = line.find(word);
    if (at == std::string::npos) continue;
    example = {line, parts(line.substr(0, at), STEP_END), verb.outcome, line.substr(at + word.size())};
    return true;
  }
  return false;
}

}  // namespace

TCatalogExamples examples_in(const std::string& help) {
  TCatalogExamples read;
  bool below_word = false;
  for (const std::string& line : parts(help, "\n")) {
    TCatalogExample example;
    if (!below_word)
      below_word = line == "Example:";
    else if (read_example(line, example))
      read.examples.push_back(example);
    else
      read.faults.push_back(line);
  }
  return read;
}

}  // namespace zephyl
