// Puts the parts together. Every program calls register_families once, before on_start.
#pragma once

namespace zephyl {

void register_families();

}  // namespace zephyl
