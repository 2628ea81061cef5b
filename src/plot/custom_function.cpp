#include "plot/custom_function.h"

#include "engine/backup.h"
#include "engine/compiler.h"
#include "engine/errors.h"
#include "engine/evaluator.h"
#include "engine/hooks.h"
#include "engine/memory.h"
#include "engine/state.h"
#include "platform/platform.h"

namespace zephyl {

int plot_error_code = UNDEFINED_WITHOUT_ERROR;
bool plot_cancelled = false;

namespace {

TCompiled compiled;  // the slot of the run that has begun

// The variables of a type; one without a second parameter has NO_SLOT for it.
struct TParameters {
  int first;
  int second;
};

constexpr TParameters parameters[PLOT_SCRATCH_TYPE + 1] = {{SLOT_X, NO_SLOT},  {SLOT_THETA, NO_SLOT},
                                                           {SLOT_T, NO_SLOT},  {SLOT_U, SLOT_V},
                                                           {NO_SLOT, NO_SLOT}, {SLOT_X, NO_SLOT}};

bool is_known(int plot_type) {
  return plot_type >= 0 && plot_type <= PLOT_SCRATCH_TYPE && parameters[plot_type].first != NO_SLOT;
}

double undefined_by(int code) {
  plot_error_code = code;
  return undefined_value;
}

double report_bug(const char* text) {
  platform().show_message(text, "Bug (custom_function)");
  return undefined_by(UNDEFINED_WITHOUT_ERROR);
}

void begin_run(int plot_type, int slot) {
  if (!state.program_running) hooks.evaluation_begins();
  back_up();
  compile_expression(plot_slot(plot_type, slot), compiled);
  back_up_for(compiled);
  clear_error();
}

double value_of_sample() {
  if (errors.error_flag && errors.error_code == ERR_CANCELED) plot_cancelled = true;
  const TRegister& result = registers[0];
  if (result.type != TYPE_NUMBER || !is_real(result.value)) return undefined_by(ERR_DATA_TYPE);
  return errors.error_flag ? undefined_by(errors.error_code) : result.value.re;
}

double take_sample(int plot_type, double parameter1, double parameter2) {
  memory_array[parameters[plot_type].first] = {parameter1, 0.0};
  if (parameters[plot_type].second != NO_SLOT) memory_array[parameters[plot_type].second] = {parameter2, 0.0};
  run_sample(compiled);
  const double value = value_of_sample();
  if (errors.error_flag) clear_error();
  return value;
}

}  // namespace

double custom_function(int plot_type, double parameter1, double parameter2, int slot, int phase) {
  if (!is_known(plot_type)) return report_bug("Undefined Plot Type");
  switch (phase) {
    case PHASE_BEGIN:
      begin_run(plot_type, slot);
      return 0.0;
    case PHASE_SAMPLE:
      return take_sample(plot_type, parameter1, parameter2);
    case PHASE_END:
      bring_back();
      return 0.0;
    default:
      return report_bug("Undefined Plot Function Type");
  }
}

double evaluate_plot_function(int plot_type, double parameter1, double parameter2, int slot) {
  if (is_known(plot_type) && !slot_in_use(plot_type, slot)) return undefined_by(UNDEFINED_WITHOUT_ERROR);
  if (!is_known(plot_type)) return report_bug("Undefined Plot Type");
  custom_function(plot_type, 0.0, 0.0, slot, PHASE_BEGIN);
  const double value = custom_function(plot_type, parameter1, parameter2, slot, PHASE_SAMPLE);
  custom_function(plot_type, 0.0, 0.0, slot, PHASE_END);
  return value;
}

TPlotNumber plot_number(int plot_type, double parameter, int slot) {
  const double value = evaluate_plot_function(plot_type, parameter, 0.0, slot);
  return {value, plot_error_code};
}

bool samples_are_quick() { return compiled.all_plain; }

}  // namespace zephyl
