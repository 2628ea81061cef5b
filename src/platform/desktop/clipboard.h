// The clipboard: the result line goes out as plain text, and expressions come in by the text form.
#pragma once

#include <QString>

namespace zephyl {

// Nothing happens while the result line is empty.
void copy_result();
// Inserts the clipboard's text at the cursor; where it can't be read a box says so.
void paste_clipboard();

// A formula as other programs write it, in the signs of the text form: blanks around it go, typographic signs
// of arithmetic become the typed ones.
QString typed_text(const QString& text);

}  // namespace zephyl
