#include "tools/stopwatch.h"

#include "support/calculator.h"

namespace zephyl {

namespace {

class stopwatch_dialog : public calculator {
 protected:
  void pass(std::uint32_t milliseconds) { platform_.ticks += milliseconds; }
};

TEST_F(stopwatch_dialog, time_is_told_in_hundredths) {
  EXPECT_EQ(format_stopwatch_time(0), "00:00.00");
  EXPECT_EQ(format_stopwatch_time(6543), "01:05.43");
  EXPECT_EQ(format_stopwatch_time(360000), "01:00:00.00");
  EXPECT_EQ(format_stopwatch_time(360000u * 99 + 359999), "99:59:59.99");
  EXPECT_EQ(format_stopwatch_time(360000u * 100), "--:--:--.--");
}

TEST_F(stopwatch_dialog, stopped_time_is_left_out_of_the_total_and_of_the_lap) {
  stopwatch watch = opened_stopwatch();
  press_start_lap(watch);
  pass(1000);
  press_stop_reset(watch);
  pass(5000);
  press_start_lap(watch);
  pass(500);
  EXPECT_TRUE(tick_stopwatch(watch));
  EXPECT_EQ(watch.last_shown, 150);
  press_start_lap(watch);
  ASSERT_EQ(watch.laps.size(), 1u);
  EXPECT_EQ(watch.laps[0], "1\t00:01.50");
  pass(250);
  press_start_lap(watch);
  EXPECT_EQ(watch.laps[1], "2\t00:00.25");
}

TEST_F(stopwatch_dialog, a_lap_at_once_is_row_one_of_no_time) {
  stopwatch watch = opened_stopwatch();
  press_start_lap(watch);
  press_start_lap(watch);
  EXPECT_EQ(watch.laps[0], "1\t00:00.00");
}

TEST_F(stopwatch_dialog, a_stopped_watch_does_not_change_and_a_reset_one_shows_zero_once) {
  stopwatch watch = opened_stopwatch();
  EXPECT_TRUE(tick_stopwatch(watch));
  EXPECT_EQ(watch.last_shown, 0);
  EXPECT_FALSE(tick_stopwatch(watch));
  press_start_lap(watch);
  pass(95);
  press_stop_reset(watch);
  EXPECT_TRUE(tick_stopwatch(watch));
  pass(95);
  EXPECT_FALSE(tick_stopwatch(watch));
}

TEST_F(stopwatch_dialog, stop_reset_twice_stops_and_then_clears_the_table) {
  stopwatch watch = opened_stopwatch();
  press_start_lap(watch);
  pass(100);
  press_start_lap(watch);
  press_stop_reset(watch);
  EXPECT_FALSE(watch.running);
  EXPECT_EQ(watch.laps.size(), 1u);
  press_stop_reset(watch);
  EXPECT_TRUE(watch.reset);
  EXPECT_TRUE(watch.laps.empty());
  EXPECT_EQ(watch.lap_count, 0);
}

TEST_F(stopwatch_dialog, where_the_clock_wraps_the_time_is_unknown) {
  platform_.ticks = 0xFFFFFFFFu - 500;
  stopwatch watch = opened_stopwatch();
  press_start_lap(watch);
  pass(400);
  tick_stopwatch(watch);
  EXPECT_EQ(watch.last_shown, 40);
  pass(200);
  EXPECT_LT(platform_.ticks, 1000u);
  press_start_lap(watch);
  EXPECT_EQ(watch.laps.back(), "1\t--:--:--.--");
  // The lap behind it is right again.
  pass(1000);
  press_start_lap(watch);
  EXPECT_EQ(watch.laps.back(), "2\t00:01.00");
}

TEST_F(stopwatch_dialog, the_dialog_ticks_and_its_buttons_work) {
  platform_.dialog_answers.push_back([this](TDialog& dialog) {
    EXPECT_EQ(dialog.tick_interval, 95u);
    EXPECT_EQ(dialog[0].text, "00:00.00");
    EXPECT_TRUE(accept_dialog(dialog));  // Start/Lap is the default
    EXPECT_FALSE(dialog.closed());
    pass(950);
    dialog.tell(DIALOG_TICK);
    EXPECT_EQ(dialog[0].text, "00:00.95");
    press_button(dialog, find_control(dialog, "Start/Lap"));
    EXPECT_EQ(dialog[find_control(dialog, "Laps")].rows, std::vector<std::string>{"1\t00:00.95"});
    press_button(dialog, find_control(dialog, "Stop/Reset"));
    press_button(dialog, find_control(dialog, "Stop/Reset"));
    EXPECT_EQ(dialog[0].text, "00:00.00");
    press_button(dialog, find_control(dialog, "Exit"));
    EXPECT_TRUE(dialog.closed());
  });
  show_stopwatch();
  EXPECT_EQ(platform_.dialogs, std::vector<std::string>{"205 Stopwatch"});
}

}  // namespace

}  // namespace zephyl
