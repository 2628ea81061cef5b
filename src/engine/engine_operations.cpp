#include "engine/engine_operations.h"

#include "engine/hooks.h"
#include "engine/memory.h"
#include "engine/operations.h"
#include "engine/state.h"

namespace zephyl {

namespace {

double convert(double x, const TUnit& from, const TUnit& to) {
  return (x - from.offset) * (from.factor / to.factor) + to.offset;
}

// Offsets apply to both parts: 0 degrees Celsius have an imaginary part in kelvin. With real results there is none, nor
// in a plot.
void run_conversion(TScalarCall& call) {
  const TStep& step = *call.step;
  const int to_code =
      step.unit_by_position ? hooks.unit_at_position(step.unit_from, step.unit_to) : step.unit_to;
  const TUnit* from = hooks.unit_by_code(step.unit_from);
  const TUnit* to = hooks.unit_by_code(to_code);
  call.result = call.args[0];
  if (!from || !to) return;
  const bool real_only = settings.complexFormat == ST_REAL || call.plotting;
  call.result = {convert(call.args[0].re, *from, *to), real_only ? 0.0 : convert(call.args[0].im, *from, *to)};
}

void run_clr_mem(TScalarCall& call) {
  call.result = {};
  clear_items(call.args[0].re);
}

}  // namespace

void register_engine_operations() {
  operations[OP_CONVERSION].scalar = run_conversion;
  operations[OP_CLR_MEM].scalar = run_clr_mem;
}

}  // namespace zephyl
