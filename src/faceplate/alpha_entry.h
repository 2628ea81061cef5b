// Alpha entry: an overlay of letter keys over whatever screen shows, on which the user writes a short text.
// What the text is for is its kind. The keys of the overlay are alpha_keys (key_tables.h), the characters
// alpha_characters (typed_keys.h).
#pragma once

namespace zephyl {

// The order is that of the statements and tables that start an entry.
enum TAlphaPrompt {
  ALPHA_NEW_PROGRAM = 0,
  ALPHA_COPY_PROGRAM,
  ALPHA_INPUT_PROMPT,     // of the statement `in`
  ALPHA_OUTPUT_LABEL,     // of `out`
  ALPHA_OUTPUT_TEXT,      // of `text`
  ALPHA_FUNCTION_PROMPT,  // of `in f()`
  ALPHA_MENU_ITEM,
  ALPHA_MENU_TITLE,
  ALPHA_CONSTANT_NAME,
  ALPHA_CONSTANT_UNIT,
  ALPHA_PROGRAM_ERROR,  // of `error`
  ALPHA_STRING,
  ALPHA_PROMPT_COUNT
};

constexpr int ALPHA_TEXT_SIZE = 120;

// state.alpha_active says whether the entry is up.
struct TAlphaEntry {
  bool symbol_page = false;
  bool shift = false;
  int kind = ALPHA_STRING;
  char text[ALPHA_TEXT_SIZE] = "";
  char constant_name[ALPHA_TEXT_SIZE] = "";  // what kind 8 has brought, for whoever takes kind 9
};
extern TAlphaEntry alpha_entry;

// Takes the text of an entry that ends. False: it is refused, and the entry stays up with its text.
using TAlphaTaker = bool (*)(int kind, const char* text);
// Whoever owns what a kind is for says so at start. A text that nobody takes is refused with a note.
void set_alpha_taker(int kind, TAlphaTaker taker);

// The statement code that a text of this kind goes with; -1 for a kind that makes no statement.
int alpha_statement_code(int kind);

// Begins an entry with an empty text. The screens without an entry line are left for COMP_MODE.
void start_alpha_entry(int kind);

// Does what a key of the overlay means. key: a row of alpha_keys, with ALPHA_SHIFTED or ALPHA_SYMBOL added
// where the keyboard says which page the character is on. typed: it came from the keyboard. Returns the index
// of a character to append, or a result of key_path.h.
int alpha_key_pressed(int key, bool typed);

// The index of the character that key 0 to 35 or the blank would append now; -1 if it would append none.
int alpha_character_of_key(int key);

// Appends a character, if the kind allows it there.
void append_alpha_character(int index);

}  // namespace zephyl
