#include "platform/script/script.h"

#include "platform/events.h"
#include "platform/script/arguments.h"
#include "platform/script/commands.h"

namespace zephyl {

int TScript::run() {
  std::string line;
  while (!quitting_ && channel_.read_line(line)) {
    obey(trimmed(line));
    if (started_) platform.paint_if_requested();
    channel_.flush();
  }
  start();
  on_stop();
  return status_;
}

void TScript::answer(const std::string& line) { channel_.write_line(line); }

void TScript::refuse(const std::string& reason) {
  answer("? " + reason);
  status_ = 1;
}

void TScript::start() {
  if (started_) return;
  started_ = true;
  on_start();
  platform.paint_if_requested();
}

void TScript::obey(const std::string& line) {
  if (line.empty() || line[0] == '#') return;
  const std::string name = line.substr(0, line.find_first_of(" \t"));
  const TCommand* command = find_command(name);
  if (!command) return refuse("unknown command " + name);
  if (!command->before_start) start();
  const std::string text = trimmed(line.substr(name.size()));
  // A command whose usage is its bare name takes nothing behind it.
  const bool readable = text.empty() || name != command->usage;
  if (!readable || !command->obey(*this, text)) refuse(std::string("it reads: ") + command->usage);
}

}  // namespace zephyl
