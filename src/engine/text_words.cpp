// The words are kept as a tree of characters: a match walks down from the first character and remembers the
// last place where a word ended. It is built once, at first use, from the tables that own the names.

#include "engine/text_words.h"

#include <cstdint>
#include <cstdio>
#include <cstring>

#include "engine/memory.h"
#include "engine/operation_table.h"
#include "engine/system_variables.h"
#include "engine/tokens.h"

namespace zephyl {

namespace {

constexpr int NODE_LIMIT = 5000;

struct TNode {
  char letter = 0;
  TToken token = 0;  // of the word that ends here; no word has token 0
  std::uint16_t child = 0;
  std::uint16_t sibling = 0;
};

struct TWords {
  TNode nodes[NODE_LIMIT];  // node 0 means none
  int count = 1;
  bool complete = true;
};
TWords words;

struct TTree {
  std::uint16_t first[256] = {};

  std::uint16_t& root(char letter) { return first[static_cast<unsigned char>(letter)]; }
};
TTree expression_tree;
TTree store_tree;

// The node of a letter in a chain of siblings, made at the chain's end if it isn't there; 0 when there is no
// room.
std::uint16_t node_of(std::uint16_t& chain, char letter) {
  std::uint16_t* link = &chain;
  while (*link) {
    if (words.nodes[*link].letter == letter) return *link;
    link = &words.nodes[*link].sibling;
  }
  if (words.count == NODE_LIMIT) {
    words.complete = false;
    return 0;
  }
  *link = static_cast<std::uint16_t>(words.count++);
  words.nodes[*link].letter = letter;
  return *link;
}

// Of two words with the same text the first one stays.
void add_word(TTree& tree, const char* text, TToken token) {
  if (text[0] == 0 || token == 0) return;
  std::uint16_t node = node_of(tree.root(text[0]), text[0]);
  for (const char* c = text + 1; *c && node; ++c) node = node_of(words.nodes[node].child, *c);
  if (node && words.nodes[node].token == 0) words.nodes[node].token = token;
}

TWordMatch longest_match(TTree& tree, const char* text) {
  TWordMatch found;
  std::uint16_t node = tree.root(text[0]);
  for (int length = 1; node; ++length) {
    if (words.nodes[node].token) found = {length, words.nodes[node].token};
    const char next = text[length];
    if (next == 0) break;
    node = words.nodes[node].child;
    while (node && words.nodes[node].letter != next) node = words.nodes[node].sibling;
  }
  return found;
}

struct TBuffer {
  char text[64];
};

TBuffer trimmed(const char* text) {
  while (*text == ' ') ++text;
  std::size_t length = std::strlen(text);
  while (length > 0 && text[length - 1] == ' ') --length;
  TBuffer buffer;
  std::snprintf(buffer.text, sizeof buffer.text, "%.*s", static_cast<int>(length), text);
  return buffer;
}

TBuffer print(const char* form, const char* name) {
  TBuffer buffer;
  std::snprintf(buffer.text, sizeof buffer.text, form, name);
  return buffer;
}

// Texts that several operations share, or that only the place tells apart, name one of them or none.
bool has_word(TOp_Code op) {
  switch (op) {
    case OP_NEG:
    case OP_MINUS:
    case OP_BASE_NEG:
    case OP_PLOT_FN_MIN:
    case OP_PLOT_FN_MAX:
    case OP_PLOT_FN_ROOT:
    case OP_PLOT_FN_DERIV:
    case OP_FUNC1:
    case OP_FUNC2:
      return false;
    default:
      return true;
  }
}

void add_operations() {
  for (int i = 0; i < OPERATION_COUNT; ++i) {
    const TOp_Code op = static_cast<TOp_Code>(i);
    if (has_word(op))
      add_word(expression_tree, trimmed(operation_array[i].display_text).text, operation_token(op));
  }
}

void add_single_words() {
  struct TRow {
    const char* text;
    TToken token;
  };
  constexpr TRow rows[] = {{"0", 38},
                           {"1", 33},
                           {"2", 34},
                           {"3", 35},
                           {"4", 28},
                           {"5", 29},
                           {"6", 30},
                           {"7", 23},
                           {"8", 24},
                           {"9", 25},
                           {".", TOKEN_POINT},
                           {"(", TOKEN_OPEN},
                           {")", TOKEN_CLOSE},
                           {"[", 103},
                           {"]", 104},
                           {"{", TOKEN_OPEN_BRACE},
                           {"}", TOKEN_CLOSE_BRACE},
                           {"Ans", TOKEN_ANS},
                           {"(Ans)", TOKEN_ANS},
                           {"(M_Ans)", TOKEN_M_ANS},
                           {"(L_Ans)", TOKEN_L_ANS},
                           {"(str_Ans)", TOKEN_STR_ANS},
                           {"pi", TOKEN_PI},
                           {"(pi)", TOKEN_PI},
                           {"(e)", TOKEN_E},
                           {"(i)", TOKEN_I},
                           {"(Rand)", TOKEN_RAND}};
  for (const TRow& row : rows) add_word(expression_tree, row.text, row.token);
}

bool has_token(int slot) {
  const TSlotClass which = slot_class(slot);
  if (which == CLASS_NONE || which == CLASS_FUNCTION) return false;
  return decode_token(recall_token(slot)).kind == TOKEN_SPECIAL;
}

void add_slots() {
  for (int slot = 0; slot < SLOT_COUNT; ++slot) {
    if (!has_token(slot)) continue;
    const TBuffer name = print("%s", slot_name(slot, true));
    const TBuffer enclosed = print("(%s)", name.text);
    const bool greek = slot_class(slot) == CLASS_GREEK;
    add_word(expression_tree, greek ? enclosed.text : name.text, recall_token(slot));
    add_word(store_tree, name.text, store_token(slot));
    if (greek) add_word(store_tree, enclosed.text, store_token(slot));
  }
}

void add_variables() {
  for (int number = 0; number < SYSTEM_VARIABLE_COUNT; ++number) {
    const char* name = variable_name(number);
    add_word(expression_tree, print("(%s)", name).text, static_cast<TToken>(FIRST_VARIABLE_READ + number));
    add_word(store_tree, name, static_cast<TToken>(FIRST_VARIABLE_WRITE + number));
  }
  for (int slot = 0; slot < FUNCTION_SLOT_COUNT; ++slot) {
    add_word(expression_tree, function_slot_name(slot), static_cast<TToken>(FIRST_FUNCTION_READ + slot));
    add_word(store_tree, function_slot_name(slot), static_cast<TToken>(FIRST_FUNCTION_WRITE + slot));
  }
}

// Listings show the bare text; in parentheses the view variables of the same names go first.
void add_statistics() {
  for (int index = 0; index < NO_STATISTIC; ++index) {
    const TBuffer name = trimmed(get_stats_string(index));
    const TToken token = statistics_token(index);
    char number[8];
    std::snprintf(number, sizeof number, "%d", index);
    add_word(expression_tree, name.text, token);
    add_word(expression_tree, print("(%s)", name.text).text, token);
    add_word(expression_tree, print("(stat %s)", name.text).text, token);
    add_word(expression_tree, print("(stat %s)", number).text, token);
  }
}

bool build_words() {
  add_operations();
  add_single_words();
  add_slots();
  add_variables();
  add_statistics();
  return words.complete;
}

}  // namespace

bool words_complete() {
  static const bool complete = build_words();
  return complete;
}

TWordMatch match_word(const char* text) {
  words_complete();
  return longest_match(expression_tree, text);
}

TWordMatch match_store_name(const char* text) {
  words_complete();
  return longest_match(store_tree, text);
}

}  // namespace zephyl
