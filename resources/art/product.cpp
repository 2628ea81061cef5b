#include "product.h"

#include <cstdio>
#include <fstream>
#include <stdexcept>

#include "palette.h"

namespace art {

namespace {

std::string capitals(std::string name) {
  for (char& c : name)
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  return name;
}

template <typename TValue>
void add(std::map<std::string, TValue>& to, const std::string& name, const TValue& value) {
  if (!to.emplace(capitals(name), value).second) throw std::runtime_error("two resources named " + name);
}

std::ofstream opened(const std::string& path) {
  std::ofstream file(path, std::ios::binary);
  if (!file) throw std::runtime_error("can't write " + path);
  return file;
}

void close(std::ofstream& file, const std::string& path) {
  file.close();
  if (!file) throw std::runtime_error("can't write " + path);
}

// The bits of a mask as the program's bitmaps hold them: rows of whole bytes, the leftmost pixel in the
// highest bit.
std::vector<std::uint8_t> packed(const TMask& mask) {
  std::vector<std::uint8_t> bytes;
  for (int y = 0; y < mask.height(); ++y)
    for (int x = 0; x < mask.width(); x += 8) {
      int byte = 0;
      for (int bit = 0; bit < 8; ++bit) byte = byte * 2 + (mask.ink(x + bit, y) ? 1 : 0);
      bytes.push_back(static_cast<std::uint8_t>(byte));
    }
  return bytes;
}

constexpr int NUMBERS_PER_LINE = 24;

template <typename TNumber>
void write_numbers(std::ofstream& file, const std::vector<TNumber>& numbers) {
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    const bool starts_line = i % NUMBERS_PER_LINE == 0;
    file << (starts_line ? "\n    " : " ") << static_cast<unsigned>(numbers[i]) << ",";
  }
}

std::vector<TColour> pixels_of(const TCanvas& canvas) {
  std::vector<TColour> out;
  for (int y = 0; y < canvas.height(); ++y)
    for (int x = 0; x < canvas.width(); ++x) out.push_back(canvas.at(x, y));
  return out;
}

// An array a resource: "image_0", "image_1" and so on, in the order of the names.
template <typename TValue, typename TNumbers>
void write_arrays(std::ofstream& file, const std::string& type, const std::string& kind,
                  const std::map<std::string, TValue>& values, TNumbers numbers_of) {
  int number = 0;
  for (const auto& [name, value] : values) {
    file << "\nconstexpr " << type << " " << kind << "_" << number++ << "[] = {";
    write_numbers(file, numbers_of(value));
    file << "\n};\n";
  }
}

// The table of one kind. row_of: what stands behind the name, given a value and the name of its array.
template <typename TValue, typename TRow>
void write_table(std::ofstream& file, const std::string& type, const std::string& kind,
                 const std::map<std::string, TValue>& values, TRow row_of) {
  file << "\nconst " << type << " " << kind << "_resources[] = {\n";
  int number = 0;
  for (const auto& [name, value] : values)
    file << "    {\"" << name << "\", " << row_of(value, kind + "_" + std::to_string(number++)) << "},\n";
  file << "};\nconst int " << kind << "_resource_count = " << number << ";\n";
}

template <typename TSized>
std::string sized_row(const TSized& value, const std::string& array) {
  std::string out = "{";
  out += std::to_string(value.width());
  out += ", ";
  out += std::to_string(value.height());
  out += ", ";
  return out + array + "}";
}

}  // namespace

void TProduct::add_image(const std::string& name, const TCanvas& canvas) {
  add(images_, name, make_gif(canvas));
}

void TProduct::add_skinned(const std::string& name, int skin, const TCanvas& canvas) {
  add_image(name + "_" + std::to_string(skin), canvas);
}

void TProduct::add_glyph(const std::string& name, const TMask& mask) { add(glyphs_, name, mask); }
void TProduct::add_picture(const std::string& name, const TCanvas& canvas) { add(pictures_, name, canvas); }

void TProduct::write_source(const std::string& path) const {
  std::ofstream file = opened(path);
  file << "// Written by zephyl-art from resources/art.\n#include \"faceplate/resource_tables.h\"\n\n"
       << "namespace zephyl {\n\nnamespace {\n";
  write_arrays(file, "std::uint8_t", "image", images_,
               [](const std::vector<std::uint8_t>& gif) { return gif; });
  write_arrays(file, "std::uint8_t", "glyph", glyphs_, packed);
  write_arrays(file, "TColour", "picture", pictures_, pixels_of);
  file << "\n}  // namespace\n";
  write_table(file, "TImageResource", "image", images_,
              [](const auto&, const std::string& array) { return array + ", sizeof " + array; });
  write_table(file, "TGlyphResource", "glyph", glyphs_, sized_row<TMask>);
  write_table(file, "TPictureResource", "picture", pictures_, sized_row<TCanvas>);
  file << "\n}  // namespace zephyl\n";
  close(file, path);
}

void TProduct::write_files(const std::string& folder) const {
  for (const auto& [name, bytes] : images_) {
    const std::string path = folder + "/" + name + ".gif";
    std::ofstream file = opened(path);
    file.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    close(file, path);
  }
  const std::string path = folder + "/glyphs.txt";
  std::ofstream file = opened(path);
  for (const auto& [name, mask] : glyphs_) {
    file << name << " " << mask.width() << "x" << mask.height() << "\n";
    for (int y = 0; y < mask.height(); ++y) {
      for (int x = 0; x < mask.width(); ++x) file << (mask.ink(x, y) ? '#' : '.');
      file << "\n";
    }
  }
  close(file, path);
}

}  // namespace art
