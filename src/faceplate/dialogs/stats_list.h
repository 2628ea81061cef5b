// Dialog 169, "Stats List": the statistics data, row by row.
#pragma once

namespace zephyl {

void show_stats_rows();

}  // namespace zephyl
