// Pass 5 of the compiler: entries, operator nodes and position keys.
//
// A position key is a number of base 50 with a digit for each level of parentheses: how many groups were
// opened on that level so far. All that is nested in a group has keys from the group's own up to group_end.
// A 50th group of a level would run into the next digit; no expression that compiles is long enough for
// one.

#include "engine/compile_passes.h"

namespace zephyl {

namespace {

constexpr int LEVEL_COUNT = PARENTHESIS_LIMIT + 2;  // level 0, and one too deep

std::uint64_t weight(int level) { return group_end(0, level); }

// What an open group hands to the items in it.
struct TGroup {
  std::uint64_t key = 0;
  int frame = NO_FRAME;  // call site that a comma adds to
  int numeric_frame = NO_FRAME;
  TBracket bracket = BRACKET_NONE;
};

struct TKeyWalk {
  TCompileTable& table;
  int depth = 0;
  TGroup groups[LEVEL_COUNT] = {};
  int opened[LEVEL_COUNT] = {};  // groups opened on each level so far

  TGroup& group() { return groups[depth]; }
};

bool add_entry(TCompileTable& table, const TItem& item) {
  if (table.entry_count >= SEQUENCE_LIMIT) return fail(ERR_MEMORY_LIMIT);
  table.entries[table.entry_count++] = &item;
  return true;
}

TOperatorNode make_node(const TItem& item, int entry, const TGroup& group, int depth) {
  TOperatorNode node{};
  node.item = &item;
  node.entry = static_cast<std::int16_t>(entry);
  node.arg_kind = static_cast<std::uint8_t>(row_of(item).arg_kind);
  node.priority = static_cast<std::uint8_t>(row_of(item).priority);
  node.frame = NO_FRAME;
  node.group_level = static_cast<std::int16_t>(depth);
  node.numeric_frame = static_cast<std::int16_t>(group.numeric_frame);
  node.key = group.key;
  node.parent = NO_NODE;
  node.reg = NO_REGISTER;
  return node;
}

// A function has the key of the argument group that follows it: its priority puts it behind all of that
// group.
void enter_call(TKeyWalk& walk, TOperatorNode& node) {
  const int level = walk.depth + 1;
  node.frame = static_cast<std::int16_t>(walk.table.frame_count++);
  node.level = static_cast<std::int16_t>(walk.depth);
  node.group_level = static_cast<std::int16_t>(level);
  node.key += static_cast<std::uint64_t>(walk.opened[level] + 1) * weight(level);
}

// The first comma of a numeric operator ends its body: the other arguments belong to what encloses it.
bool place_comma(TKeyWalk& walk, TOperatorNode& node) {
  TGroup& group = walk.group();
  if (group.frame == NO_FRAME) return fail(ERR_SYNTAX);
  if (group.numeric_frame == group.frame) group.numeric_frame = walk.groups[walk.depth - 1].numeric_frame;
  node.frame = static_cast<std::int16_t>(group.frame);
  node.numeric_frame = static_cast<std::int16_t>(group.numeric_frame);
  return true;
}

bool place_operator(TKeyWalk& walk, const TItem& item) {
  TCompileTable& table = walk.table;
  if (table.node_count >= NODE_LIMIT) return fail(ERR_MEMORY_LIMIT);
  if (!add_entry(table, item)) return false;
  TOperatorNode& node = table.nodes[table.node_count++];
  node = make_node(item, table.entry_count - 1, walk.group(), walk.depth);
  if (item.op == OP_COMMA) return place_comma(walk, node);
  if (is_function_kind(node.arg_kind)) enter_call(walk, node);
  return true;
}

// call: the function whose arguments the group holds, null for plain parentheses, where a comma has no frame.
bool open_group(TKeyWalk& walk, TBracket bracket, const TOperatorNode* call) {
  const TGroup& outer = walk.group();
  if (++walk.depth > PARENTHESIS_LIMIT) return fail(ERR_PARENTHESIS_LEVEL);
  TGroup& group = walk.group();
  group.key = outer.key + static_cast<std::uint64_t>(++walk.opened[walk.depth]) * weight(walk.depth);
  group.bracket = bracket;
  group.frame = call ? call->frame : NO_FRAME;
  group.numeric_frame = call && call->arg_kind == KIND_NUMERIC ? call->frame : outer.numeric_frame;
  return true;
}

bool close_group(TKeyWalk& walk, TBracket bracket) {
  if (walk.depth == 0 || walk.group().bracket != bracket) return fail(ERR_PARENTHESIS_UNBALANCED);
  --walk.depth;
  return true;
}

const TOperatorNode* last_node(const TCompileTable& table) { return &table.nodes[table.node_count - 1]; }

// `previous`: the item in front, null at the start.
bool place_item(TKeyWalk& walk, const TItem& item, const TItem* previous) {
  switch (item.kind) {
    case ITEM_OPERATOR:
      return place_operator(walk, item);
    case ITEM_OPEN:
      return open_group(walk, item.paren,
                        previous && is_function(*previous) ? last_node(walk.table) : nullptr);
    case ITEM_CLOSE:
      return close_group(walk, item.paren);
    default:
      return add_entry(walk.table, item);
  }
}

}  // namespace

bool place_operators(const TItemSequence& sequence, TCompileTable& table) {
  table.entry_count = 0;
  table.node_count = 0;
  table.frame_count = 0;
  TKeyWalk walk{table};
  for (int i = 0; i < sequence.count; ++i)
    if (!place_item(walk, *sequence.items[i], i > 0 ? sequence.items[i - 1] : nullptr)) return false;
  return table.entry_count > 0 || fail(ERR_SYNTAX);
}

}  // namespace zephyl
