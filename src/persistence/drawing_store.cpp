#include "persistence/drawing_store.h"

#include <cstdint>
#include <vector>

#include "engine/hooks.h"
#include "platform/platform.h"
#include "plot/drawing.h"

namespace zephyl {

namespace {

constexpr const char* WORK_FILE = "drawing.dat";
constexpr std::size_t GIF_LIMIT = 1 << 20;  // no drawing takes more than a fifth of it

// All up to the end; the line feed behind the line isn't part of the picture.
std::vector<std::uint8_t> read_rest(TLineReader& reader) {
  std::vector<std::uint8_t> bytes;
  int byte = reader.read_byte();
  if (byte == '\n') byte = reader.read_byte();
  for (; byte >= 0; byte = reader.read_byte())
    if (bytes.size() < GIF_LIMIT) bytes.push_back(static_cast<std::uint8_t>(byte));
  return bytes;
}

}  // namespace

void append_drawing(std::string& text) {
  if (!drawing.drawing_used || !hooks.write_picture) return;
  platform().set_wait_cursor(true);
  std::vector<std::uint8_t> bytes;
  hooks.write_picture(drawing_bitmap(), bytes);
  const std::string picture(bytes.begin(), bytes.end());
  write_file(WORK_FILE, picture);
  if (drawing_present()) text += "G: \r\n" + picture;
  platform().set_wait_cursor(false);
}

void read_drawing(TLineReader& reader) {
  const std::vector<std::uint8_t> bytes = read_rest(reader);
  drawing.drawing_used = true;
  if (hooks.read_picture) hooks.read_picture(drawing_bitmap(), bytes.data(), bytes.size());
}

}  // namespace zephyl
