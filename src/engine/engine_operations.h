// The operations that need nothing but the engine's own stores and hooks.
#pragma once

namespace zephyl {

// Fills in the rows of unit conversions and of clrMem(.
void register_engine_operations();

}  // namespace zephyl
