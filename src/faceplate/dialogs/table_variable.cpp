#include "faceplate/dialogs/table_variable.h"

#include "engine/memory.h"
#include "engine/tokens.h"
#include "faceplate/dialogs/remembered.h"
#include "faceplate/dialogs/running.h"

namespace zephyl {

namespace {

constexpr int VARIABLES = 10;

struct TTableDialog {
  const char* answer;  // the text of its row
  char opening, closing;
  int answer_token;
  int first_slot;
  int TRemembered::*last_row;
};

constexpr TTableDialog matrix_dialog = {
    "RCL [Matrix Ans]", '[', ']', TOKEN_M_ANS, SLOT_MATRIX_A, &TRemembered::matrix_variable_row};
constexpr TTableDialog list_dialog = {
    "RCL {List Ans}", '{', '}', TOKEN_L_ANS, SLOT_LIST_A, &TRemembered::list_variable_row};

std::vector<std::string> texts(const TTableDialog& kind) {
  std::vector<std::string> rows = {kind.answer};
  for (const char* word : {"RCL ", "STO "})
    for (int i = 0; i < VARIABLES; ++i)
      rows.push_back(std::string(word) + kind.opening + static_cast<char>('A' + i) + kind.closing);
  return rows;
}

int token_of_row(const TTableDialog& kind, int row) {
  if (row == 0) return kind.answer_token;
  if (row <= VARIABLES) return recall_token(kind.first_slot + row - 1);
  return store_token(kind.first_slot + row - 1 - VARIABLES);
}

int choose(TDialog dialog, const TTableDialog& kind) {
  int& last_row = remembered.*kind.last_row;
  const int list = dialog.add(list_control("", texts(kind), last_row));
  dialog[list].lines = 12;
  if (!confirmed_with_ok(dialog)) return -1;
  last_row = dialog[list].selected;
  return token_of_row(kind, last_row);
}

}  // namespace

int choose_matrix_token() { return choose(TDialog(204, "Select Matrix Variable"), matrix_dialog); }
int choose_list_token() { return choose(TDialog(211, "Select List Variable"), list_dialog); }

}  // namespace zephyl
