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
    {BASE_MODE, 49, 49, MEANING_PLAIN, "programs"},
    {COMP_MODE, 8, 8, MEANING_BLUE, "Select Constant"},
    {COMP_MODE, 9, 9, MEANING_BLUE, "Select Conversion"},
    {COMP_MODE, 25, 25, MEANING_BLUE, "Select Function"},
    {COMP_MODE, 25, 25, MEANING_ORANGE, "Select Variable, system variables"},
    {COMP_MODE, 49, 49, MEANING_PLAIN, "programs"},
    {STATS_MODE, 49, 49, MEANING_PLAIN, "programs"},
    {PROGRAM_EDIT_MODE, 0, 0, MEANING_PLAIN, "programs"},
    {PROGRAM_EDIT_MODE, 2, 17, MEANING_PLAIN, "the program editor"},
    {PROGRAM_EDIT_MODE, 2, 17, MEANING_BLUE, "the program editor"},
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
