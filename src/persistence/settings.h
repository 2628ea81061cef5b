// The settings that survive between runs: formats, modes, look and the values of the money solver, in the
// file "startup.txt" of the data folder, a line "KEY: VALUE" each. Nothing is ever said about that file: one
// that isn't there or can't be read gives the defaults, one that can't be written stays as it was.
#pragma once

#include <string>

namespace zephyl {

// The value of a key, at most 119 characters of it; empty where there is none. The first line of the key
// counts; a line without a colon is passed over, an empty one ends the file.
std::string read_setting(const std::string& key);

// Every setting takes its default, then what the file says. A word that isn't known is the one that the table
// of settings.cpp names for it; the money solver's values stay where there is no finite number.
void load_settings();

// Writes all settings, in the order of the table. The file is the old one or the new one, whole.
void save_settings();

}  // namespace zephyl
