// The drawing in a state file: the last of its records, the bytes of a GIF behind a line of their own. The
// same bytes stay behind in the work file "drawing.dat" of the current folder, which other programs may read.
#pragma once

#include <string>

#include "persistence/text_file.h"

namespace zephyl {

// Adds the record, unless all is white or nothing was drawn since the last clearing.
void append_drawing(std::string& text);

// Takes all that follows the record's line for the drawing. What isn't a GIF is told; the rows that could be
// read show.
void read_drawing(TLineReader& reader);

}  // namespace zephyl
