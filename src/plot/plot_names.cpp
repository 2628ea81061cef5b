#include "plot/plot_names.h"

#include "engine/state.h"
#include "plot/plot_slots.h"

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

const char* slot_label(int slot) {
  constexpr const char* surface_labels[][PLOT_SLOT_COUNT] = {
      {"X1(u,v)", "Y1(u,v)", "Z1(u,v)", "X2(u,v)", "Y2(u,v)", "Z2(u,v)"},
      {"(theta)1(u,v)", "R1(u,v)", "Z1(u,v)", "(theta)2(u,v)", "R2(u,v)", "Z2(u,v)"},
      {"(theta)1(u,v)", "(Psi)1(u,v)", "R1(u,v)", "(theta)2(u,v)", "(Psi)2(u,v)", "R2(u,v)"}};
  const TPlotVariables& plot = plot_variables;
  if (plot.plotType == PLOT_3D) return surface_labels[plot.plotType3D][slot];
  return function_slot_name(plot.plotType * PLOT_SLOT_COUNT + slot);
}

std::vector<std::string> curve_labels() {
  std::vector<std::string> labels;
  const int stride = slots_per_plot(plot_variables.plotType);
  for (int slot = 0; slot < PLOT_SLOT_COUNT; slot += stride) {
    std::string label = slot_label(slot);
    for (int i = 1; i < stride; ++i) label += std::string(", ") + slot_label(slot + i);
    labels.push_back(label);
  }
  return labels;
}

}  // namespace zephyl
