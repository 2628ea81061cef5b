// Where a program looks for its own files and where it keeps the user's, installed or not.

#include "platform/posix/folders.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "support/temporary_folder.h"

namespace zephyl {
namespace {

namespace fs = std::filesystem;

// A program in "PREFIX/bin", of a user at home in "home".
class folders : public ::testing::Test {
 protected:
  folders() {
    fs::create_directories(bin());
    fs::create_directory(home());
    setenv("HOME", home().c_str(), 1);
    unsetenv("XDG_DATA_HOME");
  }

  fs::path bin() const { return own_.path() / "prefix" / "bin"; }
  fs::path share() const { return own_.path() / "prefix" / "share" / "zephyl"; }
  fs::path home() const { return own_.path() / "home"; }
  void install() { fs::create_directories(share()); }
  static void put_help(const fs::path& folder) { std::ofstream(folder / "Zephyl_help.html") << "help"; }
  std::string data_folder() const { return data_folder_of(bin().string()); }
  std::string help_file() const { return help_file_of(bin().string()); }

 private:
  TTemporaryFolder own_;
};

TEST_F(folders, the_running_program_knows_its_own) {
  EXPECT_EQ(executable_folder(), fs::read_symlink("/proc/self/exe").parent_path().string());
}

TEST_F(folders, a_program_that_was_not_installed_keeps_everything_beside_it) {
  EXPECT_EQ(installed_folder(bin().string()), "");
  EXPECT_EQ(data_folder(), bin().string());
}

// As root, who may write there.
TEST_F(folders, an_installed_program_writes_nothing_beside_it) {
  install();
  EXPECT_EQ(installed_folder(bin().string()), share().string());
  EXPECT_EQ(data_folder(), (home() / ".local/share/zephyl").string());
  EXPECT_TRUE(fs::is_directory(home() / ".local/share/zephyl"));
}

TEST_F(folders, the_users_data_folder_may_be_named) {
  install();
  setenv("XDG_DATA_HOME", (home() / "data").c_str(), 1);
  EXPECT_EQ(data_folder(), (home() / "data/zephyl").string());
  EXPECT_TRUE(fs::is_directory(home() / "data/zephyl"));
}

TEST_F(folders, a_relative_or_empty_name_of_it_counts_as_none) {
  install();
  for (const char* const name : {"data", ""}) {
    setenv("XDG_DATA_HOME", name, 1);
    EXPECT_EQ(data_folder(), (home() / ".local/share/zephyl").string());
  }
}

TEST_F(folders, a_users_data_folder_that_can_not_be_made_leaves_the_current_one) {
  install();
  setenv("XDG_DATA_HOME", "/dev/null/data", 1);
  EXPECT_EQ(data_folder(), ".");
}

TEST_F(folders, a_program_whose_folder_is_unknown_keeps_to_the_users) {
  EXPECT_EQ(data_folder_of(""), (home() / ".local/share/zephyl").string());
  EXPECT_EQ(help_file_of(""), "");
}

TEST_F(folders, the_installed_help_comes_before_the_one_beside_the_program) {
  EXPECT_EQ(help_file(), "");
  put_help(bin());
  EXPECT_EQ(help_file(), (bin() / "Zephyl_help.html").string());
  install();
  EXPECT_EQ(help_file(), (bin() / "Zephyl_help.html").string());
  put_help(share());
  EXPECT_EQ(help_file(), (share() / "Zephyl_help.html").string());
}

}  // namespace
}  // namespace zephyl
