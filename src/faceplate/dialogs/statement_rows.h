// What the dialogs of statements share: rows of variable names, and the text of a statement.
#pragma once

#include <string>
#include <vector>

#include "engine/memory.h"

namespace zephyl {

using TRows = std::vector<std::string>;

constexpr int SCALAR_COUNT = SLOT_ALPHA + GREEK_COUNT;
constexpr int FUNCTION_COUNT = 9;

// Cut to the room of a statement's text.
void set_statement_text(const std::string& text);

// The name of a memory slot; that of a Greek letter in parentheses.
std::string variable_name_text(int slot);
void add_variable_names(TRows& rows, int first_slot, int count);

void reset_argument_dialog();

}  // namespace zephyl
