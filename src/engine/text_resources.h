// The texts that are built into the program: every file under resources/texts/, found by its path there
// without the extension ("samples" for resources/texts/samples.txt). Lines end in CR LF.
#pragma once

#include <cstddef>
#include <string_view>

namespace zephyl {

struct TTextResource {
  const char* name;
  const char* bytes;  // with a 0 at the end, which `size` doesn't count
  std::size_t size;
};

// All of them, sorted by name; made at build time.
extern const TTextResource text_resources[];
extern const int text_resource_count;

// The text of that name, without regard to case; empty if there is none.
std::string_view text_resource(const char* name);

}  // namespace zephyl
