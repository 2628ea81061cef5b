#include "engine/memory.h"

#include <algorithm>
#include <cstdio>

#include "engine/expression.h"
#include "engine/hooks.h"
#include "engine/records.h"
#include "platform/platform.h"

namespace zephyl {

TValue memory_array[MEMORY_COUNT];
TAnswers answers;

namespace {

const char* const greek_names[GREEK_COUNT] = {
    "alpha", "beta",  "gamma", "delta",  "epsilon", "zeta",    "eta", "theta",   "kappa", "lambda",
    "mu",    "nu",    "xi",    "rho",    "sigma 0", "sigma 1", "tau", "upsilon", "phi",   "psi",
    "omega", "Gamma", "Delta", "Lambda", "Pi",      "Phi",     "Psi", "Omega"};

double* memory_part(int slot, int part) {
  if (part == 0) return &memory_array[slot].re;
  if (part == 1) return &memory_array[slot].im;
  platform().show_message("Memory constant type not defined", "Opps");
  return nullptr;
}

}  // namespace

double memory_get(int slot, int part) {
  const double* at = memory_part(slot, part);
  return at ? *at : 0.0;
}

void memory_get_both(int slot, double& re, double& im) {
  re = memory_array[slot].re;
  im = memory_array[slot].im;
}

void memory_set(int slot, int part, double value) {
  if (double* at = memory_part(slot, part)) *at = value;
}

void memory_set_both(int slot, double re, double im) { memory_array[slot] = {re, im}; }

void memory_copy_in(int slot, const TValue& value) { memory_array[slot] = value; }

void memory_clear_all() { std::fill(memory_array, memory_array + MEMORY_COUNT, TValue{}); }

void memory_save_all(TValue* to) { std::copy(memory_array, memory_array + MEMORY_COUNT, to); }

void memory_restore_all(const TValue* from) { std::copy(from, from + MEMORY_COUNT, memory_array); }

TSlotClass slot_class(int slot) {
  struct TRange {
    int first, last;
    TSlotClass slot_class;
  };
  constexpr TRange ranges[] = {
      {0, 9, CLASS_R},        {10, 35, CLASS_CAPITAL}, {36, 61, CLASS_SMALL},      {62, 89, CLASS_GREEK},
      {90, 99, CLASS_MATRIX}, {100, 109, CLASS_LIST},  {110, 119, CLASS_FUNCTION}, {120, 129, CLASS_STRING}};
  for (const TRange& range : ranges)
    if (slot >= range.first && slot <= range.last) return range.slot_class;
  return CLASS_NONE;
}

const char* greek_name(int index) { return greek_names[index]; }

const char* slot_name(int slot, bool long_form) {
  static char name[16];
  const auto print = [](const char* form, int code) { std::snprintf(name, sizeof name, form, code); };
  switch (slot_class(slot)) {
    case CLASS_R:
      print("R%c", '0' + slot);
      break;
    case CLASS_CAPITAL:
      print("%c", 'A' + slot - SLOT_CAPITAL_A);
      break;
    case CLASS_SMALL:
      print("%c", 'a' + slot - SLOT_SMALL_A);
      break;
    case CLASS_GREEK:
      if (long_form)
        std::snprintf(name, sizeof name, "%s", greek_names[slot - SLOT_ALPHA]);
      else
        print("%c", slot + 82);  // the glyph of the letter
      break;
    case CLASS_MATRIX:
      print("[%c]", 'A' + slot - SLOT_MATRIX_A);
      break;
    case CLASS_LIST:
      print("{%c}", 'A' + slot - SLOT_LIST_A);
      break;
    case CLASS_FUNCTION:
      print("f%c()", slot - 61);
      break;
    case CLASS_STRING:
      print("str%c", slot - 71);
      break;
    case CLASS_NONE:
      report_error(ERR_UNEXPECTED);
      std::snprintf(name, sizeof name, "Error");
      break;
  }
  return name;
}

namespace {

const char* const clear_labels[] = {"Real/Complex Variables", "Stats Data",        "List Variables",
                                    "Matrix Variables",       "Plot Functions",    "Drawing Data",
                                    "Expression Entries",     "Program Functions", "Program Input Buffer",
                                    "String Variables",       "Clear All Items"};

// What a program clears is local to its run as well.
void keep_stores(int first_slot) {
  for (int slot = first_slot; slot < first_slot + ANSWER_RECORD; ++slot) hooks.about_to_store(slot);
}

void clear_lists() {
  keep_stores(SLOT_LIST_A);
  for (ListRecord& list : stores.lists) clear_list(list);
  answers.l_ans_valid = false;
}

void clear_matrices() {
  keep_stores(SLOT_MATRIX_A);
  for (MatrixRecord& matrix : stores.matrices) clear_matrix(matrix);
  answers.m_ans_valid = false;
}

void clear_strings() {
  keep_stores(SLOT_STR1);
  for (TString& string : stores.strings) string.text[0] = 0;
  answers.str_ans_valid = false;
}

void clear_function_slots(int first, int last) {
  for (int slot = first; slot <= last; ++slot) function_slots[slot].count = 0;
}

void clear_one(int item) {
  switch (item) {
    case CLEAR_VARIABLES:
      memory_clear_all();
      break;
    case CLEAR_LISTS:
      clear_lists();
      break;
    case CLEAR_MATRICES:
      clear_matrices();
      break;
    case CLEAR_PLOT_FUNCTIONS:
      clear_function_slots(0, FIRST_PROGRAM_FUNCTION - 1);
      clear_function_slots(FIRST_SURFACE_FUNCTION, FIRST_SURFACE_FUNCTION + SURFACE_FUNCTION_COUNT - 1);
      break;
    case CLEAR_HISTORY:
      history.count = 0;
      break;
    case CLEAR_PROGRAM_FUNCTIONS:
      clear_function_slots(FIRST_PROGRAM_FUNCTION, FIRST_PROGRAM_FUNCTION + 8);
      break;
    case CLEAR_STRINGS:
      clear_strings();
      break;
    default:
      break;
  }
  hooks.clear_item(item);
}

}  // namespace

const char* clear_item_label(int n) {
  return n >= CLEAR_VARIABLES && n <= CLEAR_ALL_ITEMS ? clear_labels[n - 1] : "";
}

void clear_items(double n) {
  const int item = checked_integer(n, CLEAR_VARIABLES, CLEAR_ALL_ITEMS, ERR_DOMAIN);
  if (item == 0) return;
  if (item != CLEAR_ALL_ITEMS) return clear_one(item);
  for (int i = CLEAR_VARIABLES; i < CLEAR_ALL_ITEMS; ++i) clear_one(i);
}

void reset_memory() {
  memory_clear_all();
  answers = {};
}

}  // namespace zephyl
