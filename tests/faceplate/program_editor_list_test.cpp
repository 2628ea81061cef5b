// The list of statements on the screen: rows, wrapping, marks, and the statement under the pen.

#include <algorithm>

#include "engine/state.h"
#include "faceplate/display.h"
#include "faceplate/program_editor.h"
#include "platform/surface.h"
#include "programs/editor.h"
#include "programs/program.h"
#include "support/golden.h"

namespace zephyl {
namespace {

constexpr int LIST_TOP = 42;
constexpr int ROW = 17;
constexpr int TEXT_RIGHT = 219;  // the last column of a statement
constexpr TRect UP_ARROW = {222, 47, 229, 58};
constexpr TRect DOWN_ARROW = {222, 62, 229, 73};

// 20 glyphs of seven columns and more: two rows.
const std::string WRAPPED = "1234567890123456789012345678901234567890";

class program_list : public program_editor {
 protected:
  void open(const TListing& lines) {
    write_program("Work", lines);
    edit("Work");
    select_statement(0);
    paint();
  }
  static bool drawn_in(const TRect& rect) {
    const std::vector<TColour> colours = pixels(rect);
    return std::any_of(colours.begin(), colours.end(), [](TColour c) { return c != display_colour(); });
  }
  static bool text_in_row(int row) {
    return drawn_in({TEXT_LEFT, LIST_TOP + row * ROW, TEXT_RIGHT, LIST_TOP + row * ROW + ROW - 1});
  }
  // The screen row of the cursor's mark; -1 where none is.
  static int marked_row() {
    for (int row = 0; row < LISTED_ROWS; ++row)
      if (drawn_in({9, LIST_TOP + row * ROW, TEXT_LEFT - 2, LIST_TOP + row * ROW + ROW - 1})) return row;
    return -1;
  }
  static bool up_arrow() { return drawn_in(UP_ARROW); }
  static bool down_arrow() { return drawn_in(DOWN_ARROW); }
  static TListing stops(int count) { return TListing(static_cast<std::size_t>(count), "stop"); }
};

TEST_F(program_list, an_empty_program_says_so) {
  make("Work");
  EXPECT_TRUE(text_in_row(0));
  EXPECT_FALSE(text_in_row(1));
  EXPECT_EQ(marked_row(), 0);
  expect_picture("program_list_empty", screen());
  add_stops(1);
  EXPECT_EQ(marked_row(), 1);
}

TEST_F(program_list, every_kind_of_statement) {
  open({"in r, \"radius\"", "if (r <= 0)", "error \"No circle\"", "end", "(pi)*r^(2)->A", "loop alpha",
        "out A (p), \"area\"", "end"});
  expect_picture("program_list", screen());
  select_statement(8);
  paint();
  expect_picture("program_list_end", screen());
}

TEST_F(program_list, expressions_wrap_between_tokens) {
  open(
      {"1->A", WRAPPED, "fnInt(sin(x)*cos(x),x,0,(pi))+sqRt(arcsin(0.5))*listSum({1,2,3,4,5,6})->B", "stop"});
  expect_picture("program_list_wrapped", screen());
  for (int row = 0; row < 3; ++row) EXPECT_TRUE(text_in_row(row)) << row;
  EXPECT_FALSE(drawn_in({TEXT_RIGHT + 1, LIST_TOP, 232, LIST_TOP + LISTED_ROWS * ROW - 1}));
}

TEST_F(program_list, other_statements_are_cut_at_the_end_of_their_row) {
  open({"call WWWWWWWWWWWWWWWWWWWWWWWW", "out str9 (p), \"WWWWWWWWWWWWWWW\""});
  EXPECT_TRUE(text_in_row(0));
  EXPECT_TRUE(text_in_row(1));
  EXPECT_FALSE(text_in_row(2));
  EXPECT_FALSE(drawn_in({TEXT_RIGHT + 1, LIST_TOP, 232, LIST_TOP + LISTED_ROWS * ROW - 1}));
  expect_picture("program_list_cut", screen());
}

TEST_F(program_list, arrows_show_that_there_is_more) {
  open(stops(20));
  EXPECT_FALSE(up_arrow());
  EXPECT_TRUE(down_arrow());
  select_statement(10);
  paint();
  EXPECT_EQ(program.top, 3);
  EXPECT_EQ(marked_row(), 7);
  EXPECT_TRUE(up_arrow());
  EXPECT_TRUE(down_arrow());
  expect_picture("program_list_arrows", screen());
  select_statement(20);
  paint();
  EXPECT_TRUE(up_arrow());
  EXPECT_FALSE(down_arrow());
}

TEST_F(program_list, eight_statements_need_no_arrow) {
  open(stops(8));
  EXPECT_FALSE(up_arrow());
  EXPECT_FALSE(down_arrow());
  tap_key(17);
  select_statement(0);
  paint();
  EXPECT_TRUE(down_arrow());
}

TEST_F(program_list, an_expression_longer_than_the_screen_is_shown_from_its_beginning) {
  std::string longest;
  for (int i = 0; i < 49; ++i) longest += "sin(cos(";
  open({"stop", longest + "1", "stop"});
  EXPECT_GT(rows_of_statement(1), LISTED_ROWS);
  select_statement(1);
  paint();
  EXPECT_EQ(program.top, 1);
  EXPECT_EQ(marked_row(), 0);
  EXPECT_TRUE(up_arrow());
  EXPECT_TRUE(down_arrow());
  expect_picture("program_list_longest", screen());
  tap_at(100, LIST_TOP + 7 * ROW);
  EXPECT_EQ(program.cursor, 1);
  tap_key(3);
  EXPECT_EQ(program.cursor, 2);
  EXPECT_EQ(program.top, 2);
  EXPECT_EQ(marked_row(), 0);
}

TEST_F(program_list, the_cursor_below_an_expression_stays_in_view) {
  open({WRAPPED, WRAPPED, WRAPPED, WRAPPED, "stop", "stop"});
  ASSERT_EQ(rows_of_statement(0), 2);
  tap_keys({3, 3, 3});
  EXPECT_EQ(program.top, 0);
  tap_key(3);
  EXPECT_EQ(program.top, 1);
  EXPECT_EQ(marked_row(), 6);
}

// --- The pen

TEST_F(program_list, a_tap_selects_a_statement_within_the_edges_of_the_list) {
  open(stops(20));
  const struct {
    int x, y, cursor;
  } taps[] = {{6, 42, 0},     {232, 42, 0},  {6, 58, 0},    {6, 59, 1},    {100, 100, 3},
              {232, 177, 7},  {6, 177, 7},   {5, 42, -1},   {233, 42, -1}, {5, 100, -1},
              {233, 100, -1}, {100, 41, -1}, {100, 178, -1}};
  for (const auto& tap : taps) {
    const int before = tap.cursor == 5 ? 4 : 5;
    select_statement(before);
    program.top = 0;
    tap_at(tap.x, tap.y);
    EXPECT_EQ(program.cursor, tap.cursor < 0 ? before : tap.cursor) << tap.x << ", " << tap.y;
  }
}

TEST_F(program_list, each_row_of_an_expression_is_the_expression) {
  open({"stop", WRAPPED, "stop"});
  for (const int row : {1, 2}) {
    select_statement(0);
    tap_at(100, LIST_TOP + row * ROW + 8);
    EXPECT_EQ(program.cursor, 1) << row;
  }
  tap_at(100, LIST_TOP + 3 * ROW);
  EXPECT_EQ(program.cursor, 2);
  EXPECT_EQ(marked_row(), 3);
}

TEST_F(program_list, the_empty_line_can_be_tapped_and_what_is_below_it_can_not) {
  open(stops(3));
  tap_at(100, LIST_TOP + 3 * ROW);
  EXPECT_EQ(program.cursor, 3);
  select_statement(1);
  tap_at(100, LIST_TOP + 4 * ROW);
  EXPECT_EQ(program.cursor, 1);
}

TEST_F(program_list, a_tap_counts_from_the_first_statement_shown) {
  open(stops(20));
  select_statement(15);
  ASSERT_EQ(program.top, 8);
  tap_at(100, LIST_TOP);
  EXPECT_EQ(program.cursor, 8);
}

TEST_F(program_list, while_a_text_is_written_taps_select_nothing) {
  open(stops(3));
  tap_blue(10);
  ASSERT_TRUE(state.alpha_active);
  tap_at(100, LIST_TOP + 2 * ROW);
  EXPECT_EQ(program.cursor, 0);
}

}  // namespace
}  // namespace zephyl
