// What the dialogs of this folder were left on: each opens there again, until the program ends.
#pragma once

#include "engine/memory.h"

namespace zephyl {

struct TRemembered {
  int menu_row = 0;
  int store_variable = SLOT_R0;   // a memory slot
  int recall_variable = SLOT_R0;  // a memory slot or the token of an answer
  bool recall_by_value = false;
  int test_row = 0;
  int expression_row = 0;
  int matrix_variable_row = 0;
  int list_variable_row = 0;
  int sample_row = 0;
};
inline TRemembered remembered;

}  // namespace zephyl
