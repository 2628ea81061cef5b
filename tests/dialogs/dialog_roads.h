// How each dialog of the calculator is reached: commands of the scripted driver, from a calculator in COMP_MODE that
// holds something of everything (dialog_visit.h) to the one that opens the dialog.
#pragma once

#include <string>
#include <vector>

namespace zephyl {

struct TDialogRoad {
  int id;
  std::vector<std::string> way;
};

const std::vector<TDialogRoad>& dialog_roads();

// The road to a dialog; null if it has none.
const TDialogRoad* road_to(int id);

}  // namespace zephyl
