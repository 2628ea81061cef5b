#include "legends.h"

#include <algorithm>
#include <stdexcept>
#include <string>

#include "layout.h"
#include "typefaces.h"

namespace art {

namespace {

// Rows between the tops of the capitals over a key and the key.
constexpr int LEGEND_RISE = 10;
// Columns between the two meanings over a key.
constexpr int WIDEST_GAP = 8;
constexpr int NARROWEST_GAP = 5;

// Columns that a label leaves free on its cap, the more the wider its face.
struct TCapFace {
  const TTypeface& face;
  int side_room;
};

bool is_large(const TBox& box) { return box.height() > 20; }

// The pair in the middle over the key; in the tiny face where the other is too wide for it.
void draw_pair(TCanvas& canvas, const TBox& box, const TKeyLegend& legend, const TSkin& skin) {
  for (const TTypeface* face : {&typefaces().legend, &typefaces().tiny}) {
    const TMask blue = face->text(legend.blue), orange = face->text(legend.orange);
    const int gap = std::min(box.width() - 2 - blue.width() - orange.width(), WIDEST_GAP);
    if (gap < NARROWEST_GAP) continue;
    const int x = box.left + (box.width() - blue.width() - gap - orange.width()) / 2;
    const int y = box.top - LEGEND_RISE + 6 - face->baseline();
    canvas.stamp(blue, x, y, skin.blue);
    canvas.stamp(orange, x + blue.width() + gap, y, skin.orange);
    return;
  }
  throw std::runtime_error(std::string("no room over the key for ") + legend.blue + " " + legend.orange);
}

void draw_over(TCanvas& canvas, const TBox& box, const TKeyLegend& legend, const TSkin& skin) {
  if (*legend.blue && *legend.orange) return draw_pair(canvas, box, legend, skin);
  const bool is_blue = *legend.blue != 0;
  for (const TTypeface* face : {&typefaces().legend, &typefaces().tiny}) {
    const TMask mask = face->text(is_blue ? legend.blue : legend.orange);
    if (mask.width() > box.width()) continue;
    const int y = box.top - LEGEND_RISE + 6 - face->baseline();
    canvas.stamp(mask, box.left + (box.width() - mask.width()) / 2, y, is_blue ? skin.blue : skin.orange);
    return;
  }
  throw std::runtime_error(std::string("no room over the key for ") + legend.blue + legend.orange);
}

const TMask lamp_off{".###.", "#...#", "#...#", "#...#", ".###."};
const TMask lamp_on{".###.", "#####", "#####", "#####", ".###."};

}  // namespace

TMask cap_label(const char* text, int width) {
  const TTypefaces& faces = typefaces();
  for (const TCapFace& row :
       {TCapFace{faces.label, 6}, {faces.narrow, 3}, {faces.legend, 4}, {faces.tiny, 4}}) {
    const TMask mask = row.face.label(text);
    if (mask.width() <= width - row.side_room) return mask;
  }
  throw std::runtime_error(std::string("no room on the key for ") + text);
}

void draw_legend(TCanvas& canvas, const TBox& box, const TKeyLegend& legend, const TSkin& skin,
                 TColour print) {
  const bool single = decode_utf8(legend.plain).size() == 1;
  const TMask plain =
      is_large(box) && single ? typefaces().digit.label(legend.plain) : cap_label(legend.plain, box.width());
  if (!legend.beside) {
    canvas.stamp_centred(plain, box, print);
    draw_over(canvas, box, legend, skin);
    return;
  }
  const TMask blue = typefaces().label.label(legend.blue);
  canvas.stamp_centred(plain, {box.left, box.top, box.left + box.width() / 2, box.bottom}, print);
  canvas.stamp_centred(blue, {box.left + box.width() / 2 - 1, box.top, box.right, box.bottom},
                       skin.blue_on_cap);
}

void print_shift(TCanvas& canvas, const char* word, bool on, TColour colour) {
  const TMask text = typefaces().tiny.label(word);
  const int x = (SMALL_KEY_WIDTH - text.width() - lamp_on.width() - 2) / 2;
  canvas.stamp(on ? lamp_on : lamp_off, x, 6, colour);
  canvas.stamp(text, x + lamp_on.width() + 2, (SMALL_KEY_HEIGHT - text.height()) / 2, colour);
}

TCapColours glowing(const TCapColours& colours) {
  TCapColours out = colours;
  out.top = mix(colours.light, 0xFFFFFF, 0.45);
  out.bottom = colours.light;
  out.light = 0xFFFFFF;
  out.shade = colours.top;
  out.print = mix(colours.outline, 0x000000, 0.2);
  return out;
}

void print_with_sign(TCanvas& canvas, const TBox& box, const TMask& sign, TColour sign_colour,
                     const char* word, TColour colour) {
  const TMask text = typefaces().tiny.label(word);
  const int x = box.left + (box.width() - sign.width() - 3 - text.width()) / 2;
  canvas.stamp(sign, x, box.top + (box.height() - sign.height()) / 2, sign_colour);
  canvas.stamp(text, x + sign.width() + 3, box.top + (box.height() - text.height()) / 2, colour);
}

}  // namespace art
