// The texts of the catalogs, read from the built-in resources "catalog" and "variables".
#pragma once

#include <string>
#include <vector>

namespace zephyl {

constexpr int HEADING_TOKEN = -1;  // of a row that only heads those below it

struct TCatalogRow {
  int token = HEADING_TOKEN;
  int group = 0;
  std::string text;  // as listed: the name with its arguments
  std::string help;  // lines separated by '\n'
};

struct TCatalog {
  std::vector<std::string> groups;  // names
  std::vector<TCatalogRow> rows;    // in the order of their groups
};

// The 228 functions in 14 groups, and the 66 system variables in 8. Read at the first call.
const TCatalog& catalog_functions();
const TCatalog& catalog_variables();

// The rows of a group, in the order of the table.
std::vector<const TCatalogRow*> catalog_group(const TCatalog& catalog, int group);
// The first row with that text or that token; null if there is none.
const TCatalogRow* catalog_row(const TCatalog& catalog, const std::string& text);
const TCatalogRow* catalog_row(const TCatalog& catalog, int token);

// Sorts without regard to case.
void sort_rows(std::vector<const TCatalogRow*>& rows);

}  // namespace zephyl
