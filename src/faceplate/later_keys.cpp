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
    {PROGRAM_EDIT_MODE, 2, 17, MEANING_PLAIN, "the program editor"},
    {PROGRAM_EDIT_MODE, 2, 17, MEANING_BLUE, "the program editor"},
};

}  // namespace

bool is_later_key(int mode, int key, TKeyMeaning meaning) {
  for (const TLaterRow& row : later_keys)
    if (row.mode == mode && key >= row.first && key <= row.last && row.meaning == meaning) return true;
  return false;
}

}  // namespace zephyl
