// Passes 6 and 7 of the compiler: nodes become steps in the order of evaluation. An operand is found by
// looking at the neighbours of an operator: a neighbouring node that has been evaluated, whatever has taken
// its value since, or the neighbouring entry itself.

#include <algorithm>

#include "engine/compile_passes.h"

namespace zephyl {

namespace {

// Which result registers hold a value that is still wanted.
struct TRegisterSet {
  std::uint64_t words[2] = {0, 0};

  bool has(int reg) const { return (words[reg / 64] >> (reg % 64)) & 1; }
  void add(int reg) { words[reg / 64] |= std::uint64_t{1} << (reg % 64); }
  void remove(int reg) { words[reg / 64] &= ~(std::uint64_t{1} << (reg % 64)); }
  bool only_first() const { return words[0] <= 1 && words[1] == 0; }
};

struct TBuild {
  TCompileTable& table;
  TCompiled& out;
  TRegisterSet registers;
  int deferred_count = 0;
};

// The outcome of trying a node.
enum TTrial {
  TRIAL_DONE,
  TRIAL_WAITS,  // an operand has no value yet
  TRIAL_FAILED  // an error was reported
};

struct TFoundOperand {
  TOperand operand;
  int node = NO_NODE;  // the evaluated node it comes from
};

TOperand operand_of(const TItem& item) {
  TOperand operand;
  operand.kind = item.sub;
  switch (item.sub) {
    case OPERAND_LITERAL:
      operand.literal = {item.value, 0.0};
      break;
    case OPERAND_I:
      operand.literal = {0.0, 1.0};
      break;
    case OPERAND_STATISTIC:
      operand.reg = static_cast<std::uint16_t>(item.stat);
      break;
    default:
      operand.reg = static_cast<std::uint16_t>(item.memory);
      break;
  }
  return operand;
}

// The node that holds the value of `node` now; NO_NODE for one that isn't there.
int root_of(const TCompileTable& table, int node) {
  if (node < 0 || node >= table.node_count) return NO_NODE;
  while (table.nodes[node].parent != NO_NODE) node = table.nodes[node].parent;
  return node;
}

// side: -1 left, 1 right.
TTrial find_operand(const TCompileTable& table, int node, int side, TFoundOperand& found) {
  const int entry = table.nodes[node].entry + side;
  if (entry < 0 || entry >= table.entry_count) {
    report_error(ERR_SYNTAX);
    return TRIAL_FAILED;
  }
  const int root = root_of(table, node + side);
  if (root != NO_NODE && table.nodes[root].reg != NO_REGISTER) {
    found.node = root;
    found.operand.kind = OPERAND_REGISTER;
    found.operand.reg = static_cast<std::uint16_t>(table.nodes[root].reg);
    return TRIAL_DONE;
  }
  if (!is_operand(*table.entries[entry])) return TRIAL_WAITS;
  found.operand = operand_of(*table.entries[entry]);
  return TRIAL_DONE;
}

// Operands 0 and, of an infix operation, 1.
TTrial find_operands(const TCompileTable& table, int node, TFoundOperand (&found)[2]) {
  const int kind = table.nodes[node].arg_kind;
  const int first_side = kind == KIND_INFIX || kind == KIND_POSTFIX ? -1 : 1;
  const TTrial first = find_operand(table, node, first_side, found[0]);
  if (first == TRIAL_FAILED || kind != KIND_INFIX) return first;
  const TTrial second = find_operand(table, node, 1, found[1]);
  return second == TRIAL_DONE ? first : second;
}

bool take_register(TBuild& build, int& reg) {
  for (reg = 0; reg < REGISTER_LIMIT; ++reg) {
    if (build.registers.has(reg)) continue;
    build.registers.add(reg);
    return true;
  }
  return fail(ERR_MEMORY_LIMIT);
}

// The operands' registers are free again and their nodes have a parent.
void use_operands(TBuild& build, int node, const TFoundOperand (&found)[2]) {
  for (const TFoundOperand& operand : found) {
    if (operand.node == NO_NODE) continue;
    build.registers.remove(operand.operand.reg);
    build.table.nodes[operand.node].parent = static_cast<std::int16_t>(node);
  }
}

bool take_name(TCompiled& out, const TItem& item, TStep& step) {
  if (item.op != OP_FUNC1 && item.op != OP_FUNC2) return true;
  if (out.name_count >= PROGRAM_NAME_LIMIT) return fail(ERR_MEMORY_LIMIT);
  step.name = static_cast<std::uint8_t>(out.name_count++);
  std::copy(item.name, item.name + PROGRAM_NAME_SIZE, out.names[step.name]);
  return true;
}

void fill_step(const TOperatorNode& node, const TFoundOperand (&found)[2], TStep& step) {
  step = {};
  step.op = node.item->op;
  step.result = node.reg;
  step.numeric_frame = node.numeric_frame;
  step.frame = node.frame;
  step.level = node.level;
  step.target = static_cast<std::int16_t>(node.item->memory);
  step.unit_from = static_cast<std::uint16_t>(node.item->unit_from);
  step.unit_to = static_cast<std::uint16_t>(node.item->unit_to);
  step.unit_by_position = node.item->unit_by_position;
  step.group_level = static_cast<std::uint16_t>(node.group_level);
  step.key = node.key;
  step.operand[0] = found[0].operand;
  step.operand[1] = found[1].operand;
}

TTrial emit_step(TBuild& build, int index) {
  TOperatorNode& node = build.table.nodes[index];
  TFoundOperand found[2];
  const TTrial trial = find_operands(build.table, index, found);
  if (trial != TRIAL_DONE) return trial;
  use_operands(build, index, found);
  int reg = 0;
  if (!take_register(build, reg)) return TRIAL_FAILED;
  node.reg = static_cast<std::int16_t>(reg);
  TStep& step = build.out.steps[build.out.count];
  fill_step(node, found, step);
  if (!take_name(build.out, *node.item, step)) return TRIAL_FAILED;
  ++build.out.count;
  return TRIAL_DONE;
}

// Tries the deferred nodes again until that changes nothing.
bool retry_deferred(TBuild& build) {
  bool changed = build.deferred_count > 0;
  while (changed) {
    changed = false;
    for (int i = 0; i < build.table.node_count; ++i) {
      TOperatorNode& node = build.table.nodes[i];
      if (!node.deferred) continue;
      const TTrial trial = emit_step(build, i);
      if (trial == TRIAL_FAILED) return false;
      if (trial == TRIAL_WAITS) continue;
      node.deferred = false;
      --build.deferred_count;
      changed = true;
    }
  }
  return true;
}

bool try_node(TBuild& build, int index) {
  if (!retry_deferred(build)) return false;
  const TTrial trial = emit_step(build, index);
  if (trial == TRIAL_WAITS) {
    build.table.nodes[index].deferred = true;
    ++build.deferred_count;
  }
  return trial != TRIAL_FAILED;
}

// The order of evaluation: inner and later groups first, then by priority, then as the priority's level is
// scanned.
class TRunsBefore {
 public:
  explicit TRunsBefore(const TOperatorNode* nodes) : nodes_(nodes) {}

