// The papers name files; each file that they name must be there.

#include "architecture/papers.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

bool ends_with(const std::string& text, const std::string& end) {
  return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

// The files of the repository as paths from its root, with a slash in front.
std::set<std::string> repository_files() {
  std::set<std::string> files;
  for (const char* folder : {"src", "tests", "docs", "resources", "packaging", "cmake", "bench", "fuzz"}) {
    if (!fs::exists(ROOT / folder)) continue;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(ROOT / folder))
      files.insert("/" + fs::relative(entry.path(), ROOT).generic_string());
  }
  return files;
}

std::vector<fs::path> papers() {
  std::vector<fs::path> found = {ROOT / "README.md", ROOT / "CHANGES.md"};
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(ROOT / "docs"))
    if (entry.path().extension() == ".md") found.push_back(entry.path());
  return found;
}

// Words of a paper that are the name of a file, as they stand: "items.cpp", "docs/tour.md".
std::vector<std::string> named_files(const std::string& text) {
  std::vector<std::string> names;
  std::string word;
  for (const char c : text + " ") {
    const bool belongs =
        std::isalnum(static_cast<unsigned char>(c)) || std::string("_-./").find(c) != std::string::npos;
    if (belongs) {
      word += c;
      continue;
    }
    while (!word.empty() && word.back() == '.') word.pop_back();
    for (const char* extension : {".cpp", ".h", ".md", ".cmake", ".sh", ".txt", ".png"})
      if (ends_with(word, extension) && word != extension) names.push_back(word);
    word.clear();
  }
  return names;
}

// Files that the calculator makes in its data folder.
const std::set<std::string> DATA_FILES = {"startup.txt", "programs/NAME.txt"};

bool exists(const std::string& name, const fs::path& paper, const std::set<std::string>& files) {
  if (DATA_FILES.count(name)) return true;
  if (fs::exists(ROOT / name) || fs::exists(paper.parent_path() / name)) return true;
  for (const std::string& file : files)
    if (ends_with(file, "/" + name)) return true;
  return false;
}

}  // namespace

TEST(papers, the_files_that_they_name_are_there) {
  const std::set<std::string> files = repository_files();
  for (const fs::path& paper : papers())
    for (const std::string& name : named_files(text_of(paper)))
      EXPECT_TRUE(exists(name, paper, files)) << paper.filename() << " names " << name;
}

TEST(papers, the_manual_lists_its_pages) {
  const std::string index = text_of(ROOT / "docs/manual/README.md");
  for (const fs::directory_entry& page : fs::directory_iterator(ROOT / "docs/manual")) {
    const std::string name = page.path().filename().string();
    if (name == "README.md") continue;
    EXPECT_NE(index.find("](" + name + ")"), std::string::npos)
        << name << " is missing in docs/manual/README.md";
  }
}

TEST(papers, names_of_files_are_found_in_a_text) {
  const std::vector<std::string> names =
      named_files("See `items.cpp`, (docs/tour.md). Not: e.g. 1.5 or .cpp files");
  EXPECT_EQ(names, (std::vector<std::string>{"items.cpp", "docs/tour.md"}));
}
