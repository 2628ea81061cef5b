// The key path: from a tap, a character or a cursor key to what the key does.
#pragma once

namespace zephyl {

// Results of key_pressed_decoder that are no token.
constexpr int KEY_CONSUMED = -1;  // the blue and orange shifts stay as they are
constexpr int KEY_DONE = -2;      // they end, as after a token

// The single entry of a tap, a character or a cursor key. A tap passes -1 for character and cursor_key, a
// character coordinates 0 and cursor_key -1, a cursor key (a TArrow) coordinates 0 and character -1.
void handle_faceplate_input(int x, int y, int character, int cursor_key);

// Does what a key does in the current mode. Returns a token (0 or more), KEY_CONSUMED or KEY_DONE; sets
// needs_repaint when the whole screen must be painted afterwards.
int key_pressed_decoder(bool& needs_repaint, int key);

}  // namespace zephyl
