// The system variables whose values the engine holds: the settings, calcMode, tickCount and what a program
// learns of the pen in a plot.

#include "engine/calculator.h"
#include "engine/hooks.h"
#include "engine/state.h"
#include "engine/system_variables.h"
#include "platform/platform.h"

namespace zephyl {

namespace {

template <TScreenPart part>
void redraw_part_and_result() {
  hooks.redraw_part(part);
  refresh_result();
}

void redraw_regression() { hooks.redraw_part(PART_REGRESSION); }

void stats_variables_changed() {
  hooks.stats_variables_changed();
  hooks.redraw_part(PART_STATS_VAR);
  hooks.redraw_title();
}

// The mark also stands on keys and in the entry line.
void redraw_everything() {
  refresh_result();
  platform().invalidate(false);
}

void redraw_nothing() {}

// Expressions see the values of a setting from `low` to `high`; it is held from 0.
struct TSettingRow {
  TSystemVariable number;
  int TSettings::*field;
  int low;
  int high;
  void (*redraw)();
};

constexpr TSettingRow setting_rows[] = {
    {VAR_ANGLE_MODE, &TSettings::angleMode, 1, 3, redraw_part_and_result<PART_ANGLE>},
    {VAR_BASE_BITS, &TSettings::baseBits, 1, 3, redraw_part_and_result<PART_BASE_BITS>},
    {VAR_BASE_TYPE, &TSettings::baseType, 1, 4, redraw_part_and_result<PART_BASE_TYPE>},
    {VAR_COMPLEX_FORMAT, &TSettings::complexFormat, 1, 3, refresh_result},
    {VAR_DECIMAL_DIGITS, &TSettings::decimalDigits, 0, 10, refresh_result},
    {VAR_DECIMAL_MARK, &TSettings::decimalMark, 1, 2, redraw_everything},
    {VAR_KEY_CLICK, &TSettings::keyClick, 1, 2, redraw_nothing},
    {VAR_NUMBER_FORMAT, &TSettings::numberFormat, 1, 4, refresh_result},
    {VAR_STATS_REGRESS, &TSettings::statsRegress, 1, 4, redraw_regression},
    {VAR_STATS_VAR, &TSettings::statsVar, 1, 2, stats_variables_changed},
};

const TSettingRow& setting_row(int number) {
  const TSettingRow* row = setting_rows;
  while (row->number != number) ++row;
  return *row;
}

TValue read_setting(int number) {
  const TSettingRow& row = setting_row(number);
  return {static_cast<double>(settings.*row.field + row.low), 0.0};
}

void write_setting(int number, double value) {
  const TSettingRow& row = setting_row(number);
  int choice;
  if (!take_choice(value, row.low, row.high, choice)) return;
  if (settings.*row.field == choice - row.low) return;
  settings.*row.field = choice - row.low;
  row.redraw();
}

// The modes as expressions number them, from 1. Modes that aren't in here read as the first.
constexpr TCalcMode numbered_modes[] = {COMP_MODE, PLOT_MODE, STATS_MODE, MATRIX_MODE, BASE_MODE, LIST_MODE};
constexpr int NUMBERED_MODE_COUNT = sizeof numbered_modes / sizeof numbered_modes[0];

TValue read_mode(int) {
  int number = NUMBERED_MODE_COUNT;
  while (number > 1 && numbered_modes[number - 1] != state.calcMode) --number;
  return {static_cast<double>(number), 0.0};
}

void write_mode(int, double value) {
  int choice;
  if (!take_choice(value, 1, NUMBERED_MODE_COUNT, choice)) return;
  const int mode = numbered_modes[choice - 1];
  if (mode == state.calcMode) return;
  if (hooks.set_mode) return hooks.set_mode(mode, false);
  state.calcMode = mode;
  refresh_result();
}

TValue read_ticks(int) {
  const std::uint32_t now = platform().tick_count();
  return {static_cast<double>(state.program_running ? now - state.program_start_tick : now), 0.0};
}

// The first look arms the button: from then on a plot key leaves its number here and does nothing else.
TValue read_plot_button(int) {
  if (state.plot_button == -1) state.plot_button = 0;
  return {static_cast<double>(state.plot_button), 0.0};
}

// The first look arms the stylus; each later one takes the last position away.
TValue read_plot_stylus(int) {
  const TValue position = {state.plot_stylus_x, state.plot_stylus_y};
  state.plot_stylus_x = state.plot_stylus_y = 0.0;
  return position.re == undefined_value ? TValue{} : position;
}

}  // namespace

void register_engine_variables() {
  for (const TSettingRow& row : setting_rows) {
    system_variables[row.number].read = read_setting;
    system_variables[row.number].write = write_setting;
  }
  system_variables[VAR_CALC_MODE].read = read_mode;
  system_variables[VAR_CALC_MODE].write = write_mode;
  system_variables[VAR_TICK_COUNT].read = read_ticks;
  system_variables[VAR_PLOT_BUTTON].read = read_plot_button;
  system_variables[VAR_PLOT_STYLUS].read = read_plot_stylus;
}

}  // namespace zephyl
