// `<express>`, `f()`, `error`.

#include "engine/evaluator.h"
#include "engine/expression.h"
#include "engine/hooks.h"
#include "engine/state.h"
#include "programs/run_state.h"
#include "programs/statement_expressions.h"
#include "programs/statements.h"

namespace zephyl {

namespace {

int after_expression() { return errors.error_flag ? END_OF_PROGRAM : next_statement(); }

}  // namespace

int run_express(const ProgramStatement&) {
  run_statement_expression(run.part.pc);
  return after_expression();
}

int run_function_statement(const ProgramStatement& statement) {
  run_function_expression(run.part.pc, statement.func);
  return after_expression();
}

int run_error(const ProgramStatement& statement) {
  set_program_error_text(statement.text);
  report_error(ERR_PROGRAM_TEXT);
  return END_OF_PROGRAM;
}

}  // namespace zephyl
