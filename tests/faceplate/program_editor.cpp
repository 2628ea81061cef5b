#include "faceplate/program_editor.h"

#include <sys/stat.h>

#include <algorithm>

#include "engine/state.h"
#include "faceplate/modes.h"
#include "programs/program.h"
#include "programs/statement_text.h"
#include "support/program_listing.h"

namespace zephyl {

namespace {

constexpr int CALCULATOR_FIRST_TAB = 43;
constexpr int STOP_KEY = 17;

// False if no row begins so.
bool choose_row_that_begins(TDialog& dialog, int control, const std::string& head) {
  const TListing& rows = dialog[control].rows;
  const auto found = std::find_if(rows.begin(), rows.end(), [&](const std::string& row) {
    return row.compare(0, head.size(), head) == 0;
  });
  return found != rows.end() && choose_row(dialog, control, static_cast<int>(found - rows.begin()));
}

}  // namespace

program_editor::program_editor() {
  platform_.folder = folder_.path();
  ::mkdir(folder_.file("programs").c_str(), 0777);
}

void program_editor::write_program(const std::string& name, const TListing& lines) {
  write_file_of(name, program_file_from_listing(name, lines));
}

void program_editor::write_file_of(const std::string& name, const std::string& content) {
  make_file(folder_.file("programs/" + name + ".prgm"), content);
}

std::string program_editor::file_of(const std::string& name) const {
  return file_content(folder_.file("programs/" + name + ".prgm"));
}

void program_editor::choose(TProgramAction action, const std::string& name, bool built_in) {
  answer([=](TDialog& dialog) {
    ASSERT_EQ(dialog.id(), 152);
    choose_row(dialog, find_control(dialog, "Program Type"), built_in ? 1 : 0);
    choose_row(dialog, find_control(dialog, "Action"), action);
    ASSERT_TRUE(name.empty() || choose_row_that_begins(dialog, find_control(dialog, "Program Name"), name))
        << name;
    accept_dialog(dialog);
  });
  tap_key((state.calcMode == PROGRAM_EDIT_MODE ? EDITOR_FIRST_TAB : CALCULATOR_FIRST_TAB) + TAB_PROGRAMS);
}

void program_editor::make(const std::string& name) {
  choose(NEW_PROGRAM);
  type(name + "\r");
  paint();
}

void program_editor::add_stops(int count) {
  for (int i = 0; i < count; ++i) tap_key(STOP_KEY);
}

void program_editor::tap_at(int x, int y) {
  on_pen_down(x, y);
  on_pen_up(x, y);
  if (platform_.take_paint_request()) paint();
}

TListing program_editor::listing() {
  TListing lines;
  for (int index = 0; index < program.statement_count; ++index)
    lines.push_back(statement_text(index, NAMES_IN_WORDS).substr(statement_number_text(index).size()));
  return lines;
}

}  // namespace zephyl
