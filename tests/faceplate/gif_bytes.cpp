#include "faceplate/gif_bytes.h"

namespace zephyl {

namespace {

using TBytes = std::vector<std::uint8_t>;

void put(TBytes& out, int byte) { out.push_back(static_cast<std::uint8_t>(byte & 255)); }

void put_word(TBytes& out, int word) {
  put(out, word);
  put(out, word >> 8);
}

// Codes as bits, widening as a reader does: with each code but the first after a clear code an entry is made.
class TCodeBits {
 public:
  explicit TCodeBits(int code_size) : code_size_(code_size) { reset(); }

  void write(int code) {
    for (int bit = 0; bit < width_; ++bit) bits_.push_back((code >> bit & 1) != 0);
    if (code == 1 << code_size_) return reset();
    if (!first_) ++next_;
    first_ = false;
    if (next_ == 1 << width_ && width_ < 12) ++width_;
  }

  TBytes bytes() const {
    TBytes out((bits_.size() + 7) / 8);
    for (std::size_t i = 0; i < bits_.size(); ++i)
      if (bits_[i]) out[i / 8] = static_cast<std::uint8_t>(out[i / 8] | 1 << (i % 8));
    return out;
  }

 private:
  void reset() {
    next_ = (1 << code_size_) + 2;
    width_ = code_size_ + 1;
    first_ = true;
  }

  int code_size_;
  int next_ = 0;
  int width_ = 0;
  bool first_ = true;
  std::vector<bool> bits_;
};

void put_blocks(TBytes& out, const TBytes& data, int block_size) {
  const int size = static_cast<int>(data.size());
  for (int at = 0; at < size; at += block_size) {
    const int length = size - at < block_size ? size - at : block_size;
    put(out, length);
    for (int i = 0; i < length; ++i) put(out, data[static_cast<std::size_t>(at + i)]);
  }
}

}  // namespace

std::vector<std::uint8_t> TGifText::bytes() const {
  TBytes out(signature.begin(), signature.end());
  put_word(out, width);
  put_word(out, height);
  put(out, flags | (colour_bits - 1));
  put(out, 0);
  put(out, aspect);
  for (std::size_t i = 0; i < std::size_t{1} << colour_bits; ++i) {
    const TColour colour = i < colours.size() ? colours[i] : BLACK;
    for (int component : {red_of(colour), green_of(colour), blue_of(colour)}) put(out, component);
  }
  put(out, ',');
  for (int field : {left, 0, width, height}) put_word(out, field);
  put(out, image_flags);
  put(out, code_size);
  TCodeBits bits(code_size);
  for (int code : codes) bits.write(code);
  if (ends) bits.write(clear_code() + 1);
  put_blocks(out, bits.bytes(), block_size);
  if (!ends) return out;
  put(out, 0);
  put(out, ';');
  return out;
}

TGifText literal_picture(int width, int height, const std::vector<int>& pixels) {
  TGifText gif;
  gif.width = width;
  gif.height = height;
  int since_clear = 0;
  for (int pixel : pixels) {
    if (since_clear == 0) gif.codes.push_back(gif.clear_code());
    gif.codes.push_back(pixel);
    since_clear = (since_clear + 1) % (gif.clear_code() - 2);
  }
  return gif;
}

}  // namespace zephyl
