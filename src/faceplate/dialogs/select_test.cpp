#include "faceplate/dialogs/select_test.h"

#include <iterator>

#include "faceplate/dialogs/remembered.h"
#include "faceplate/dialogs/running.h"

namespace zephyl {

namespace {

struct TTestRow {
  const char* text;
  int token;
  const char* help;
};

constexpr TTestRow tests[] = {
    {"value1 = value2", 393, "Returns 1 if both values are equal, otherwise 0.\nExample: 2+2=4 returns 1"},
    {"value1 <> value2", 392, "Returns 1 if the values are not equal, otherwise 0.\nExample: 2<>3 returns 1"},
    {"value1 < value2", 389,
     "Returns 1 if value1 is less than value2, otherwise 0. Complex values are compared by magnitude.\n"
     "Example: 2<3 returns 1"},
    {"value1 <= value2", 388,
     "Returns 1 if value1 is less than or equal to value2, otherwise 0. Complex values are compared by "
     "magnitude.\nExample: 3<=3 returns 1"},
    {"value1 > value2", 391,
     "Returns 1 if value1 is greater than value2, otherwise 0. Complex values are compared by magnitude.\n"
     "Example: 2>3 returns 0"},
    {"value1 >= value2", 390,
     "Returns 1 if value1 is greater than or equal to value2, otherwise 0. Complex values are compared by "
     "magnitude.\nExample: 2>=3 returns 0"},
    {"value1 AND value2", 395,
     "Returns 1 if both values are nonzero, otherwise 0. Neither value can be a matrix.\n"
     "Example: 1 AND 0 returns 0"},
    {"value1 OR value2", 397,
     "Returns 1 if one or both of the values are nonzero, otherwise 0. Neither value can be a matrix.\n"
     "Example: 1 OR 0 returns 1"},
    {"value1 XOR value2", 396,
     "Returns 1 if exactly one of the values is nonzero, otherwise 0. Neither value can be a matrix.\n"
     "Example: 1 XOR 1 returns 0"},
    {"NOT(value)", 394,
     "Returns 1 if the value is 0, otherwise 0. The value can't be a matrix.\nExample: NOT(0) returns 1"},
};

int& last_row = remembered.test_row;

}  // namespace

int choose_test() {
  TDialog dialog(220, "Select Test");
  std::vector<std::string> texts;
  for (const TTestRow& row : tests) texts.emplace_back(row.text);
  const int list = dialog.add(list_control("Test:", texts, last_row));
  dialog[list].lines = static_cast<int>(std::size(tests));
  const int help = dialog.add(text_control("Test Description:", tests[last_row].help, 5));
  add_ok_cancel(dialog);
  dialog.procedure = [=](TDialog& open, const TDialogEvent& event) {
    if (event.kind == CONTROL_CHANGED && event.control == list)
      open[help].text = tests[open[list].selected].help;
  };
  if (!confirmed(dialog)) return -1;
  last_row = dialog[list].selected;
  return tests[last_row].token;
}

}  // namespace zephyl
