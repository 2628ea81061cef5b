// How the files of the drawing layer fill in rows of the operation table. Between these files only.
#pragma once

#include "engine/errors.h"
#include "engine/evaluator.h"
#include "engine/faults.h"
#include "engine/operations.h"

namespace zephyl {

void register_shape_operations();
void register_drawing_text();
void register_drawing_lists();

// A drawing command: its value is 0, and overflow on the way to a pixel is no fault of the expression.
template <void (*draw)(const TScalarCall& call)>
void drawing_command(TScalarCall& call) {
  draw(call);
  call.result = {};
  clear_faults();
}

template <void (*draw)(const TFamilyCall& call)>
void drawing_command(TFamilyCall& call) {
  draw(call);
  set_number_result(call.result_register, {});
  clear_faults();
}

// A choice of 0 or 1; false, with ERR_DOMAIN, for anything else.
inline bool read_switch(const TValue& value, int& choice, int high = 1) {
  choice = checked_integer(value.re, 0, high, ERR_DOMAIN);
  return !errors.error_flag;
}

}  // namespace zephyl
