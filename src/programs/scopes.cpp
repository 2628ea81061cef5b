#include "programs/scopes.h"

#include <algorithm>
#include <memory>
#include <new>

#include "engine/errors.h"
#include "engine/expression.h"
#include "engine/memory.h"
#include "engine/records.h"
#include "programs/working_functions.h"

namespace zephyl {

namespace {

constexpr int KEPT_COUNT = 10;  // of each kind

// The values of one kind of variable before the level of a frame changed them.
template <typename TRecord>
struct TKept {
  bool saved[KEPT_COUNT] = {};
  std::unique_ptr<TRecord> copies[KEPT_COUNT];  // null: undefined
};

struct TFrame {
  TValue memories[MEMORY_COUNT];
  TKept<MatrixRecord> matrices;
  TKept<ListRecord> lists;
  TKept<TString> strings;
  TKept<TExpression> functions;
};

TFrame frames[FRAME_LIMIT];
int count = 0;

// What is done alike with all kinds of record.

bool is_defined(const ListRecord& list) { return list.defined; }
bool is_defined(const MatrixRecord& matrix) { return matrix.defined; }
bool is_defined(const TString&) { return true; }
bool is_defined(const TExpression&) { return true; }

void copy(ListRecord& to, const ListRecord& from) { copy_list(to, from); }
void copy(MatrixRecord& to, const MatrixRecord& from) { copy_matrix(to, from); }
void copy(TString& to, const TString& from) { copy_string(to, from); }
void copy(TExpression& to, const TExpression& from) { to = from; }

void clear(ListRecord& list) { clear_list(list); }
void clear(MatrixRecord& matrix) { clear_matrix(matrix); }
void clear(TString& string) { string.text[0] = 0; }
void clear(TExpression& expression) { expression.count = 0; }

// A copy in `to`, null for an undefined record.
template <typename TRecord>
void take_copy(std::unique_ptr<TRecord>& to, const TRecord& from) {
  if (!is_defined(from)) return to.reset();
  if (!to) to.reset(new (std::nothrow) TRecord);
  if (!to) return report_error(ERR_MEMORY_LIMIT);
  copy(*to, from);
}

template <typename TRecord>
void keep(TKept<TRecord>& kept, int index, const TRecord& record) {
  if (kept.saved[index]) return;
  take_copy(kept.copies[index], record);
  kept.saved[index] = !errors.error_flag;
}

template <typename TRecord>
void give_back(TKept<TRecord>& kept, TRecord* records) {
  for (int i = 0; i < KEPT_COUNT; ++i) {
    if (!kept.saved[i]) continue;
    if (kept.copies[i])
      copy(records[i], *kept.copies[i]);
    else
      clear(records[i]);
    kept.saved[i] = false;
    kept.copies[i].reset();
  }
}

template <typename TRecord>
void replace_kept(TKept<TRecord> TFrame::*kind, int index, const TRecord& record) {
  for (int i = 0; i < count; ++i)
    if ((frames[i].*kind).saved[index]) take_copy((frames[i].*kind).copies[index], record);
}

TExpression* working_functions() { return function_slots + FIRST_PROGRAM_FUNCTION; }

}  // namespace

int frame_count() { return count; }

bool push_frame() {
  if (count >= FRAME_LIMIT) {
    report_error(ERR_MEMORY_LIMIT);
    return false;
  }
  memory_save_all(frames[count++].memories);
  return true;
}

void pop_frame() {
  if (count == 0) return;
  TFrame& frame = frames[--count];
  memory_restore_all(frame.memories);
  give_back(frame.matrices, stores.matrices);
  give_back(frame.lists, stores.lists);
  give_back(frame.strings, stores.strings);
  give_back(frame.functions, working_functions());
}

void pop_frames_to(int wanted) {
  while (count > wanted) pop_frame();
}

void keep_store(int slot) {
  if (count == 0) return;
  TFrame& frame = frames[count - 1];
  switch (slot_class(slot)) {
    case CLASS_MATRIX:
      return keep(frame.matrices, slot - SLOT_MATRIX_A, stores.matrices[slot - SLOT_MATRIX_A]);
    case CLASS_LIST:
      return keep(frame.lists, slot - SLOT_LIST_A, stores.lists[slot - SLOT_LIST_A]);
    case CLASS_STRING:
      return keep(frame.strings, slot - SLOT_STR1, stores.strings[slot - SLOT_STR1]);
    case CLASS_FUNCTION:
      if (slot - SLOT_F1 >= WORKING_FUNCTION_COUNT) return;
      return keep(frame.functions, slot - SLOT_F1, working_functions()[slot - SLOT_F1]);
    default:
      return;
  }
}

void make_slot_global(int slot) {
  switch (slot_class(slot)) {
    case CLASS_MATRIX:
      return replace_kept(&TFrame::matrices, slot - SLOT_MATRIX_A, stores.matrices[slot - SLOT_MATRIX_A]);
    case CLASS_LIST:
      return replace_kept(&TFrame::lists, slot - SLOT_LIST_A, stores.lists[slot - SLOT_LIST_A]);
    case CLASS_STRING:
      return replace_kept(&TFrame::strings, slot - SLOT_STR1, stores.strings[slot - SLOT_STR1]);
    case CLASS_FUNCTION:
    case CLASS_NONE:
      return;
    default:
      for (int i = 0; i < count; ++i) frames[i].memories[slot] = memory_array[slot];
  }
}

namespace {

// Null for one that was undefined.
template <typename TRecord>
const TRecord* record_at_begin(const TKept<TRecord>& kept, int index, const TRecord* records) {
  if (kept.saved[index]) return kept.copies[index].get();
  return is_defined(records[index]) ? &records[index] : nullptr;
}

}  // namespace

const ListRecord* list_at_begin(int index) {
  return record_at_begin(frames[count - 1].lists, index, stores.lists);
}

const MatrixRecord* matrix_at_begin(int index) {
  return record_at_begin(frames[count - 1].matrices, index, stores.matrices);
}

const TString* string_at_begin(int index) {
  return record_at_begin(frames[count - 1].strings, index, stores.strings);
}

void reset_scopes() {
  while (count > 0) frames[--count] = {};
}

}  // namespace zephyl
