// The keys whose subsystem is not there yet: they click and do nothing else. The one list of them.
#pragma once

namespace zephyl {

// The three meanings of a key.
enum TKeyMeaning { MEANING_PLAIN = 0, MEANING_BLUE, MEANING_ORANGE };

// mode: a TCalcMode.
bool is_later_key(int mode, int key, TKeyMeaning meaning);

}  // namespace zephyl
