// Commands that work a dialog.

#include "platform/script/commands.h"
#include "platform/script/script.h"

namespace zephyl {

namespace {

bool obey_dialog(TScript& script, const std::string&) {
  script.answer("none");
  return true;
}

bool without_dialog(TScript& script, const std::string&) {
  script.refuse("no dialog is open");
  return true;
}

constexpr TCommand COMMANDS[] = {
    {"dialog", "dialog", obey_dialog},           {"choose", "choose CONTROL ROW", without_dialog},
    {"set", "set CONTROL TEXT", without_dialog}, {"check", "check CONTROL on|off", without_dialog},
    {"press", "press CONTROL", without_dialog},  {"close", "close", without_dialog},
};

}  // namespace

TCommandGroup dialog_commands() { return {COMMANDS, static_cast<int>(std::size(COMMANDS))}; }

}  // namespace zephyl
