// A transcript: commands for the scripted driver and the answers they are expected to get, as a text file.
//
//   # A comment. Blank lines part the roads of a file.
//   > eval 2+2
//   4
//
//   + Circle
//   in r, "radius"
//   pi*r^(2)
//
// "> " begins a command; the lines behind it are its answer, up to the next command, comment or blank line.
// An answer line that is blank is written <blank>. Any other word in angle brackets, as <before>, stands for
// an answer that is not spelled out: the same word for the same answer, another word for another answer.
// "+ " and a name begin a program, which is in the folder "programs" from the start: the lines behind it are its
// statements as the program screen lists them (support/program_listing.h); behind a name that ends in ".prgm" they are
// the lines of the file itself.
#pragma once

#include <string>
#include <vector>

namespace zephyl {

class TScriptPlatform;

struct TExchange {
  std::vector<std::string> heading;  // comments and blank lines in front of it
  int line = 0;                      // of the command in the file, from 1
  std::string command;
  std::vector<std::string> expected;
  std::vector<std::string> answered;
};

struct TTranscriptProgram {
  std::string name;
  std::vector<std::string> lines;
};

struct TTranscript {
  std::string path;
  std::vector<TTranscriptProgram> programs;
  std::vector<TExchange> exchanges;
  std::vector<std::string> ending;  // comments and blank lines behind the last one
};

// False, with what is wrong on standard error, for a file that isn't there or has an answer without a
// command.
bool read_transcript(const std::string& path, TTranscript& transcript);

// Gives the commands to a calculator that starts afresh in an empty folder of its own, and keeps its answers.
bool run_transcript(TTranscript& transcript);
// The same with a platform that keeps an eye on what happens.
bool run_transcript(TTranscript& transcript, TScriptPlatform& platform);

// Prints each exchange whose answer is another than expected. Returns how many there are.
int print_differences(const TTranscript& transcript);

// Writes the file anew, with the answers that were given as those expected.
bool write_transcript(const TTranscript& transcript);

}  // namespace zephyl
