#include "programs/program_files.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <system_error>

#include "persistence/file_calls.h"
#include "persistence/text_file.h"
#include "programs/function_header.h"

namespace zephyl {

namespace {

constexpr const char* EXTENSION = "prgm";
constexpr const char* OUTPUT_EXTENSION = "txt";
constexpr char SEPARATOR = '/';
constexpr char SEPARATOR_IN_FILES = '|';

std::string file_name(std::string name) {
  std::replace(name.begin(), name.end(), SEPARATOR, SEPARATOR_IN_FILES);
  return name;
}

char folded(char c) { return static_cast<char>(std::tolower(static_cast<unsigned char>(c))); }

// Names that differ in case alone keep an order of their own.
bool comes_first(const std::string& a, const std::string& b) {
  const auto folds_less = [](char left, char right) { return folded(left) < folded(right); };
  if (std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(), folds_less)) return true;
  if (std::lexicographical_compare(b.begin(), b.end(), a.begin(), a.end(), folds_less)) return false;
  return a < b;
}

std::vector<std::string> names_where(bool functions) {
  std::vector<std::string> names;
  for (const std::string& name : program_names())
    if (is_custom_function(name.c_str()) == functions) names.push_back(name);
  return names;
}

}  // namespace

std::string program_path(const std::string& name) {
  return data_file_path(file_name(name), EXTENSION, false);
}

std::string output_path(const std::string& name) {
  return data_file_path(file_name(name), OUTPUT_EXTENSION, false);
}

std::string program_name_of(const std::string& file) {
  std::string name = file;
  std::replace(name.begin(), name.end(), SEPARATOR_IN_FILES, SEPARATOR);
  return name;
}

bool program_exists(const std::string& name) { return file_exists(program_path(name)); }

bool delete_program(const std::string& name) { return file_calls.remove(program_path(name).c_str()) == 0; }

std::vector<std::string> program_names() {
  namespace fs = std::filesystem;
  std::vector<std::string> names;
  std::error_code error;
  const fs::path folder = fs::path(program_path("")).parent_path();
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
    std::error_code ignored;
    if (entry->path().extension() != std::string(".") + EXTENSION || !entry->is_regular_file(ignored))
      continue;
    names.push_back(program_name_of(entry->path().stem().string()));
  }
  std::sort(names.begin(), names.end(), comes_first);
  return names;
}

std::vector<std::string> function_names() { return names_where(true); }

std::vector<std::string> runnable_names() { return names_where(false); }

}  // namespace zephyl
