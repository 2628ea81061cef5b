// zephyl-script: the calculator driven by commands on standard input.

#include "app/command_line.h"
#include "app/start_up.h"
#include "platform/platform.h"
#include "platform/script/script.h"
#include "platform/script/stdio_channel.h"

namespace {

constexpr zephyl::TUsage USAGE = {"zephyl-script", "Obeys commands on standard input, a line each.", ""};

}  // namespace

int main(int count, char** arguments) {
  if (const std::optional<int> code = zephyl::answered(USAGE, count, arguments)) return *code;
  zephyl::TScriptPlatform platform;
  zephyl::set_platform(&platform);
  zephyl::register_families();
  zephyl::TStdioChannel channel;
  return zephyl::TScript(channel, platform).run();
}
