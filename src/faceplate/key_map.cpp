#include "faceplate/key_map.h"

#include "engine/errors.h"
#include "engine/state.h"
#include "faceplate/key_path.h"
#include "faceplate/later_keys.h"

namespace zephyl {

namespace {

const TKeyRow* find_row(const TKeyMap& map, int key) {
  for (int i = 0; i < map.count; ++i)
    if (key >= map.rows[i].first && key <= map.rows[i].last) return map.rows + i;
  return nullptr;
}

const TMeaning& shifted(const TKeyRow& row, TKeyMeaning meaning) {
  if (meaning == MEANING_BLUE) return row.blue;
  return meaning == MEANING_ORANGE ? row.orange : row.plain;
}

TKeyMeaning wanted_meaning() {
  if (state.blue_shift) return MEANING_BLUE;
  return state.orange_shift ? MEANING_ORANGE : MEANING_PLAIN;
}

bool refused(const TMeaning& meaning) {
  const bool running = state.program_running && !state.at_prompt;
  return ((meaning.refused & NOT_RUNNING) && running) ||
         ((meaning.refused & NOT_ON_ERROR) && errors.error_flag);
}

}  // namespace

int press_mapped_key(const TKeyMap& map, int key) {
  const TKeyRow* row = find_row(map, key);
  TKeyMeaning wanted = wanted_meaning();
  if (!row || is_later_key(state.calcMode, key, wanted)) return KEY_DONE;
  if (!shifted(*row, wanted).defined()) wanted = MEANING_PLAIN;
  const TMeaning& meaning = shifted(*row, wanted);
  if (is_later_key(state.calcMode, key, wanted) || !meaning.defined() || refused(meaning)) return KEY_DONE;
  return meaning.act ? meaning.act(key) : meaning.token;
}

}  // namespace zephyl
