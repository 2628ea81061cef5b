#include "platform/script/script.h"

#include "platform/dialog.h"
#include "platform/events.h"
#include "platform/script/arguments.h"
#include "platform/script/commands.h"

namespace zephyl {

TScript::TScript(TScriptChannel& channel, TScriptPlatform& platform) : platform(platform), channel_(channel) {
  platform.work_dialog = [this](const TDialog& dialog) { work_dialog(dialog); };
}

int TScript::run() {
  while (obey_next()) {
  }
  start();
  on_stop();
  return status_;
}

bool TScript::obey_next() {
  std::string line;
  if (quitting_ || !channel_.read_line(line)) {
    quitting_ = true;
    return false;
  }
  obey(trimmed(line));
  if (started_) platform.paint_if_requested();
  channel_.flush();
  return true;
}

void TScript::work_dialog(const TDialog& dialog) {
  if (command_ && command_->dialog_answer && !broken_off_) answer(command_->dialog_answer);
  platform.paint_if_requested();
  channel_.flush();
  while (!dialog.closed() && obey_next()) {
  }
  broken_off_ = true;
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
  if (platform.front_dialog() && command->when & NOT_IN_DIALOG) return refuse("a dialog is open");
  if (!(command->when & BEFORE_START)) start();
  obey(*command, trimmed(line.substr(name.size())));
}

void TScript::obey(const TCommand& command, const std::string& text) {
  command_ = &command;
  broken_off_ = false;
  // A command whose usage is its bare name takes nothing behind it.
  const bool readable = text.empty() || command.name != std::string(command.usage);
  if (!readable || !command.obey(*this, text)) refuse(std::string("it reads: ") + command.usage);
}

}  // namespace zephyl
