#include "platform/script/script_platform.h"

#include <algorithm>
#include <ctime>

#include "platform/dialog.h"
#include "platform/events.h"

namespace zephyl {

namespace {

constexpr std::time_t START_SECONDS = 1704110400;  // 2024-01-01 12:00:00, read as universal time

template <typename TQueue>
auto first_of(TQueue& queue, TQueuedKind kind) {
  return std::find_if(queue.begin(), queue.end(),
                      [kind](const TQueuedEvent& event) { return event.kind == kind; });
}

}  // namespace

void TScriptPlatform::paint_if_requested() {
  if (take_paint_request()) on_paint();
}

bool TScriptPlatform::dispatch_queued() {
  if (queue.empty()) return false;
  const TQueuedEvent event = queue.front();
  queue.pop_front();
  if (event.kind == QUEUED_PEN_DOWN) pen_down(event.at.x, event.at.y);
  if (event.kind == QUEUED_PEN_UP) pen_up(event.at.x, event.at.y);
  return true;
}

void TScriptPlatform::pen_down(int x, int y) {
  pen_is_down = true;
  on_pen_down(x, y);
}

void TScriptPlatform::pen_up(int x, int y) {
  pen_is_down = false;
  on_pen_up(x, y);
}

TLocalTime TScriptPlatform::local_time() {
  const std::time_t seconds = START_SECONDS + static_cast<std::time_t>(elapsed / 1000);
  std::tm parts = {};
  if (const std::tm* utc = std::gmtime(&seconds)) parts = *utc;
  TLocalTime time;
  time.year = parts.tm_year + 1900;
  time.month = parts.tm_mon + 1;
  time.day = parts.tm_mday;
  time.hour = parts.tm_hour;
  time.minute = parts.tm_min;
  time.second = parts.tm_sec;
  time.millisecond = static_cast<int>(elapsed % 1000);
  time.weekday = parts.tm_wday;
  return time;
}

bool TScriptPlatform::peek_pen_down(TPoint& at) {
  const auto found = first_of(queue, QUEUED_PEN_DOWN);
  if (found == queue.end()) return false;
  at = found->at;
  return true;
}

void TScriptPlatform::remove_pen_down() {
  const auto found = first_of(queue, QUEUED_PEN_DOWN);
  if (found != queue.end()) queue.erase(found);
}

bool TScriptPlatform::peek_cancel() { return first_of(queue, QUEUED_CANCEL) != queue.end(); }

void TScriptPlatform::invalidate(bool at_once) {
  paint_requested = true;
  if (at_once) paint_if_requested();
}

bool TScriptPlatform::take_paint_request() {
  const bool was_requested = paint_requested;
  paint_requested = false;
  return was_requested;
}

void TScriptPlatform::show_message(const char* text, const char* title_word) {
  std::string line = std::string(title_word) + " | ";
  for (const char* c = text; *c; ++c) {
    if (*c == '\n')
      line += "\\n";
    else if (*c != '\r')
      line += *c;
  }
  messages.push_back(line);
}

bool TScriptPlatform::ask_question(const char*, const char*) {
  const bool given = answer;
  answer = true;
  return given;
}

void TScriptPlatform::run_dialog(TDialog& dialog) {
  dialog.tell(DIALOG_OPENED);
  if (dialog.closed()) return;
  before_dialog(dialog);
  dialogs.push_back({&dialog, elapsed});
  if (work_dialog) work_dialog(dialog);
  cancel_dialog(dialog);
  dialogs.pop_back();
}

// A tick may close the dialog, and open another.
void TScriptPlatform::advance(std::uint64_t milliseconds) {
  const std::uint64_t end = elapsed + milliseconds;
  const std::size_t depth = dialogs.size();
  while (front_dialog() && dialogs.size() == depth) {
    TOpenDialog& front = dialogs.back();
    const std::uint32_t interval = front.dialog->closed() ? 0 : front.dialog->tick_interval;
    if (interval == 0) front.ticked = end;
    if (interval == 0 || front.ticked + interval > end) break;
    elapsed = front.ticked = std::max(front.ticked + interval, elapsed);
    front.dialog->tell(DIALOG_TICK);
  }
  elapsed = std::max(end, elapsed);
}

bool TScriptPlatform::choose_file(const TFileQuestion&, std::string& path) {
  path = file;
  file.clear();
  return !path.empty();
}

}  // namespace zephyl
