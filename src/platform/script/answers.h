// What the calculator holds, as the text that a script's questions are answered with.
#pragma once

#include <string>

#include "engine/values.h"

namespace zephyl {

struct ListRecord;
struct MatrixRecord;

// The result line in plain text, as a listing writes it. Empty when nothing is shown; a prompt's own text at
// a prompt.
std::string result_line_text();

// Enough digits to read the same double back: "%.17g".
std::string exact_text(double number);
// Real and imaginary part, with `separator` between.
std::string exact_text(const TValue& value, char separator = ' ');

// "undefined"; "SIZE: RE,IM RE,IM ..."; "ROWSxCOLS: V V ..." row by row.
std::string exact_text(const ListRecord& list);
std::string exact_text(const MatrixRecord& matrix);

// Between double quotes, with \" and \\ inside as the text form reads them, and \n for a line end.
std::string quoted(const char* text);

}  // namespace zephyl
