#include "persistence/state_file.h"

#include <string>

#include "collections/string_calls.h"
#include "engine/evaluator.h"
#include "engine/expression.h"
#include "engine/faults.h"
#include "engine/hooks.h"
#include "engine/memory.h"
#include "engine/operations.h"
#include "persistence/drawing_store.h"
#include "persistence/save_items.h"
#include "persistence/state_records.h"
#include "persistence/text_file.h"
#include "platform/platform.h"

namespace zephyl {

namespace {

constexpr const char* EXTENSION = ".state";

// An empty line is the end, wherever it stands.
void read_records(TLineReader& reader) {
  for (std::string line; !(line = reader.read_line()).empty();) {
    const TStateLine result = read_state_line(line);
    if (result == STATE_LINE_NEWER) return;
    if (result == STATE_LINE_DRAWING) read_drawing(reader);
  }
}

// What a program loads is local to its run, as what it stores.
void keep_stores() {
  for (const int first : {SLOT_MATRIX_A, SLOT_LIST_A, SLOT_STR1})
    for (int slot = first; slot < first + ANSWER_RECORD; ++slot) hooks.about_to_store(slot);
}

// The string is copied: loading may change its place.
void load_operation(TFamilyCall& call) {
  TStringOperands operands;
  if (!read_string_operands(call, 1, operands)) return;
  const std::string name(operands.first->text);
  set_number_result(call.result_register, {});
  if (name.empty()) return;
  keep_stores();
  load_state((name + EXTENSION).c_str());
  clear_faults();
}

}  // namespace

void save_state(const char* path) {
  std::string text;
  append_state_records(text);
  if (is_saved(SAVE_DRAWING)) append_drawing(text);
  write_file(path, text);
}

void load_state(const char* path) {
  TLineReader lines{std::string(path)};
  if (lines.open()) load_state(lines);
}

void load_state(TLineReader& lines) {
  clear_entry_line();
  read_records(lines);
  finish_reading_state();
}

bool choose_state_file(bool open) {
  TFileQuestion question;
  question.title = open ? "Load State" : "Save State";
  question.type_name = "State Files";
  question.extension = EXTENSION + 1;
  question.save = !open;
  std::string path;
  if (!platform().choose_file(question, path)) return false;
  if (open)
    load_state(path.c_str());
  else
    save_state(path_to_save(question, path).c_str());
  return true;
}

bool save_state_pressed() { return select_items_to_save() && choose_state_file(false); }

bool load_state_pressed() { return choose_state_file(true); }

void register_state_operations() { operations[OP_LOAD_STATE].string = load_operation; }

}  // namespace zephyl
