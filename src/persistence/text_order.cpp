#include "persistence/text_order.h"

namespace zephyl {

namespace {

int lower(char character) {
  const int code = static_cast<unsigned char>(character);
  return code >= 'A' && code <= 'Z' ? code - 'A' + 'a' : code;
}

}  // namespace

int compare_ignoring_case(const char* a, const char* b) {
  while (*a && lower(*a) == lower(*b)) ++a, ++b;
  return lower(*a) - lower(*b);
}

}  // namespace zephyl
