// Scalar memories, the numbering of all variables by memory slot, and the four answers.
#pragma once

#include "engine/values.h"

namespace zephyl {

constexpr int MEMORY_COUNT = 95;
constexpr int SLOT_COUNT = 130;
constexpr int NO_SLOT = -1;

constexpr int SLOT_R0 = 0;
constexpr int SLOT_CAPITAL_A = 10;
constexpr int SLOT_SMALL_A = 36;
constexpr int SLOT_T = 55;
constexpr int SLOT_U = 56;
constexpr int SLOT_V = 57;
constexpr int SLOT_X = 59;
constexpr int SLOT_ALPHA = 62;
constexpr int SLOT_THETA = 69;
constexpr int GREEK_COUNT = 28;
constexpr int SLOT_MATRIX_A = 90;
constexpr int SLOT_LIST_A = 100;
constexpr int SLOT_F1 = 110;
constexpr int SLOT_STR1 = 120;

// slot_class
enum TSlotClass { CLASS_NONE, CLASS_R, CLASS_CAPITAL, CLASS_SMALL, CLASS_GREEK, CLASS_MATRIX, CLASS_LIST,
                  CLASS_FUNCTION, CLASS_STRING };

// Slots 0 to 94; 90 to 94 stand unused behind the Greek letters.
extern TValue memory_array[MEMORY_COUNT];

// part: 0 real, 1 imaginary; any other shows the note "Memory constant type not defined".
double memory_get(int slot, int part);
void memory_get_both(int slot, double& re, double& im);
void memory_set(int slot, int part, double value);
void memory_set_both(int slot, double re, double im);
void memory_copy_in(int slot, const TValue& value);
void memory_clear_all();
// All MEMORY_COUNT values at once, for the scopes of programs.
void memory_save_all(TValue* to);
void memory_restore_all(const TValue* from);

TSlotClass slot_class(int slot);

// The display name: "A", "[A]", "f1()", "str:"; Greek letters by their word in the long form, by the one character
// slot + 82 in the short one. A slot out of range is "Error" and reports ERR_UNEXPECTED. One shared buffer.
const char* slot_name(int slot, bool long_form);
// "alpha" to "Omega" for 0 to GREEK_COUNT - 1.
const char* greek_name(int index);

struct TAnswers {
  TValue ans;  // kept when a matrix, list or string result arrives
  bool ans_valid = false;
  bool m_ans_valid = false;
  bool l_ans_valid = false;
  bool str_ans_valid = false;
};
extern TAnswers answers;

// True if one of the three aggregate answers is the one to show.
inline bool aggregate_answer() {
  return answers.m_ans_valid || answers.l_ans_valid || answers.str_ans_valid;
}

// What clear_items can clear, by its number.
enum TClearItem {
  CLEAR_VARIABLES = 1, CLEAR_STATS, CLEAR_LISTS, CLEAR_MATRICES, CLEAR_PLOT_FUNCTIONS, CLEAR_DRAWING,
  CLEAR_HISTORY, CLEAR_PROGRAM_FUNCTIONS, CLEAR_PROGRAM_INPUT, CLEAR_STRINGS, CLEAR_ALL_ITEMS
};
// The function clrMem(: n from 1 to 11, else ERR_DOMAIN. Items of later owners go through hooks.clear_item.
void clear_items(double n);
const char* clear_item_label(int n);

void reset_memory();

}  // namespace zephyl
