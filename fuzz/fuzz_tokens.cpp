// Random token lines through compile and evaluate. The first byte chooses settings; each further pair is a token, drawn
// from the codes that have a meaning.

#include <cstdint>
#include <vector>

#include "engine/tokens.h"
#include "fuzz_calculator.h"

namespace {

using namespace zephyl;

// All token codes that mean something, so that most of what is fed gets past the first pass.
const std::vector<TToken>& meaningful_tokens() {
  static const std::vector<TToken> tokens = [] {
    std::vector<TToken> found;
    for (int token = 0; token < FIRST_CONVERSION_PAIR; ++token)
      if (decode_token(static_cast<TToken>(token)).kind != TOKEN_NONE) found.push_back(static_cast<TToken>(token));
    for (int token : {5065, 5097, 16384 + 128 * 5 + 3, 32768 + 64 * 12 + 2}) found.push_back(static_cast<TToken>(token));
    return found;
  }();
  return tokens;
}

void choose_settings(std::uint8_t byte) {
  settings = {};
  settings.complexFormat = byte % 3;
  settings.angleMode = byte / 3 % 3;
  settings.numberFormat = byte / 9 % 4;
  settings.decimalMark = byte / 36 % 2;
  settings.baseBits = byte / 72 % 3;
  state.calcMode = byte >= 216 ? BASE_MODE : COMP_MODE;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  start_once();
  if (size < 3) return 0;
  choose_settings(data[0]);
  const std::vector<TToken>& tokens = meaningful_tokens();
  TExpression expression;
  for (std::size_t i = 1; i + 1 < size && expression.count < EXPRESSION_LIMIT; i += 2)
    expression.tokens[expression.count++] = tokens[(data[i] + 256u * data[i + 1]) % tokens.size()];
  evaluate(expression);
  must_answer();
  return 0;
}
