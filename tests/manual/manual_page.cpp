#include "manual/manual_page.h"

#include <cstdio>
#include <fstream>

#include "manual/manual_pictures.h"
#include "scripts/transcript.h"

namespace zephyl {

namespace {

const std::string FENCE = "```";
const std::string LANGUAGE = FENCE + "zephyl";
const std::string PROGRAM = LANGUAGE + " program ";
const std::string ERROR_MARK = "error: ";

bool begins_with(const std::string& text, const std::string& beginning) {
  return text.compare(0, beginning.size(), beginning) == 0;
}

class TPageReader {
 public:
  explicit TPageReader(const std::string& path) { page_.path = path; }

  void read_line(const std::string& line) {
    ++number_;
    if (begins_with(line, FENCE))
      read_fence(line);
    else if (in_program_)
      page_.programs.back().lines.push_back(line);
    else if (in_examples_)
      read_example_line(line);
  }

  TManualPage finish() {
    if (in_block_) fault("the block is not closed");
    return page_;
  }

 private:
  void fault(const std::string& what) {
    page_.faults.push_back(page_.path + ":" + std::to_string(number_) + ": " + what);
  }

  void read_fence(const std::string& line) {
    const bool opens = !in_block_;
    in_block_ = opens;
    in_program_ = opens && begins_with(line, PROGRAM);
    in_examples_ = opens && !in_program_ && begins_with(line, LANGUAGE);
    answer_open_ = false;
    if (in_program_) page_.programs.push_back({line.substr(PROGRAM.size()), {}});
    if (!in_examples_) return;
    if (line == LANGUAGE)
      page_.sessions.emplace_back();
    else if (line != LANGUAGE + " continued")
      fault("no such kind of block: " + line);
    else if (page_.sessions.empty())
      fault("no block to continue");
  }

  void read_example_line(const std::string& line) {
    if (begins_with(line, "> ") || begins_with(line, "$ ")) {
      if (page_.sessions.empty()) page_.sessions.emplace_back();
      page_.sessions.back().push_back({number_, line[0] == '$', line.substr(2), {}});
      answer_open_ = true;
    } else if (line.empty() || line[0] == '#') {
      answer_open_ = false;
    } else if (!answer_open_) {
      fault("an answer without an entry");
    } else {
      page_.sessions.back().back().shown.push_back(line);
    }
  }

  TManualPage page_;
  int number_ = 0;
  bool in_block_ = false;
  bool in_program_ = false;
  bool in_examples_ = false;
  bool answer_open_ = false;
};

bool expects_error(const TManualExample& example) {
  return !example.is_command && example.shown.size() == 1 && begins_with(example.shown[0], ERROR_MARK);
}

// What the question for the error must answer behind an entry, without the number of the error.
std::string expected_error(const TManualExample& example) {
  return expects_error(example) ? example.shown[0].substr(ERROR_MARK.size()) : "none";
}

std::string without_number(const std::string& answer) {
  const std::size_t blank = answer.find(' ');
  const bool numbered = blank != std::string::npos && answer.find_first_not_of("0123456789") == blank;
  return numbered ? answer.substr(blank + 1) : answer;
}

std::string command_of(const TManualExample& example, bool keep_pictures) {
  if (!example.is_command) return "eval " + example.text;
  return makes_picture(example.text) ? picture_command(example.text, keep_pictures) : example.text;
}

// An entry becomes two exchanges, its evaluation and the question for the error; a command is one.
TTranscript transcript_of(const TManualSession& session, bool keep_pictures) {
  TTranscript transcript;
  for (const TManualExample& example : session) {
    const std::string command = command_of(example, keep_pictures);
    transcript.exchanges.push_back({{}, example.line, command, example.shown, {}});
    if (!example.is_command) transcript.exchanges.push_back({{}, example.line, "error", {}, {}});
  }
  return transcript;
}

void print_lines(const char* label, const std::vector<std::string>& lines) {
  if (lines.empty()) std::printf("  %s nothing\n", label);
  for (const std::string& line : lines) std::printf("  %s %s\n", label, line.c_str());
}

bool refused(const std::vector<std::string>& answered) {
  return answered.empty() || begins_with(answered[0], "? ");
}

// `answered` and `error` come from the calculator; `error` is empty behind a command.
bool holds(const TManualExample& example, const std::vector<std::string>& answered,
           const std::string& error) {
  if (example.is_command) return answered == example.shown;
  if (refused(answered) || without_number(error) != expected_error(example)) return false;
  return example.shown.empty() || expects_error(example) || answered == example.shown;
}

}  // namespace

TManualPage read_manual_page(const std::string& path) {
  TPageReader reader(path);
  std::ifstream file(path);
  for (std::string line; std::getline(file, line);) reader.read_line(line);
  return reader.finish();
}

int count_failing_examples(const std::string& path, const TManualSession& session,
                           const std::vector<TTranscriptProgram>& programs, bool keep_pictures) {
  TTranscript transcript = transcript_of(session, keep_pictures);
  transcript.programs = programs;
  if (!run_transcript(transcript)) return static_cast<int>(session.size());
  int failing = 0;
  auto exchange = transcript.exchanges.cbegin();
  for (const TManualExample& example : session) {
    std::vector<std::string> answered = (exchange++)->answered;
    if (example.is_command && makes_picture(example.text) && answered.empty() && !keep_pictures) {
      const std::string fault = picture_fault(example.text);
      if (!fault.empty()) answered.push_back(fault);
    }
    std::string error;
    if (!example.is_command && !exchange->answered.empty()) error = exchange->answered[0];
    if (!example.is_command) ++exchange;
    if (holds(example, answered, error)) continue;
    ++failing;
    std::printf("%s:%d: %c %s\n", path.c_str(), example.line, example.is_command ? '$' : '>',
                example.text.c_str());
    print_lines("the page says", example.shown);
    print_lines("the calculator shows", answered);
  }
  return failing;
}

}  // namespace zephyl
