// The aggregate values: lists, matrices and strings. Fixed records, never allocated.
#pragma once

#include "engine/values.h"

namespace zephyl {

constexpr int LIST_LIMIT = 999;
constexpr int MATRIX_LIMIT = 30;
constexpr int STRING_LIMIT = 1000;
constexpr int STORE_COUNT = 11;   // ten named ones and the answer
constexpr int ANSWER_RECORD = 10;  // index of the answer list, matrix and string

struct ListRecord {
  TValue elements[LIST_LIMIT + 1];
  int last = 0;  // index of the last element; size is last + 1
  bool defined = false;
};

// Row-major; rows and columns from 0. Real cells only.
struct MatrixRecord {
  double cells[MATRIX_LIMIT + 1][MATRIX_LIMIT + 1] = {};
  int last_row = 0;
  int last_col = 0;
  bool defined = false;
};

// Bytes with a 0 at the end. There is no undefined string: an unset one is empty.
struct TString {
  char text[STRING_LIMIT + 5] = "";
};

// Copies size, flag and, of a defined one, the used elements. Nothing for a copy onto itself.
void copy_list(ListRecord& to, const ListRecord& from);
void copy_matrix(MatrixRecord& to, const MatrixRecord& from);
void copy_string(TString& to, const TString& from);

void clear_list(ListRecord& list);
void clear_matrix(MatrixRecord& matrix);

// True when an element has an imaginary part other than exactly 0.
bool is_complex_list(const ListRecord& list);

// The stores, process-wide: index 0 to 9 the named ones, ANSWER_RECORD the answer.
struct TStores {
  ListRecord lists[STORE_COUNT];
  MatrixRecord matrices[STORE_COUNT];
  TString strings[STORE_COUNT];
};
extern TStores stores;

void reset_stores();

}  // namespace zephyl
