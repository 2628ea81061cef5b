#include "platform/console/data_folder.h"

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <climits>

namespace zephyl {

namespace {

bool is_writable(const std::string& folder) { return access(folder.c_str(), W_OK | X_OK) == 0; }

std::string executable_folder() {
  char path[PATH_MAX];
  const ssize_t length = readlink("/proc/self/exe", path, sizeof path);
  if (length <= 0) return "";
  const std::string name(path, static_cast<std::size_t>(length));
  return name.substr(0, name.rfind('/'));
}

// "~/.local/share/zephyl", each part made where it is missing.
std::string user_folder() {
  const passwd* user = getpwuid(getuid());
  if (!user || !user->pw_dir) return "";
  std::string folder = user->pw_dir;
  for (const char* part : {"/.local", "/share", "/zephyl"}) {
    folder += part;
    mkdir(folder.c_str(), 0755);
  }
  return folder;
}

}  // namespace

std::string find_data_folder() {
  for (std::string (*candidate)() : {executable_folder, user_folder}) {
    const std::string folder = candidate();
    if (!folder.empty() && is_writable(folder)) return folder;
  }
  return ".";
}

}  // namespace zephyl
