// zephyl-console: the calculator in a terminal, or in a pipe.

#include <unistd.h>

#include "app/command_line.h"
#include "app/start_up.h"
#include "platform/console/console.h"
#include "platform/platform.h"

namespace {

constexpr zephyl::TUsage USAGE = {"zephyl-console", "Computes the expressions that it reads, a line each.",
                                  ""};

}  // namespace

int main(int count, char** arguments) {
  if (const std::optional<int> code = zephyl::answered(USAGE, count, arguments)) return *code;
  const bool interactive = isatty(STDIN_FILENO) != 0;
  zephyl::TConsolePlatform platform(interactive);
  zephyl::set_platform(&platform);
  zephyl::register_families();
  const auto lines = interactive ? zephyl::terminal_lines() : zephyl::plain_lines();
  zephyl::TConsole(*lines, platform, interactive).run();
  return 0;
}
