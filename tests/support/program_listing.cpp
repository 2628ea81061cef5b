#include "support/program_listing.h"

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include "engine/memory.h"
#include "engine/text_form.h"
#include "programs/program.h"
#include "programs/program_writer.h"

namespace zephyl {

namespace {

[[noreturn]] void refuse(const std::string& line, const std::string& why) {
  std::fprintf(stderr, "program line '%s': %s\n", line.c_str(), why.c_str());
  std::exit(2);
}

bool begins_with(const std::string& text, const std::string& head) {
  return text.compare(0, head.size(), head) == 0;
}

std::string trimmed(const std::string& text) {
  const std::size_t first = text.find_first_not_of(' ');
  return first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

int slot_by_name(const std::string& name) {
  for (int slot = 0; slot < SLOT_COUNT; ++slot)
    if (name == slot_name(slot, true)) return slot;
  return NO_SLOT;
}

// Takes a statement apart from its left to its right.
class TStatementLine {
 public:
  explicit TStatementLine(const std::string& line) : line_(line), rest_(trimmed(line)) {
    std::size_t digits = 0;
    while (digits < rest_.size() && std::isdigit(static_cast<unsigned char>(rest_[digits]))) ++digits;
    if (digits > 0 && rest_.compare(digits, 2, ": ") == 0) rest_ = trimmed(rest_.substr(digits + 2));
  }

  const std::string& rest() const { return rest_; }

  // True, and past it, if the rest begins with the word.
  bool take(const std::string& word) {
    if (!begins_with(rest_, word)) return false;
    rest_ = trimmed(rest_.substr(word.size()));
    return true;
  }

  // The whole rest is that word.
  bool is(const std::string& word) const { return rest_ == word; }

  // Everything up to the separator, or the end.
  std::string take_to(const std::string& separator) {
    const std::size_t at = std::min(rest_.find(separator), rest_.size());
    const std::string part = trimmed(rest_.substr(0, at));
    rest_ = at == rest_.size() ? "" : trimmed(rest_.substr(at + separator.size()));
    return part;
  }

  int slot(const std::string& name) const {
    const int slot = slot_by_name(name);
    if (slot == NO_SLOT) refuse(line_, "no variable '" + name + "'");
    return slot;
  }

  std::string quoted() {
    if (rest_.size() < 2 || rest_.front() != '"' || rest_.back() != '"')
      refuse(line_, "a text in quotes is missing");
    const std::string text = rest_.substr(1, rest_.size() - 2);
    rest_.clear();
    return text;
  }

  const std::string& line() const { return line_; }

 private:
  std::string line_;
  std::string rest_;
};

void set_text(ProgramStatement& statement, const std::string& text) {
  std::snprintf(statement.text, sizeof statement.text, "%s", text.c_str());
}

std::int16_t short_of(int number) { return static_cast<std::int16_t>(number); }

int operand(const TStatementLine& reader, const std::string& name) {
  return name == "Ans" ? OPERAND_ANSWER : name == "0" ? OPERAND_ZERO : reader.slot(name);
}

// " name compare name )"
void read_condition(TStatementLine& reader, ProgramStatement& statement) {
  constexpr const char* words[] = {"=", "<>", "<", ">", ">=", "<="};
  const std::string left = reader.take_to(" ");
  const std::string compare = reader.take_to(" ");
  const std::string right = reader.take_to(")");
  const auto word = std::find(std::begin(words), std::end(words), compare);
  if (word == std::end(words)) refuse(reader.line(), "no comparison '" + compare + "'");
  statement.compare = short_of(static_cast<int>(word - std::begin(words)));
  statement.var0 = short_of(operand(reader, left) + 1);
  statement.var1 = short_of(operand(reader, right) + 2);
}

void read_label(TStatementLine& reader, ProgramStatement& statement, const std::string& name) {
  statement.label = short_of(reader.slot(name) - FIRST_LABEL_SLOT);
}

// f1() to f9()
bool read_function_name(const std::string& name, ProgramStatement& statement) {
  const bool read = name.size() == 4 && name[0] == 'f' && std::isdigit(static_cast<unsigned char>(name[1])) &&
                    name.compare(2, 2, "()") == 0;
  if (read) statement.func = short_of(name[1] - '1');
  return read;
}

void read_in(TStatementLine& reader, ProgramStatement& statement) {
  const std::string name = reader.take_to(",");
  if (read_function_name(name, statement))
    statement.number = STATEMENT_IN_FUNCTION;
  else
    statement.var0 = short_of(reader.slot(name));
  if (!reader.rest().empty()) set_text(statement, reader.quoted());
}

void read_out(TStatementLine& reader, ProgramStatement& statement) {
  std::string name = reader.take_to(",");
  const std::string pause = " (p)";
  if (name.size() > pause.size() && name.compare(name.size() - pause.size(), pause.size(), pause) == 0) {
    statement.pause = 1;
    name.resize(name.size() - pause.size());
  }
  statement.var0 = short_of(operand(reader, name) + 1);
  if (!reader.rest().empty()) set_text(statement, reader.quoted());
}

void read_arguments(TStatementLine& reader, ProgramStatement& statement) {
  std::string text;
  for (std::string names = reader.take_to(")"); !names.empty() && names != "no arguments";) {
    const std::size_t comma = std::min(names.find(','), names.size());
    text += static_cast<char>(reader.slot(trimmed(names.substr(0, comma))) + FUNC_SLOT_OFFSET);
    names = comma == names.size() ? "" : names.substr(comma + 1);
  }
  set_text(statement, text);
}

void read_menu(TStatementLine& reader, ProgramStatement& statement) {
  if (reader.rest()[0] == '"') {
    statement.number = STATEMENT_MENU_TITLE;
  } else {
    statement.number = STATEMENT_MENU_ITEM;
    read_label(reader, statement, reader.take_to(","));
  }
  set_text(statement, reader.quoted());
}

void read_expression(const TStatementLine& reader, ProgramStatement& statement) {
  TExpression expression;
  char error[200] = "";
  if (!text_to_tokens(reader.rest().c_str(), expression, error, sizeof error)) refuse(reader.line(), error);
  statement.key_count = expression.count;
  std::copy(expression.tokens, expression.tokens + expression.count, statement.keys);
}

// Statements that are a word alone.
bool read_plain(const TStatementLine& reader, ProgramStatement& statement) {
  const struct {
    const char* word;
    int number;
  } rows[] = {{"else", STATEMENT_ELSE},
              {"stop", STATEMENT_STOP},
              {"break", STATEMENT_BREAK},
              {"return call", STATEMENT_RETURN_CALL},
              {"return sub", STATEMENT_RETURN_SUB},
              {"Menu Display", STATEMENT_MENU_DISPLAY},
              {"Menu Clear", STATEMENT_MENU_CLEAR},
              {"end", STATEMENT_END},
              {"end if", STATEMENT_END},
              {"end while", STATEMENT_END}};
  for (const auto& row : rows)
    if (reader.is(row.word)) {
      statement.number = row.number;
      return true;
    }
  return false;
}

bool read_with_words(TStatementLine& reader, TProgram& to, ProgramStatement& statement) {
  const auto is = [&](const char* words, int number) {
    if (!reader.take(words)) return false;
    statement.number = number;
    return true;
  };
  if (is("end loop ", STATEMENT_END)) return true;
  if (is("if (", STATEMENT_IF) || is("while (", STATEMENT_WHILE))
    return read_condition(reader, statement), true;
  if (is("loop ", STATEMENT_LOOP)) return statement.var0 = short_of(reader.slot(reader.rest())), true;
  if (is("call ", STATEMENT_CALL)) return set_text(statement, reader.rest()), true;
  if (is("label ", STATEMENT_LABEL) || is("goto label ", STATEMENT_GOTO) ||
      is("gosub label ", STATEMENT_GOSUB))
    return read_label(reader, statement, reader.rest()), true;
  if (is("in ", STATEMENT_IN)) return read_in(reader, statement), true;
  if (is("out ", STATEMENT_OUT)) return read_out(reader, statement), true;
  if (is("fout ", STATEMENT_FOUT)) return read_out(reader, statement), true;
  if (is("func(", STATEMENT_FUNC)) return read_arguments(reader, statement), true;
  if (is("text ", STATEMENT_TEXT) || is("error ", STATEMENT_ERROR))
    return set_text(statement, reader.quoted()), true;
  if (is("Menu ", STATEMENT_MENU_ITEM)) return read_menu(reader, statement), true;
  if (is("Program Description ", STATEMENT_DESCRIPTION))
    return std::snprintf(to.description, sizeof to.description, "%s", reader.quoted().c_str()), true;
  return false;
}

void read_statement(const std::string& line, TProgram& to) {
  TStatementLine reader(line);
  ProgramStatement& statement = to.statements[to.statement_count++];
  statement = {};
  if (read_plain(reader, statement) || read_with_words(reader, to, statement)) return;
  statement.number = read_function_name(reader.rest(), statement) ? STATEMENT_FUNCTION : STATEMENT_EXPRESS;
  if (statement.number == STATEMENT_EXPRESS) read_expression(reader, statement);
}

}  // namespace

std::string program_file_from_listing(const std::string& name, const std::vector<std::string>& lines) {
  const auto to = std::make_unique<TProgram>();
  std::snprintf(to->name, sizeof to->name, "%s", name.c_str());
  for (const std::string& line : lines) {
    if (to->statement_count == STATEMENT_LIMIT) refuse(line, "too many statements");
    read_statement(line, *to);
  }
  return program_file_text(*to);
}

}  // namespace zephyl
