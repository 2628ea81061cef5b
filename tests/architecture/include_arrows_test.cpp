// The order of the folders, read off the #include lines of src/: a folder includes itself and what stands
// below it. A failure names the line that breaks the order.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

// From the bottom up. Equal numbers don't include each other.
const std::map<std::string, int> FLOORS = {
    {"platform", 0}, {"engine", 1},      {"numerics", 2}, {"collections", 3}, {"stats", 4}, {"plot", 4},
    {"tools", 4},    {"persistence", 5}, {"programs", 6}, {"faceplate", 7},   {"app", 8}};

struct TIncludeLine {
  std::string file;  // below src/
  int number = 0;
  std::string target;  // what stands between the quotes or angles
  bool quoted = false;
};

std::string folder_of(const std::string& path) { return path.substr(0, path.find('/')); }

// The driver that a file belongs to, as "desktop"; empty for files that belong to none.
std::string driver_of(const std::string& file) {
  const std::size_t first = file.find('/'), second = file.find('/', first + 1);
  const bool in_driver = folder_of(file) == "platform" && second != std::string::npos;
  return in_driver ? file.substr(first + 1, second - first - 1) : "";
}

bool is_main(const std::string& file) { return file.compare(0, 9, "app/main_") == 0; }

bool read_include(const std::string& line, TIncludeLine& include) {
  const std::size_t hash = line.find_first_not_of(" \t");
  if (hash == std::string::npos || line.compare(hash, 8, "#include") != 0) return false;
  const std::size_t open = line.find_first_of("\"<", hash + 8);
  if (open == std::string::npos) return false;
  include.quoted = line[open] == '"';
  const std::size_t close = line.find(include.quoted ? '"' : '>', open + 1);
  include.target = line.substr(open + 1, close - open - 1);
  return true;
}

void read_file(const fs::path& path, const std::string& file, std::vector<TIncludeLine>& includes) {
  std::ifstream in(path);
  std::string line;
  for (int number = 1; std::getline(in, line); ++number) {
    TIncludeLine include;
    if (!read_include(line, include)) continue;
    include.file = file;
    include.number = number;
    includes.push_back(include);
  }
}

std::vector<TIncludeLine> all_includes(const fs::path& root) {
  std::vector<TIncludeLine> includes;
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(root)) {
    const std::string extension = entry.path().extension().string();
    if (extension != ".h" && extension != ".cpp") continue;
    read_file(entry.path(), fs::relative(entry.path(), root).generic_string(), includes);
  }
  return includes;
}

// What drivers of the same system have in common.
constexpr const char* COMMON_DRIVER_FOLDER = "posix";

// A driver may ask anything but the programs that are built with it, and it knows no other driver.
bool allowed_in_driver(const std::string& driver, const std::string& target) {
  const std::string other = driver_of(target);
  return folder_of(target) != "app" && (other.empty() || other == driver || other == COMMON_DRIVER_FOLDER);
}

bool allowed(const TIncludeLine& include) {
  const std::string& file = include.file;
  const std::string& target = include.target;
  if (!include.quoted) return true;
  const auto from = FLOORS.find(folder_of(file)), to = FLOORS.find(folder_of(target));
  if (from == FLOORS.end() || to == FLOORS.end()) return false;
  if (!driver_of(file).empty()) return allowed_in_driver(driver_of(file), target);
  if (!driver_of(target).empty()) return is_main(file);
  return from->first == to->first || from->second > to->second;
}

// Qt's headers are the only ones that begin with a Q.
bool allowed_qt(const TIncludeLine& include) {
  const bool is_qt = include.target[0] == 'Q' || include.target.compare(0, 2, "qt") == 0;
  return !is_qt || driver_of(include.file) == "desktop" || include.file == "app/main_desktop.cpp";
}

std::string told(const TIncludeLine& include) {
  return "src/" + include.file + ":" + std::to_string(include.number) + " includes " + include.target;
}

std::string breaches(bool (*rule)(const TIncludeLine&)) {
  std::string text;
  for (const TIncludeLine& include : all_includes(fs::path(SOURCE_FOLDER) / "src"))
    if (!rule(include)) text += told(include) + "\n";
  return text;
}

TIncludeLine line_of(const std::string& file, const std::string& text) {
  TIncludeLine include;
  EXPECT_TRUE(read_include(text, include));
  include.file = file;
  return include;
}

}  // namespace

TEST(include_arrows, no_folder_includes_a_higher_one) { EXPECT_EQ(breaches(allowed), ""); }

TEST(include_arrows, only_the_desktop_driver_knows_the_window_library) {
  EXPECT_EQ(breaches(allowed_qt), "");
}

TEST(include_arrows, every_source_folder_has_its_floor) {
  for (const fs::directory_entry& entry : fs::directory_iterator(fs::path(SOURCE_FOLDER) / "src"))
    EXPECT_TRUE(FLOORS.count(entry.path().filename().string())) << entry.path();
}

TEST(include_arrows, the_include_lines_are_found) {
  const std::vector<TIncludeLine> includes = all_includes(fs::path(SOURCE_FOLDER) / "src");
  const auto is_known = [](const TIncludeLine& include) {
    return include.file == "platform/platform.h" && include.target == "platform/geometry.h";
  };
  EXPECT_EQ(std::count_if(includes.begin(), includes.end(), is_known), 1);
}

TEST(include_arrows, an_include_of_a_higher_folder_is_a_breach) {
  EXPECT_FALSE(allowed(line_of("engine/format.cpp", "#include \"faceplate/gif.h\"")));
  EXPECT_FALSE(allowed(line_of("stats/stats.cpp", "#include \"plot/plot.h\"")));
  EXPECT_TRUE(allowed(line_of("faceplate/gif.cpp", "#include \"engine/state.h\"")));
}

TEST(include_arrows, an_include_without_its_folder_is_a_breach) {
  EXPECT_FALSE(allowed(line_of("engine/format.cpp", "#include \"format.h\"")));
}

TEST(include_arrows, a_driver_includes_neither_programs_nor_another_driver) {
  EXPECT_TRUE(allowed(line_of("platform/script/script.cpp", "#include \"engine/state.h\"")));
  EXPECT_FALSE(allowed(line_of("platform/script/script.cpp", "#include \"app/start_up.h\"")));
  EXPECT_FALSE(allowed(line_of("platform/script/script.cpp", "#include \"platform/console/console.h\"")));
  EXPECT_TRUE(allowed(line_of("platform/console/console.cpp", "#include \"platform/posix/folders.h\"")));
  EXPECT_FALSE(allowed(line_of("platform/posix/folders.cpp", "#include \"platform/console/console.h\"")));
}

TEST(include_arrows, only_a_program_includes_a_driver) {
  EXPECT_TRUE(allowed(line_of("app/main_script.cpp", "#include \"platform/script/script.h\"")));
  EXPECT_FALSE(allowed(line_of("app/start_up.cpp", "#include \"platform/script/script.h\"")));
}

TEST(include_arrows, the_window_library_in_the_core_is_a_breach) {
  EXPECT_FALSE(allowed_qt(line_of("engine/format.cpp", "  #include <QString>")));
  EXPECT_TRUE(allowed_qt(line_of("platform/desktop/zoom.cpp", "#include <QScreen>")));
}
