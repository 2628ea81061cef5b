// Dialog 220, "Select Test": the comparisons and the logic operations.
#pragma once

namespace zephyl {

// The token of the chosen test; -1 on Cancel.
int choose_test();

}  // namespace zephyl
