#include "persistence/file_calls.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>

namespace zephyl {

TFileCalls system_file_calls() {
  return {[](const char* path, int flags, mode_t mode) { return ::open(path, flags, mode); },
          ::read,
          ::write,
          ::fsync,
          ::ftruncate,
          ::close,
          ::rename,
          ::unlink,
          ::mkdir};
}

TFileCalls file_calls = system_file_calls();

}  // namespace zephyl
