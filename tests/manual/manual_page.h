// The examples of a page of the manual, as docs/manual/README.md describes them: blocks fenced with
// ```zephyl.
//
//   > 2+3*4                    an entry,
//   14                         and the result line that it leaves; nothing asks only that there be no error
//   > 1/0
//   error: Division by Zero    an entry that ends with this error
//   $ list 0                   a command of zephyl-script,
//   3: 1,0 2,0 3,0             and its answer
//   $ png face.png             a picture, which must be the one in docs/pictures
//   # a remark
//
// A block begins with a calculator that has just started, a block ```zephyl continued goes on with the one of
// the block before it. A block ```zephyl program NAME holds the statements of a program, as the program screen lists
// them, that every calculator of the page has in its folder. A word in angle brackets stands for an answer, as in a transcript.
#pragma once

#include <string>
#include <vector>

#include "scripts/transcript.h"

namespace zephyl {

struct TManualExample {
  int line = 0;  // of the entry or command in the page, from 1
  bool is_command = false;
  std::string text;                // without its "> " or "$ "
  std::vector<std::string> shown;  // as the page says
};

// The examples that one calculator is given, in their order.
using TManualSession = std::vector<TManualExample>;

struct TManualPage {
  std::string path;
  std::vector<TManualSession> sessions;
  std::vector<TTranscriptProgram> programs;
  // "PATH:LINE: what is wrong" for what can't be read.
  std::vector<std::string> faults;
};

TManualPage read_manual_page(const std::string& path);

// Gives the examples to a calculator that starts afresh in an empty folder of its own, and prints each one
// whose answer is another than the page says, beginning with "PATH:LINE:". Returns how many there are.
// keep_pictures: what is painted becomes the pictures in docs/pictures.
int count_failing_examples(const std::string& path, const TManualSession& session,
                           const std::vector<TTranscriptProgram>& programs = {}, bool keep_pictures = false);

}  // namespace zephyl
