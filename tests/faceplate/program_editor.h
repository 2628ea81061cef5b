// The program editor as a person has it: opened through its dialog, its keys tapped, its list read.
#pragma once

#include <string>
#include <vector>

#include "faceplate/dialogs/edit_program.h"
#include "faceplate/selection_dialogs.h"
#include "support/file_faults.h"

namespace zephyl {

constexpr int EDITOR_BLUE_KEY = 1;
constexpr int EDITOR_FIRST_TAB = 18;

using TListing = std::vector<std::string>;

class program_editor : public selection_dialogs {
 protected:
  program_editor();

  // A file of the folder "programs": from a listing, or as it stands.
  void write_program(const std::string& name, const TListing& lines);
  void write_file_of(const std::string& name, const std::string& content);
  std::string file_of(const std::string& name) const;

  // The tab of programs; in its dialog an action for a program is chosen, by the beginning of its row.
  void choose(TProgramAction action, const std::string& name = "", bool built_in = false);
  void edit(const std::string& name) { choose(EDIT_PROGRAM, name); }
  void make(const std::string& name);
  void tap_blue(int key) { tap_keys({EDITOR_BLUE_KEY, key}); }
  // So many `stop` statements.
  void add_stops(int count);
  void tap_at(int x, int y);
  // To the other screens, which saves.
  void leave() { tap_key(EDITOR_FIRST_TAB); }

  // What the list shows, with Greek letters in words.
  static TListing listing();

  TTestFolder folder_;
};

}  // namespace zephyl
