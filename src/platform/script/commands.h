// The commands of a script, as tables of name and handler. A new command is a row of its group.
#pragma once

#include <string>

namespace zephyl {

class TScript;

struct TCommand {
  const char* name;
  // How the command reads, told to whoever writes it differently.
  const char* usage;
  // Obeys it; `text` is what stands behind the name, without blanks at its ends. False if that can't be read.
  bool (*obey)(TScript& script, const std::string& text);
  // The calculator need not have been started.
  bool before_start = false;
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
