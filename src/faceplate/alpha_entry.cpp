#include "faceplate/alpha_entry.h"

#include <cstdio>
#include <cstring>

#include "engine/expression.h"
#include "engine/state.h"
#include "faceplate/alpha_view.h"
#include "faceplate/indicators.h"
#include "faceplate/key_path.h"
#include "faceplate/modes.h"
#include "faceplate/typed_keys.h"
#include "platform/platform.h"

namespace zephyl {

TAlphaEntry alpha_entry;

namespace {

constexpr int NO_STATEMENT = -1;
constexpr int NAME_LIMIT = 22;
constexpr int TEXT_LIMIT = 15;

// Keys of the overlay behind those of the characters.
enum TAlphaKey { KEY_SHIFT = 36, KEY_BACKSPACE, KEY_BLANK, KEY_SYMBOLS, KEY_ENTER, KEY_CANCEL };
constexpr int FIRST_LETTER_KEY = 10;
constexpr int LAST_SYMBOL_KEY = 30;
constexpr int BLANK_INDEX = 36;

bool keep_constant_name(int, const char* text) {
  std::snprintf(alpha_entry.constant_name, sizeof alpha_entry.constant_name, "%s", text);
  start_alpha_entry(ALPHA_CONSTANT_UNIT);
  return true;
}

bool insert_string(int, const char* text) { return insert_string_tokens(text); }

struct TAlphaKind {
  int limit;
  int statement;
  TAlphaTaker take;
};

// By TAlphaPrompt.
TAlphaKind kinds[ALPHA_PROMPT_COUNT] = {
    {NAME_LIMIT, NO_STATEMENT, nullptr},
    {NAME_LIMIT, NO_STATEMENT, nullptr},
    {TEXT_LIMIT, 10, nullptr},
    {TEXT_LIMIT, 11, nullptr},
    {TEXT_LIMIT, 110, nullptr},
    {TEXT_LIMIT, 15, nullptr},
    {NAME_LIMIT, 317, nullptr},
    {NAME_LIMIT, 217, nullptr},
    {NAME_LIMIT, NO_STATEMENT, keep_constant_name},
    {TEXT_LIMIT, NO_STATEMENT, nullptr},
    {TEXT_LIMIT, 108, nullptr},
    {NAME_LIMIT, NO_STATEMENT, insert_string},
};

bool known(int kind) { return kind >= 0 && kind < ALPHA_PROMPT_COUNT; }

// The name of a program becomes the name of a file.
bool names_a_program() {
  return alpha_entry.kind == ALPHA_NEW_PROGRAM || alpha_entry.kind == ALPHA_COPY_PROGRAM;
}

bool refused_in_file_names(int index) { return std::strchr("*:./\\?|", alpha_characters[index]); }

void end_shift() {
  if (!alpha_entry.shift) return;
  alpha_entry.shift = false;
  redraw_part(PART_ALPHA_SHIFT);
}

void show_page(bool symbols) {
  if (alpha_entry.symbol_page == symbols) return;
  alpha_entry.symbol_page = symbols;
  redraw_alpha_overlay();
}

int symbol_key(int key) {
  end_shift();
  show_page(false);
  const int index = key + ALPHA_SYMBOLS;
  if (key > LAST_SYMBOL_KEY || (names_a_program() && refused_in_file_names(index))) return KEY_DONE;
  return index;
}

int shifted_key(int key) {
  end_shift();
  return key < FIRST_LETTER_KEY ? key : key + ALPHA_CAPITALS - FIRST_LETTER_KEY;
}

int character_key(int key, int page) {
  if (page == ALPHA_SYMBOL || alpha_entry.symbol_page) return symbol_key(key);
  return page == ALPHA_SHIFTED || alpha_entry.shift ? shifted_key(key) : key;
}

void remove_last_character() {
  const std::size_t length = std::strlen(alpha_entry.text);
  if (length == 0) return;
  alpha_entry.text[length - 1] = 0;
  redraw_alpha_text();
}

void end_entry() {
  state.alpha_active = false;
  platform().invalidate(false);
}

void strip_blanks() {
  char* end = alpha_entry.text + std::strlen(alpha_entry.text);
  while (end > alpha_entry.text && end[-1] == ' ') *--end = 0;
}

// Nothing is lost of a text that can't be used: it stays where it was written.
bool refuse_text() {
  char note[200];
  std::snprintf(note, sizeof note, "The text can't be used here: '%s'", alpha_entry.text);
  platform().show_message(note, "Note");
  return false;
}

bool hand_over() {
  char text[ALPHA_TEXT_SIZE];
  std::snprintf(text, sizeof text, "%s", alpha_entry.text);
  const int kind = alpha_entry.kind;
  return known(kind) && kinds[kind].take ? kinds[kind].take(kind, text) : refuse_text();
}

void enter() {
  if (alpha_entry.kind != ALPHA_STRING) strip_blanks();
  if (alpha_entry.text[0] == 0 && alpha_entry.kind != ALPHA_CONSTANT_UNIT) return redraw_alpha_text();
  end_entry();
  if (!hand_over()) state.alpha_active = true;
}

void press_command(int key) {
  switch (key) {
    case KEY_SHIFT:
      alpha_entry.shift = !alpha_entry.shift;
      return redraw_part(PART_ALPHA_SHIFT);
    case KEY_BACKSPACE:
      return remove_last_character();
    case KEY_SYMBOLS:
      return show_page(!alpha_entry.symbol_page);
    case KEY_ENTER:
      return enter();
    case KEY_CANCEL:
      return end_entry();
    default:
      return;
  }
}

}  // namespace

void set_alpha_taker(int kind, TAlphaTaker taker) { kinds[kind].take = taker; }

int alpha_statement_code(int kind) { return known(kind) ? kinds[kind].statement : NO_STATEMENT; }

void start_alpha_entry(int kind) {
  if (state.calcMode == PLOT_MODE || state.calcMode == PERIODIC_MODE) set_mode(COMP_MODE, true);
  alpha_entry.shift = alpha_entry.symbol_page = false;
  alpha_entry.text[0] = 0;
  alpha_entry.kind = kind;
  state.alpha_active = true;
  platform().invalidate(false);
}

int alpha_key_pressed(int key, bool typed) {
  const int row = key % ALPHA_SHIFTED, page = key - row;
  const bool character = row < KEY_SHIFT || row == KEY_BLANK;
  // A character of the keyboard that is on the letter page ends the symbol page and means itself.
  if (typed && character && page != ALPHA_SYMBOL) show_page(false);
  if (row < KEY_SHIFT) return character_key(row, page);
  if (row == KEY_BLANK) return BLANK_INDEX;
  press_command(row);
  return KEY_DONE;
}

int alpha_character_of_key(int key) {
  if (key == KEY_BLANK) return BLANK_INDEX;
  if (key < 0 || key >= KEY_SHIFT) return -1;
  if (!alpha_entry.symbol_page)
    return alpha_entry.shift && key >= FIRST_LETTER_KEY ? key + ALPHA_CAPITALS - FIRST_LETTER_KEY : key;
  const int index = key + ALPHA_SYMBOLS;
  return key > LAST_SYMBOL_KEY || (names_a_program() && refused_in_file_names(index)) ? -1 : index;
}

void append_alpha_character(int index) {
  if (!state.alpha_active || !known(alpha_entry.kind) || index < 0 || index >= ALPHA_CHARACTER_COUNT) return;
  const std::size_t length = std::strlen(alpha_entry.text);
  const bool leading_blank = index == BLANK_INDEX && length == 0 && alpha_entry.kind != ALPHA_STRING;
  if (leading_blank || length >= static_cast<std::size_t>(kinds[alpha_entry.kind].limit)) return;
  alpha_entry.text[length] = alpha_characters[index];
  alpha_entry.text[length + 1] = 0;
  redraw_alpha_text();
}

}  // namespace zephyl
