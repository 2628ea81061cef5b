// The commands of a script, as tables of name and handler. A new command is a row of its group.
#pragma once

#include <string>

namespace zephyl {

class TScript;

// When a command may come; a sum. Without any: with the calculator started, whether a dialog is open or not.
enum TCommandTime {
  BEFORE_START = 1,  // the calculator need not have been started
  NOT_IN_DIALOG = 2  // not while a dialog keeps the calculator's window from being used
};

struct TCommand {
  const char* name;
  // How the command reads, told to whoever writes it differently.
  const char* usage;
  // Obeys it; `text` is what stands behind the name, without blanks at its ends. False if that can't be read.
  bool (*obey)(TScript& script, const std::string& text);
  int when = 0;
  // What is printed if a dialog opens while it is obeyed; null for nothing.
  const char* dialog_answer = nullptr;
};

struct TCommandGroup {
  const TCommand* commands;
  int count;
};

TCommandGroup event_commands();
TCommandGroup entry_commands();
TCommandGroup question_commands();
TCommandGroup dialog_commands();
TCommandGroup picture_commands();

// Null where there is none. Names are exact.
const TCommand* find_command(const std::string& name);

}  // namespace zephyl
