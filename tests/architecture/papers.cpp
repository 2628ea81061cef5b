#include "architecture/papers.h"

#include <fstream>
#include <sstream>

const std::filesystem::path ROOT = SOURCE_FOLDER;

namespace {

std::string without_blanks_at_the_ends(const std::string& text) {
  const std::size_t first = text.find_first_not_of(' ');
  return first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

}  // namespace

std::string text_of(const std::filesystem::path& path) {
  std::ostringstream text;
  text << std::ifstream(path).rdbuf();
  return text.str();
}

TTexts lines_of(const std::filesystem::path& path) {
  TTexts lines;
  std::ifstream file(path);
  for (std::string line; std::getline(file, line);) lines.push_back(line);
  return lines;
}

TTexts cells_of(const std::string& line) {
  TTexts cells;
  std::size_t start = 1;
  for (std::size_t bar = line.find('|', start); bar != std::string::npos; bar = line.find('|', start)) {
    cells.push_back(without_blanks_at_the_ends(line.substr(start, bar - start)));
    start = bar + 1;
  }
  return cells;
}

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
