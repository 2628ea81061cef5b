#include "programs/program.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

#include "programs/program_cache.h"

namespace zephyl {

TProgram program;

namespace {

constexpr int PLACE_NAME_SIZE = 40;

struct TPlace {
  char name[PLACE_NAME_SIZE] = "";
  int cursor = 0;
  int top = 0;
};
TPlace place;

}  // namespace

int left_operand(const ProgramStatement& statement) { return statement.var0 - 1; }

int right_operand(const ProgramStatement& statement) { return statement.var1 - 2; }

void statement_expression(const ProgramStatement& statement, TExpression& out) {
  out.count = std::clamp(statement.key_count, 0, KEY_LIMIT);
  std::copy(statement.keys, statement.keys + out.count, out.tokens);
}

bool is_function_program() {
  return program.statement_count > 0 && program.statements[0].number == STATEMENT_FUNC;
}

void clear_program() {
  program.statement_count = 0;
  program.cursor = 0;
  program.top = 0;
  program.description[0] = 0;
}

void remember_place(const char* name, int cursor, int top) {
  std::snprintf(place.name, sizeof place.name, "%s", name);
  place.cursor = cursor;
  place.top = top;
}

void return_to_place() {
  if (place.name[0] == 0 || std::strncmp(place.name, program.name, PLACE_NAME_SIZE - 1) != 0) return;
  program.cursor = std::clamp(place.cursor, 0, program.statement_count);
  program.top = std::clamp(place.top, 0, program.cursor);
}

void program_edited() { forget_loaded_program(); }

void reset_program() {
  program = {};
  place = {};
}

}  // namespace zephyl
