#include "engine/compiler.h"

#include "engine/compile_passes.h"

namespace zephyl {

namespace {

void clear_compiled(TCompiled& out) {
  out.count = 0;
  out.all_plain = false;
  out.real_program.count = 0;
  out.single = false;
  out.only = {};
  out.error = NO_COMPILE_ERROR;
  out.frame_count = 0;
  out.name_count = 0;
}

bool run_passes(TCompiled& out) {
  static TItemSequence items, others;
  static TCompileTable table;
  if (!insert_function_parentheses(item_list, items) || !wrap_string_literals(items, others)) return false;
  mark_list_commas(others);
  return insert_multiplications(others, items) && place_operators(items, table) && build_steps(table, out) &&
         number_numeric_steps(out);
}

void keep_error(TCompiled& out) {
  clear_compiled(out);
  out.error = errors.error_code;
}

}  // namespace

bool compile_items(TCompiled& out) {
  clear_compiled(out);
  if (errors.error_flag || !run_passes(out)) {
    keep_error(out);
    return true;
  }
  link_steps(out);
  commit_function_stores();
  return false;
}

bool compile_expression(const TExpression& expression, TCompiled& out) {
  clear_error();
  tokens_to_items(expression);
  return !compile_items(out);
}

}  // namespace zephyl
