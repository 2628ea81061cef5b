// The typefaces in use, each loaded once.
#pragma once

#include "typeface.h"

namespace art {

struct TTypefaces {
  TTypefaces();

  TTypeface legend;  // over the keys: capitals of 7 rows
  TTypeface tiny;    // where the legend face is too wide: capitals of 6 rows
  TTypeface label;   // on small keys: capitals of 9 rows in double strokes
  TTypeface narrow;  // the same, narrower
  TTypeface round;   // text of its own: capitals of 9 rows in double strokes, open enough for "m"
  TTypeface digit;   // on large keys: capitals of 10 rows in double strokes
  TTypeface line;    // the entry and result lines: capitals of 10 rows
  TTypeface small;   // the numbers of the plot screens: capitals of 6 rows
};

const TTypefaces& typefaces();

}  // namespace art
