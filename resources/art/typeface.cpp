#include "typeface.h"

#include <algorithm>
#include <stdexcept>
#include <vector>

namespace art {

namespace {

constexpr char32_t MACRON = 0x304;
constexpr char32_t CIRCUMFLEX = 0x302;
constexpr char32_t HAIR_SPACE = 0x200A;

bool is_mark(char32_t character) { return character == MACRON || character == CIRCUMFLEX; }

}  // namespace

TTypeface::TTypeface(const std::string& file, int gap, int blank)
    : font_(std::make_unique<TPixelFont>(file)), gap_(gap), blank_(blank) {}

TMask TTypeface::letter(char32_t character) const {
  if (character == U' ') return TMask(blank_, height());
  const auto own = signs_.find(character);
  if (own != signs_.end()) {
    const TMask& mask = own->second.mask;
    TMask out(mask.width(), height());
    out.stamp(mask, 0, baseline() - own->second.rise - mask.height() + 1);
    return out;
  }
  const TMask& cell = font_->cell(character);
  if (cell.width() == 0)
    throw std::runtime_error("no letter U+" + std::to_string(static_cast<unsigned>(character)));
  return cell.trimmed();
}

void TTypeface::put_mark(TMask& letter, char32_t mark) const {
  const int width = letter.width(), y = letter.ink_top() - 2;
  if (mark == MACRON) {
    letter.fill(0, y, width - 1, y);
    return;
  }
  letter.fill((width - 1) / 2, y - 1, width / 2, y - 1);
  letter.set((width - 1) / 2 - 1, y);
  letter.set(width / 2 + 1, y);
}

TMask TTypeface::text(const std::string& utf8) const {
  std::vector<TMask> letters;
  for (char32_t character : decode_utf8(utf8)) {
    if (is_mark(character))
      put_mark(letters.back(), character);
    else
      letters.push_back(character == HAIR_SPACE ? TMask(0, height()) : letter(character));
  }
  return joined(letters, gap_);
}

TMask TTypeface::label(const std::string& utf8) const {
  const TMask line = text(utf8);
  const int capital_top = letter(U'E').ink_top(), capital_bottom = baseline() + 1;
  const int beyond = std::max({0, capital_top - line.ink_top(), line.ink_bottom() - capital_bottom});
  return line.part(0, capital_top - beyond, line.width(), capital_bottom + beyond);
}

}  // namespace art
