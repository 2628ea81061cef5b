#include "faceplate/catalog/catalog_text.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <string_view>

#include "engine/text_resources.h"

namespace zephyl {

namespace {

constexpr std::string_view GROUP = "group ";
constexpr std::string_view ROW = "row ";

bool begins(std::string_view line, std::string_view with) { return line.substr(0, with.size()) == with; }

// "404 atan2(y, x)"
TCatalogRow read_row(std::string_view line, int group) {
  TCatalogRow row;
  row.token = std::atoi(std::string(line).c_str());
  row.group = group;
  row.text = line.substr(line.find(' ') + 1);
  return row;
}

void read_help(TCatalogRow& row, std::string_view line) {
  if (!row.help.empty()) row.help += '\n';
  row.help += line;
}

void read_line(TCatalog& catalog, std::string_view line) {
  if (line.empty() || line.front() == '#') return;
  if (begins(line, GROUP))
    catalog.groups.emplace_back(line.substr(GROUP.size()));
  else if (begins(line, ROW))
    catalog.rows.push_back(read_row(line.substr(ROW.size()), static_cast<int>(catalog.groups.size()) - 1));
  else if (!catalog.rows.empty())
    read_help(catalog.rows.back(), line);
}

TCatalog read_catalog(const char* name) {
  TCatalog catalog;
  std::string_view text = text_resource(name);
  while (!text.empty()) {
    const std::size_t end = std::min(text.find("\r\n"), text.size());
    read_line(catalog, text.substr(0, end));
    text.remove_prefix(std::min(end + 2, text.size()));
  }
  return catalog;
}

char lower(char c) { return static_cast<char>(std::tolower(static_cast<unsigned char>(c))); }

bool before(const TCatalogRow* a, const TCatalogRow* b) {
  return std::lexicographical_compare(a->text.begin(), a->text.end(), b->text.begin(), b->text.end(),
                                      [](char x, char y) { return lower(x) < lower(y); });
}

template <typename CONDITION>
const TCatalogRow* first_row(const TCatalog& catalog, CONDITION condition) {
  const auto found = std::find_if(catalog.rows.begin(), catalog.rows.end(), condition);
  return found == catalog.rows.end() ? nullptr : &*found;
}

}  // namespace

const TCatalog& catalog_functions() {
  static const TCatalog catalog = read_catalog("catalog");
  return catalog;
}

const TCatalog& catalog_variables() {
  static const TCatalog catalog = read_catalog("variables");
  return catalog;
}

std::vector<const TCatalogRow*> catalog_group(const TCatalog& catalog, int group) {
  std::vector<const TCatalogRow*> rows;
  for (const TCatalogRow& row : catalog.rows)
    if (row.group == group) rows.push_back(&row);
  return rows;
}

const TCatalogRow* catalog_row(const TCatalog& catalog, const std::string& text) {
  return first_row(catalog, [&](const TCatalogRow& row) { return row.text == text; });
}

const TCatalogRow* catalog_row(const TCatalog& catalog, int token) {
  return first_row(catalog, [=](const TCatalogRow& row) { return row.token == token; });
}

void sort_rows(std::vector<const TCatalogRow*>& rows) { std::stable_sort(rows.begin(), rows.end(), before); }

}  // namespace zephyl
