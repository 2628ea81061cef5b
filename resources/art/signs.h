// Signs that the pixel fonts lack, drawn for each size in which they are used.
#pragma once

#include <map>

#include "typeface.h"

namespace art {

// For capitals of 7 rows (the legends over the keys) and of 9 rows in double strokes (the labels on the
// keys).
const std::map<char32_t, TSign>& legend_signs();
const std::map<char32_t, TSign>& label_signs();
// For the glyphs of the lines, capitals of 10 rows.
const std::map<char32_t, TSign>& digit_signs();
const std::map<char32_t, TSign>& line_signs();

// Triangles that point left, 5 by 9 on the keys; and the signs of the run key.
const TMask& left_triangle();
const TMask& run_triangle();
const TMask& stop_square();

}  // namespace art
