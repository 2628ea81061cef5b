#include "platform/console/console.h"

#include <cstdio>

#include "engine/calculator.h"
#include "engine/errors.h"
#include "engine/expression.h"
#include "engine/state.h"
#include "engine/text_entry.h"
#include "platform/console/answer_text.h"
#include "platform/console/interrupts.h"
#include "platform/events.h"

namespace zephyl {

namespace {

constexpr int REASON_SIZE = 200;

constexpr const char* GREETING = "Zephyl: type an expression, help or quit.\n";

constexpr const char* HELP =
    "An expression, as the keys spell it:\n"
    "  2+sin(30)   1/3   2^-3   5!   sqRt 2   (-8)^(1/3)   (2+3(i))*(4-(i))\n"
    "  {1,2,3}^(2)   \"text\"   Max(2,3)   (pi)   (e)   1.5e-10\n"
    "A line that begins with an operator goes on with the last answer: *2\n"
    "Answers and memories:\n"
    "  Ans, (M_Ans), (L_Ans), (str_Ans)   the last number, matrix, list, string\n"
    "  5->A        stores; A to Z, a to z, R0 to R9, (alpha) to (Omega),\n"
    "              {A} to {J} lists, [A] to [J] matrices, str1 to str9 strings\n"
    "Settings are variables too; (angleMode) reads one, a store changes it:\n"
    "  ->angleMode      1 radians, 2 degrees, 3 grads\n"
    "  ->complexFormat  1 real, 2 rectangular, 3 polar\n"
    "  ->numberFormat   1 floating, 2 fixed, 3 scientific, 4 engineering\n"
    "  ->decimalDigits  0 to 10\n"
    "help shows this, Ctrl+C abandons a long evaluation, quit or Ctrl+D ends.\n";

std::string trimmed(const std::string& line) {
  constexpr const char* blanks = " \t\r\f\v";
  const std::size_t first = line.find_first_not_of(blanks);
  return first == std::string::npos ? "" : line.substr(first, line.find_last_not_of(blanks) - first + 1);
}

// The line is empty and ready, with the last answer at hand for an operator that begins the text.
void make_ready() {
  clear_error();
  state.fresh_flag = true;
}

}  // namespace

TConsole::TConsole(TConsoleLines& lines, TConsolePlatform& platform, bool interactive)
    : lines_(lines), platform_(platform), interactive_(interactive) {}

void TConsole::run() {
  on_start();
  if (interactive_) {
    std::fputs(GREETING, stdout);
    catch_interrupts();
  }
  std::string line;
  do {
    std::fflush(stdout);
  } while (lines_.read(line) && obey(trimmed(line)));
  on_stop();
}

bool TConsole::obey(const std::string& line) {
  if (line == "quit" || line == "exit") return false;
  if (line == "help")
    std::fputs(HELP, stdout);
  else if (!line.empty())
    evaluate(line);
  return true;
}

void TConsole::evaluate(const std::string& line) {
  char reason[REASON_SIZE] = "";
  make_ready();
  if (!insert_text(line.c_str(), reason, sizeof reason)) {
    std::printf("%s\n", reason);
    return;
  }
  catch_interrupts();
  evaluate_expression(false);
  if (!interactive_) release_interrupts();
  platform_.forget_interrupt();
  std::printf("%s\n", answer_text().c_str());
}

}  // namespace zephyl
