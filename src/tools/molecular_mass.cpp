#include "tools/molecular_mass.h"

#include <cstdlib>
#include <cstring>

#include "collections/string_calls.h"
#include "engine/errors.h"
#include "engine/evaluator.h"
#include "tools/elements.h"

namespace zephyl {

namespace {

constexpr int BUFFER_SIZE = 120;

bool is_digit(char c) { return c >= '0' && c <= '9'; }
char capital(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }
bool is_letter(char c) { return capital(c) >= 'A' && capital(c) <= 'Z'; }

// Characters that collect until they are used.
struct TCollected {
  char text[BUFFER_SIZE] = "";
  int length = 0;

  bool add(char c) {
    if (length >= BUFFER_SIZE - 1) return false;
    text[length++] = c;
    text[length] = 0;
    return true;
  }
  void clear() { text[length = 0] = 0; }
};

bool same_symbol(const char* capitals, const char* symbol) {
  for (; *symbol && *capitals == capital(*symbol); ++symbol) ++capitals;
  return *symbol == 0 && *capitals == 0;
}

// The weight of the element with that symbol, in capitals; 0, with an error, if there is none.
double weight_of(const char* symbol) {
  for (int index = 0; *symbol && index < ELEMENT_COUNT; ++index) {
    load_periodical(index);
    if (same_symbol(symbol, element.fields[ELEMENT_SYMBOL])) return std::strtod(element.fields[ELEMENT_WEIGHT], nullptr);
  }
  report_error(ERR_ELEMENT_SYMBOL);
  return 0.0;
}

class TFormula {
 public:
  // Takes the next character, the terminator included; false after an error.
  bool take(char c) {
    if (is_digit(c)) return kept(count_.add(c));
    if (!is_letter(c) && c != 0) return refuse(ERR_INVALID_STRING);
    if (count_.length > 0 && !add_element()) return false;
    if (c != 0) return kept(symbol_.add(capital(c)));
    return symbol_.length == 0 || refuse(ERR_INVALID_STRING);
  }
  double mass() const { return mass_; }

 private:
  static bool refuse(TError error) {
    report_error(error);
    return false;
  }
  static bool kept(bool fits) { return fits || refuse(ERR_MEMORY_LIMIT); }

  bool add_element() {
    const double weight = weight_of(symbol_.text);
    if (errors.error_flag) return false;
    mass_ += weight * std::strtod(count_.text, nullptr);
    count_.clear();
    symbol_.clear();
    return true;
  }

  TCollected count_, symbol_;
  double mass_ = 0.0;
};

void molecular_mass_operation(TFamilyCall& call) {
  TStringOperands operands;
  if (!read_string_operands(call, 1, operands)) return;
  const double mass = molecular_mass(operands.first->text);
  if (!errors.error_flag) set_number_result(call.result_register, {mass, 0.0});
}

}  // namespace

double molecular_mass(const char* formula) {
  TFormula sum;
  for (; sum.take(*formula); ++formula)
    if (*formula == 0) return sum.mass();
  return 0.0;
}

void register_molecular_mass() { operations[OP_MOLEC_MASS].string = molecular_mass_operation; }

}  // namespace zephyl
