#include "faceplate/dialogs/statement_rows.h"

#include <algorithm>
#include <cstring>

#include "programs/editor.h"

namespace zephyl {

void set_statement_text(const std::string& text) {
  const std::size_t length = std::min(text.size(), sizeof new_statement.text - 1);
  std::memcpy(new_statement.text, text.data(), length);
  new_statement.text[length] = 0;
}

std::string variable_name_text(int slot) {
  const std::string name = slot_name(slot, true);
  return slot_class(slot) == CLASS_GREEK ? "(" + name + ")" : name;
}

void add_variable_names(TRows& rows, int first_slot, int count) {
  for (int slot = first_slot; slot < first_slot + count; ++slot) rows.push_back(variable_name_text(slot));
}

}  // namespace zephyl
