// PNG files as surfaces, read by libpng.
#pragma once

#include <optional>

#include "platform/surface.h"

namespace zephyl {

// Nothing where there is no such file or libpng doesn't accept it. Transparency becomes black.
std::optional<TSurface> read_png(const char* path);

}  // namespace zephyl
