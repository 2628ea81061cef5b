#include "engine/errors.h"

#include <cstdio>
#include <cstring>

#include "engine/hooks.h"
#include "engine/state.h"

namespace zephyl {

TErrorState errors;

namespace {

const char* const messages[] = {"Overflow",
                                "Overflow",
                                "Division by Zero",
                                "Math Error",
                                "Domain Error",
                                "Invalid Syntax",
                                "No Stats Data",
                                "No Stats y Data",
                                "Memory Limit Error",
                                "Unexpected Error",
                                "Matrix Size Mismatch",
                                "Matrix Not Square",
                                "Matrix Size Error",
                                "Matrix is Singular",
                                "Matrix Size Not Defined",
                                "Data Type Error",
                                "Matrix Index Range",
                                "Function Argument Count",
                                "Function Argument Type",
                                "Matrix Not Positive Def.",
                                "Matrix Not Symmetric",
                                "List Size Not Defined",
                                "List Index Range",
                                "List Size Error",
                                "List Size Mismatch",
                                "Operation Canceled",
                                "String Size Error",
                                "Invalid String",
                                "Invalid Element Symbol",
                                "Can't Nest fnInt()",
                                "Parenthesis Level Exceeded",
                                "Parenthesis Unbalanced",
                                "No Root Found",
                                "No Intersection Found",
                                "toHMS not Last",
                                "Function Nest Limit",
                                "Undefined Function Var ",
                                "Can't Nest a Function Var",
                                "Program Code Error",
                                "Program Version Error",
                                "Program Not Found",
                                "",
                                "Program Stopped",
                                "Program Nesting Limit",
                                "Not 2 Variable Stats",
                                "Stats Size Error",
                                "Invalid Date",
                                "No TVM Sign Change",
                                "No IRR Sign Change",
                                "Iterations Exceeded"};
constexpr int MESSAGE_COUNT = sizeof(messages) / sizeof(messages[0]);
static_assert(MESSAGE_COUNT == ERR_ITERATIONS + 1);

char program_error_text[ERROR_TEXT_SIZE] = "";

const char* bare_name(const char* path) {
  const char* name = path;
  for (const char* c = path; *c; ++c)
    if (*c == '/' || *c == '\\') name = c + 1;
  return name;
}

void note_location(const char* file, int line) {
  if (state.calcMode == PLOT_MODE && errors.error_location[0] != 0) return;
  std::snprintf(errors.error_location, sizeof errors.error_location, "v%s, %s, %d", VERSION_TEXT,
                bare_name(file), line);
}

void note_program_line(const TRunningProgram& program) {
  errors.error_in_program = true;
  errors.error_line_shown = true;
  errors.error_line = program.statement - (program.paused ? 1 : 0);
  std::snprintf(errors.error_program, sizeof errors.error_program, "%s", program.name);
  std::snprintf(state.result_text, sizeof state.result_text, "%s (line %d)", errors.error_text,
                errors.error_line + 1);
}

}  // namespace

const char* error_message(int code) {
  if (code == ERR_PROGRAM_TEXT) return program_error_text;
  return code >= 0 && code < MESSAGE_COUNT ? messages[code] : messages[ERR_UNEXPECTED];
}

void set_program_error_text(const char* text) {
  std::snprintf(program_error_text, sizeof program_error_text, "%s", text);
}

void report_error(TError code, const char* file, int line) {
  if (errors.error_flag) return;
  state.result_shown = false;
  errors.error_code = code;
  note_location(file, line);
  std::snprintf(errors.error_text, sizeof errors.error_text, "%s", error_message(code));
  errors.error_flag = true;
  errors.error_in_program = false;
  TRunningProgram program{};
  const bool counts_lines = code == ERR_PROGRAM_STOPPED || program_works();
  if (counts_lines && hooks.running_program(program)) note_program_line(program);
}

void clear_error() {
  errors.error_flag = false;
  errors.error_line_shown = false;
}

void reset_errors() {
  errors = {};
  program_error_text[0] = 0;
}

}  // namespace zephyl
