// State files, ".state": the working state as text, kept and brought back when the user asks for it.
// docs/state-file.md tells the format record by record.
#pragma once

#include "persistence/text_file.h"

namespace zephyl {

// Writes what save_items names into a file. A failure is silent; the old file is then as it was.
void save_state(const char* path);

// Reads a state file: what it holds takes the place of what is there, what it doesn't hold stays. A file that
// isn't there changes nothing. Everything is shown anew.
void load_state(const char* path);
// The same from lines that are open already.
void load_state(TLineReader& lines);

// Asks for a state file and loads it (`open`), or saves into it. False if the user cancelled.
bool choose_state_file(bool open);

// The buttons "Save State" and "Load State". True if a file was chosen; after a load the dialog that has the
// button closes.
bool save_state_pressed();
bool load_state_pressed();

// The function loadState(.
void register_state_operations();

}  // namespace zephyl
