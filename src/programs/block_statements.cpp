// `if`, `else`, `while`, `loop`, `end`, `break`: blocks on a stack.

#include "engine/memory.h"
#include "programs/operands.h"
#include "programs/run_state.h"
#include "programs/statements.h"

namespace zephyl {

namespace {

bool opens_block(int number) {
  return number == STATEMENT_IF || number == STATEMENT_WHILE || number == STATEMENT_LOOP;
}

// Where the block of the statement at `index` ends, and goes on when its condition fails. False without a
// matching `end`.
bool find_targets(int index, TBlock& block) {
  int depth = 0;
  for (int i = index + 1; i < program.statement_count; ++i) {
    const int number = program.statements[i].number;
    if (opens_block(number)) ++depth;
    if (number == STATEMENT_ELSE && depth == 0 && block.else_target == NO_ELSE)
      block.else_target = static_cast<std::uint16_t>(i + 1);
    if (number != STATEMENT_END) continue;
    block.after_end = static_cast<std::uint16_t>(i + 1);
    if (depth-- == 0) return true;
  }
  return false;
}

// Opens a block whose body begins behind the current statement; null, with the error reported, if that can't
// be.
TBlock* push_block(TBlockKind kind) {
  if (run.block_top >= BLOCK_LIMIT) {
    fail_at_limit("Reached maximum number of program blocks");
    return nullptr;
  }
  TBlock block;
  block.kind = kind;
  block.start = static_cast<std::uint16_t>(next_statement());
  if (!find_targets(run.part.pc, block)) {
    fail_in_code("Missing end statement");
    return nullptr;
  }
  ++run.part.block_count;
  return &(run.blocks[run.block_top++] = block);
}

void pop_block() {
  --run.block_top;
  --run.part.block_count;
}

TBlock* top_block() { return run.part.block_count > 0 ? &run.blocks[run.block_top - 1] : nullptr; }

// The statement that opened a block.
const ProgramStatement& opener(const TBlock& block) { return program.statements[block.start - 1]; }

int leave_block(const TBlock& block) {
  const int target = block.after_end;
  pop_block();
  return target;
}

}  // namespace

int run_if(const ProgramStatement& statement) {
  const TBlock* const block = push_block(BLOCK_IF);
  if (!block) return END_OF_PROGRAM;
  if (condition_holds(statement)) return next_statement();
  return block->else_target != NO_ELSE ? block->else_target : leave_block(*block);
}

// Reached only behind the branch that was true.
int run_else(const ProgramStatement&) {
  const TBlock* const block = top_block();
  if (!block || block->kind != BLOCK_IF) return fail_in_code("No matching if statement");
  return leave_block(*block);
}

int run_while(const ProgramStatement& statement) {
  const TBlock* const block = push_block(BLOCK_WHILE);
  if (!block) return END_OF_PROGRAM;
  return condition_holds(statement) ? next_statement() : leave_block(*block);
}

int run_loop(const ProgramStatement& statement) {
  const int after = next_statement();
  if (after < program.statement_count && program.statements[after].number == STATEMENT_END) return after + 1;
  if (!is_scalar_slot(statement.var0)) return END_OF_PROGRAM;
  TBlock* const block = push_block(BLOCK_LOOP);
  if (!block) return END_OF_PROGRAM;
  block->limit = memory_array[statement.var0].re;
  if (!(block->limit >= 1.0)) return leave_block(*block);
  memory_array[statement.var0] = {1.0, 0.0};
  return after;
}

namespace {

int end_while(const TBlock& block) {
  return condition_holds(opener(block)) ? block.start : leave_block(block);
}

// The variable ends at the limit, whole or not.
int end_loop(const TBlock& block) {
  TValue& variable = memory_array[opener(block).var0];
  const double next = variable.re + 1.0;
  const bool goes_on = next <= block.limit;
  variable = {goes_on ? next : block.limit, 0.0};
  return goes_on ? block.start : leave_block(block);
}

}  // namespace

int run_end(const ProgramStatement&) {
  const TBlock* const block = top_block();
  if (!block) return fail_in_code("No start of block for end instruction");
  if (block->kind == BLOCK_WHILE) return end_while(*block);
  if (block->kind == BLOCK_LOOP) return end_loop(*block);
  pop_block();
  return next_statement();
}

int run_break(const ProgramStatement&) {
  const TBlock* block = top_block();
  for (; block && block->kind == BLOCK_IF; block = top_block()) pop_block();
  if (!block) return fail_in_code("No loop to break from");
  if (block->kind == BLOCK_LOOP) memory_array[opener(*block).var0] = {block->limit, 0.0};
  return leave_block(*block);
}

int jump_to_label(int label) {
  int target = 0;
  const auto is_wanted = [label](const ProgramStatement& statement) {
    return statement.number == STATEMENT_LABEL && statement.label == label;
  };
  while (target < program.statement_count && !is_wanted(program.statements[target])) ++target;
  if (target == program.statement_count) return fail_in_code("Label not found");
  // Only the innermost block: outer ones stay open, and programs in circulation count on it.
  const TBlock* const block = top_block();
  if (block && (target < block->start || target >= block->after_end)) pop_block();
  return target == run.part.pc ? target + 1 : target;
}

}  // namespace zephyl
