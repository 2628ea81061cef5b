// docs/coverage.md names tests for what the manual tells: each name must be that of a test, and no section of
// a page may be left out.

#include <gtest/gtest.h>

#include <filesystem>
#include <regex>
#include <set>
#include <string>
#include <vector>

#include "architecture/papers.h"

namespace {

namespace fs = std::filesystem;

struct TCoverageRow {
  std::string section;
  std::string feature;
  TTexts tests;
};

struct TCoverageChapter {
  std::string page;  // of docs/manual
  std::vector<TCoverageRow> rows;
};

// "[Title](manual/page.md)" behind "## " begins a chapter.
bool begins_chapter(const std::string& line, std::string& page) {
  static const std::regex heading("## \\[.*\\]\\(manual/(.*)\\)");
  std::smatch match;
  if (!std::regex_match(line, match, heading)) return false;
  page = match[1];
  return true;
}

bool is_row(const std::string& line) {
  return line.compare(0, 2, "| ") == 0 && line != "| Section | Feature | Shown by |";
}

std::vector<TCoverageChapter> coverage() {
  std::vector<TCoverageChapter> chapters;
  for (const std::string& line : lines_of(ROOT / "docs/coverage.md")) {
    std::string page;
    if (begins_chapter(line, page)) {
      chapters.push_back({page, {}});
    } else if (!chapters.empty() && is_row(line)) {
      const TTexts cells = cells_of(line);
      chapters.back().rows.push_back({cells.at(0), cells.at(1), codes_of(cells.at(2))});
    }
  }
  return chapters;
}

// The sections of a page of the manual; the text in front of the first goes by the title of the page.
struct TManualSections {
  std::string title;
  std::set<std::string> sections;
};

TManualSections sections_of(const std::string& page) {
  TManualSections found;
  bool in_block = false;
  for (const std::string& line : lines_of(ROOT / "docs/manual" / page)) {
    if (line.compare(0, 3, "```") == 0) in_block = !in_block;
    if (in_block) continue;
    if (line.compare(0, 2, "# ") == 0) found.title = line.substr(2);
    if (line.compare(0, 3, "## ") == 0) found.sections.insert(line.substr(3));
  }
  return found;
}

// "suite.test" of every test there is, and "name.txt" of every transcript.
std::set<std::string> test_names() {
  static const std::regex test("TEST(?:_F|_P)?\\(\\s*(\\w+),\\s*(\\w+)\\s*\\)");
  std::set<std::string> names;
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(ROOT / "tests")) {
    const fs::path& path = entry.path();
    if (path.parent_path() == ROOT / "tests/scripts" && path.extension() == ".txt")
      names.insert(path.filename().string());
    if (path.extension() != ".cpp") continue;
    const std::string code = text_of(path);
    for (std::sregex_iterator at(code.begin(), code.end(), test), end; at != end; ++at)
      names.insert((*at)[1].str() + "." + (*at)[2].str());
  }
  return names;
}

}  // namespace

TEST(coverage, names_tests_that_are_there) {
  const std::set<std::string> names = test_names();
  for (const TCoverageChapter& chapter : coverage())
    for (const TCoverageRow& row : chapter.rows) {
      EXPECT_FALSE(row.tests.empty()) << chapter.page << ": " << row.feature << " is shown by nothing";
      for (const std::string& test : row.tests)
        EXPECT_TRUE(names.count(test)) << chapter.page << ": " << row.feature << " names " << test;
    }
}

TEST(coverage, has_every_page_of_the_manual) {
  std::set<std::string> covered;
  for (const TCoverageChapter& chapter : coverage()) covered.insert(chapter.page);
  for (const fs::directory_entry& page : fs::directory_iterator(ROOT / "docs/manual")) {
    const std::string name = page.path().filename().string();
    EXPECT_TRUE(name == "README.md" || covered.count(name)) << name;
  }
}

TEST(coverage, has_a_line_for_every_section_of_a_page) {
  for (const TCoverageChapter& chapter : coverage()) {
    const TManualSections page = sections_of(chapter.page);
    std::set<std::string> covered;
    for (const TCoverageRow& row : chapter.rows) {
      covered.insert(row.section);
      EXPECT_TRUE(row.section == page.title || page.sections.count(row.section))
          << chapter.page << " has no section " << row.section;
    }
    for (const std::string& section : page.sections)
      EXPECT_TRUE(covered.count(section)) << chapter.page << ": " << section << " has no line";
    EXPECT_FALSE(covered.empty()) << chapter.page;
  }
}
