// zephyl-icons: draws the program's icon.
//
//   zephyl-icons FOLDER SIZE...
//
// FOLDER, which must exist, gets a file SIZE.png for each size.

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>

#include "icons/icon.h"
#include "platform/script/png_bytes.h"

namespace {

bool write_icon(const std::string& folder, int size) {
  const auto png = zephyl::png_of(size, size, zephyl::PNG_RGBA, art::icon(size));
  std::ofstream file(folder + "/" + std::to_string(size) + ".png", std::ios::binary);
  file.write(reinterpret_cast<const char*>(png.data()), static_cast<std::streamsize>(png.size()));
  return static_cast<bool>(file.flush());
}

}  // namespace

int main(int count, char** arguments) {
  if (count < 3) {
    std::fprintf(stderr, "usage: zephyl-icons FOLDER SIZE...\n");
    return 2;
  }
  for (int i = 2; i < count; ++i) {
    const int size = std::atoi(arguments[i]);
    if (size < 16 || size > 1024 || !write_icon(arguments[1], size)) {
      std::fprintf(stderr, "zephyl-icons: no icon of %s pixels in %s\n", arguments[i], arguments[1]);
      return 1;
    }
  }
  return 0;
}
