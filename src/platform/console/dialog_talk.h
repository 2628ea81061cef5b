// A dialog as a short talk in the terminal.
#pragma once

#include <functional>
#include <string>

namespace zephyl {

class TDialog;

// The line that the user types behind a prompt; false when there is nobody any more.
using TAsk = std::function<bool(const std::string& prompt, std::string& line)>;

// Prints the controls, those that can be worked with a number each, and asks which one, until the dialog is
// closed. An empty line is its default button; "cancel", and nobody to ask, cancels.
void talk_through(TDialog& dialog, const TAsk& ask);

}  // namespace zephyl
