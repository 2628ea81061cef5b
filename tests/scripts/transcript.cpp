#include "scripts/transcript.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <utility>

#include "app/start_up.h"
#include "platform/script/script.h"
#include "support/program_listing.h"
#include "support/temporary_folder.h"

namespace zephyl {

namespace {

constexpr const char* BLANK = "<blank>";

bool is_program(const std::string& line) { return line.compare(0, 2, "+ ") == 0; }
bool is_command(const std::string& line) { return line.compare(0, 2, "> ") == 0; }
bool is_heading(const std::string& line) { return line.empty() || line[0] == '#'; }

// Hands out the commands of a transcript and files the answers under the command they belong to.
class TTranscriptChannel : public TScriptChannel {
 public:
  explicit TTranscriptChannel(TTranscript& transcript) : transcript_(transcript) {}

  bool read_line(std::string& line) override {
    if (next_ >= transcript_.exchanges.size()) return false;
    line = transcript_.exchanges[next_++].command;
    return true;
  }
  void write_line(const std::string& line) override {
    if (next_ > 0) transcript_.exchanges[next_ - 1].answered.push_back(line.empty() ? BLANK : line);
  }
  void flush() override {}

 private:
  TTranscript& transcript_;
  std::size_t next_ = 0;
};

constexpr const char* PROGRAM_EXTENSION = ".prgm";

std::string content_of(const TTranscriptProgram& program, const std::string& name) {
  if (name == program.name) return program_file_from_listing(name, program.lines);
  std::string content;
  for (const std::string& line : program.lines) content += line + "\r\n";
  return content;
}

// Into the folder "programs" of the current one.
void write_programs(const TTranscript& transcript) {
  if (!transcript.programs.empty()) std::filesystem::create_directory("programs");
  for (const TTranscriptProgram& program : transcript.programs) {
    const std::string name = program.name.substr(0, program.name.rfind(PROGRAM_EXTENSION));
    std::ofstream("programs/" + name + PROGRAM_EXTENSION) << content_of(program, name);
  }
}

// An expected line that names an answer instead of spelling it.
bool is_name(const std::string& line) {
  return line.size() > 2 && line.front() == '<' && line.back() == '>' && line != BLANK;
}

// The answers that names stand for, in the order of the transcript.
class TNamedAnswers {
 public:
  // True if `answer` may stand under `name`: it did before, or neither has been seen.
  bool agrees(const std::string& name, const std::string& answer) {
    for (const auto& [known_name, known_answer] : known_)
      if (known_name == name || known_answer == answer) return known_name == name && known_answer == answer;
    known_.emplace_back(name, answer);
    return true;
  }

 private:
  std::vector<std::pair<std::string, std::string>> known_;
};

// Puts the expected names in the place of the answers that agree with them.
void name_answers(TTranscript& transcript) {
  TNamedAnswers names;
  for (TExchange& exchange : transcript.exchanges)
    for (std::size_t i = 0; i < exchange.expected.size() && i < exchange.answered.size(); ++i)
      if (is_name(exchange.expected[i]) && names.agrees(exchange.expected[i], exchange.answered[i]))
        exchange.answered[i] = exchange.expected[i];
}

void print_lines(const char* label, const std::vector<std::string>& lines) {
  if (lines.empty()) std::printf("  %s nothing\n", label);
  for (const std::string& line : lines) std::printf("  %s %s\n", label, line.c_str());
}

void write_lines(std::ofstream& file, const std::vector<std::string>& lines) {
  for (const std::string& line : lines) file << line << '\n';
}

}  // namespace

bool read_transcript(const std::string& path, TTranscript& transcript) {
  transcript.path = path;
  std::ifstream file(path);
  if (!file) {
    std::fprintf(stderr, "%s: cannot be read\n", path.c_str());
    return false;
  }
  std::string line;
  bool in_program = false;
  for (int number = 1; std::getline(file, line); ++number) {
    in_program = is_program(line) || (in_program && !is_heading(line) && !is_command(line));
    if (is_heading(line) || in_program) {
      transcript.ending.push_back(line);
      if (is_program(line))
        transcript.programs.push_back({line.substr(2), {}});
      else if (in_program)
        transcript.programs.back().lines.push_back(line);
    } else if (is_command(line)) {
      transcript.exchanges.push_back({transcript.ending, number, line.substr(2), {}, {}});
      transcript.ending.clear();
    } else if (transcript.exchanges.empty() || !transcript.ending.empty()) {
      std::fprintf(stderr, "%s:%d: an answer without a command\n", path.c_str(), number);
      return false;
    } else {
      transcript.exchanges.back().expected.push_back(line);
    }
  }
  return true;
}

bool run_transcript(TTranscript& transcript) {
  TScriptPlatform platform;
  return run_transcript(transcript, platform);
}

bool run_transcript(TTranscript& transcript, TScriptPlatform& platform) {
  const TWorkingFolder folder;
  if (!folder.made()) return false;
  write_programs(transcript);
  set_platform(&platform);
  register_families();
  TTranscriptChannel channel(transcript);
  TScript(channel, platform).run();
  set_platform(nullptr);
  name_answers(transcript);
  return true;
}

int print_differences(const TTranscript& transcript) {
  int count = 0;
  for (const TExchange& exchange : transcript.exchanges) {
    if (exchange.expected == exchange.answered) continue;
    ++count;
    std::printf("%s:%d: > %s\n", transcript.path.c_str(), exchange.line, exchange.command.c_str());
    print_lines("expected", exchange.expected);
    print_lines("answered", exchange.answered);
  }
  return count;
}

bool write_transcript(const TTranscript& transcript) {
  std::ofstream file(transcript.path);
  for (const TExchange& exchange : transcript.exchanges) {
    write_lines(file, exchange.heading);
    file << "> " << exchange.command << '\n';
    write_lines(file, exchange.answered);
  }
  write_lines(file, transcript.ending);
  return static_cast<bool>(file.flush());
}

}  // namespace zephyl
