#include "platform/desktop/input_queue.h"

#include <gtest/gtest.h>

using namespace zephyl;

TEST(input_queue, gives_back_in_order) {
  TInputQueue queue;
  queue.push({INPUT_PEN_DOWN, {3, 4}});
  queue.push({INPUT_CHARACTER, {}, '7'});
  TInput input;
  ASSERT_TRUE(queue.pop(input));
  EXPECT_EQ(input.kind, INPUT_PEN_DOWN);
  EXPECT_EQ(input.at.y, 4);
  ASSERT_TRUE(queue.pop(input));
  EXPECT_EQ(input.code, '7');
  EXPECT_FALSE(queue.pop(input));
}

TEST(input_queue, keeps_the_last_of_a_row_of_moves) {
  TInputQueue queue;
  for (int x = 1; x <= 5; ++x) queue.push({INPUT_PEN_MOVE, {x, 0}});
  queue.push({INPUT_PEN_UP, {6, 0}});
  TInput input;
  queue.pop(input);
  EXPECT_EQ(input.kind, INPUT_PEN_MOVE);
  EXPECT_EQ(input.at.x, 5);
  queue.pop(input);
  EXPECT_EQ(input.kind, INPUT_PEN_UP);
}

TEST(input_queue, shows_the_oldest_pen_down_without_taking_it) {
  TInputQueue queue;
  TPoint at;
  EXPECT_FALSE(queue.find_pen_down(at));
  queue.push({INPUT_CHARACTER, {}, '7'});
  queue.push({INPUT_PEN_DOWN, {1, 1}});
  queue.push({INPUT_PEN_DOWN, {2, 2}});
  for (int look = 0; look < 2; ++look) {
    ASSERT_TRUE(queue.find_pen_down(at));
    EXPECT_EQ(at.x, 1);
  }
}

TEST(input_queue, drops_only_the_oldest_pen_down) {
  TInputQueue queue;
  queue.push({INPUT_PEN_UP, {9, 9}});
  queue.push({INPUT_PEN_DOWN, {1, 1}});
  queue.push({INPUT_PEN_DOWN, {2, 2}});
  queue.remove_pen_down();
  TPoint at;
  ASSERT_TRUE(queue.find_pen_down(at));
  EXPECT_EQ(at.x, 2);
  queue.remove_pen_down();
  queue.remove_pen_down();
  TInput input;
  ASSERT_TRUE(queue.pop(input));
  EXPECT_EQ(input.kind, INPUT_PEN_UP);
  EXPECT_TRUE(queue.empty());
}

TEST(input_queue, escape_and_the_wish_to_close_are_cancels) {
  TInputQueue queue;
  queue.push({INPUT_CHARACTER, {}, '7'});
  queue.push({INPUT_ARROW, {}, ESCAPE_CHARACTER});
  EXPECT_FALSE(queue.holds_cancel());
  queue.push({INPUT_CHARACTER, {}, ESCAPE_CHARACTER});
  EXPECT_TRUE(queue.holds_cancel());
  TInputQueue closing;
  closing.push({INPUT_CLOSE});
  EXPECT_TRUE(closing.holds_cancel());
}