  bool operator()(int a, int b) const {
    const TOperatorNode& first = nodes_[a];
    const TOperatorNode& second = nodes_[b];
    if (first.key != second.key) return first.key > second.key;
    if (first.priority != second.priority) return first.priority < second.priority;
    return scans_right_to_left(first.priority) ? a > b : a < b;
  }

 private:
  const TOperatorNode* nodes_;
};

bool build_from_nodes(TBuild& build) {
  const TCompileTable& table = build.table;
  std::uint8_t order[NODE_LIMIT];
  for (int i = 0; i < table.node_count; ++i) order[i] = static_cast<std::uint8_t>(i);
  std::sort(order, order + table.node_count, TRunsBefore(table.nodes));
  for (int i = 0; i < table.node_count; ++i)
    if (!try_node(build, order[i])) return false;
  if (!retry_deferred(build)) return false;
  // What is still waiting has no operand; a register still in use holds a value that nothing wants.
  if (build.deferred_count > 0 || !build.registers.only_first()) return fail(ERR_SYNTAX);
  return true;
}

}  // namespace

bool build_steps(TCompileTable& table, TCompiled& out) {
  out.frame_count = table.frame_count;
  if (table.entry_count > 1) {
    TBuild build{table, out, {}};
    return build_from_nodes(build);
  }
  if (!is_operand(*table.entries[0])) return fail(ERR_SYNTAX);
  out.single = true;
  out.only = operand_of(*table.entries[0]);
  return true;
}

// --- Pass 7

namespace {

bool is_numeric(const TStep& step) { return operation_array[step.op].arg_kind == KIND_NUMERIC; }

bool in_group(const TStep& step, const TStep& call) {
  return step.key >= call.key && step.key < group_end(call.key, call.group_level);
}

// The first of the steps right in front of a numeric operator that belong to its group; the operator itself
// if none does.
int first_of_body(const TCompiled& compiled, int index) {
  int first = index;
  while (first > 0 && in_group(compiled.steps[first - 1], compiled.steps[index])) --first;
  return first;
}

// The numeric operators nested in an outermost one, from the last to the first.
bool number_nested(TCompiled& out, int outermost) {
  const TStep& call = out.steps[outermost];
  int number = 0;
  for (int i = outermost - 1; i >= 0; --i) {
    TStep& step = out.steps[i];
    if (!is_numeric(step) || step.nest != NO_NEST || !in_group(step, call)) continue;
    if (++number >= NUMERIC_NEST_LIMIT) return fail(ERR_FUNCTION_NEST);
    step.nest = static_cast<std::uint16_t>(number);
  }
  return true;
}

}  // namespace

bool number_numeric_steps(TCompiled& out) {
  for (int i = out.count - 1; i >= 0; --i) {
    TStep& step = out.steps[i];
    if (!is_numeric(step)) continue;
    step.body_start = static_cast<std::int16_t>(first_of_body(out, i));
    if (step.nest != NO_NEST) continue;
    step.nest = 0;
    if (!number_nested(out, i)) return false;
  }
  return true;
}

}  // namespace zephyl
