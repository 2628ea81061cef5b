// The text of an L-system: an axiom and up to 26 rules, "F--F,F=F+F--F+F". Letters count as capitals.
#pragma once

namespace zephyl {

// Each rule and the axiom; more is too long.
constexpr int L_SYSTEM_RULE_LIMIT = 119;

enum TGrammarResult {
  GRAMMAR_READ,
  GRAMMAR_MALFORMED,  // a comma that no letter and "=" follow, or one at the very start
  GRAMMAR_TOO_LONG
};

class TLSystemGrammar {
 public:
  static constexpr int AXIOM = 26;

  TGrammarResult read(const char* text);

  // The rule of a letter 'A' to 'Z' is number letter - 'A'.
  const char* rule(int number) const { return rules_[number]; }
  bool has_rule(char letter) const { return rules_[letter - 'A'][0] != 0; }

 private:
  char rules_[AXIOM + 1][L_SYSTEM_RULE_LIMIT + 1] = {};
};

inline bool is_rule_letter(char character) { return character >= 'A' && character <= 'Z'; }

}  // namespace zephyl
