// Text into the entry line: what a paste, a script and a console do with what they are given.
#pragma once

namespace zephyl {

// Inserts the tokens of `text` (text_form.h) at the cursor, all or none; behind a result they begin a new
// expression, as a key does. False, with the reason in `error`, for text that can't be read or doesn't fit,
// and while the calculator takes no token: an error stands, or a program runs and waits for nothing.
bool insert_text(const char* text, char* error, int error_size);

// The tokens of `text` instead of what the line holds, and no standing error. The answers stay, and no answer
// goes in front of an operator. False, with the reason in `error` and nothing changed, for text that can't be
// read.
bool enter_text(const char* text, char* error, int error_size);

// insert_text for a person: the reason is shown in a message box. An error that stands is no reason to show
// one: the paste is ignored then, as keys are.
void paste_text(const char* text);

}  // namespace zephyl
