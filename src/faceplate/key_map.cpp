#include "faceplate/key_map.h"

#include "engine/errors.h"
#include "engine/state.h"
#include "faceplate/key_path.h"

namespace zephyl {

namespace {

const TKeyRow* find_row(const TKeyMap& map, int key) {
  for (int i = 0; i < map.count; ++i)
    if (key >= map.rows[i].first && key <= map.rows[i].last) return map.rows + i;
  return nullptr;
}

// A shift counts where the key has a meaning for it.
const TMeaning& wanted_meaning(const TKeyRow& row) {
  if (state.blue_shift && row.blue.defined()) return row.blue;
  const bool orange = state.orange_shift && !state.blue_shift;
  return orange && row.orange.defined() ? row.orange : row.plain;
}

bool refused(const TMeaning& meaning) {
  return ((meaning.refused & NOT_RUNNING) && program_works()) ||
         ((meaning.refused & NOT_ON_ERROR) && errors.error_flag);
}

}  // namespace

int press_mapped_key(const TKeyMap& map, int key) {
  const TKeyRow* row = find_row(map, key);
  if (!row) return KEY_DONE;
  const TMeaning& meaning = wanted_meaning(*row);
  if (!meaning.defined() || refused(meaning)) return KEY_DONE;
  return meaning.act ? meaning.act(key) : meaning.token;
}

}  // namespace zephyl
