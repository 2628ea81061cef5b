#include "platform/script/script_platform.h"

#include <gtest/gtest.h>

namespace zephyl {
namespace {

TEST(script_platform, clock_begins_at_noon_of_the_first_of_january_2024) {
  TScriptPlatform platform;
  const TLocalTime time = platform.local_time();
  EXPECT_EQ(platform.tick_count(), 0u);
  EXPECT_EQ(time.year, 2024);
  EXPECT_EQ(time.month, 1);
  EXPECT_EQ(time.day, 1);
  EXPECT_EQ(time.hour, 12);
  EXPECT_EQ(time.minute, 0);
  EXPECT_EQ(time.second, 0);
  EXPECT_EQ(time.millisecond, 0);
  EXPECT_EQ(time.weekday, 1);
}

TEST(script_platform, sleeping_moves_both_clocks) {
  TScriptPlatform platform;
  platform.sleep(2000);
  platform.sleep(345);
  EXPECT_EQ(platform.tick_count(), 2345u);
  EXPECT_EQ(platform.local_time().second, 2);
  EXPECT_EQ(platform.local_time().millisecond, 345);
}

TEST(script_platform, date_follows_the_clock_over_the_end_of_february) {
  TScriptPlatform platform;
  platform.elapsed = 59ull * 24 * 3600 * 1000;
  EXPECT_EQ(platform.local_time().month, 2);
  EXPECT_EQ(platform.local_time().day, 29);
  EXPECT_EQ(platform.local_time().weekday, 4);
}

TEST(script_platform, ticks_wrap_and_the_date_goes_on) {
  TScriptPlatform platform;
  platform.elapsed = (1ull << 32) + 5;
  EXPECT_EQ(platform.tick_count(), 5u);
  EXPECT_EQ(platform.local_time().month, 2);
  EXPECT_EQ(platform.local_time().day, 20);
}

TEST(script_platform, messages_are_noted_with_their_line_ends_spelled) {
  TScriptPlatform platform;
  platform.show_message("one\ntwo\r\nthree", "Title");
  ASSERT_EQ(platform.messages.size(), 1u);
  EXPECT_EQ(platform.messages[0], "Title | one\\ntwo\\nthree");
}

TEST(script_platform, an_answer_holds_for_one_question) {
  TScriptPlatform platform;
  EXPECT_TRUE(platform.ask_question("", ""));
  platform.answer = false;
  EXPECT_FALSE(platform.ask_question("", ""));
  EXPECT_TRUE(platform.ask_question("", ""));
}

TEST(script_platform, a_pen_down_is_looked_at_without_being_taken) {
  TScriptPlatform platform;
  TPoint at;
  EXPECT_FALSE(platform.peek_pen_down(at));
  platform.queue.push_back({QUEUED_CANCEL, {}});
  platform.queue.push_back({QUEUED_PEN_DOWN, {3, 4}});
  EXPECT_TRUE(platform.peek_pen_down(at));
  EXPECT_EQ(at.x, 3);
  EXPECT_EQ(at.y, 4);
  EXPECT_EQ(platform.queue.size(), 2u);
}

TEST(script_platform, removing_a_pen_down_leaves_the_rest_of_the_queue) {
  TScriptPlatform platform;
  platform.queue.push_back({QUEUED_CANCEL, {}});
  platform.queue.push_back({QUEUED_PEN_DOWN, {3, 4}});
  platform.queue.push_back({QUEUED_PEN_UP, {3, 4}});
  platform.remove_pen_down();
  ASSERT_EQ(platform.queue.size(), 2u);
  EXPECT_EQ(platform.queue[0].kind, QUEUED_CANCEL);
  EXPECT_EQ(platform.queue[1].kind, QUEUED_PEN_UP);
}

TEST(script_platform, a_paint_request_is_taken_once) {
  TScriptPlatform platform;
  EXPECT_TRUE(platform.take_paint_request());
  EXPECT_FALSE(platform.take_paint_request());
  platform.invalidate(false);
  EXPECT_TRUE(platform.take_paint_request());
}

TEST(script_platform, sounds_are_counted) {
  TScriptPlatform platform;
  platform.play_click();
  platform.play_click();
  EXPECT_EQ(platform.sounds, 2);
}

}  // namespace
}  // namespace zephyl
