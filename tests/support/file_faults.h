// System calls that fail when a test wants them to: counts the calls of the file layer that change something,
// and makes one of them fail, write too little or end the process.
#pragma once

#include <functional>
#include <string>

#include "support/temporary_folder.h"

namespace zephyl {

enum TFileFault {
  NO_FAULT,
  CALL_FAILS,   // with "no space left"
  CALL_HALVES,  // a write takes half of its bytes, and the next one fails
  PROCESS_ENDS  // before the call; a write has taken half of its bytes
};

// From its making to its end; one at a time.
class TFileFaults {
 public:
  // Fault at the call of this number, counted from 0.
  TFileFaults(TFileFault fault, int call);
  ~TFileFaults();

  // Calls so far.
  static int calls();
};

// Runs `save` in a process of its own that ends at its n-th file call; false if it came to its end before
// that.
bool dies_at_call(int n, const std::function<void()>& save);

// The whole file as bytes; "(no file)" if there is none.
std::string file_content(const std::string& path);
void make_file(const std::string& path, const std::string& content);

// A folder for one test, with what its files are.
class TTestFolder {
 public:
  const std::string& path() const { return path_; }
  std::string file(const std::string& name) const { return path_ + '/' + name; }
  // Names of what it holds, sorted, with blanks between.
  std::string names() const;
  // Nothing is protected from root: the rest of this process is nobody, who owns the folder.
  void give_up_root();

 private:
  TTemporaryFolder folder_;
  std::string path_ = folder_.path().string();
};

}  // namespace zephyl
