#include "faceplate/later_keys.h"

#include "engine/state.h"

namespace zephyl {

namespace {

struct TLaterRow {
  int mode;
  int first, last;  // keys
  TKeyMeaning meaning;
  const char* waits_for;
};

constexpr TLaterRow later_keys[] = {
    {COMP_MODE, 25, 25, MEANING_BLUE, "Select Function"},
    {COMP_MODE, 25, 25, MEANING_ORANGE, "Select Variable, system variables"},
    {STATS_MODE, 24, 24, MEANING_BLUE, "Select Plot"},
    {PROGRAM_EDIT_MODE, 2, 17, MEANING_PLAIN, "the program editor"},
    {PROGRAM_EDIT_MODE, 2, 17, MEANING_BLUE, "the program editor"},
    {PERIODIC_MODE, 1, 1, MEANING_PLAIN, "Element Data Table"},
    {PERIODIC_MODE, 2, 110, MEANING_PLAIN, "Element Information"},
    {MATRIX_MODE, 6, 6, MEANING_PLAIN, "Select Function"},
    {LIST_MODE, 6, 6, MEANING_PLAIN, "Select Function"},
};

}  // namespace

bool is_later_key(int mode, int key, TKeyMeaning meaning) {
  for (const TLaterRow& row : later_keys)
    if (row.mode == mode && key >= row.first && key <= row.last && row.meaning == meaning) return true;
  return false;
}

}  // namespace zephyl
