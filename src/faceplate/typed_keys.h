// Keys that the keyboard reaches: which row of the shown key table a typed character or a cursor key stands
// for.
#pragma once

namespace zephyl {

constexpr int NO_KEY = -1;

// Added to the keys of alpha entry: the character is on the shifted page or on the symbol page.
constexpr int ALPHA_SHIFTED = 100;
constexpr int ALPHA_SYMBOL = 200;

// character: a typed one, -1 for none; cursor_key: a TArrow, -1 for none, goes before the character.
// NO_KEY where the screen that shows has no key for it. A brace typed in COMP_MODE sets the blue shift.
int typed_key(int character, int cursor_key);

// The characters that alpha entry enters, by their index: 36 plain ones, the blank, 26 capitals, 31 symbols.
extern const char alpha_characters[];
constexpr int ALPHA_PLAIN_COUNT = 36;
constexpr int ALPHA_CAPITALS = 37;  // index of Q
constexpr int ALPHA_SYMBOLS = 63;   // index of (
constexpr int ALPHA_CHARACTER_COUNT = 94;

}  // namespace zephyl
