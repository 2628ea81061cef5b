// A pixel font set tight, letter by letter of its own width, with signs of our own where the font lacks one
// or draws it badly: superscripts, roots, arrows, and marks over a letter.
#pragma once

#include <map>
#include <memory>
#include <string>

#include "mask.h"
#include "pixel_font.h"

namespace art {

// A sign and how many rows its last row lies above (or, negative, below) the row of the baseline.
struct TSign {
  TMask mask;
  int rise = 0;
};

class TTypeface {
 public:
  // gap: columns between letters; blank: those of a space.
  TTypeface(const std::string& file, int gap, int blank);

  void add_signs(const std::map<char32_t, TSign>& signs) { signs_.insert(signs.begin(), signs.end()); }

  // Height of a line, and its row on which letters stand.
  int height() const { return font_->height(); }
  int baseline() const { return font_->ascent() - 1; }

  // A line of UTF-8 text, height() high. The combining marks macron and circumflex lie over the letter before
  // them; U+200A is one more column. Throws for a character that is missing.
  TMask text(const std::string& utf8) const;
  // The same for setting in the middle of a box: the rows from the top of capitals to the baseline are its
  // middle, with as many rows above them as below, so that the labels of a row of keys stand on one line.
  TMask label(const std::string& utf8) const;
  // One character in a mask height() high, without blank columns.
  TMask letter(char32_t character) const;

 private:
  void put_mark(TMask& letter, char32_t mark) const;

  std::unique_ptr<TPixelFont> font_;
  int gap_;
  int blank_;
  std::map<char32_t, TSign> signs_;
};

}  // namespace art
