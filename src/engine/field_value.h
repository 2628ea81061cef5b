// The fields of dialogs that take an expression for a number.
#pragma once

#include <string>

namespace zephyl {

struct TControl;

// The real value of a text (text_form.h), computed without a trace in the calculator. False, with the reason
// in `error`, for a text that can't be read, an error of its evaluation, and a value that is no real number.
bool field_value(const std::string& text, double& value, std::string& error);

// Reads the edit that shows `value`. A text that wasn't touched leaves it with all its digits. False, and the
// reason is told in a box, where the text has no value.
bool read_field(const TControl& edit, double& value);

// A number as a field shows it: with a point, so that it reads back, and "NAN" for undefined_value.
std::string field_text(double value);

}  // namespace zephyl
