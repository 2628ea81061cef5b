#include "dialogs/dialog_ids.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>

namespace zephyl {

namespace {

std::string content_of(const std::filesystem::path& path) {
  std::ifstream file(path);
  return {std::istreambuf_iterator<char>(file), {}};
}

// The number that a word of a source file stands for; 0 if it doesn't say.
int number_of(const std::string& word, const std::string& source) {
  if (const int number = std::atoi(word.c_str())) return number;
  std::smatch found;
  const std::regex constant("constexpr int " + word + " = (\\d+);");
  return std::regex_search(source, found, constant) ? std::stoi(found[1]) : 0;
}

// "TDialog dialog(148, ...", "TDialog dialog{194, ...", "TDialog(RUN_DIALOG_ID, ...".
void read_source(const std::filesystem::path& path, TDialogIds& found) {
  static const std::regex made("\\bTDialog(?: \\w+)?[({]\\s*([^,;(){}]+),");
  const std::string source = content_of(path);
  for (std::sregex_iterator at(source.begin(), source.end(), made), end; at != end; ++at) {
    const int id = number_of((*at)[1], source);
    if (id > 0)
      found.ids.insert(id);
    else
      found.unreadable.push_back(path.filename().string() + ": " + at->str());
  }
}

}  // namespace

TDialogIds dialog_ids_of_source() {
  TDialogIds found;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(SOURCE_FOLDER "/src")) {
    const bool of_platform = entry.path().string().find("/src/platform/") != std::string::npos;
    if (entry.path().extension() == ".cpp" && !of_platform) read_source(entry.path(), found);
  }
  return found;
}

}  // namespace zephyl
