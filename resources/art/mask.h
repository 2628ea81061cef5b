// A small picture of one bit a pixel: a glyph, a sign, a word. Masks are cut, joined and stacked into legends
// and line glyphs.
#pragma once

#include <initializer_list>
#include <string>
#include <vector>

namespace art {

class TMask {
 public:
  TMask() = default;
  TMask(int width, int height);
  // Rows of '#' for ink and anything else for paper; the widest row gives the width.
  explicit TMask(std::initializer_list<const char*> rows);

  int width() const { return width_; }
  int height() const { return height_; }
  // Paper outside.
  bool ink(int x, int y) const;
  // Outside is left alone.
  void set(int x, int y, bool ink = true);
  void fill(int left, int top, int right, int bottom);
  // Adds the ink of another mask.
  void stamp(const TMask& other, int x, int y);

  // First and one behind the last column with ink; equal where there is none. Rows likewise.
  int ink_left() const;
  int ink_right() const;
  int ink_top() const;
  int ink_bottom() const;

  // The part from column `left` up to `right`, rows `top` up to `bottom`, ends excluded.
  TMask part(int left, int top, int right, int bottom) const;
  // Without blank columns at its sides.
  TMask trimmed() const;
  TMask flipped() const;       // left and right
  TMask turned() const;        // upside down
  TMask quarter_turn() const;  // clockwise: reads from top to bottom

 private:
  int width_ = 0;
  int height_ = 0;
  std::vector<bool> bits_;
};

// Side by side with `gap` columns between, tops aligned.
TMask joined(const std::vector<TMask>& masks, int gap);

}  // namespace art
