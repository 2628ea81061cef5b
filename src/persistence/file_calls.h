// The system calls that files are read and written with, in a table: a test that wants a full disk or a
// process that dies in the middle of a save puts calls of its own in. Each one gives what the call of the
// same name gives, -1 and `errno` on failure.
#pragma once

#include <sys/types.h>

#include <cstddef>

namespace zephyl {

struct TFileCalls {
  int (*open)(const char* path, int flags, mode_t mode);
  ssize_t (*read)(int file, void* bytes, std::size_t size);
  ssize_t (*write)(int file, const void* bytes, std::size_t size);
  int (*sync)(int file);
  int (*cut)(int file, off_t size);
  int (*close)(int file);
  int (*rename)(const char* from, const char* to);
  int (*remove)(const char* path);
  int (*make_folder)(const char* path, mode_t mode);
};
extern TFileCalls file_calls;

// The system's own.
TFileCalls system_file_calls();

}  // namespace zephyl
