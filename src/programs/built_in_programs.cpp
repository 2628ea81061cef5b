#include "programs/built_in_programs.h"

#include <cstring>
#include <string_view>

namespace zephyl {

namespace {

constexpr std::string_view NAME_HEAD = "N: ";
constexpr std::string_view CLOSING_NAME = "End Programs";
constexpr std::string_view LINE_END = "\r\n";

std::string_view whole_text() { return {built_in_text(), built_in_size()}; }

std::string_view line_at(std::size_t begin) {
  return whole_text().substr(begin, whole_text().find(LINE_END, begin) - begin);
}

bool is_name_line(std::string_view line) { return line.substr(0, NAME_HEAD.size()) == NAME_HEAD; }

std::size_t next_line(std::size_t begin) {
  const std::size_t end = whole_text().find(LINE_END, begin);
  return end == std::string_view::npos ? whole_text().size() : end + LINE_END.size();
}

// The beginning of the first "N:" line from `begin` on; the end of the text if there is none.
std::size_t find_name_line(std::size_t begin) {
  while (begin < whole_text().size() && !is_name_line(line_at(begin))) begin = next_line(begin);
  return begin;
}

std::string_view name_at(std::size_t name_line) { return line_at(name_line).substr(NAME_HEAD.size()); }

bool is_offered(std::string_view name) { return name != CLOSING_NAME; }

}  // namespace

const char* find_built_in(const char* name, std::size_t& size) {
  size = 0;
  for (std::size_t at = find_name_line(0); at < whole_text().size(); at = find_name_line(next_line(at))) {
    if (name_at(at) != name || !is_offered(name)) continue;
    const std::size_t begin = next_line(at);
    size = find_name_line(begin) - begin;
    return built_in_text() + begin;
  }
  return nullptr;
}

std::vector<std::string> built_in_names() {
  std::vector<std::string> names;
  for (std::size_t at = find_name_line(0); at < whole_text().size(); at = find_name_line(next_line(at)))
    if (is_offered(name_at(at))) names.emplace_back(name_at(at));
  return names;
}

}  // namespace zephyl
