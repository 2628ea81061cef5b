// What a key of the keyboard is to the calculator.
#pragma once

#include <QString>

class QKeyEvent;

#include "platform/desktop/input_queue.h"

namespace zephyl {

// An arrow, or copy or paste. False for any other key.
bool input_of_key(const QKeyEvent& event, TInput& input);

// The characters that a key types: Backspace 8, Enter 13, Escape 27, else what the keyboard's layout makes of
// it. Empty with Ctrl, Alt or Meta held.
QString characters_of_key(const QKeyEvent& event);

}  // namespace zephyl
