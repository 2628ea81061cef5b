// The stopwatch: times with laps, in hundredths of a second of the platform's clock. It keeps nothing after its dialog closes.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace zephyl {

struct stopwatch {
  bool running = false;
  bool reset = true;  // stands at zero, not yet started
  std::uint32_t start_tick = 0;      // at the last reset or first start
  std::uint32_t lap_start_tick = 0;  // at the start of the lap
  std::uint32_t now_tick = 0;        // read last; frozen while stopped
  std::uint32_t paused_total = 0;    // of all stopped spans
  std::uint32_t lap_paused = 0;      // of those in the lap
  std::int32_t lap_count = 0;
  std::int32_t last_shown = -1;  // elapsed time on display; -1 none
  std::vector<std::string> laps;  // "1\t00:12.34", in their order
};

// Hundredths of a second.
std::uint32_t stopwatch_ticks();

stopwatch opened_stopwatch();
void press_start_lap(stopwatch& watch);
void press_stop_reset(stopwatch& watch);
// Reads the clock while it runs. True if the elapsed time changed: `last_shown` is what to show.
bool tick_stopwatch(stopwatch& watch);

// "MM:SS.hh", with "HH:" in front from an hour on; "--:--:--.--" from 100 hours.
std::string format_stopwatch_time(std::uint32_t hundredths);

// The dialog; returns when it is closed.
void show_stopwatch();

}  // namespace zephyl
