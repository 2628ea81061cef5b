// Any bytes as the user's file of constants and units; then each unit that is there is converted into its neighbours.

#include <string>

#include "engine/tokens.h"
#include "fuzz_calculator.h"
#include "persistence/constants.h"
#include "persistence/units.h"
#include "persistence/units_reader.h"
#include "support/whole_state.h"

namespace {

using namespace zephyl;

// 1(from>to)
void convert(int from, int position) {
  if (!fits_conversion_token(from, position)) return;
  TExpression expression;
  expression.tokens[expression.count++] = 33;
  expression.tokens[expression.count++] = static_cast<TToken>(FIRST_CONVERSION + from * 64 + position);
  evaluate(expression, false);
  char text[200];
  expression_text(expression, text, sizeof text);
}

void convert_added_units(int built_in_count) {
  for (int i = built_in_count; i < unit_table.unit_count; ++i)
    for (int position = 0; position < 3; ++position) convert(unit_table.units[i].code, position);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  start_once();
  static const TUnitTable built_in = unit_table;
  unit_table = built_in;
  constant_table.count = 0;
  TLineReader lines(reinterpret_cast<const char*>(data), size);
  read_units_text(lines);
  if (!state_fault().empty()) std::abort();
  for (int i = 0; i < constant_count(); ++i) insert_constant_string(constant_value(i), false);
  convert_added_units(built_in.unit_count);
  must_answer();
  return 0;
}
