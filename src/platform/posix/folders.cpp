#include "platform/posix/folders.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace zephyl {

namespace {

namespace fs = std::filesystem;

constexpr const char* OWN_NAME = "zephyl";
constexpr const char* HELP_FILE = "Zephyl_help.html";

bool is_folder(const fs::path& path) {
  std::error_code ignored;
  return fs::is_directory(path, ignored);
}

bool is_writable(const std::string& folder) { return access(folder.c_str(), W_OK | X_OK) == 0; }

std::string variable(const char* name) {
  const char* const value = std::getenv(name);
  return value ? value : "";
}

std::string home() {
  const std::string told = variable("HOME");
  if (!told.empty()) return told;
  const passwd* const user = getpwuid(getuid());
  return user && user->pw_dir ? user->pw_dir : "";
}

// A relative $XDG_DATA_HOME counts as none.
fs::path users_data() {
  const fs::path told = variable("XDG_DATA_HOME");
  if (told.is_absolute()) return told;
  const fs::path own = home();
  return own.empty() ? fs::path() : own / ".local" / "share";
}

std::string user_folder() {
  const fs::path data = users_data();
  if (data.empty()) return "";
  const fs::path folder = data / OWN_NAME;
  std::error_code ignored;
  fs::create_directories(folder, ignored);
  return folder.string();
}

}  // namespace

std::string executable_folder() {
  std::error_code error;
  const fs::path program = fs::read_symlink("/proc/self/exe", error);
  return error ? "" : program.parent_path().string();
}

std::string installed_folder(const std::string& executable_folder) {
  if (executable_folder.empty()) return "";
  const fs::path folder = fs::path(executable_folder).parent_path() / "share" / OWN_NAME;
  return is_folder(folder) ? folder.string() : "";
}

std::string data_folder_of(const std::string& executable_folder) {
  const bool keeps_its_own = installed_folder(executable_folder).empty();
  if (keeps_its_own && is_folder(executable_folder) && is_writable(executable_folder))
    return executable_folder;
  const std::string users = user_folder();
  return is_folder(users) && is_writable(users) ? users : ".";
}

std::string help_file_of(const std::string& executable_folder) {
  for (const std::string& folder : {installed_folder(executable_folder), executable_folder}) {
    const fs::path file = fs::path(folder) / HELP_FILE;
    std::error_code ignored;
    if (!folder.empty() && fs::is_regular_file(file, ignored)) return file.string();
  }
  return "";
}

}  // namespace zephyl
