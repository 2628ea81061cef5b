#include "faceplate/later_keys.h"

namespace zephyl {

namespace {

struct TLaterRow {
  int key;
  TKeyMeaning meaning;
  const char* waits_for;
};

constexpr TLaterRow later_keys[] = {
    {8, MEANING_BLUE, "Select Constant"},
    {9, MEANING_BLUE, "Select Conversion"},
    {10, MEANING_PLAIN, "Select Variable, recall"},
    {10, MEANING_BLUE, "Select Variable, store"},
    {14, MEANING_BLUE, "Select Test"},
    {20, MEANING_BLUE, "Select Expression"},
    {24, MEANING_ORANGE, "alpha entry of string text"},
    {25, MEANING_BLUE, "Select Function"},
    {25, MEANING_ORANGE, "Select Variable, system variables"},
    {26, MEANING_BLUE, "Plot Functions"},
    {27, MEANING_ORANGE, "Select Items to Clear"},
    {44, MEANING_PLAIN, "program edit"},
    {45, MEANING_PLAIN, "plots"},
    {46, MEANING_PLAIN, "the screens of the fourth tab"},
    {47, MEANING_PLAIN, "the menu"},
    {49, MEANING_PLAIN, "programs"},
};

}  // namespace

bool is_later_key(int key, TKeyMeaning meaning) {
  for (const TLaterRow& row : later_keys)
    if (row.key == key && row.meaning == meaning) return true;
  return false;
}

}  // namespace zephyl
