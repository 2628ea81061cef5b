#include "platform/script/stdio_channel.h"

#include <cstdio>

namespace zephyl {

bool TStdioChannel::read_line(std::string& line) {
  line.clear();
  int c = std::getc(stdin);
  if (c == EOF) return false;
  for (; c != EOF && c != '\n'; c = std::getc(stdin)) line += static_cast<char>(c);
  return true;
}

void TStdioChannel::write_line(const std::string& line) {
  std::fwrite(line.data(), 1, line.size(), stdout);
  std::putc('\n', stdout);
}

void TStdioChannel::flush() { std::fflush(stdout); }

}  // namespace zephyl
