// Folders of a test's own.
#pragma once

#include <filesystem>

namespace zephyl {

// Empty at first, removed at the end with all that it holds, whatever rights a test has taken from it.
class TTemporaryFolder {
 public:
  TTemporaryFolder();
  ~TTemporaryFolder();
  TTemporaryFolder(const TTemporaryFolder&) = delete;
  TTemporaryFolder& operator=(const TTemporaryFolder&) = delete;

  // Empty if no folder could be made.
  const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path path_;
};

// One that is the current folder while it lives.
class TWorkingFolder {
 public:
  TWorkingFolder();
  ~TWorkingFolder();
  TWorkingFolder(const TWorkingFolder&) = delete;
  TWorkingFolder& operator=(const TWorkingFolder&) = delete;

  bool made() const { return !folder_.path().empty(); }
  const std::filesystem::path& path() const { return folder_.path(); }

 private:
  const TTemporaryFolder folder_;
  const std::filesystem::path before_;
};

}  // namespace zephyl
