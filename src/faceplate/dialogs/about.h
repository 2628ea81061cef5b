// Dialog 160, "About".
#pragma once

namespace zephyl {

void show_about();

}  // namespace zephyl
