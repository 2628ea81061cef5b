#include "support/temporary_folder.h"

#include <cstdlib>
#include <string>
#include <system_error>

namespace zephyl {

namespace {

constexpr std::size_t OWN_LETTERS = 6;  // that mkdtemp puts in the place of as many capital X

}  // namespace

TTemporaryFolder::TTemporaryFolder() {
  std::string name = (std::filesystem::temp_directory_path() / "zephyl-").string() + std::string(OWN_LETTERS, 'X');
  if (::mkdtemp(name.data())) path_ = name;
}

TTemporaryFolder::~TTemporaryFolder() {
  if (path_.empty()) return;
  std::error_code ignored;
  std::filesystem::permissions(path_, std::filesystem::perms::owner_all, ignored);
  std::filesystem::remove_all(path_, ignored);
}

TWorkingFolder::TWorkingFolder() : before_(std::filesystem::current_path()) {
  if (made()) std::filesystem::current_path(folder_.path());
}

TWorkingFolder::~TWorkingFolder() {
  std::error_code ignored;
  std::filesystem::current_path(before_, ignored);
}

}  // namespace zephyl
