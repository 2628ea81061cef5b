#include "plot/fractals/l_system_grammar.h"

namespace zephyl {

namespace {

char upper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

}  // namespace

TGrammarResult TLSystemGrammar::read(const char* text) {
  int current = AXIOM;
  int lengths[AXIOM + 1] = {};
  for (const char* at = text; *at; ++at) {
    if (*at == '=') continue;
    if (*at == ',') {
      const char letter = upper(at[1]);
      if (at == text || !is_rule_letter(letter) || at[2] != '=') return GRAMMAR_MALFORMED;
      current = letter - 'A';
      at += 2;
      continue;
    }
    if (lengths[current] == L_SYSTEM_RULE_LIMIT) return GRAMMAR_TOO_LONG;
    rules_[current][lengths[current]++] = upper(*at);
  }
  return GRAMMAR_READ;
}

}  // namespace zephyl
