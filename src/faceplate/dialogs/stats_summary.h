// Dialog 188, "Stats Summary": all values of the statistics data.
#pragma once

namespace zephyl {

void show_stats_summary();

}  // namespace zephyl
