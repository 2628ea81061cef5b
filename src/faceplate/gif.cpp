#include "faceplate/gif.h"

#include <algorithm>
#include <cstring>

#include "engine/state.h"
#include "faceplate/resources.h"
#include "platform/platform.h"

namespace zephyl {

namespace {

constexpr TColour TRANSPARENT_COLOUR = rgb(255, 0, 255);
constexpr TColour LEGEND_COLOUR = rgb(0, 255, 0);
constexpr int DARK_SKIN = 1;

constexpr int CODE_LIMIT = 4096;
constexpr int MAX_CODE_BITS = 12;
constexpr int END_OF_DATA = -1;
constexpr std::size_t FILE_BLOCK = 200;

// Bytes one by one, from memory or from a file.
class TByteSource {
 public:
  TByteSource(const std::uint8_t* bytes, std::size_t size) : at_(bytes), end_(bytes + size) {}
  explicit TByteSource(std::FILE* file) : at_(block_), end_(block_), file_(file) {}

  // END_OF_DATA behind the last one.
  int next() { return at_ != end_ || refill() ? *at_++ : END_OF_DATA; }

 private:
  bool refill() {
    if (!file_) return false;
    at_ = block_;
    end_ = block_ + std::fread(block_, 1, FILE_BLOCK, file_);
    return at_ != end_;
  }

  std::uint8_t block_[FILE_BLOCK];
  const std::uint8_t* at_;
  const std::uint8_t* end_;
  std::FILE* file_ = nullptr;
};

struct THeader {
  int left = 0;
  int width = 0;
  int height = 0;
  int colour_bits = 1;
  TColour colours[256] = {};
};

bool read_bytes(TByteSource& source, std::uint8_t* out, int count) {
  for (int i = 0; i < count; ++i) {
    const int byte = source.next();
    if (byte == END_OF_DATA) return false;
    out[i] = static_cast<std::uint8_t>(byte);
  }
  return true;
}

bool read_colours(TByteSource& source, THeader& header) {
  std::uint8_t entry[3];
  for (int i = 0; i < 1 << header.colour_bits; ++i) {
    if (!read_bytes(source, entry, 3)) return false;
    header.colours[i] = rgb(entry[0], entry[1], entry[2]);
  }
  return true;
}

TGifResult judge(const std::uint8_t* signature, bool has_table, int image_flags) {
  const bool old_form = std::memcmp(signature, "GIF87a", 6) == 0;
  const bool new_form = std::memcmp(signature, "GIF89a", 6) == 0;
  if (!old_form && !new_form) return GIF_NOT_GIF;
  if (new_form) return GIF_89A;
  if (!has_table) return GIF_NO_TABLE;
  if (image_flags & 0x80) return GIF_LOCAL_TABLE;
  return image_flags & 0x40 ? GIF_INTERLACED : GIF_OK;
}

// The table is read whether or not its flag is set, and the signature is judged last: that is the order in
// which the codes win.
TGifResult read_header(TByteSource& source, THeader& header) {
  std::uint8_t screen[13], image[10];
  if (!read_bytes(source, screen, 13) || screen[12] != 0) return GIF_NOT_GIF;
  header.colour_bits = (screen[10] & 7) + 1;
  if (!read_colours(source, header) || !read_bytes(source, image, 10)) return GIF_NOT_GIF;
  header.left = image[1] | image[2] << 8;
  header.width = image[5] | image[6] << 8;
  header.height = image[7] | image[8] << 8;
  return judge(screen, (screen[10] & 0x80) != 0, image[9]);
}

// Where pixels go: collects them in a strip and copies each full strip to the surface. Input rows of the
// 16-bit form are twice as wide as the picture.
class TStrip {
 public:
  TStrip(TSurface& surface, const THeader& header, int x, int y, bool transparent, bool adjust, bool pairs)
      : surface_(surface),
        width_(header.width),
        height_(header.height),
        x_(x),
        y_(y),
        transparent_(transparent),
        adjust_(adjust),
        pairs_(pairs) {
    // The first row starts at the image's left field, further ones at 0.
    first_pixel_ = count_ = std::min(header.left, width_ - 1);
    for (int i = 0; i < 256; ++i) {
      skipped_[i] = transparent && header.colours[i] == TRANSPARENT_COLOUR;
      colours_[i] = adjust ? adjusted_colour(header.colours[i]) : header.colours[i];
    }
  }

  // Room for the longest string of the code table.
  std::uint8_t* end() { return pixels_ + count_; }
  void advance(int count) {
    count_ += count;
    const int full = GIF_STRIP_ROWS * width_;
    while (count_ >= full) {
      copy(full);
      ++number_;
      count_ -= full;
      std::memmove(pixels_, pixels_ + full, static_cast<std::size_t>(count_));
    }
  }
  void finish() { copy(count_); }
  bool complete() const { return number_ * GIF_STRIP_ROWS >= height_; }

