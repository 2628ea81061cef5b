// Random bytes through the text form, what it makes of them through the evaluator, and its listing back again.

#include <cstdint>
#include <string>

#include "engine/tokens.h"
#include "fuzz_calculator.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace zephyl;
  start_once();
  const std::string text(reinterpret_cast<const char*>(data), size);
  TExpression expression;
  char error[200] = "";
  if (!text_to_tokens(text.c_str(), expression, error, sizeof error)) {
    if (error[0] == 0) std::abort();  // a refusal says why
    return 0;
  }
  char listing[4000];
  expression_text(expression, listing, sizeof listing);
  evaluate(expression);
  must_answer();
  return 0;
}
