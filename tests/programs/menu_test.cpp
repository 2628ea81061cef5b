// Menus and descriptions.

#include "programs/menu.h"

#include "engine/errors.h"
#include "engine/state.h"
#include "platform/events.h"
#include "programs/dialogs/program_description.h"
#include "programs/program_fixture.h"
#include "programs/programs.h"

namespace zephyl {

class menus : public programs {
 protected:
  // Runs with a user who chooses that row of the menu; "" cancels.
  std::string run_choosing(const std::string& row, const std::vector<std::string>& listing) {
    write_program("Test", listing);
    start("Test");
    if (!row.empty()) platform_.dialog_answers.push_back(choosing("Menu Item", row));
    go_on();
    return result();
  }
};

TEST_F(menus, jump_to_the_label_of_the_item) {
  const std::vector<std::string> listing = {"Menu Clear",
                                            "Menu \"Shapes\"",
                                            "Menu A, \"Circle\"",
                                            "Menu B, \"Square\"",
                                            "Menu Display",
                                            "0->S",
                                            "goto label C",
                                            "label A",
                                            "1->S",
                                            "goto label C",
                                            "label B",
                                            "2->S",
                                            "label C",
                                            "out S"};
  EXPECT_EQ(run_choosing("Circle", listing), "S=1");
  EXPECT_EQ(platform_.dialogs.back(), "176 Shapes");
  EXPECT_EQ(run_choosing("Square", listing), "S=2");
  EXPECT_EQ(run_choosing("", listing), "S=0") << "Cancel goes on";
}

TEST_F(menus, without_a_title_have_the_usual_one) {
  run_choosing("", {"Menu A, \"Circle\"", "Menu Display", "label A"});
  EXPECT_EQ(platform_.dialogs.back(), "176 Select Menu Item");
}

TEST_F(menus, without_items_go_on) { EXPECT_EQ(run_choosing("", {"Menu Display", "5->A", "out A"}), "A=5"); }

TEST_F(menus, keep_their_items_for_the_next_display) {
  write_program("Test", {"Menu A, \"More\"", "Menu B, \"Done\"", "label A", "S+1->S", "Menu Display",
                         "label B", "out S"});
  start("Test");
  platform_.dialog_answers.push_back(choosing("Menu Item", "More"));
  platform_.dialog_answers.push_back(choosing("Menu Item", "More"));
  platform_.dialog_answers.push_back(choosing("Menu Item", "Done"));
  go_on();
  EXPECT_EQ(result(), "S=3");
}

TEST_F(menus, are_cleared_by_their_statement_and_by_a_start) {
  run_choosing("", {"Menu \"T\"", "Menu A, \"x\"", "in B"});
  EXPECT_EQ(menu.count, 1);
  EXPECT_STREQ(menu.title, "T");
  run_key_pressed();
  run_choosing("", {"in B"});
  EXPECT_EQ(menu.count, 0);
  EXPECT_STREQ(menu.title, "");
  run_key_pressed();
  run_choosing("", {"Menu \"T\"", "Menu A, \"x\"", "Menu Clear", "in B"});
  EXPECT_EQ(menu.count, 0);
  EXPECT_STREQ(menu.title, "");
}

TEST_F(menus, jump_as_a_goto_does) {
  const std::vector<std::string> listing = {
      "3->n",         "Menu A, \"Out\"", "loop n",  "Menu Display", "S+1->S",  "end",
      "goto label B", "label A",         "S+10->S", "end",          "label B", "out S"};
  EXPECT_EQ(run_choosing("Out", listing), "Program Code Error (line 10)") << "the jump has closed the loop";
  EXPECT_EQ(run_choosing("Gone", {"Menu Z, \"Gone\"", "Menu Display"}), "Program Code Error (line 2)");
}

TEST_F(menus, take_a_hundred_items) {
  const std::vector<std::string> listing = {"label A", "Menu A, \"x\"", "goto label A"};
  EXPECT_EQ(run_choosing("", listing), "Memory Limit Error (line 2)");
  EXPECT_EQ(message(), "Limit | Reached maximum number of menu items");
}

TEST_F(menus, a_double_click_chooses) {
  write_program("Test", {"Menu A, \"x\"", "Menu Display", "stop", "label A", "5->A", "out A"});
  start("Test");
  platform_.dialog_answers.push_back([](TDialog& dialog) {
    choose_row(dialog, 0, 0);
    dialog.tell(CONTROL_ACTIVATED, 0);
  });
  go_on();
  EXPECT_EQ(result(), "A=5");
}

// --- Descriptions

TEST_F(menus, the_description_shows_in_its_lines) {
  write_program("Test", {"Program Description \"First~~second~third\"", "5->A", "out A"});
  start("Test");
  std::string shown;
  platform_.dialog_answers.push_back([&](TDialog& dialog) { shown = dialog[0].text; });
  go_on();
  EXPECT_EQ(platform_.dialogs.back(), "184 Program Description");
  EXPECT_EQ(shown, "First\nsecond\nthird");
  EXPECT_EQ(result(), "A=5");
}

TEST(program_description, keeps_lines_and_tildes_on_one_line) {
  EXPECT_EQ(stored_description("a\nb\r\nc~d"), "a~~b~~c\ad");
  EXPECT_EQ(shown_description("a~~b~~c\ad"), "a\nb\nc~d");
  EXPECT_EQ(shown_description("a~b~~~c~"), "a\nb\n\nc\n");
  for (const char* text : {"", "one", "one\n\ntwo\n", "~", "~~\n~"})
    EXPECT_EQ(shown_description(stored_description(text)), text);
}

}  // namespace zephyl
