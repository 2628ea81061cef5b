#include "programs/program_writer.h"

#include "engine/errors.h"
#include "persistence/text_file.h"
#include "platform/platform.h"
#include "programs/program.h"
#include "programs/program_cache.h"
#include "programs/program_files.h"
#include "programs/programs.h"

namespace zephyl {

namespace {

void append_number(std::string& text, const char* head, int number) {
  if (number != 0) append_line(text, head + std::to_string(number));
}

void append_keys(std::string& text, const ProgramStatement& statement) {
  if (statement.key_count == 0) return;
  std::string line = "E: ";
  for (int i = 0; i < statement.key_count; ++i) line += std::to_string(statement.keys[i]) + ',';
  append_line(text, line);
}

void append_statement(std::string& text, const ProgramStatement& statement, const char* description) {
  append_line(text, "I: " + std::to_string(statement.number));
  if (statement.number == STATEMENT_DESCRIPTION) append_line(text, std::string("Z: ") + description);
  if (statement.text[0] != 0) append_line(text, std::string("T: ") + statement.text);
  append_keys(text, statement);
  append_number(text, "C: ", statement.compare);
  append_number(text, "0: ", statement.var0);
  append_number(text, "1: ", statement.var1);
  append_number(text, "L: ", statement.label);
  append_number(text, "F: ", statement.func);
  append_number(text, "P: ", statement.pause);
}

}  // namespace

std::string program_file_text(const TProgram& source) {
  std::string text;
  append_line(text, std::string("N: ") + source.name);
  append_line(text, std::string("V: ") + VERSION_TEXT);
  for (int i = 0; i < source.statement_count; ++i)
    append_statement(text, source.statements[i], source.description);
  return text;
}

bool save_program() {
  if (program.name[0] == 0 || program.built_in) return true;
  forget_programs();  // a kept text would be the one before the edit
  remember_place(program.name, program.cursor, program.top);
  if (write_file(program_path(program.name), program_file_text(program))) return true;
  platform().show_message(("The program can't be saved: " + std::string(program.name)).c_str(), "Program Error");
  return false;
}

}  // namespace zephyl
