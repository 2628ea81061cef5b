// Commands that feed events: the pen, keys, characters, the rounds of the main loop, the clock.

#include <cstdint>
#include <vector>

#include "engine/state.h"
#include "platform/events.h"
#include "platform/script/arguments.h"
#include "platform/script/commands.h"
#include "platform/script/key_centre.h"
#include "platform/script/script.h"

namespace zephyl {

namespace {

constexpr std::int64_t MOST_ROUNDS = 1000000000;
constexpr std::int64_t DEFAULT_RUN_ROUNDS = 1000000;

// What waits in the queue comes before an event that is fed now.
void dispatch_all(TScript& script) {
  while (script.platform.dispatch_queued()) script.platform.paint_if_requested();
}

void pen_down(TScript& script, int x, int y) {
  dispatch_all(script);
  if (script.broken_off()) return;
  script.platform.pen_down(x, y);
  script.platform.paint_if_requested();
}

void pen_up(TScript& script, int x, int y) {
  dispatch_all(script);
  script.platform.pen_up(x, y);
}

void tap_at(TScript& script, int x, int y) {
  pen_down(script, x, y);
  pen_up(script, x, y);
}

// One round of the main loop.
void loop_round(TScript& script) {
  dispatch_all(script);
  script.platform.paint_if_requested();
  if (!script.broken_off()) on_idle();
}

bool obey_folder(TScript& script, const std::string& text) {
  if (text.empty()) return false;
  if (script.started()) {
    script.refuse("the folder can only be set before the first other command");
    return true;
  }
  std::string folder = text;
  if (folder.back() == '/') folder.pop_back();
  script.platform.folder = folder;
  return true;
}

bool obey_tap(TScript& script, const std::string& text) {
  int x = 0, y = 0;
  if (!read_point(text, x, y)) return false;
  tap_at(script, x, y);
  return true;
}

bool obey_down(TScript& script, const std::string& text) {
  int x = 0, y = 0;
  if (!read_point(text, x, y)) return false;
  pen_down(script, x, y);
  return true;
}

bool obey_move(TScript& script, const std::string& text) {
  int x = 0, y = 0;
  if (!read_point(text, x, y)) return false;
  if (!script.platform.pen_is_down) {
    script.refuse("the pen is up");
    return true;
  }
  dispatch_all(script);
  on_pen_move(x, y);
  return true;
}

bool obey_up(TScript& script, const std::string& text) {
  int x = 0, y = 0;
  if (!read_point(text, x, y)) return false;
  pen_up(script, x, y);
  return true;
}

bool obey_key(TScript& script, const std::string& text) {
  std::int64_t number = 0;
  if (!read_integer(text, INT64_MIN, INT64_MAX, number)) return false;
  TPoint centre;
  if (centre_of_key(number, centre))
    tap_at(script, centre.x, centre.y);
  else
    script.refuse("this screen has no key " + text);
  return true;
}

bool obey_char(TScript& script, const std::string& text) {
  std::vector<std::uint16_t> characters;
  if (text.empty() || !read_characters(text, characters)) return false;
  dispatch_all(script);
  for (const std::uint16_t character : characters) {
    if (script.broken_off()) break;
    on_char(character);
    script.platform.paint_if_requested();
  }
  return true;
}

bool obey_arrow(TScript& script, const std::string& text) {
  struct TArrowName {
    const char* name;
    TArrow arrow;
  };
  constexpr TArrowName arrows[] = {{"right", ARROW_RIGHT}, {"left", ARROW_LEFT}, {"delete", ARROW_DELETE},
                                   {"up", ARROW_UP},       {"down", ARROW_DOWN}, {"home", ARROW_HOME}};
  for (const TArrowName& arrow : arrows) {
    if (text != arrow.name) continue;
    dispatch_all(script);
    on_arrow(arrow.arrow);
    return true;
  }
  return false;
}

bool obey_idle(TScript& script, const std::string& text) {
  std::int64_t rounds = 1;
  if (!text.empty() && !read_integer(text, 0, MOST_ROUNDS, rounds)) return false;
  while (rounds-- > 0 && !script.broken_off()) loop_round(script);
  return true;
}

// Why the running program does not go on by itself; null while it does.
const char* standstill() {
  if (!state.program_running) return "stopped";
  if (state.at_prompt) return "prompt";
  if (state.key_wait) return "pause";
  return nullptr;
}

bool obey_run(TScript& script, const std::string& text) {
  std::int64_t rounds = DEFAULT_RUN_ROUNDS;
  if (!text.empty() && !read_integer(text, 0, MOST_ROUNDS, rounds)) return false;
  dispatch_all(script);
  while (!script.broken_off() && !standstill() && rounds-- > 0) loop_round(script);
  if (!script.broken_off()) script.answer(standstill() ? standstill() : "running");
  return true;
}

bool obey_advance(TScript& script, const std::string& text) {
  std::int64_t milliseconds = 0;
  if (!read_integer(text, 0, INT64_MAX / 2, milliseconds)) return false;
  script.platform.advance(static_cast<std::uint64_t>(milliseconds));
  return true;
}

bool obey_post(TScript& script, const std::string& text) {
  if (text == "cancel") {
    script.platform.queue.push_back({QUEUED_CANCEL, {}});
    return true;
  }
  TPoint at;
  if (text.compare(0, 4, "tap ") != 0 || !read_point(text.substr(4), at.x, at.y)) return false;
  script.platform.queue.push_back({QUEUED_PEN_DOWN, at});
  script.platform.queue.push_back({QUEUED_PEN_UP, at});
  return true;
}

bool obey_quit(TScript& script, const std::string&) {
  script.quit();
  return true;
}

constexpr TCommand COMMANDS[] = {
    {"folder", "folder PATH", obey_folder, BEFORE_START},
    {"tap", "tap X Y", obey_tap, NOT_IN_DIALOG},
    {"down", "down X Y", obey_down, NOT_IN_DIALOG},
    {"move", "move X Y", obey_move, NOT_IN_DIALOG},
    {"up", "up X Y", obey_up, NOT_IN_DIALOG},
    {"key", "key N", obey_key, NOT_IN_DIALOG},
    {"char", "char TEXT, with \\r \\b \\e \\s \\\\", obey_char, NOT_IN_DIALOG},
    {"arrow", "arrow right|left|delete|up|down|home", obey_arrow, NOT_IN_DIALOG},
    {"idle", "idle [N]", obey_idle, NOT_IN_DIALOG},
    {"run", "run [N]", obey_run, NOT_IN_DIALOG, "dialog"},
    {"advance", "advance MS", obey_advance},
    {"post", "post tap X Y, post cancel", obey_post, NOT_IN_DIALOG},
    {"quit", "quit", obey_quit},
};

}  // namespace

TCommandGroup event_commands() { return {COMMANDS, static_cast<int>(std::size(COMMANDS))}; }

}  // namespace zephyl
