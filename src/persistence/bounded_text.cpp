#include "persistence/bounded_text.h"

#include <cstdio>
#include <cstring>

#include "platform/platform.h"

namespace zephyl {

namespace {

bool refuse(char* to, std::size_t capacity, std::size_t length, const char* title) {
  to[0] = 0;
  char text[100];
  std::snprintf(text, sizeof text, "Dest length is shorter than source length (%d <= %d)",
                static_cast<int>(capacity), static_cast<int>(length));
  platform().show_message(text, title);
  return false;
}

}  // namespace

bool bounded_copy(char* to, std::size_t capacity, const char* from) {
  const std::size_t length = std::strlen(from);
  if (length >= capacity) return refuse(to, capacity, length, "strcpy problem");
  std::memcpy(to, from, length + 1);
  return true;
}

bool bounded_append(char* to, std::size_t capacity, const char* from) {
  const std::size_t old_length = std::strlen(to), length = std::strlen(from);
  if (old_length + length >= capacity) return refuse(to, capacity, old_length + length, "strcat problem");
  std::memcpy(to + old_length, from, length + 1);
  return true;
}

}  // namespace zephyl
