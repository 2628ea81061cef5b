#include "support/lists.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>

#include "engine/errors.h"
#include "engine/faults.h"
#include "engine/memory.h"

namespace zephyl {

void define_list(ListRecord& list, const TElements& elements) {
  clear_list(list);
  std::copy(elements.begin(), elements.end(), list.elements);
  list.defined = !elements.empty();
  list.last = list.defined ? static_cast<int>(elements.size()) - 1 : 0;
}

void define_real_list(ListRecord& list, const std::vector<double>& elements) {
  TElements values;
  for (double element : elements) values.push_back({element, 0.0});
  define_list(list, values);
}

TElements elements_of(const ListRecord& list) {
  return list.defined ? TElements(list.elements, list.elements + list.last + 1) : TElements();
}

TElements random_elements(int size, bool complex, unsigned seed) {
  std::uint32_t word = seed;
  const auto next = [&word] {
    word = word * 1664525u + 1013904223u;
    return (static_cast<int>(word >> 25) - 64) / 64.0;
  };
  TElements elements;
  for (int i = 0; i < size; ++i) {
    const double re = next();
    elements.push_back({re, complex ? next() : 0.0});
  }
  return elements;
}

std::string list_text(const ListRecord& list) {
  std::string text;
  for (const TValue& element : elements_of(list)) {
    char number[80];
    std::snprintf(number, sizeof number, is_real(element) ? " %g" : " %g%+gi", element.re, element.im);
    text += number;
  }
  return text.empty() ? "undefined" : text.substr(1);
}

std::string list_calculator::list(const std::string& text) {
  const std::string result = eval(text);
  if (errors.error_flag) return result;
  EXPECT_TRUE(answers.l_ans_valid) << text << ": " << result;
  return list_text(stores.lists[ANSWER_RECORD]);
}

TElements list_calculator::elements(const std::string& text) {
  const std::string result = eval(text);
  EXPECT_FALSE(errors.error_flag) << text << ": " << result;
  EXPECT_TRUE(answers.l_ans_valid) << text << ": " << result;
  return elements_of(stores.lists[ANSWER_RECORD]);
}

void list_calculator::define(char name, const TElements& elements) { define_list(stored(name), elements); }

void list_calculator::define(char name, const std::vector<double>& elements) {
  define_real_list(stored(name), elements);
}

ListRecord& list_calculator::stored(char name) { return stores.lists[name - 'A']; }

std::string call_list_operation(TOp_Code op, const std::vector<int>& lists, const TElements& numbers,
                                int result, int target) {
  TFamilyCall call{};
  call.op = op;
  std::copy(lists.begin(), lists.end(), call.lists);
  std::copy(numbers.begin(), numbers.end(), call.numbers);
  call.number_count = static_cast<int>(numbers.size());
  call.result_register = result;
  call.target = target;
  clear_error();
  clear_faults();
  operations[op].list(call);
  report_fault();
  return errors.error_flag ? errors.error_text : "";
}

}  // namespace zephyl
