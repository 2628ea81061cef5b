// The keys whose subsystem is not there yet: they click and do nothing else. The one list of them.
#pragma once

namespace zephyl {

// The three meanings of a key.
enum TKeyMeaning { MEANING_PLAIN = 0, MEANING_BLUE, MEANING_ORANGE };

// True for such a key of COMP_MODE. The other modes have no key map yet beside the way back to COMP_MODE.
bool is_later_key(int key, TKeyMeaning meaning);

}  // namespace zephyl
