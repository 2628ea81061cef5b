#include "faceplate/dialogs/variable_picker.h"

#include <iterator>

#include "engine/format.h"
#include "engine/memory.h"
#include "engine/records.h"
#include "engine/tokens.h"
#include "faceplate/dialogs/statement_rows.h"

namespace zephyl {

namespace {

constexpr int NO_ANSWER = -1;

std::string list_text(const ListRecord& list) {
  return list.defined ? std::to_string(list.last + 1) + " rows" : "Undefined";
}

std::string matrix_text(const MatrixRecord& matrix) {
  if (!matrix.defined) return "Undefined";
  return std::to_string(matrix.last_row + 1) + " by " + std::to_string(matrix.last_col + 1);
}

std::string value_text(int slot) {
  switch (slot_class(slot)) {
    case CLASS_MATRIX:
      return matrix_text(stores.matrices[slot - SLOT_MATRIX_A]);
    case CLASS_LIST:
      return list_text(stores.lists[slot - SLOT_LIST_A]);
    case CLASS_STRING:
      return stores.strings[slot - SLOT_STR1].text;
    default:
      return format_result(memory_array[slot].re, memory_array[slot].im, false, true);
  }
}

std::string matrix_answer_text() { return "[Matrix Ans]: " + matrix_text(stores.matrices[ANSWER_RECORD]); }
std::string list_answer_text() { return "{List Ans}: " + list_text(stores.lists[ANSWER_RECORD]); }
std::string string_answer_text() { return std::string("String Ans: ") + stores.strings[ANSWER_RECORD].text; }

struct TGroup {
  const char* text;
  int first_slot;
  int count;
  int answer = NO_ANSWER;  // the token of the answer of this kind
  std::string (*answer_text)() = nullptr;
};

constexpr TGroup groups[] = {
    {"R0-R9", SLOT_R0, 10},
    {"Upper Case", SLOT_CAPITAL_A, 26},
    {"Lower Case", SLOT_SMALL_A, 26},
    {"Greek", SLOT_ALPHA, GREEK_COUNT},
    {"List", SLOT_LIST_A, 10, TOKEN_L_ANS, list_answer_text},
    {"Matrix", SLOT_MATRIX_A, 10, TOKEN_M_ANS, matrix_answer_text},
    {"String", SLOT_STR1, 9, TOKEN_STR_ANS, string_answer_text},
};

bool holds(const TGroup& group, int selected) {
  return selected == group.answer ||
         (selected >= group.first_slot && selected < group.first_slot + group.count);
}

int group_of(int selected) {
  for (int i = 0; i < static_cast<int>(std::size(groups)); ++i)
    if (holds(groups[i], selected)) return i;
  return 0;
}

int row_of(int selected) {
  const TGroup& group = groups[group_of(selected)];
  if (selected == group.answer) return group.count;
  return holds(group, selected) ? selected - group.first_slot : 0;
}

std::vector<std::string> group_texts() {
  std::vector<std::string> texts;
  for (const TGroup& group : groups) texts.emplace_back(group.text);
  return texts;
}

std::vector<std::string> variable_texts(const TGroup& group, bool with_answers) {
  std::vector<std::string> texts;
  for (int slot = group.first_slot; slot < group.first_slot + group.count; ++slot)
    texts.push_back(variable_name_text(slot) + ": " + value_text(slot));
  if (with_answers && group.answer_text) texts.push_back(group.answer_text());
  return texts;
}

}  // namespace

TVariablePicker::TVariablePicker(TDialog& dialog, int selected, bool with_answers)
    : with_answers_(with_answers),
      group_(dialog.add(combo_control("Variable Group:", group_texts(), group_of(selected)))),
      variable_(dialog.add(combo_control(
          "Memory Variable:", variable_texts(groups[group_of(selected)], with_answers), row_of(selected)))) {}

void TVariablePicker::handle(TDialog& dialog, const TDialogEvent& event) const {
  if (event.kind != CONTROL_CHANGED || event.control != group_) return;
  dialog[variable_].rows = variable_texts(groups[dialog[group_].selected], with_answers_);
  dialog[variable_].selected = 0;
}

int TVariablePicker::selection(const TDialog& dialog) const {
  const TGroup& group = groups[dialog[group_].selected];
  const int row = dialog[variable_].selected;
  return row < group.count ? group.first_slot + row : group.answer;
}

}  // namespace zephyl
