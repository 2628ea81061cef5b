#include "platform/script/key_centre.h"

#include "faceplate/key_tables.h"

namespace zephyl {

bool centre_of_key(std::int64_t number, TPoint& centre) {
  KeyRect rect;
  if (number < 0 || number > INT32_MAX || !key_rect(static_cast<int>(number), rect)) return false;
  centre = {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
  return true;
}

}  // namespace zephyl
