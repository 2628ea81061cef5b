#include "programs/open_file.h"

#include <filesystem>
#include <system_error>

#include "engine/errors.h"
#include "engine/state.h"
#include "persistence/state_file.h"
#include "persistence/text_file.h"
#include "platform/platform.h"
#include "programs/program.h"
#include "programs/program_cache.h"
#include "programs/program_files.h"
#include "programs/program_reader.h"
#include "programs/programs.h"

namespace zephyl {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t NAME_LIMIT = STATEMENT_TEXT_SIZE - 1;  // what a `call` can hold

std::string quoted(const std::string& name) { return '"' + name + '"'; }

void complain(const std::string& text) { platform().show_message(text.c_str(), "Error"); }
void note(const std::string& text) { platform().show_message(text.c_str(), "Note"); }

std::string extension_of(const fs::path& path) {
  std::string extension = path.extension().string();
  for (char& c : extension)
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  return extension;
}

// A capital letter, a colon and a blank: how each record begins.
bool begins_as_state(const std::string& line) {
  return line.size() > 2 && line[0] >= 'A' && line[0] <= 'Z' && line[1] == ':' && line[2] == ' ';
}

void open_state(const fs::path& path) {
  TLineReader lines(path.string());
  if (!begins_as_state(lines.read_line()))
    return complain(quoted(path.filename().string()) + " is no state file.");
  load_state(path.c_str());
}

// Reads it as a run would, and leaves the program in memory alone. A message of its own tells of a later
// release.
bool reads_as_program(const std::string& path) {
  const TProgram before = program;
  TLineReader lines(path);
  clear_program();
  std::string line = lines.read_line();
  bool good = !line.empty();
  for (; good && !line.empty(); line = lines.read_line()) good = read_program_line(line.c_str(), {});
  const bool told = errors.error_flag;
  clear_error();
  program = before;
  if (!good && !told) complain(quoted(fs::path(path).filename().string()) + " is no program.");
  return good;
}

std::string bytes_of(const std::string& path) {
  TLineReader file(path);
  std::string bytes;
  for (int byte; (byte = file.read_byte()) >= 0;) bytes += static_cast<char>(byte);
  return bytes;
}

bool can_be_name(const std::string& name) {
  if (name.empty() || name[0] == ' ' || name.size() > NAME_LIMIT) return false;
  for (const char c : name)
    if (c < ' ' || c > '~') return false;
  return true;
}

// Caches hold what the file said before, and so may the program in memory.
void forget_old_text(const std::string& name) {
  forget_programs();
  if (program.built_in || name != program.name) return;
  load_program(name.c_str(), false);
  if (state.calcMode == PROGRAM_EDIT_MODE) platform().invalidate(false);
}

void add_program(const fs::path& path) {
  const std::string name = program_name_of(path.stem().string());
  if (!can_be_name(name))
    return complain(quoted(name) + " can't be the name of a program: give the file one of up to " +
                    std::to_string(NAME_LIMIT) + " letters, digits and signs.");
  if (!reads_as_program(path.string())) return;
  const std::string target = program_path(name), text = bytes_of(path.string());
  if (program_exists(name)) {
    if (bytes_of(target) == text) return note("The program " + quoted(name) + " is there already.");
    const std::string question = "There is a program " + quoted(name) + " already. Replace it?";
    if (!platform().ask_question(question.c_str(), "Replace Program?")) return;
  }
  if (!write_file(target, text)) return complain("The program " + quoted(name) + " can't be written.");
  forget_old_text(name);
  note("The program " + quoted(name) + " is now among the programs.");
}

}  // namespace

void open_file(const std::string& path) {
  if (errors.error_flag || state.program_running || state.alpha_active) return;
  if (state.calcMode == PROGRAM_EDIT_MODE && !save_program()) return;
  const fs::path file(path);
  const std::string extension = extension_of(file);
  if (extension != ".state" && extension != ".prgm")
    return complain(quoted(file.filename().string()) + " is neither a state file nor a program.");
  if (!TLineReader(path).open()) return complain(quoted(file.filename().string()) + " can't be read.");
  if (extension == ".state")
    open_state(file);
  else
    add_program(file);
}

}  // namespace zephyl
