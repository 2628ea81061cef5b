// The title line of the window, which carries the state.
#pragma once

namespace zephyl {

void refresh_title();

}  // namespace zephyl
