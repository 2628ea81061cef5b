// The functions between the statistics columns and lists.
#pragma once

namespace zephyl {

// listToX(, listToY(, XtoList(), YtoList(). Called by register_stats.
void register_stats_lists();

}  // namespace zephyl
