// The expressions that plots draw: six places for each plot type, their colours, and which of them the trace
// cursor follows.
#pragma once

#include "engine/expression.h"
#include "platform/surface.h"
#include "plot/plot_variables.h"

namespace zephyl {

constexpr int PLOT_TYPE_COUNT = 4;
constexpr int PLOT_SLOT_COUNT = 6;    // of each type
constexpr int PLOT_SCRATCH_TYPE = 5;  // a type of its own with one slot: what Plot Calculate puts together

// The expression of a slot, 0 to 5, of a TPlotType, or the scratch expression for PLOT_SCRATCH_TYPE. The
// three kinds of 3D plot share theirs.
TExpression& plot_slot(int plot_type, int slot);
// True if the slot holds a token.
bool slot_in_use(int plot_type, int slot);

// Slots that make one curve or surface: 1, a pair of a parametric plot 2, a triple in 3D 3.
int slots_per_plot(int plot_type);
// True if all slots of the curve or surface that begins at `slot` are in use.
bool plot_in_use(int plot_type, int slot);

// True if any slot of the current plot type is in use.
bool any_slot_in_use();
// The same, and enablePlots is on.
bool plots_enabled();
// How many slots of the current type are in use.
int slots_in_use();

// The first slot that is free for one more expression of the current type; -1 if all are in use.
int free_plot_slot();

// The colour of the curve or surface that begins at `slot`: of the slot itself; a pair has that of its index,
// a triple that of its first slot.
TColour plot_colour(int plot_type, int slot);
// The name of the box in that colour: "BLUE_BOX".
const char* colour_box_name(int plot_type, int slot);

// The slot that the trace cursor follows, by plot type: the first of its pair or triple.
struct TTraceFunctions {
  int slot[PLOT_TYPE_COUNT] = {};
};
extern TTraceFunctions trace_functions;
// That of the current type, which always begins a pair or triple.
int trace_function();

void reset_plot_slots();

}  // namespace zephyl
