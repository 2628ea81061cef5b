// Lines as the data files have them, and files that are never half written.

#include "persistence/text_file.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <vector>

#include "persistence/bounded_text.h"
#include "persistence/file_calls.h"
#include "support/calculator.h"
#include "support/file_faults.h"

namespace zephyl {

namespace {

// All lines up to the end, with "|" behind each.
std::string all_lines(TLineReader& reader) {
  std::string text;
  while (!reader.at_end()) text += reader.read_line() + "|";
  return text;
}

std::string lines_of_text(const std::string& text) {
  TLineReader reader(text.data(), text.size());
  return all_lines(reader);
}

// The same bytes once from memory and once from a file: both must give the same.
std::string lines(const std::string& text) {
  const TTestFolder folder;
  make_file(folder.file("a.txt"), text);
  TLineReader reader(folder.file("a.txt"));
  const std::string from_file = all_lines(reader);
  EXPECT_EQ(from_file, lines_of_text(text));
  return from_file;
}

}  // namespace

TEST(line_reader, a_carriage_return_ends_a_line) { EXPECT_EQ(lines("one\r\ntwo\r\n"), "one|two||"); }

TEST(line_reader, line_feeds_count_for_nothing) {
  EXPECT_EQ(lines("o\nne\rtwo\n\n\r"), "one|two|");
  EXPECT_EQ(lines("one\ntwo\n"), "onetwo|");
}

TEST(line_reader, the_last_line_may_lack_its_end) { EXPECT_EQ(lines("one\r\ntwo"), "one|two|"); }

TEST(line_reader, an_empty_line_is_an_empty_text) { EXPECT_EQ(lines("one\r\n\r\ntwo\r"), "one||two|"); }

TEST(line_reader, nothing_has_no_lines) {
  EXPECT_EQ(lines(""), "");
  TLineReader reader("", 0);
  EXPECT_EQ(reader.read_line(), "");
  EXPECT_EQ(reader.read_byte(), -1);
}

TEST(line_reader, the_longest_line_has_1058_characters) {
  EXPECT_EQ(lines(std::string(1058, 'x') + "\rb\r"), std::string(1058, 'x') + "|b|");
  EXPECT_EQ(lines(std::string(1059, 'x') + "\rb\r"), "|b|");
  EXPECT_EQ(lines(std::string(1000000, 'x') + "\rb\r"), "|b|");
}

TEST(line_reader, line_feeds_are_not_counted_in_the_length) {
  EXPECT_EQ(lines(std::string(5000, '\n') + "a\r"), "a|");
}

TEST(line_reader, lines_cross_the_ends_of_its_buffer) {
  std::string text, expected;
  for (int i = 0; i < 3000; ++i) {
    text += std::to_string(i) + "\r\n";
    expected += std::to_string(i) + "|";
  }
  EXPECT_EQ(lines(text), expected + "|");
}

TEST(line_reader, gives_the_bytes_behind_a_line) {
  const std::string text("G: \r\nGI\0\r", 9);
  TLineReader reader(text.data(), text.size());
  EXPECT_EQ(reader.read_line(), "G: ");
  std::vector<int> bytes;
  for (int byte; (byte = reader.read_byte()) >= 0;) bytes.push_back(byte);
  EXPECT_EQ(bytes, (std::vector<int>{'\n', 'G', 'I', 0, '\r'}));
}

TEST(line_reader, a_file_that_is_not_there_has_no_lines) {
  TLineReader reader("/nowhere/at all.txt");
  EXPECT_FALSE(reader.open());
  EXPECT_TRUE(reader.at_end());
}

TEST(line_reader, a_folder_and_a_pipe_are_no_files) {
  const TTestFolder folder;
  ASSERT_EQ(::mkfifo(folder.file("pipe").c_str(), 0600), 0);
  EXPECT_FALSE(TLineReader(folder.file("pipe")).open());
  EXPECT_FALSE(TLineReader(folder.path()).open());
}

TEST(line_reader, a_file_that_can_not_be_read_on_ends_there) {
  const TTestFolder folder;
  make_file(folder.file("a"), "one\r\n");
  TLineReader reader(folder.file("a"));
  file_calls.read = [](int, void*, std::size_t) { return ssize_t{-1}; };
  EXPECT_EQ(reader.read_line(), "");
  EXPECT_TRUE(reader.at_end());
  file_calls = system_file_calls();
}

TEST(write_file, replaces_the_whole_file) {
  const TTestFolder folder;
  const std::string path = folder.file("a.state");
  EXPECT_TRUE(write_file(path, "a long first content"));
  EXPECT_TRUE(write_file(path, "short"));
  EXPECT_EQ(file_content(path), "short");
  EXPECT_EQ(folder.names(), "a.state");
}

TEST(write_file, works_in_the_current_folder) {
  const TTestFolder folder;
  ASSERT_EQ(::chdir(folder.path().c_str()), 0);
  EXPECT_TRUE(write_file("a.state", "x"));
  EXPECT_EQ(file_content(folder.file("a.state")), "x");
}

TEST(write_file, a_call_that_fails_leaves_the_old_file) {
  const TTestFolder folder;
  const std::string path = folder.file("a.state");
  make_file(path, "old");
  for (const TFileFault fault : {CALL_FAILS, CALL_HALVES}) {
    for (int call = 0; call < 5; ++call) {  // open, write, sync, close, rename
      const TFileFaults faults(fault, call);
      EXPECT_FALSE(write_file(path, "new content")) << "call " << call;
      EXPECT_EQ(file_content(path), "old");
      EXPECT_EQ(folder.names(), "a.state");
    }
  }
}

TEST(write_file, a_process_that_dies_leaves_the_old_file_or_the_new) {
  const TTestFolder folder;
  const std::string path = folder.file("a.state");
  make_file(path, "old");
  int call = 0;
  for (; dies_at_call(call, [&] { write_file(path, "new content"); }); ++call)
    EXPECT_EQ(file_content(path), "old") << "call " << call;
  EXPECT_EQ(call, 5);
  EXPECT_EQ(file_content(path), "new content");
}

TEST(write_file, takes_the_place_of_what_a_dead_process_left) {
  const TTestFolder folder;
  make_file(folder.file("zephyl-" + std::to_string(::getpid()) + ".tmp"), "half");
  EXPECT_TRUE(write_file(folder.file("a"), "x"));
  EXPECT_EQ(folder.names(), "a");
}

TEST(write_file, goes_on_after_a_signal_and_a_short_write) {
  const TTestFolder folder;
  file_calls.write = [](int file, const void* bytes, std::size_t) {
    static int calls = 0;
    if (++calls % 2) return ::write(file, bytes, 1);
    errno = EINTR;
    return ssize_t{-1};
  };
  EXPECT_TRUE(write_file(folder.file("a"), "some text"));
  file_calls = system_file_calls();
  EXPECT_EQ(file_content(folder.file("a")), "some text");
}

TEST(write_file, keeps_links_and_permissions) {
  const TTestFolder folder;
  make_file(folder.file("real"), "old");
  ASSERT_EQ(::chmod(folder.file("real").c_str(), 0600), 0);
  ASSERT_EQ(::symlink("real", folder.file("link").c_str()), 0);
  EXPECT_TRUE(write_file(folder.file("link"), "new"));
  struct stat status;
  ASSERT_EQ(::lstat(folder.file("link").c_str(), &status), 0);
  EXPECT_TRUE(S_ISLNK(status.st_mode));
  ASSERT_EQ(::stat(folder.file("real").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777, mode_t{0600});
  EXPECT_EQ(file_content(folder.file("real")), "new");
}

TEST(write_file, a_protected_file_and_a_read_only_folder_stay_as_they_are) {
  TTestFolder folder;
  make_file(folder.file("a"), "old");
  folder.give_up_root();
  ASSERT_EQ(::chmod(folder.file("a").c_str(), 0400), 0);
  EXPECT_FALSE(write_file(folder.file("a"), "new"));
  ASSERT_EQ(::chmod(folder.file("a").c_str(), 0600), 0);
  ASSERT_EQ(::chmod(folder.path().c_str(), 0500), 0);
  EXPECT_FALSE(write_file(folder.file("a"), "new"));
  EXPECT_FALSE(write_file(folder.file("b"), "new"));
  EXPECT_EQ(file_content(folder.file("a")), "old");
}

TEST(append_to_file, adds_at_the_end) {
  const TTestFolder folder;
  EXPECT_TRUE(append_to_file(folder.file("a"), "one"));
  EXPECT_TRUE(append_to_file(folder.file("a"), "two"));
  EXPECT_EQ(file_content(folder.file("a")), "onetwo");
}

TEST(append_to_file, a_full_disk_leaves_what_was_there) {
  const TTestFolder folder;
  make_file(folder.file("a"), "old");
  const TFileFaults faults(CALL_HALVES, 1);
  EXPECT_FALSE(append_to_file(folder.file("a"), "new content"));
  EXPECT_EQ(file_content(folder.file("a")), "old");
}

TEST_F(calculator, data_files_lie_beside_the_program_or_in_its_programs_folder) {
  const TTestFolder folder;
  platform_.folder = folder.path();
  EXPECT_EQ(data_file_path("startup", "txt", true), folder.file("startup.txt"));
  EXPECT_EQ(folder.names(), "");
  EXPECT_EQ(data_file_path("Sum of two", "prgm", false), folder.file("programs/Sum of two.prgm"));
  EXPECT_EQ(folder.names(), "programs");
}

TEST_F(calculator, an_unknown_kind_of_opening_is_reported) {
  EXPECT_EQ(open_data_file("a", 3), -1);
  EXPECT_EQ(message(), "f_open problem | open type not correct");
}

TEST_F(calculator, a_text_that_does_not_fit_is_refused) {
  char buffer[5] = "old";
  EXPECT_TRUE(bounded_copy(buffer, sizeof buffer, "1234"));
  EXPECT_STREQ(buffer, "1234");
  EXPECT_FALSE(bounded_copy(buffer, sizeof buffer, "12345"));
  EXPECT_STREQ(buffer, "");
  EXPECT_EQ(message(), "strcpy problem | Dest length is shorter than source length (5 <= 5)");
  EXPECT_TRUE(bounded_append(buffer, sizeof buffer, "12"));
  EXPECT_TRUE(bounded_append(buffer, sizeof buffer, "34"));
  EXPECT_STREQ(buffer, "1234");
  EXPECT_FALSE(bounded_append(buffer, sizeof buffer, "567"));
  EXPECT_STREQ(buffer, "");
  EXPECT_EQ(message(), "strcat problem | Dest length is shorter than source length (5 <= 7)");
}

}  // namespace zephyl
