#include "plot/parameter_names.h"

#include "engine/state.h"
#include "plot/plot_variables.h"

namespace zephyl {

const char* parameter_name() {
  constexpr const char* names[] = {"x", "theta", "t"};
  return names[plot_variables.plotType];
}

std::string parameter_label(const std::string& word) {
  constexpr const char* units[] = {" (Rad)", " (Deg)", " (Grad)"};
  std::string label = parameter_name();
  if (!word.empty()) label += " " + word;
  return plot_variables.plotType == PLOT_POLAR ? label + units[settings.angleMode] : label;
}

}  // namespace zephyl
