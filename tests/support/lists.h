// Lists for tests: stored ones to work on, results as numbers and as text, and handlers called without an
// expression.
#pragma once

#include <string>
#include <vector>

#include "engine/operations.h"
#include "engine/records.h"
#include "support/calculator.h"

namespace zephyl {

using TElements = std::vector<TValue>;

// Makes a record hold these elements; none leaves it undefined.
void define_list(ListRecord& list, const TElements& elements);
void define_real_list(ListRecord& list, const std::vector<double>& elements);
TElements elements_of(const ListRecord& list);

// Reproducible elements: parts are multiples of 1/64 from -1 to 1, `im` 0 unless complex.
TElements random_elements(int size, bool complex, unsigned seed);

// "1 2.5 0+3i"; "undefined".
std::string list_text(const ListRecord& list);

class list_calculator : public calculator {
 protected:
  // The elements of the list that the text evaluates to, as text, or the error's message. Fails for another
  // result.
  std::string list(const std::string& text);
  TElements elements(const std::string& text);

  // {A} to {J}
  static void define(char name, const TElements& elements);
  static void define(char name, const std::vector<double>& elements);
  static ListRecord& stored(char name);
};

// Calls the list handler of an operation; `lists` and `result` are numbers as in TFamilyCall. The message of
// the error it ends in, "" without one.
std::string call_list_operation(TOp_Code op, const std::vector<int>& lists, const TElements& numbers,
                                int result, int target = -1);

}  // namespace zephyl
