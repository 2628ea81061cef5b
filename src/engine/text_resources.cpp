#include "engine/text_resources.h"

namespace zephyl {

namespace {

char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool same_name(const char* a, const char* b) {
  while (*a && lower(*a) == lower(*b)) ++a, ++b;
  return lower(*a) == lower(*b);
}

}  // namespace

std::string_view text_resource(const char* name) {
  for (int i = 0; i < text_resource_count; ++i)
    if (same_name(name, text_resources[i].name)) return {text_resources[i].bytes, text_resources[i].size};
  return {};
}

}  // namespace zephyl
