// The glyphs that a token is drawn with on the entry line.
#pragma once

#include "engine/expression.h"
#include "platform/surface.h"

namespace zephyl {

// Room for the longest name, with its parentheses.
constexpr int TOKEN_GLYPH_LIMIT = 128;

struct TGlyphRun {
  const TBitmap* glyphs[TOKEN_GLYPH_LIMIT];
  int count = 0;
  int width = 0;  // of all of them, in pixels
};

// The token at `index`, with its neighbours in view for strings and calls. Tokens that show nothing
// (characters of a program's name, hidden parentheses, codes without a meaning) leave the run empty.
void token_glyphs(const TExpression& expression, int index, TGlyphRun& run);

}  // namespace zephyl
