#include "tools/stopwatch.h"

#include <cstdio>

#include "platform/platform.h"

namespace zephyl {

namespace {

constexpr std::uint32_t HOUR = 360000;

void set_ticks(stopwatch& watch, std::uint32_t now) {
  watch.start_tick = watch.lap_start_tick = watch.now_tick = now;
}

void end_lap(stopwatch& watch, std::uint32_t now) {
  ++watch.lap_count;
  watch.laps.push_back(std::to_string(watch.lap_count) + "\t" +
                       format_stopwatch_time(now - watch.lap_paused - watch.lap_start_tick));
  watch.lap_start_tick = now;
  watch.lap_paused = 0;
}

void resume(stopwatch& watch, std::uint32_t now) {
  const std::uint32_t stopped = now - watch.now_tick;
  watch.paused_total += stopped;
  watch.lap_paused += stopped;
}

std::string two_digits(std::uint32_t value) {
  char text[16];
  std::snprintf(text, sizeof text, value < 10 ? "0%u" : "%u", static_cast<unsigned>(value));
  return text;
}

}  // namespace

std::uint32_t stopwatch_ticks() { return platform().tick_count() / 10; }

stopwatch opened_stopwatch() {
  stopwatch watch;
  set_ticks(watch, stopwatch_ticks());
  return watch;
}

void press_start_lap(stopwatch& watch) {
  const std::uint32_t now = stopwatch_ticks();
  if (watch.running) return end_lap(watch, now);
  if (watch.reset)
    set_ticks(watch, now);
  else
    resume(watch, now);
  watch.reset = false;
  watch.running = true;
}

void press_stop_reset(stopwatch& watch) {
  const std::uint32_t now = stopwatch_ticks();
  if (watch.running) {
    watch.now_tick = now;
    watch.running = false;
  } else {
    watch = stopwatch();
    set_ticks(watch, now);
  }
}

bool tick_stopwatch(stopwatch& watch) {
  if (watch.running) watch.now_tick = stopwatch_ticks();
  const auto elapsed = static_cast<std::int32_t>(watch.now_tick - watch.paused_total - watch.start_tick);
  if (elapsed == watch.last_shown) return false;
  watch.last_shown = elapsed;
  return true;
}

std::string format_stopwatch_time(std::uint32_t hundredths) {
  const std::uint32_t hours = hundredths / HOUR;
  if (hours > 99) return "--:--:--.--";
  const std::uint32_t rest = hundredths % HOUR;
  const std::string time =
      two_digits(rest / 6000) + ":" + two_digits(rest / 100 % 60) + "." + two_digits(rest % 100);
  return hours == 0 ? time : two_digits(hours) + ":" + time;
}

}  // namespace zephyl
