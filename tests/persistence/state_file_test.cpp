// State files as a whole: merging, versions, the drawing, the dialogs and the function loadState(.

#include <algorithm>

#include "engine/errors.h"
#include "engine/memory.h"
#include "engine/records.h"
#include "engine/state.h"
#include "persistence/state_fixture.h"
#include "plot/drawing.h"
#include "stats/stats.h"
#include "support/states.h"

namespace zephyl {

// --- Merging and clearing

TEST_F(state_file, without_clear_actions_it_merges) {
  eval("1->A");
  eval("2->B");
  load("R: 11:5.0");
  EXPECT_EQ(memory_array[10].re, 1.0);
  EXPECT_EQ(memory_array[11].re, 5.0);
}

TEST_F(state_file, clear_actions_make_room) {
  eval("1->A");
  stats.x[5] = 9.0;
  load("A: 1:0|A: 2:0|R: 11:5.0|O: 0:7");
  EXPECT_EQ(memory_array[10].re, 0.0);
  EXPECT_EQ(memory_array[11].re, 5.0);
  EXPECT_EQ(stats.x[5], 0.0);
  EXPECT_EQ(stats.count, 7);
}

TEST_F(state_file, saved_strings_do_not_clear_the_strings) {
  eval("\"one\"->str1");
  saved({9});
  eval("\"two\"->str2");
  load_state(path().c_str());
  EXPECT_STREQ(stores.strings[0].text, "one");
  EXPECT_STREQ(stores.strings[1].text, "two");
}

TEST_F(state_file, a_wrong_clear_action_is_no_error) {
  load("A: 0:0|A: 99:0|A: x");
  EXPECT_FALSE(errors.error_flag);
}

// --- Versions and ends

TEST_F(state_file, a_newer_file_is_told_and_not_read) {
  load("R: 0:1.0|V: 2.8|R: 1:1.0");
  EXPECT_EQ(message(), "Error | The state file requires a more recent revision of Zephyl in order to load.");
  EXPECT_EQ(memory_array[0].re, 1.0);
  EXPECT_EQ(memory_array[1].re, 0.0);
}

TEST_F(state_file, letters_of_a_version_do_not_count) {
  load("V: 2.7B|R: 1:1.0");
  EXPECT_EQ(message(), "none");
  EXPECT_EQ(memory_array[1].re, 1.0);
  load("V: 1.0|R: 2:1.0");
  EXPECT_EQ(memory_array[2].re, 1.0);
}

TEST_F(state_file, an_empty_line_is_the_end) {
  load("R: 0:1.0||R: 1:1.0");
  EXPECT_EQ(memory_array[0].re, 1.0);
  EXPECT_EQ(memory_array[1].re, 0.0);
}

TEST_F(state_file, a_line_that_is_too_long_is_the_end) {
  load("R: 0:1.0|W: 0:" + std::string(1000000, 'x') + "|R: 1:1.0");
  EXPECT_EQ(memory_array[0].re, 1.0);
  EXPECT_EQ(memory_array[1].re, 0.0);
}

TEST_F(state_file, lines_that_end_in_a_line_feed_alone_are_one_line) {
  load_bytes("R: 0:1.0\nR: 1:1.0\n");
  EXPECT_EQ(memory_array[0].re, 1.0);
  EXPECT_EQ(memory_array[1].re, 0.0);
  EXPECT_FALSE(errors.error_flag);
}

TEST_F(state_file, accents_come_back) {
  load("W: 0:r\xC3\xA9sum\xC3\xA9");
  saved({9});
  stores.strings[0].text[0] = 0;
  load_state(path().c_str());
  EXPECT_STREQ(stores.strings[0].text, "r\xC3\xA9sum\xC3\xA9");
}

// --- The drawing

TEST_F(state_file, a_drawing_is_saved_if_anything_shows) {
  EXPECT_EQ(saved({6}).find("G: "), std::string::npos);
  EXPECT_EQ(folder_.names(), "a.state");
  drawing.drawing_used = true;
  EXPECT_EQ(saved({6}).find("G: "), std::string::npos);  // all white
  EXPECT_EQ(folder_.names(), "a.state drawing.dat");
  drawing_bitmap().set_pixel(3, 4, rgb(8, 16, 24));
  const std::string content = saved({6});
  const std::size_t at = content.find("\r\nG: \r\nGIF87a");
  ASSERT_NE(at, std::string::npos);
  EXPECT_EQ(content.substr(at + 7), file_content("drawing.dat"));
  EXPECT_EQ(content.back(), ';');
  EXPECT_EQ(saved().find("G: "), std::string::npos);
}

TEST_F(state_file, a_drawing_comes_back) {
  drawing.drawing_used = true;
  drawing_bitmap().set_pixel(0, 0, rgb(8, 16, 24));
  drawing_bitmap().set_pixel(225, 179, BLACK);
  saved({6});
  clear_drawing();
  EXPECT_FALSE(drawing.drawing_used);
  load_state(path().c_str());
  EXPECT_TRUE(drawing.drawing_used);
  EXPECT_EQ(drawing_bitmap().pixel(0, 0), rgb(8, 16, 24));
  EXPECT_EQ(drawing_bitmap().pixel(225, 179), BLACK);
  EXPECT_EQ(drawing_bitmap().pixel(1, 0), rgb(248, 252, 248));  // white, in sixteen bits
}

TEST_F(state_file, a_damaged_drawing_is_told) {
  load("R: 0:1.0|G: |GIF99");
  EXPECT_EQ(message(), "Gif | Gif load error");
  EXPECT_EQ(memory_array[0].re, 1.0);
}

TEST_F(state_file, nothing_is_read_behind_a_drawing) {
  drawing.drawing_used = true;
  drawing_bitmap().set_pixel(0, 0, BLACK);
  load_bytes(saved({6}) + "\r\nR: 0:1.0\r\n" + std::string(1200000, 'x') + "\r\nR: 1:1.0\r\n");
  EXPECT_EQ(memory_array[0].re, 0.0);
  EXPECT_EQ(memory_array[1].re, 0.0);
}

TEST_F(state_file, a_drawing_is_saved_where_its_work_file_can_not_be) {
  drawing.drawing_used = true;
  drawing_bitmap().set_pixel(3, 4, BLACK);
  TTestFolder elsewhere;
  ASSERT_EQ(::chdir("/proc"), 0);
  save_items = {};
  save_items.checked[SAVE_DRAWING] = true;
  save_state(elsewhere.file("a.state").c_str());
  EXPECT_NE(file_content(elsewhere.file("a.state")).find("G: \r\nGIF87a"), std::string::npos);
}

// --- A whole state

TEST_F(state_file, everything_comes_back_as_it_was) {
  fill_state();
  const std::string before = state_text();
  check_filled_items();
  save_state(path().c_str());
  empty_state();
  EXPECT_NE(state_text(), before);
  load_state(path().c_str());
  const std::string after = state_text();
  const auto difference = std::mismatch(before.begin(), before.end(), after.begin(), after.end());
  EXPECT_TRUE(after == before) << std::string(difference.second,
                                              std::min(difference.second + 80, after.end()));
}

// --- Dialogs and the function

TEST_F(state_file, the_dialog_checks_what_holds_data) {
  eval("1->A");
  eval("\"x\"->str1");
  std::string shown;
  platform_.dialog_answers.push_back([&](TDialog& dialog) {
    for (int i = 0; i < 9; ++i) shown += dialog[i].label + (dialog[i].checked ? "+ " : "- ");
    EXPECT_GE(find_control(dialog, "Note: checked items will write over or clear current data when loaded."),
              0);
    set_checked(dialog, find_control(dialog, "String Variables"), false);
    accept_dialog(dialog);
  });
  EXPECT_TRUE(select_items_to_save());
  EXPECT_EQ(platform_.dialogs.back(), "217 Select Items to Save");
  EXPECT_EQ(
      shown,
      "Real/Complex Variables+ Stats Data- List Variables- Matrix Variables- Plot Data (setup/functions)- "
      "Drawing Data- Expression Entries+ Program Functions- String Variables+ ");
  EXPECT_TRUE(save_items.checked[SAVE_VARIABLES]);
  EXPECT_FALSE(save_items.checked[SAVE_STRINGS]);
}

TEST_F(state_file, each_item_is_seen) {
  for (int item = 1; item <= SAVE_ITEM_COUNT; ++item) EXPECT_FALSE(holds_data(item)) << item;
  fill_state();
  for (int item = 1; item <= SAVE_ITEM_COUNT; ++item) EXPECT_TRUE(holds_data(item)) << item;
}

TEST_F(state_file, the_buttons_ask_for_a_file) {
  eval("1.5->A");
  platform_.dialog_answers.push_back([](TDialog& dialog) { accept_dialog(dialog); });
  platform_.file_answers.push_back(folder_.file("mine"));
  EXPECT_TRUE(save_state_pressed());
  EXPECT_EQ(folder_.names(), "mine.state");
  eval("0->A");
  platform_.file_answers.push_back(folder_.file("mine.state"));
  EXPECT_TRUE(load_state_pressed());
  EXPECT_EQ(memory_array[10].re, 1.5);
}

TEST_F(state_file, a_name_that_holds_the_extension_is_left_alone) {
  for (const char* name : {"a.state", "a.state.bak"}) {
    platform_.file_answers.push_back(folder_.file(name));
    EXPECT_TRUE(choose_state_file(false));
  }
  EXPECT_EQ(folder_.names(), "a.state a.state.bak");
}

TEST_F(state_file, cancel_leaves_all_as_it_was) {
  EXPECT_FALSE(save_state_pressed());
  platform_.dialog_answers.push_back([](TDialog& dialog) { accept_dialog(dialog); });
  EXPECT_FALSE(save_state_pressed());
  EXPECT_FALSE(load_state_pressed());
  EXPECT_EQ(folder_.names(), "");
}

TEST_F(state_file, an_expression_loads_a_state) {
  eval("1.5->A");
  save_items.checked[SAVE_VARIABLES] = true;
  save_state("mine.state");
  eval("7->A");
  EXPECT_EQ(eval("loadState(\"mine\")"), "0");
  EXPECT_EQ(memory_array[10].re, 1.5);
  EXPECT_TRUE(platform_.paint_requested);
}

TEST_F(state_file, an_expression_loads_nothing_for_nothing) {
  eval("7->A");
  EXPECT_EQ(eval("loadState(str1)"), "0");
  EXPECT_EQ(eval("loadState(\"none\")"), "0");
  EXPECT_EQ(memory_array[10].re, 7.0);
  EXPECT_EQ(error_of("loadState(5)"), "Function Argument Type");
}

TEST_F(state_file, numbers_that_overflow_are_no_error_of_the_expression) {
  make_file("big.state", "R: 0:1.0e999\r\nR: 1:1.0e-999\r\n");
  EXPECT_EQ(error_of("loadState(\"big\")"), "");
  EXPECT_EQ(eval("R0"), "0");
}

}  // namespace zephyl