 private:
  void copy(int count);
  void copy_row(TColour* to, const std::uint8_t* from, int first, int last) const;
  void copy_paired_row(TColour* to, const std::uint8_t* from, int first, int last) const;

  TSurface& surface_;
  int width_, height_, x_, y_;
  bool transparent_, adjust_, pairs_;
  int number_ = 0;       // strips copied
  int count_ = 0;        // pixels collected
  int first_pixel_ = 0;  // of the first strip
  bool skipped_[256];
  TColour colours_[256];
  std::uint8_t pixels_[2 * GIF_STRIP_WIDTH * GIF_STRIP_ROWS + CODE_LIMIT];
};

void TStrip::copy(int count) {
  const int pixel_width = pairs_ ? 2 : 1;
  for (int row = 0; row * width_ < count; ++row) {
    const int y = number_ * GIF_STRIP_ROWS + row;
    if (y >= height_ || y + y_ >= surface_.height()) return;
    if (y + y_ < 0) continue;
    const int start = number_ == 0 && row == 0 ? (first_pixel_ + pixel_width - 1) / pixel_width : 0;
    const int first = std::max(start, -x_);
    const int last = std::min({count - row * width_, width_}) / pixel_width;
    const auto copy_pixels = pairs_ ? &TStrip::copy_paired_row : &TStrip::copy_row;
    (this->*copy_pixels)(surface_.row(y + y_), pixels_ + row * width_, first,
                         std::min(last, surface_.width() - x_));
  }
}

void TStrip::copy_row(TColour* to, const std::uint8_t* from, int first, int last) const {
  if (!transparent_) {
    for (int x = first; x < last; ++x) to[x_ + x] = colours_[from[x]];
    return;
  }
  for (int x = first; x < last; ++x)
    if (!skipped_[from[x]]) to[x_ + x] = colours_[from[x]];
}

void TStrip::copy_paired_row(TColour* to, const std::uint8_t* from, int first, int last) const {
  for (int x = first; x < last; ++x) {
    const int v = from[2 * x] + 256 * from[2 * x + 1];
    // None of these is pure magenta: nothing is transparent.
    const TColour colour = rgb((v & 31) << 3, ((v >> 5) & 63) << 2, (v >> 8) & 248);
    to[x_ + x] = adjust_ ? adjusted_colour(colour) : colour;
  }
}

// Codes of the LZW stream, least significant bit first, across the sub-blocks.
class TCodeReader {
 public:
  explicit TCodeReader(TByteSource& source) : source_(source) {}

  // END_OF_DATA at the empty sub-block (then `closed`) or where the bytes stop.
  int next(int bits) {
    while (held_ < bits) {
      const int byte = next_byte();
      if (byte == END_OF_DATA) return END_OF_DATA;
      buffer_ |= static_cast<unsigned>(byte) << held_;
      held_ += 8;
    }
    const unsigned code = buffer_ & ((1u << bits) - 1);
    buffer_ >>= bits;
    held_ -= bits;
    return static_cast<int>(code);
  }
  bool closed() const { return closed_; }

 private:
  int next_byte() {
    if (left_ == 0) {
      left_ = source_.next();
      closed_ = left_ == 0;
      if (left_ <= 0) return END_OF_DATA;
    }
    --left_;
    return source_.next();
  }

  TByteSource& source_;
  unsigned buffer_ = 0;
  int held_ = 0;  // bits in the buffer
  int left_ = 0;  // bytes in the sub-block
  bool closed_ = false;
};

// The strings of the code table. Codes up to the colour mask are literals, whatever the clear code is.
class TCodeTable {
 public:
  TCodeTable(int code_size, int colour_bits) : clear_(1 << code_size), mask_((1 << colour_bits) - 1) {
    for (int code = 0; code < std::max(mask_ + 1, clear_ + 2); ++code) {
      suffix_[code] = static_cast<std::uint8_t>(code & mask_);
      length_[code] = 1;
    }
    reset();
  }

  void reset() {
    next_ = clear_ + 2;
    limit_ = 2 * clear_;
    bits_ = 1;
    while (1 << bits_ < limit_) ++bits_;
    previous_ = END_OF_DATA;
  }

  int clear_code() const { return clear_; }
  int end_code() const { return clear_ + 1; }
  int bits() const { return bits_; }

  // Writes the string of a code and enters the one that follows from it; returns how many pixels were
  // written.
  int expand(int code, std::uint8_t* out) {
    if (previous_ == END_OF_DATA) return start(code, out);
    const bool unknown = code >= next_;
    int length = write(unknown ? previous_ : code, out);
    if (unknown) out[length++] = out[0];
    enter(out[0]);
    previous_ = unknown ? newest_ : code;
    return length;
  }

