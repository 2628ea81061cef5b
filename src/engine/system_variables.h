// The 39 system variables of expressions: a row a variable, with its reader and its writer, filled in by the
// owner of the value.
#pragma once

#include "engine/values.h"

namespace zephyl {

enum TSystemVariable {
  VAR_ANGLE_MODE = 0,
  VAR_BASE_BITS,
  VAR_BASE_TYPE,
  VAR_CALC_MODE,
  VAR_COMPLEX_FORMAT,
  VAR_DECIMAL_DIGITS,
  VAR_DECIMAL_MARK,
  VAR_KEY_CLICK,
  VAR_NUMBER_FORMAT,
  VAR_STATS_REGRESS,
  VAR_STATS_VAR,
  VAR_ENABLE_PLOTS,
  VAR_TICK_COUNT,
  VAR_CONNECT_DOTS,
  VAR_DISPLAY_GRID,
  VAR_PLOT_CURSOR,
  VAR_PLOT_TYPE,
  VAR_T_MAX,
  VAR_T_MIN,
  VAR_T_STEP,
  VAR_THETA_MAX,
  VAR_THETA_MIN,
  VAR_THETA_STEP,
  VAR_X_MAX,
  VAR_X_MIN,
  VAR_Y_MAX,
  VAR_Y_MIN,
  VAR_Z_SCALE,
  VAR_PLOT_TYPE_3D,
  VAR_PLOT_BUTTON,
  VAR_TVM_N,
  VAR_TVM_I,
  VAR_TVM_PV,
  VAR_TVM_PMT,
  VAR_TVM_FV,
  VAR_TVM_PY,
  VAR_TVM_CY,
  VAR_TVM_PMT_AT,
  VAR_PLOT_STYLUS,
  SYSTEM_VARIABLE_COUNT
};

struct TSystemVariableRow {
  const char* name;
  TValue (*read)(int number) = nullptr;
  // A real value; reports ERR_DOMAIN for one out of range. Null: writing is ERR_UNEXPECTED.
  void (*write)(int number, double value) = nullptr;
};
extern TSystemVariableRow system_variables[SYSTEM_VARIABLE_COUNT];

// The number of a name, -1 if there is none; exact, with regard to case.
int system_variable_number(const char* name);
// Report ERR_UNEXPECTED for a number without a row or a reader. Writing a value that isn't real is
// ERR_DATA_TYPE.
TValue read_system_variable(int number);
void write_system_variable(int number, const TValue& value);

// For writers: value as an integer from low to high. Otherwise reports ERR_DOMAIN and gives false.
bool take_choice(double value, int low, int high, int& choice);

// The rows that the engine owns: settings, mode, clock, plotButton and plotStylus.
void register_engine_variables();

}  // namespace zephyl
