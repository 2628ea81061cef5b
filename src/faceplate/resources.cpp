#include "faceplate/resources.h"

#include <cstdio>
#include <cstring>

#include "engine/state.h"
#include "faceplate/resource_tables.h"
#include "platform/platform.h"

namespace zephyl {

namespace {

constexpr int MISSING_GLYPH = 255;
constexpr int MAX_NAME = 40;
constexpr int SKIN_COUNT = 3;

int upper(char c) { return c >= 'a' && c <= 'z' ? c - 'a' + 'A' : static_cast<unsigned char>(c); }

// Below, equal to or above 0 as the name stands before, at or behind an upper-case one.
int compare_names(const char* name, const char* upper_name) {
  while (*name && upper(*name) == static_cast<unsigned char>(*upper_name)) ++name, ++upper_name;
  return upper(*name) - static_cast<unsigned char>(*upper_name);
}

template <typename TRow>
const TRow* find_row(const TRow* rows, int count, const char* name) {
  int first = 0, last = count - 1;
  while (first <= last) {
    const int middle = (first + last) / 2;
    const int order = compare_names(name, rows[middle].name);
    if (order == 0) return &rows[middle];
    if (order < 0)
      last = middle - 1;
    else
      first = middle + 1;
  }
  return nullptr;
}

void report_missing_bitmap(const char* name) {
  char text[120];
  std::snprintf(text, sizeof text, "Bitmap not found: '%s'", name);
  platform().show_message(text, "Bitmap Error");
}

// The glyphs of U_ASCII_0 to U_ASCII_255; null without one. Looked up once.
const TBitmap* const* character_glyphs() {
  static const TBitmap* glyphs[256];
  static bool known = false;
  if (known) return glyphs;
  for (int code = 0; code < 256; ++code) {
    char name[MAX_NAME];
    std::snprintf(name, sizeof name, "U_ASCII_%d", code);
    glyphs[code] = find_glyph(name);
  }
  known = true;
  return glyphs;
}

char shared_name[MAX_NAME];

const char* character_name(const char* form, int value) {
  std::snprintf(shared_name, sizeof shared_name, form, value);
  return shared_name;
}

const char* plain_name(unsigned char character) {
  return character_name("U_ASCII_%d", character_glyphs()[character] ? character : MISSING_GLYPH);
}

constexpr int THETA = 151;

// Null for a character without a special name in numbers.
const char* number_name(unsigned char character) {
  if (character >= '0' && character <= '9') return character_name("%d_dig", character - '0');
  if (character == '.') return "decimal";
  if (character == ',') return "U_ASCII_44";
  if (character == '_') return "underline";
  return character == THETA ? "U_ASCII_151" : nullptr;
}

const char* base_name(unsigned char character) {
  if (character >= 'A' && character <= 'F') return character_name("hex_%c", character);
  switch (character) {
    case 'b':
      return "base_bin";
    case 'd':
      return "base_dec";
    case 'h':
      return "base_hex";
    case 'o':
      return "base_oct";
    default:
      return nullptr;
  }
}

struct TWidthCache {
  static constexpr int CAPACITY = 200;
  static constexpr int NAME_SIZE = 15;
  struct TEntry {
    char name[NAME_SIZE + 1];
    std::uint8_t length;
    std::int16_t width;
  };
  TEntry entries[CAPACITY];
  int count = 0;

  // The last characters differ more often than the first: most names begin with "U_ASCII_".
  const TEntry* find(const char* name, std::size_t length) const {
    for (int i = 0; i < count; ++i) {
      const TEntry& entry = entries[i];
      if (entry.length == length && entry.name[length - 1] == name[length - 1] &&
          std::strcmp(entry.name, name) == 0)
        return &entry;
    }
    return nullptr;
  }

  void add(const char* name, std::size_t length, int width) {
    if (count == CAPACITY || length > NAME_SIZE) return;
    TEntry& entry = entries[count++];
    std::strcpy(entry.name, name);
    entry.length = static_cast<std::uint8_t>(length);
    entry.width = static_cast<std::int16_t>(width);
  }
} width_cache;

TColour inverse(TColour colour) { return ~colour & WHITE; }

void blit_picture(TSurface& surface, const TPicture& picture, int x, int y, bool inverted) {
  for (int row = 0; row < picture.height; ++row)
    for (int column = 0; column < picture.width; ++column) {
      const TColour colour = picture.pixels[row * picture.width + column];
      surface.set_pixel(x + column, y + row, inverted ? inverse(colour) : colour);
    }
}

}  // namespace

const TImageResource* find_image(const char* name) {
  return find_row(image_resources, image_resource_count, name);
}

const TBitmap* find_glyph(const char* name) {
  const TGlyphResource* row = find_row(glyph_resources, glyph_resource_count, name);
  return row ? &row->bitmap : nullptr;
}

const TPicture* find_picture(const char* name) {
  const TPictureResource* row = find_row(picture_resources, picture_resource_count, name);
  return row ? &row->picture : nullptr;
}

const char* skinned_name(const char* name) {
  static char skinned[MAX_NAME];
  const int skin = settings.skin > 0 && settings.skin < SKIN_COUNT ? settings.skin : 0;
  std::snprintf(skinned, sizeof skinned, "%s_%d", name, skin);
  return skinned;
}

const TBitmap* load_bitmap(const char* name) {
  const TBitmap* bitmap = find_glyph(name);
  if (!bitmap) report_missing_bitmap(name);
  return bitmap;
}

void blit_bitmap(TSurface& surface, const char* name, int x, int y, bool inverted) {
  if (const TPicture* picture = find_picture(name)) return blit_picture(surface, *picture, x, y, inverted);
  const TBitmap* bitmap = load_bitmap(name);
  if (!bitmap) return;
  const TColour ink = inverted ? WHITE : BLACK;
  surface.fill({x, y, x + bitmap->width - 1, y + bitmap->height - 1}, inverse(ink));
  surface.blit_glyph(*bitmap, x, y, ink);
}

const char* glyph_name_of_char(unsigned char character, bool numeric) {
  if (!numeric) return plain_name(character);
  const char* special = number_name(character);
  if (!special) special = base_name(character);
  return special ? special : plain_name(character);
}

const char* glyph_name_of_result_char(unsigned char character) {
  const char* special = number_name(character);
  return special ? special : plain_name(character);
}

const char* glyph_name(const char* name, bool numeric) {
  const bool single = name[0] && !name[1];
  return single ? glyph_name_of_char(static_cast<unsigned char>(name[0]), numeric) : name;
}

int glyph_width(const char* name) {
  const std::size_t length = std::strlen(name);
  if (length == 0) return 0;
  if (const TWidthCache::TEntry* entry = width_cache.find(name, length)) return entry->width;
  const TBitmap* bitmap = load_bitmap(name);
  if (!bitmap) return 0;
  width_cache.add(name, length, bitmap->width);
  return bitmap->width;
}

const TBitmap& character_glyph(unsigned char character) {
  const TBitmap* const* glyphs = character_glyphs();
  return *glyphs[glyphs[character] ? character : MISSING_GLYPH];
}

}  // namespace zephyl
