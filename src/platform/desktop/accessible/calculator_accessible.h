// The calculator as a screen reader meets it: the window, in it the entry line, the result and the mode as
// texts, and a button for each key of the screen that shows.
#pragma once

#include <QAccessible>

namespace zephyl {

class TCalculatorWindow;

// From then on Qt asks here for the interface of the window; before that it makes one that knows no keys.
void offer_calculator_to_screen_readers();

// The texts, in their order among the children of the window; the keys follow.
enum TDisplayPart { DISPLAY_ENTRY = 0, DISPLAY_RESULT, DISPLAY_MODE, DISPLAY_PART_COUNT };

// Of the window's interface, which is made if there is none yet; null without one.
QAccessibleInterface* accessible_display(TCalculatorWindow& window, TDisplayPart part);
QAccessibleInterface* accessible_key(TCalculatorWindow& window, int key);
// The keys that show are others now.
void renew_accessible_keys(TCalculatorWindow& window);

}  // namespace zephyl
