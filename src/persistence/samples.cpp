#include "persistence/samples.h"

#include "engine/text_resources.h"
#include "persistence/state_records.h"
#include "persistence/text_file.h"

namespace zephyl {

namespace {

const std::string HEADING = "N: ";

bool is_heading(const std::string& line) { return line.compare(0, HEADING.size(), HEADING) == 0; }

// Goes through the lines of the text until one is refused.
template <class TLine>
void for_each_line(TLine take) {
  const std::string_view text = text_resource("samples");
  TLineReader reader(text.data(), text.size());
  for (std::string line; !(line = reader.read_line()).empty();)
    if (!take(line)) return;
}

}  // namespace

std::vector<std::string> sample_names() {
  std::vector<std::string> names;
  for_each_line([&](const std::string& line) {
    if (is_heading(line)) names.push_back(line.substr(HEADING.size()));
    return true;
  });
  return names;
}

bool load_sample(const std::string& name) {
  bool found = false;
  for_each_line([&](const std::string& line) {
    if (is_heading(line)) {
      if (found) return false;
      found = line == HEADING + name;
    } else if (found) {
      read_state_line(line);
    }
    return true;
  });
  if (found) finish_reading_state();
  return found;
}

}  // namespace zephyl
