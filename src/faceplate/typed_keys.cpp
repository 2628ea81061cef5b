#include "faceplate/typed_keys.h"

#include "engine/state.h"
#include "platform/events.h"

namespace zephyl {

const char alpha_characters[] =
    "1234567890qwertyuiopasdfghjklzxcvbnm QWERTYUIOPASDFGHJKLZXCVBNM()[]{}<>*=:;,.'\"+-!#/\\_?$&~^%@|";
static_assert(sizeof alpha_characters == ALPHA_CHARACTER_COUNT + 1);

namespace {

constexpr int BACKSPACE = 8;
constexpr int ENTER = 13;
constexpr int ESCAPE = 27;

struct TTypedRow {
  int typed;
  int key;
};

// Characters of the three modes with digit keys.
constexpr TTypedRow calculator_characters[] = {
    {BACKSPACE, 20}, {ENTER, 42}, {'=', 42}, {ESCAPE, 27}, {'(', 3},  {')', 4},  {'*', 31},
    {'+', 36},       {'-', 37},   {'.', 39}, {'/', 32},    {'0', 38}, {'1', 33}, {'2', 34},
    {'3', 35},       {'4', 28},   {'5', 29}, {'6', 30},    {'7', 23}, {'8', 24}, {'9', 25}};
constexpr TTypedRow base_characters[] = {{'A', 11}, {'B', 12}, {'C', 13}, {'D', 14}, {'E', 15}, {'F', 16},
                                         {'a', 11}, {'b', 12}, {'c', 13}, {'d', 14}, {'e', 15}, {'f', 16}};
constexpr TTypedRow comp_characters[] = {{'!', 18}, {',', 19}, {'E', 40}, {'e', 40},
                                         {'^', 13}, {'{', 3},  {'}', 4}};
constexpr TTypedRow stats_characters[] = {{',', 19}, {'E', 40}, {'e', 40}};
constexpr TTypedRow plot_characters[] = {{'+', 3}, {'-', 4}, {'C', 23}, {'c', 23}, {'F', 2},
                                         {'f', 2}, {'P', 1}, {'p', 1},  {'x', 5},  {'y', 6}};
constexpr TTypedRow alpha_commands[] = {{' ', 38}, {BACKSPACE, 37}, {ESCAPE, 41}, {ENTER, 40}};

constexpr TTypedRow calculator_cursor_keys[] = {{ARROW_RIGHT, 22}, {ARROW_LEFT, 21}, {ARROW_DELETE, 20}};
constexpr TTypedRow plot_cursor_keys[] = {
    {ARROW_RIGHT, 9}, {ARROW_LEFT, 8}, {ARROW_UP, 10}, {ARROW_DOWN, 11}, {ARROW_HOME, 7}};
constexpr TTypedRow alpha_cursor_keys[] = {{ARROW_DELETE, 37}};

template <int COUNT>
int find(const TTypedRow (&rows)[COUNT], int typed) {
  for (const TTypedRow& row : rows)
    if (row.typed == typed) return row.key;
  return NO_KEY;
}

int position(int first, int count, int character) {
  for (int i = 0; i < count; ++i)
    if (alpha_characters[first + i] == character) return i;
  return NO_KEY;
}

int alpha_character_key(int character) {
  const int plain = position(0, ALPHA_PLAIN_COUNT, character);
  if (plain != NO_KEY) return plain;
  // The capitals stand in the order of the letters, behind ten digits.
  const int capital = position(ALPHA_CAPITALS, 26, character);
  if (capital != NO_KEY) return capital + 10 + ALPHA_SHIFTED;
  const int symbol = position(ALPHA_SYMBOLS, ALPHA_CHARACTER_COUNT - ALPHA_SYMBOLS, character);
  return symbol != NO_KEY ? symbol + ALPHA_SYMBOL : find(alpha_commands, character);
}

int own_character_key(int character) {
  switch (state.calcMode) {
    case BASE_MODE:
      return find(base_characters, character);
    case COMP_MODE:
      return find(comp_characters, character);
    default:
      return find(stats_characters, character);
  }
}

int calculator_character_key(int character) {
  const int shared = find(calculator_characters, character);
  const int key = shared != NO_KEY ? shared : own_character_key(character);
  const bool brace = key != NO_KEY && (character == '{' || character == '}');
  if (brace) state.blue_shift = true;
  return key;
}

bool has_calculator_keys() {
  return state.calcMode == BASE_MODE || state.calcMode == COMP_MODE || state.calcMode == STATS_MODE;
}

int cursor_key_row(int cursor_key) {
  if (state.alpha_active) return find(alpha_cursor_keys, cursor_key);
  if (has_calculator_keys()) return find(calculator_cursor_keys, cursor_key);
  return state.calcMode == PLOT_MODE ? find(plot_cursor_keys, cursor_key) : NO_KEY;
}

int character_key(int character) {
  if (state.alpha_active) return alpha_character_key(character);
  if (has_calculator_keys()) return calculator_character_key(character);
  return state.calcMode == PLOT_MODE ? find(plot_characters, character) : NO_KEY;
}

}  // namespace

int typed_key(int character, int cursor_key) {
  if (cursor_key >= 0) return cursor_key_row(cursor_key);
  return character >= 0 ? character_key(character) : NO_KEY;
}

}  // namespace zephyl
