#include "faceplate/title.h"

#include "platform/platform.h"

namespace zephyl {

void refresh_title() { platform().set_title("Zephyl"); }

}  // namespace zephyl
