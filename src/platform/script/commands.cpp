#include "platform/script/commands.h"

namespace zephyl {

const TCommand* find_command(const std::string& name) {
  constexpr TCommandGroup (*groups[])() = {event_commands, entry_commands, question_commands, dialog_commands,
                                           picture_commands};
  for (const auto group : groups) {
    const TCommandGroup commands = group();
    for (int i = 0; i < commands.count; ++i)
      if (name == commands.commands[i].name) return &commands.commands[i];
  }
  return nullptr;
}

}  // namespace zephyl
