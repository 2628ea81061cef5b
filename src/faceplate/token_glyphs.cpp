#include "faceplate/token_glyphs.h"

#include "engine/operation_table.h"
#include "engine/state.h"
#include "engine/tokens.h"
#include "faceplate/resources.h"

namespace zephyl {

namespace {

void add_bitmap(TGlyphRun& run, const TBitmap* glyph) {
  if (!glyph || run.count == TOKEN_GLYPH_LIMIT) return;
  run.glyphs[run.count++] = glyph;
  run.width += glyph->width;
}

void add_glyph(TGlyphRun& run, const char* name) {
  if (name[0]) add_bitmap(run, load_bitmap(name));
}

void spell(TGlyphRun& run, const char* text) {
  for (; *text; ++text) add_bitmap(run, &character_glyph(static_cast<unsigned char>(*text)));
}

// With a decimal comma the point shows as comma, and the comma between arguments as point.
void add_digit(TGlyphRun& run, const TDecodedToken& token) {
  const bool comma = settings.decimalMark == 1 && token.name[0] == '.';
  add_glyph(run, comma ? "U_ASCII_44" : glyph_name(token.name, true));
}

bool holds_parentheses(int arg_kind) { return arg_kind == KIND_NO_ARGUMENT; }

void add_operation_name(TGlyphRun& run, const TDecodedToken& token) {
  if (operation_array[token.op].spelled)
    spell(run, token.name);
  else
    add_glyph(run, token.name);
}

void add_operation(TGlyphRun& run, const TDecodedToken& token) {
  if (token.op == OP_COMMA && settings.decimalMark == 1) return add_glyph(run, "decimal");
  const int arg_kind = operation_array[token.op].arg_kind;
  add_operation_name(run, token);
  if (is_function_kind(arg_kind) && !holds_parentheses(arg_kind)) add_glyph(run, "start_paren");
  if (arg_kind == KIND_CALL) add_glyph(run, "end_paren");
}

void add_special(TGlyphRun& run, const TDecodedToken& token) {
  switch (token.special) {
    case SPECIAL_OPEN_HIDDEN:
    case SPECIAL_CLOSE_HIDDEN:
      return;
    case SPECIAL_STORE:
      add_glyph(run, "save_m");
      return spell(run, token.name);
    case SPECIAL_RECALL:
    case SPECIAL_STRING_CHARACTER:
      return spell(run, token.name);
    default:
      return add_glyph(run, token.name);
  }
}

}  // namespace

void token_glyphs(const TExpression& expression, int index, TGlyphRun& run) {
  run.count = run.width = 0;
  const TDecodedToken& token = decode_token(expression, index);
  switch (token.kind) {
    case TOKEN_DIGIT:
      return add_digit(run, token);
    case TOKEN_OPERATION:
      return add_operation(run, token);
    case TOKEN_SPECIAL:
      return add_special(run, token);
    case TOKEN_STATISTIC:
      return add_glyph(run, token.name);
    case TOKEN_CONVERSION:
    case TOKEN_VARIABLE:
      return spell(run, token.name);
    case TOKEN_STORE_VARIABLE:
      add_glyph(run, "save_m");
      return spell(run, token.name);
    case TOKEN_NONE:
      return;
  }
}

}  // namespace zephyl
