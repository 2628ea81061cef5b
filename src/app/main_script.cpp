// zephyl-script: the calculator driven by commands on standard input.

#include "app/start_up.h"
#include "platform/platform.h"
#include "platform/script/script.h"
#include "platform/script/stdio_channel.h"

int main() {
  zephyl::TScriptPlatform platform;
  zephyl::set_platform(&platform);
  zephyl::register_families();
  zephyl::TStdioChannel channel;
  return zephyl::TScript(channel, platform).run();
}
