// What the numerics folder registers with the engine.
#pragma once

namespace zephyl {

// Fills in the rows of the scalar operations: arithmetic, roots, powers, trigonometry, rounding, comparisons,
// logic, base-n integers, randSeed( and Error(.
void register_scalar_operations();

}  // namespace zephyl
