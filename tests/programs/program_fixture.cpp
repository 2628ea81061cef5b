#include "programs/program_fixture.h"

#include <sys/stat.h>

#include <algorithm>

#include "engine/calculator.h"
#include "engine/errors.h"
#include "engine/memory.h"
#include "engine/state.h"
#include "engine/text_entry.h"
#include "platform/events.h"
#include "programs/programs.h"
#include "support/program_listing.h"

namespace zephyl {

programs::programs() {
  platform_.folder = folder_.path();
  ::mkdir(folder_.file("programs").c_str(), 0777);
}

std::string programs::program_path_of(const std::string& name) const {
  return folder_.file("programs/" + name + ".prgm");
}

void programs::write_program(const std::string& name, const std::vector<std::string>& listing) {
  write_file_of(name, program_file_from_listing(name, listing));
}

void programs::write_file_of(const std::string& name, const std::string& content) {
  make_file(program_path_of(name), content);
}

std::function<void(TDialog&)> choosing(const std::string& control, const std::string& row) {
  return [=](TDialog& dialog) {
    const int index = find_control(dialog, control);
    ASSERT_GE(index, 0) << control;
    const std::vector<std::string>& rows = dialog[index].rows;
    const auto found = std::find(rows.begin(), rows.end(), row);
    ASSERT_NE(found, rows.end()) << row;
    choose_row(dialog, index, static_cast<int>(found - rows.begin()));
    accept_dialog(dialog);
  };
}

void programs::start(const std::string& name) {
  platform_.dialog_answers.push_front(choosing("Program Name:", name));
  run_key_pressed();
}

void programs::go_on(int most) {
  while (most-- > 0 && on_idle()) {
  }
}

std::string programs::standing_error() const { return errors.error_flag ? errors.error_text : ""; }

std::string programs::run_program(const std::string& name) {
  start(name);
  go_on();
  return result();
}

std::string programs::run_lines(const std::vector<std::string>& listing) {
  write_program("Test", listing);
  return run_program("Test");
}

std::string programs::answer_with(const std::string& text) {
  char error[200] = "";
  EXPECT_TRUE(enter_text(text.c_str(), error, sizeof error)) << error;
  evaluate_expression(false);
  go_on();
  return result();
}

double programs::memory(const char* name) const {
  for (int slot = 0; slot < SLOT_MATRIX_A; ++slot)
    if (std::string(name) == slot_name(slot, true)) return memory_array[slot].re;
  ADD_FAILURE() << name;
  return 0.0;
}

}  // namespace zephyl
