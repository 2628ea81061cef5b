#include "platform/console/line_reader.h"

#include <readline/history.h>
#include <readline/readline.h>

#include <cstdio>
#include <cstdlib>

#include "platform/console/interrupts.h"

namespace zephyl {

namespace {

class TPlainLines : public TConsoleLines {
 public:
  bool read(std::string& line) override {
    line.clear();
    int c = std::getc(stdin);
    if (c == EOF) return false;
    for (; c != EOF && c != '\n'; c = std::getc(stdin)) line += static_cast<char>(c);
    return true;
  }
};

// Readline calls it when a signal came in.
int give_up_line() {
  if (!interrupted()) return 0;
  clear_interrupt();
  rl_replace_line("", 0);
  rl_crlf();
  rl_on_new_line();
  rl_redisplay();
  return 0;
}

class TTerminalLines : public TConsoleLines {
 public:
  TTerminalLines() {
    rl_readline_name = "zephyl";
    rl_signal_event_hook = give_up_line;
    // Several lines pasted are several expressions.
    rl_variable_bind("enable-bracketed-paste", "off");
    // A tab is no part of an expression, and file names are no use in one.
    rl_bind_key('\t', rl_insert);
  }

  bool read(std::string& line) override {
    char* typed = readline("> ");
    if (!typed) {
      std::printf("\n");
      return false;
    }
    line = typed;
    std::free(typed);
    remember(line);
    return true;
  }

 private:
  void remember(const std::string& line) {
    if (line.empty() || line == last_) return;
    ::add_history(line.c_str());
    last_ = line;
  }

  std::string last_;
};

}  // namespace

std::unique_ptr<TConsoleLines> terminal_lines() { return std::make_unique<TTerminalLines>(); }
std::unique_ptr<TConsoleLines> plain_lines() { return std::make_unique<TPlainLines>(); }

}  // namespace zephyl
