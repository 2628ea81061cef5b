// The words of key_names.h that never change, by screen and key.
#pragma once

namespace zephyl {

struct TKeyWords {
  int key;
  const char* plain;  // empty: key_names.cpp finds the name in the state
  const char* blue = "";
  const char* orange = "";
};

struct TKeyWordTable {
  const TKeyWords* rows;
  int count;
};

// Those that the three screens with digits share: digits, signs, tabs, cursor keys.
extern const TKeyWordTable digit_screen_words;
extern const TKeyWordTable comp_words;
extern const TKeyWordTable base_words;
extern const TKeyWordTable stats_words;
extern const TKeyWordTable program_words;
extern const TKeyWordTable plot_words;
extern const TKeyWordTable table_words;  // lists and matrices
extern const TKeyWordTable alpha_words;
extern const TKeyWordTable periodic_words;

// The row of a key; null if the table has none.
const TKeyWords* words_of_key(const TKeyWordTable& table, int key);
// A character of the alpha entry in words, "open brace"; letters and digits as they are.
const char* character_words(char character);

}  // namespace zephyl
