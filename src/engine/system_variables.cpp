#include "engine/system_variables.h"

#include <cstring>

namespace zephyl {

// In the order of TSystemVariable.
TSystemVariableRow system_variables[SYSTEM_VARIABLE_COUNT] = {
    {"angleMode"},     {"baseBits"},    {"baseType"},  {"calcMode"},     {"complexFormat"},
    {"decimalDigits"}, {"decimalMark"}, {"keyClick"},  {"numberFormat"}, {"statsRegress"},
    {"statsVar"},      {"enablePlots"}, {"tickCount"}, {"connectDots"},  {"displayGrid"},
    {"plotCursor"},    {"plotType"},    {"tMax"},      {"tMin"},         {"tStep"},
    {"thetaMax"},      {"thetaMin"},    {"thetaStep"}, {"xMax"},         {"xMin"},
    {"yMax"},          {"yMin"},        {"zScale"},    {"plotType3D"},   {"plotButton"},
    {"tvmN"},          {"tvmI%YR"},     {"tvmPV"},     {"tvmPMT"},       {"tvmFV"},
    {"tvmP/Y"},        {"tvmC/Y"},      {"tvmPMT@"},   {"plotStylus"}};

namespace {

const TSystemVariableRow* row_of(int number) {
  return number >= 0 && number < SYSTEM_VARIABLE_COUNT ? &system_variables[number] : nullptr;
}

}  // namespace

int system_variable_number(const char* name) {
  for (int number = 0; number < SYSTEM_VARIABLE_COUNT; ++number)
    if (std::strcmp(system_variables[number].name, name) == 0) return number;
  return -1;
}

TValue read_system_variable(int number) {
  const TSystemVariableRow* row = row_of(number);
  if (row && row->read) return row->read(number);
  report_error(ERR_UNEXPECTED);
  return {};
}

void write_system_variable(int number, const TValue& value) {
  const TSystemVariableRow* row = row_of(number);
  if (!is_real(value))
    report_error(ERR_DATA_TYPE);
  else if (row && row->write)
    row->write(number, value.re);
  else
    report_error(ERR_UNEXPECTED);
}

bool take_choice(double value, int low, int high, int& choice) {
  const int integer = checked_integer(value, low, high, ERR_DOMAIN);
  if (errors.error_flag) return false;
  choice = integer;
  return true;
}

}  // namespace zephyl
