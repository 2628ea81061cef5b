#include <cstring>

#include "engine/state.h"
#include "programs/editor.h"
#include "programs/program_cache.h"
#include "programs/program_fixture.h"
#include "programs/programs.h"

namespace zephyl {

namespace {

class program_saving : public programs {};

TEST_F(program_saving, what_was_added_is_there_when_the_program_is_opened_again) {
  write_program("A", {"stop"});
  ASSERT_EQ(load_program("A", false), 1);
  select_statement(1);
  add_statement(CODE_BREAK);
  EXPECT_TRUE(save_program());
  EXPECT_EQ(load_program("A", false), 2);
}

TEST_F(program_saving, the_longest_description_does_not_end_the_file) {
  write_program("A", {"stop"});
  load_program("A", false);
  select_statement(0);
  set_description(std::string(1060, 'x'));
  save_program();
  EXPECT_EQ(load_program("A", false), 2);
  EXPECT_EQ(std::strlen(program.description), 1055u);
}

TEST_F(program_saving, running_another_program_keeps_an_edited_function) {
  write_program("F", {"func(x)"});
  write_program("B", {"stop"});
  load_program("F", false);
  state.calcMode = PROGRAM_EDIT_MODE;
  select_statement(1);
  add_statement(CODE_BREAK);
  start("B");
  state.calcMode = COMP_MODE;
  EXPECT_EQ(load_program("F", false), 2);
}

}  // namespace

}  // namespace zephyl
