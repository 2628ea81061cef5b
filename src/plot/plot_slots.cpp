#include "plot/plot_slots.h"

#include <algorithm>

namespace zephyl {

TTraceFunctions trace_functions;

namespace {

struct TPlotColour {
  TColour colour;
  const char* box;
};

constexpr TPlotColour plot_colours[PLOT_SLOT_COUNT] = {
    {rgb(0x00, 0x00, 0xFF), "BLUE_BOX"},   {rgb(0xFF, 0x00, 0x00), "RED_BOX"},
    {rgb(0x00, 0xD2, 0x00), "GREEN_BOX"},  {rgb(0xFF, 0x00, 0xFF), "PURPLE_BOX"},
    {rgb(0xFF, 0xC0, 0x48), "ORANGE_BOX"}, {rgb(0x13, 0xC8, 0xC0), "TEAL_BOX"},
};

// Where the slots of a type begin in function_slots.
int first_place(int plot_type) {
  if (plot_type == PLOT_3D) return FIRST_SURFACE_FUNCTION;
  return plot_type == PLOT_SCRATCH_TYPE ? SCRATCH_FUNCTION : plot_type * PLOT_SLOT_COUNT;
}

// A pair is known by its index, a triple by its first slot.
int colour_index(int plot_type, int slot) {
  const int first = slot - slot % slots_per_plot(plot_type);
  return plot_type == PLOT_PARAMETRIC ? first / 2 : first;
}

}  // namespace

TExpression& plot_slot(int plot_type, int slot) { return function_slots[first_place(plot_type) + slot]; }

bool slot_in_use(int plot_type, int slot) { return plot_slot(plot_type, slot).count > 0; }

int slots_per_plot(int plot_type) {
  if (plot_type == PLOT_3D) return 3;
  return plot_type == PLOT_PARAMETRIC ? 2 : 1;
}

bool plot_in_use(int plot_type, int slot) {
  for (int i = 0; i < slots_per_plot(plot_type); ++i)
    if (!slot_in_use(plot_type, slot + i)) return false;
  return true;
}

int slots_in_use() {
  int count = 0;
  for (int slot = 0; slot < PLOT_SLOT_COUNT; ++slot) count += slot_in_use(plot_variables.plotType, slot);
  return count;
}

bool any_slot_in_use() { return slots_in_use() > 0; }

bool plots_enabled() { return plot_variables.enablePlots && any_slot_in_use(); }

int free_plot_slot() {
  for (int slot = 0; slot < PLOT_SLOT_COUNT; ++slot)
    if (!slot_in_use(plot_variables.plotType, slot)) return slot;
  return -1;
}

TColour plot_colour(int plot_type, int slot) { return plot_colours[colour_index(plot_type, slot)].colour; }

const char* colour_box_name(int plot_type, int slot) {
  return plot_colours[colour_index(plot_type, slot)].box;
}

int trace_function() {
  const int type = plot_variables.plotType;
  const int slot = std::clamp(trace_functions.slot[type], 0, PLOT_SLOT_COUNT - 1);
  return slot - slot % slots_per_plot(type);
}

void reset_plot_slots() { trace_functions = {}; }

}  // namespace zephyl
