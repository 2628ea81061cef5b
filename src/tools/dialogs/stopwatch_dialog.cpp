// The dialog of the stopwatch.

#include "platform/dialog.h"
#include "platform/platform.h"
#include "tools/stopwatch.h"

namespace zephyl {

namespace {

constexpr int STOPWATCH_DIALOG = 205;
constexpr std::uint32_t TICK_INTERVAL = 95;

enum TStopwatchControl { ELAPSED_TIME, START_LAP, STOP_RESET, EXIT, LAPS, NOTE, NOTE_END };

void show_state(TDialog& dialog, const stopwatch& watch) {
  dialog[ELAPSED_TIME].text = format_stopwatch_time(static_cast<std::uint32_t>(watch.last_shown));
  dialog[LAPS].rows = watch.laps;
  dialog[LAPS].selected = static_cast<int>(watch.laps.size()) - 1;
}

void handle(TDialog& dialog, const TDialogEvent& event, stopwatch& watch) {
  if (event.kind == CONTROL_ACTIVATED && event.control == START_LAP) {
    press_start_lap(watch);
    dialog.keep_open();
  }
  if (event.kind == CONTROL_ACTIVATED && event.control == STOP_RESET) press_stop_reset(watch);
  if (event.control == EXIT) return;
  tick_stopwatch(watch);
  show_state(dialog, watch);
}

}  // namespace

void show_stopwatch() {
  stopwatch watch = opened_stopwatch();
  TDialog dialog(STOPWATCH_DIALOG, "Stopwatch");
  dialog.add(text_control("Elapsed Time:", ""));
  dialog.add(button_control("Start/Lap", BUTTON_DEFAULT));
  dialog.add(beside(button_control("Stop/Reset")));
  dialog.add(beside(button_control("Exit", BUTTON_CANCEL)));
  dialog.add(table_control("Laps", {{"Lap", 30}, {"Time", 90}}, {}));
  dialog.add(label_control("Note: Power must remain on"));
  dialog.add(label_control("for correct timing."));
  dialog.tick_interval = TICK_INTERVAL;
  dialog.procedure = [&watch](TDialog& shown, const TDialogEvent& event) { handle(shown, event, watch); };
  platform().run_dialog(dialog);
}

}  // namespace zephyl
