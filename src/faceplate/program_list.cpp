#include "faceplate/program_list.h"

#include <string>

#include "faceplate/display.h"
#include "faceplate/resources.h"
#include "faceplate/token_glyphs.h"
#include "platform/platform.h"
#include "programs/editor.h"
#include "programs/statement_text.h"

namespace zephyl {

namespace {

constexpr int LIST_TOP = 42;
constexpr int ROW_HEIGHT = 17;
constexpr int LIST_BOTTOM = LIST_TOP + LISTED_ROWS * ROW_HEIGHT;  // first row below
constexpr int CURSOR_MARK_X = 9;
constexpr int CURSOR_MARK_DY = 5;
constexpr TPoint UP_MARK = {222, 47};
constexpr TPoint DOWN_MARK = {222, 62};
constexpr int TAP_LEFT = 6;
constexpr int TAP_RIGHT = 232;
constexpr int ROW_WIDTH = 200;

// Writes glyphs from the left of a row and, where they wrap, on in the next one. Without a surface it only
// measures.
class TRowPen {
 public:
  TRowPen(TSurface* surface, int row) : surface_(surface), row_(row) {}

  int rows_used() const { return rows_used_; }

  void write(const std::string& text) {
    for (const char c : text) put(character_glyph(static_cast<unsigned char>(c)));
  }
  void wrap_before(int width) {
    if (used_ > 0 && used_ + width > ROW_WIDTH) next_row();
  }
  void put(const TBitmap& glyph) {
    if (used_ + glyph.width > ROW_WIDTH) {
      if (!wraps_) return cut();
      next_row();
    }
    const int y = LIST_TOP + row_ * ROW_HEIGHT;
    if (surface_ && row_ < LISTED_ROWS) surface_->blit_glyph(glyph, TEXT_LEFT + used_, y);
    used_ += glyph.width;
  }
  void set_wrapping() { wraps_ = true; }

 private:
  void next_row() {
    ++row_;
    ++rows_used_;
    used_ = 0;
  }

  // A narrower glyph behind the one that is left out would look like the end of the text.
  void cut() { used_ = ROW_WIDTH; }

  TSurface* surface_;
  int row_;
  int rows_used_ = 1;
  int used_ = 0;
  bool wraps_ = false;  // else what doesn't fit is cut
};

void write_expression(TRowPen& pen, const ProgramStatement& statement) {
  TExpression expression;
  statement_expression(statement, expression);
  pen.set_wrapping();
  for (int index = 0; index < expression.count; ++index) {
    TGlyphRun run;
    token_glyphs(expression, index, run);
    pen.wrap_before(run.width);
    for (int i = 0; i < run.count; ++i) pen.put(*run.glyphs[i]);
  }
}

// Paints a statement from a screen row on, or only measures it; the rows it takes.
int write_statement(TSurface* surface, int index, int row) {
  TRowPen pen(surface, row);
  if (program.statements[index].number == STATEMENT_EXPRESS) {
    pen.write(statement_number_text(index));
    write_expression(pen, program.statements[index]);
  } else {
    pen.write(statement_text(index, NAMES_IN_GLYPHS));
  }
  return pen.rows_used();
}

int measured_rows(int index) { return write_statement(nullptr, index, 0); }

void blit_mark(TSurface& surface, const char* name, TPoint at) {
  if (const TBitmap* mark = load_bitmap(name)) surface.blit_glyph(*mark, at.x, at.y);
}

void mark_cursor(TSurface& surface, int row) {
  blit_mark(surface, "right_arrow", {CURSOR_MARK_X, LIST_TOP + row * ROW_HEIGHT + CURSOR_MARK_DY});
}

}  // namespace

void paint_program_list(TSurface& surface) {
  if (program.statement_count == 0) TRowPen(&surface, 0).write("Empty Program");
  int row = 0;
  int index = program.top;
  for (; index <= program.statement_count && row < LISTED_ROWS; ++index) {
    if (index == program.cursor) mark_cursor(surface, row);
    row += index < program.statement_count ? write_statement(&surface, index, row) : 1;
  }
  if (program.top > 0) blit_mark(surface, "up_arrow", UP_MARK);
  if (index < program.statement_count || row > LISTED_ROWS) blit_mark(surface, "down_arrow", DOWN_MARK);
}

void select_tapped_statement(int x, int y) {
  if (x < TAP_LEFT || x > TAP_RIGHT || y < LIST_TOP || y >= LIST_BOTTOM) return;
  const int tapped = (y - LIST_TOP) / ROW_HEIGHT;
  int row = 0;
  for (int index = program.top; index <= program.statement_count; ++index) {
    row += index < program.statement_count ? measured_rows(index) : 1;
    if (tapped >= row) continue;
    select_statement(index);
    return platform().invalidate(false);
  }
}

void register_program_list() { rows_of_statement = measured_rows; }

}  // namespace zephyl