 private:
  int start(int code, std::uint8_t* out) {
    previous_ = code & mask_;
    out[0] = static_cast<std::uint8_t>(previous_);
    return 1;
  }

  int write(int code, std::uint8_t* out) const {
    const int length = length_[code];
    for (int at = length - 1; at > 0; --at) {
      out[at] = suffix_[code];
      code = prefix_[code];
    }
    out[0] = suffix_[code];
    return length;
  }

  void enter(std::uint8_t suffix) {
    newest_ = std::min(next_, CODE_LIMIT - 1);
    if (next_ == CODE_LIMIT) return;
    if (next_ > mask_) {
      prefix_[next_] = static_cast<std::uint16_t>(previous_);
      suffix_[next_] = suffix;
      length_[next_] = static_cast<std::uint16_t>(length_[previous_] + 1);
    }
    if (++next_ != limit_ || bits_ == MAX_CODE_BITS) return;
    limit_ *= 2;
    ++bits_;
  }

  int clear_, mask_;
  int next_ = 0, limit_ = 0, bits_ = 0;
  int previous_ = END_OF_DATA, newest_ = 0;
  std::uint16_t prefix_[CODE_LIMIT];
  std::uint16_t length_[CODE_LIMIT];
  std::uint8_t suffix_[CODE_LIMIT];
};

TGifResult decode_pixels(TByteSource& source, const THeader& header, TStrip& strip) {
  const int code_size = source.next();
  if (code_size < 1 || code_size >= MAX_CODE_BITS) return GIF_NOT_GIF;
  TCodeTable table(code_size, header.colour_bits);
  TCodeReader codes(source);
  while (!strip.complete()) {
    const int code = codes.next(table.bits());
    if (code == END_OF_DATA && !codes.closed()) return GIF_NOT_GIF;
    if (code == END_OF_DATA || code == table.end_code()) break;
    if (code == table.clear_code())
      table.reset();
    else
      strip.advance(table.expand(code, strip.end()));
  }
  strip.finish();
  return GIF_OK;
}

TGifResult draw(TSurface& surface, TByteSource& source, int x, int y, bool transparent, bool adjust,
                bool pairs) {
  THeader header;
  const TGifResult result = read_header(source, header);
  if (result != GIF_OK) return result;
  if (header.width > (pairs ? 2 * GIF_STRIP_WIDTH : GIF_STRIP_WIDTH)) return GIF_NOT_GIF;
  if (header.width == 0) return GIF_OK;
  TStrip strip(surface, header, x, y, transparent, adjust, pairs);
  return decode_pixels(source, header, strip);
}

TGifResult with_message(TGifResult result) {
  if (result != GIF_OK) platform().show_message("Gif load error", "Gif");
  return result;
}

int brightened(int channel, int shift) { return std::clamp(channel + shift, 0, 255); }

// Half of what the brightness differs from the neutral one. The settings may hold any number: far out every
// colour is black or white.
int brightness_shift() { return (std::clamp(settings.brightness, -1024, 1024) - 128) >> 1; }

}  // namespace

TColour adjusted_colour(TColour colour) {
  if (colour == TRANSPARENT_COLOUR) return WHITE;
  if (colour == LEGEND_COLOUR) colour = settings.skin == DARK_SKIN ? WHITE : BLACK;
  const int shift = brightness_shift();
  return rgb(brightened(red_of(colour), shift), brightened(green_of(colour), shift),
             brightened(blue_of(colour), shift));
}

TGifResult draw_gif(TSurface& surface, const std::uint8_t* bytes, std::size_t size, int x, int y,
                    bool transparent, bool adjust) {
  TByteSource source(bytes, size);
  return draw(surface, source, x, y, transparent, adjust, false);
}

TGifResult draw_gif_resource(TSurface& surface, const char* name, int x, int y, bool transparent,
                             bool adjust) {
  const TImageResource* image = find_image(name);
  if (!image) {
    char text[120];
    std::snprintf(text, sizeof text, "GIF resource not found: '%s'", name);
    platform().show_message(text, "Resource Error");
    return GIF_NOT_FOUND;
  }
  return with_message(draw_gif(surface, image->bytes, image->size, x, y, transparent, adjust));
}

TGifResult draw_gif_file(TSurface& surface, std::FILE* file, int x, int y, bool transparent, bool adjust) {
  TByteSource source(file);
  return with_message(draw(surface, source, x, y, transparent, adjust, true));
}

TGifResult draw_gif_pairs(TSurface& surface, const std::uint8_t* bytes, std::size_t size) {
  TByteSource source(bytes, size);
  return with_message(draw(surface, source, 0, 0, false, false, true));
}

}  // namespace zephyl
