// How each dialog of the calculator is reached: commands of the scripted driver, from a calculator in COMP_MODE that
// holds something of everything (dialog_visit.h) to the one that opens the dialog.
#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace zephyl {

struct TDialogRoad {
  int id;
  std::vector<std::string> way;

  // As a test's parameter it goes by its number.
  friend void PrintTo(const TDialogRoad& road, std::ostream* out) { *out << "dialog " << road.id; }
};

const std::vector<TDialogRoad>& dialog_roads();

// The road to a dialog; null if it has none.
const TDialogRoad* road_to(int id);

}  // namespace zephyl
