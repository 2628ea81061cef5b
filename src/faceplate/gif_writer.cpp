#include "faceplate/gif_writer.h"

#include <algorithm>
#include <cstdio>
#include <iterator>

namespace zephyl {

namespace {

constexpr int CODE_LIMIT = 4096;
constexpr int MAX_CODE_BITS = 12;
constexpr int HASH_SIZE = 9973;
constexpr int HASH_STEP = 2039;
constexpr int FREE = 65535;
constexpr int MAX_BLOCK = 255;

// The picture being written, to a file or into memory.
struct TOutput {
  std::FILE* file = nullptr;
  std::vector<std::uint8_t>* memory = nullptr;
  bool failed = false;
  int width = 0;
  int height = 0;
  int colours = 0;
  int bits_per_pixel = 8;
  std::uint8_t table[256][3] = {};
} output;

void put(int byte) {
  if (output.memory)
    output.memory->push_back(static_cast<std::uint8_t>(byte));
  else if (!output.file || std::fputc(byte, output.file) == EOF)
    output.failed = true;
}

void put_word(int word) {
  put(word & 255);
  put(word >> 8 & 255);
}

TGifWriteResult result() { return output.failed ? GIF_WRITE_FAILED : GIF_WRITTEN; }

// The smallest b, at least 1, with 2 to the b at least n.
int bit_length(int n) {
  int bits = 1;
  while (1 << bits < n) ++bits;
  return bits;
}

// Bits, least significant first, in sub-blocks of at most 255 bytes.
class TBitWriter {
 public:
  void write(int code, int bits) {
    buffer_ |= static_cast<unsigned>(code) << held_;
    held_ += bits;
    for (; held_ >= 8; held_ -= 8) add_byte();
  }
  void flush() {
    if (held_ > 0) add_byte();
    end_block();
  }

 private:
  void add_byte() {
    block_[count_++] = static_cast<std::uint8_t>(buffer_ & 255);
    buffer_ >>= 8;
    if (count_ == MAX_BLOCK) end_block();
  }
  void end_block() {
    if (count_ == 0) return;
    put(count_);
    for (int i = 0; i < count_; ++i) put(block_[i]);
    count_ = 0;
  }

  unsigned buffer_ = 0;
  int held_ = 0;
  int count_ = 0;
  std::uint8_t block_[MAX_BLOCK];
};

class TEncoder {
 public:
  explicit TEncoder(int code_size) : code_size_(code_size), clear_(1 << code_size) { reset(); }

  void encode(TGifPixelSource source, void* context, int pixels) {
    emit(clear_);
    int prefix = pixels > 0 ? source(context) : FREE;
    for (int i = 1; i < pixels; ++i) {
      const int pixel = source(context);
      const int place = find(prefix, pixel);
      if (hash_[place] != FREE) {
        prefix = hash_[place];
        continue;
      }
      emit(prefix);
      insert(place, prefix, pixel);
      prefix = pixel;
    }
    if (prefix != FREE) finish(prefix);
    emit(clear_ + 1);
    bits_out_.flush();
  }

 private:
  void emit(int code) { bits_out_.write(code, bits_); }

  void reset() {
    std::fill(std::begin(hash_), std::end(hash_), static_cast<std::uint16_t>(FREE));
    next_ = clear_ + 2;
    bits_ = code_size_ + 1;
  }

  // The place of the pair, or the free one where it belongs.
  int find(int prefix, int suffix) const {
    int place = (suffix * 256 ^ prefix) % HASH_SIZE;
    while (hash_[place] != FREE && (prefix_[hash_[place]] != prefix || suffix_[hash_[place]] != suffix))
      place = (place + HASH_STEP) % HASH_SIZE;
    return place;
  }

  bool must_widen() const { return next_ >= 1 << bits_; }

  void insert(int place, int prefix, int suffix) {
    if (must_widen() && bits_ == MAX_CODE_BITS) {
      emit(clear_);
      return reset();
    }
    if (must_widen()) ++bits_;
    hash_[place] = static_cast<std::uint16_t>(next_);
    prefix_[next_] = static_cast<std::uint16_t>(prefix);
    suffix_[next_] = static_cast<std::uint8_t>(suffix);
    ++next_;
  }

  // The reader enters a string behind the last prefix too, and widens its codes for it.
  void finish(int prefix) {
    emit(prefix);
    if (must_widen() && bits_ < MAX_CODE_BITS) ++bits_;
  }

  int code_size_, clear_;
  int next_ = 0, bits_ = 0;
  TBitWriter bits_out_;
  std::uint16_t hash_[HASH_SIZE];
  std::uint16_t prefix_[CODE_LIMIT];
  std::uint8_t suffix_[CODE_LIMIT];
};

void begin(int width, int height, int colours, int bits_per_pixel) {
  output.failed = false;
  output.width = width;
  output.height = height;
  output.colours = colours;
  output.bits_per_pixel = bits_per_pixel;
  for (auto& entry : output.table) std::fill(std::begin(entry), std::end(entry), std::uint8_t{0});
  for (const char* p = "GIF87a"; *p; ++p) put(*p);
  put_word(width);
  put_word(height);
  put((colours > 0 ? 128 | (bit_length(colours) - 1) : 0) | (bits_per_pixel - 1) << 4);
  put(0);  // background
  put(0);  // aspect
}

void write_table() {
  for (int i = 0; i < output.colours; ++i)
    for (int component : output.table[i]) put(component);
}

void write_descriptor() {
  put(',');
  put_word(0);
  put_word(0);
  put_word(output.width);
  put_word(output.height);
  put(0);
}

}  // namespace

TGifWriteResult gif_open_for_write(const char* path, int width, int height, int colours, int bits_per_pixel) {
  output.memory = nullptr;
  output.file = std::fopen(path, "wb");
  if (!output.file) return GIF_OPEN_FAILED;
  begin(width, height, colours, bits_per_pixel);
  return result();
}

void gif_open_in_memory(std::vector<std::uint8_t>& bytes, int width, int height, int colours,
                        int bits_per_pixel) {
  output.file = nullptr;
  output.memory = &bytes;
  bytes.clear();
  begin(width, height, colours, bits_per_pixel);
}

void gif_set_colour(int index, int red, int green, int blue) {
  if (index < 0 || index >= output.colours) return;
  const int full = (1 << output.bits_per_pixel) - 1;
  const int components[] = {red, green, blue};
  for (int i = 0; i < 3; ++i) output.table[index][i] = static_cast<std::uint8_t>(components[i] * 255 / full);
}

TGifWriteResult gif_write_image(TGifPixelSource source, void* context) {
  write_table();
  write_descriptor();
  const int code_size = std::max(bit_length(output.colours), 2);
  put(code_size);
  TEncoder(code_size).encode(source, context, output.width * output.height);
  put(0);
  return result();
}

TGifWriteResult gif_close() {
  put(';');
  if (output.file && std::fclose(output.file) != 0) output.failed = true;
  output.file = nullptr;
  output.memory = nullptr;
  return result();
}

}  // namespace zephyl
