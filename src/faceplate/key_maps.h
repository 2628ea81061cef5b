// The key maps, one a mode: what each key of its screen does.
#pragma once

#include "faceplate/key_map.h"

namespace zephyl {

extern const TKeyMap base_key_map;
extern const TKeyMap comp_key_map;
extern const TKeyMap stats_key_map;
extern const TKeyMap program_key_map;
extern const TKeyMap periodic_key_map;
extern const TKeyMap plot_key_map;
extern const TKeyMap table_key_map;  // of MATRIX_MODE and LIST_MODE

}  // namespace zephyl
