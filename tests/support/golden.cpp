#include "support/golden.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <optional>

#include "platform/script/png_writer.h"
#include "platform/surface.h"
#include "support/png_reader.h"

namespace zephyl {

namespace {

constexpr TColour MARK = rgb(255, 0, 0);

std::string golden_path(const std::string& name) { return PICTURES_FOLDER "/" + name + ".png"; }
std::string actual_path(const std::string& name) { return DIFFERENCES_FOLDER "/" + name + ".actual.png"; }
std::string marked_path(const std::string& name) { return DIFFERENCES_FOLDER "/" + name + ".difference.png"; }

// Light enough for the mark to stand out.
TColour faded(TColour colour) {
  const int grey = 160 + (red_of(colour) + green_of(colour) + blue_of(colour)) / 8;
  return rgb(grey, grey, grey);
}

struct TDifference {
  int pixels = 0;
  TRect rect = {1 << 20, 1 << 20, -1, -1};  // that holds them all

  void add(int x, int y) {
    ++pixels;
    rect = {std::min(rect.left, x), std::min(rect.top, y), std::max(rect.right, x), std::max(rect.bottom, y)};
  }
};

TDifference mark_differences(const TSurface& golden, const TSurface& actual, TSurface& marked) {
  TDifference difference;
  for (int y = 0; y < golden.height(); ++y)
    for (int x = 0; x < golden.width(); ++x) {
      const bool same = golden.pixel(x, y) == actual.pixel(x, y);
      marked.set_pixel(x, y, same ? faded(golden.pixel(x, y)) : MARK);
      if (!same) difference.add(x, y);
    }
  return difference;
}

std::string size_text(const TSurface& surface) {
  return std::to_string(surface.width()) + " by " + std::to_string(surface.height());
}

std::string text_of(const TDifference& difference) {
  const TRect& rect = difference.rect;
  return std::to_string(difference.pixels) + " pixels differ, within " + std::to_string(rect.left) + ", " +
         std::to_string(rect.top) + " to " + std::to_string(rect.right) + ", " + std::to_string(rect.bottom);
}

bool write_picture(const TSurface& surface, const std::string& path) {
  std::error_code ignored;
  std::filesystem::create_directories(DIFFERENCES_FOLDER, ignored);
  return write_png(surface, path.c_str());
}

// What is wrong, in words; empty where nothing is. Writes the marked picture where the sizes agree.
std::string compare(const std::string& name, const TSurface& actual) {
  const std::optional<TSurface> golden = read_png(golden_path(name).c_str());
  if (!golden) return "there is no golden picture " + golden_path(name);
  if (golden->width() != actual.width() || golden->height() != actual.height())
    return "it is " + size_text(actual) + ", the golden one " + size_text(*golden);
  TSurface marked(actual.width(), actual.height());
  const TDifference difference = mark_differences(*golden, actual, marked);
  if (difference.pixels == 0) return "";
  write_picture(marked, marked_path(name));
  return text_of(difference) + ": " + marked_path(name);
}

}  // namespace

void forget_painted_picture(const std::string& name) {
  std::error_code ignored;
  for (const std::string& path : {actual_path(name), marked_path(name)})
    std::filesystem::remove(path, ignored);
}

void expect_picture(const std::string& name, const TSurface& surface) {
  forget_painted_picture(name);
  const std::string wrong = compare(name, surface);
  if (wrong.empty()) return;
  EXPECT_TRUE(write_picture(surface, actual_path(name))) << actual_path(name);
  ADD_FAILURE() << "picture " << name << ": " << wrong << "\nIt was painted as " << actual_path(name)
                << "\nIf it is right, tests/renew-pictures.sh makes it the golden one.";
}

}  // namespace zephyl
