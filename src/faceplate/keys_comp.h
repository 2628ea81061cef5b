// The key map of COMP_MODE.
#pragma once

namespace zephyl {

// key: a row of calculator_keys. Results as those of key_pressed_decoder (key_path.h).
int comp_key_pressed(int key);

}  // namespace zephyl
