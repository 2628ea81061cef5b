#include "support/file_faults.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <vector>

#include "persistence/file_calls.h"

namespace zephyl {

namespace {

constexpr int DIED = 77;

const TFileCalls real_calls = system_file_calls();
TFileFault fault = NO_FAULT;
int fault_call = 0;
int call_count = 0;
bool disk_full = false;  // since a write was halved

// The fault that befalls the call that comes now.
TFileFault next_fault() {
  const bool now = call_count++ == fault_call;
  if (now && fault == PROCESS_ENDS) ::_exit(DIED);
  return now ? fault : NO_FAULT;
}

template <class TResult>
TResult fail() {
  errno = ENOSPC;
  return static_cast<TResult>(-1);
}

int faulty_open(const char* path, int flags, mode_t mode) {
  return next_fault() == NO_FAULT ? real_calls.open(path, flags, mode) : fail<int>();
}

ssize_t faulty_write(int file, const void* bytes, std::size_t size) {
  if (disk_full) return fail<ssize_t>();
  const bool dies_now = fault == PROCESS_ENDS && call_count == fault_call;
  if (dies_now) (void)!real_calls.write(file, bytes, size / 2);
  switch (next_fault()) {
    case NO_FAULT:
      return real_calls.write(file, bytes, size);
    case CALL_HALVES:
      disk_full = true;
      return real_calls.write(file, bytes, size / 2);
    default:
      return fail<ssize_t>();
  }
}

int faulty_sync(int file) { return next_fault() == NO_FAULT ? real_calls.sync(file) : fail<int>(); }

int faulty_close(int file) {
  const bool fails = next_fault() != NO_FAULT;
  const int result = real_calls.close(file);
  return fails ? fail<int>() : result;
}

int faulty_rename(const char* from, const char* to) {
  return next_fault() == NO_FAULT ? real_calls.rename(from, to) : fail<int>();
}

int faulty_remove(const char* path) {
  return next_fault() == NO_FAULT ? real_calls.remove(path) : fail<int>();
}

}  // namespace

TFileFaults::TFileFaults(TFileFault kind, int call) {
  fault = kind;
  fault_call = call;
  call_count = 0;
  disk_full = false;
  file_calls.open = faulty_open;
  file_calls.write = faulty_write;
  file_calls.sync = faulty_sync;
  file_calls.close = faulty_close;
  file_calls.rename = faulty_rename;
  file_calls.remove = faulty_remove;
}

TFileFaults::~TFileFaults() { file_calls = real_calls; }

int TFileFaults::calls() { return call_count; }

bool dies_at_call(int n, const std::function<void()>& save) {
  const pid_t child = ::fork();
  if (child == 0) {
    const TFileFaults faults(PROCESS_ENDS, n);
    save();
    ::_exit(0);
  }
  int status = 0;
  EXPECT_EQ(::waitpid(child, &status, 0), child);
  EXPECT_TRUE(WIFEXITED(status)) << "the process was killed";
  return WEXITSTATUS(status) == DIED;
}

std::string file_content(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) return "(no file)";
  std::ostringstream content;
  content << in.rdbuf();
  return content.str();
}

void make_file(const std::string& path, const std::string& content) {
  std::ofstream(path, std::ios::binary) << content;
}

void TTestFolder::give_up_root() {
  constexpr uid_t NOBODY = 65534;
  if (::geteuid() != 0) return;
  namespace fs = std::filesystem;
  EXPECT_EQ(::chown(path().c_str(), NOBODY, NOBODY), 0);
  for (const auto& entry : fs::recursive_directory_iterator(path()))
    EXPECT_EQ(::chown(entry.path().c_str(), NOBODY, NOBODY), 0);
  EXPECT_EQ(::setgid(NOBODY), 0);
  EXPECT_EQ(::setuid(NOBODY), 0);
}

std::string TTestFolder::names() const {
  std::vector<std::string> found;
  for (const auto& entry : std::filesystem::directory_iterator(path()))
    found.push_back(entry.path().filename());
  std::sort(found.begin(), found.end());
  std::string text;
  for (const std::string& name : found) text += (text.empty() ? "" : " ") + name;
  return text;
}

}  // namespace zephyl
