// Random hands on the whole calculator: taps, characters, cursor keys, drags, idle rounds, and answers to whatever box
// or dialog comes up. Each byte pair is an event. After each the state is sound and the picture painted, no box was an
// alarm of the program itself, and at the end the calculator still answers.

#include <algorithm>
#include <cstdint>
#include <set>
#include <string>

#include "engine/expression.h"
#include "faceplate/alpha_entry.h"
#include "faceplate/key_tables.h"
#include "fuzz_calculator.h"
#include "platform/dialog.h"
#include "platform/surface.h"

namespace {

using namespace zephyl;

// The bytes of an input, one after the other; zeros behind the last.
class TBytes {
 public:
  void begin(const std::uint8_t* data, std::size_t size) {
    next_ = data;
    end_ = data + size;
  }
  bool left() const { return next_ < end_; }
  int take() { return left() ? *next_++ : 0; }
  int below(int limit) { return limit > 0 ? take() % limit : 0; }

 private:
  const std::uint8_t* next_ = nullptr;
  const std::uint8_t* end_ = nullptr;
};

TBytes bytes;

// Titles of boxes that nobody should ever see.
bool is_alarm(const std::string& title) {
  static const std::set<std::string> alarms = {"Bitmap Error", "Bitmap error", "Opps", "Resource Error",
                                               "key_pressed_decoder", "get_stats_string",
                                               "get_small_number_character_bitmap"};
  return alarms.count(title) != 0 || title.compare(0, 5, "Bug (") == 0;
}

void act_on_control(TDialog& dialog, int control) {
  switch (dialog[control].kind) {
    case CONTROL_COMBO:
    case CONTROL_LIST:
    case CONTROL_TABLE:
      choose_row(dialog, control, bytes.below(static_cast<int>(dialog[control].rows.size())));
      if (bytes.below(4) == 0 && !dialog.closed()) dialog.tell(CONTROL_ACTIVATED, control);
      break;
    case CONTROL_EDIT: {
      std::string text;
      for (int i = bytes.below(8); i > 0; --i) text += static_cast<char>(32 + bytes.below(95));
      set_text(dialog, control, text);
      break;
    }
    case CONTROL_CHECK:
    case CONTROL_RADIO:
      set_checked(dialog, control, bytes.below(4) != 0);
      break;
    case CONTROL_SLIDER:
      set_value(dialog, control, bytes.take());
      break;
    case CONTROL_BUTTON:
      press_button(dialog, control);
      break;
    default:
      break;
  }
}

class TTapPlatform : public TFuzzPlatform {
 public:
  int depth = 0;

  void show_message(const char* text, const char* title) override {
    if (!is_alarm(title)) return;
    std::fprintf(stderr, "alarm '%s': %s\n", title, text);
    std::abort();
  }
  bool ask_question(const char*, const char*) override { return bytes.below(2) == 0; }

  // Some acts, a few ticks, then OK or Cancel.
  void run_dialog(TDialog& dialog) override {
    ++depth;
    dialog.tell(DIALOG_OPENED);
    for (int acts = depth > 3 ? 0 : bytes.below(8); acts > 0 && !dialog.closed() && dialog.count() > 0; --acts) {
      if (dialog.tick_interval > 0) dialog.tell(DIALOG_TICK);
      if (!dialog.closed()) act_on_control(dialog, bytes.below(dialog.count()));
    }
    if (!dialog.closed() && bytes.below(3) != 0) accept_dialog(dialog);
    cancel_dialog(dialog);
    --depth;
  }
};

TTapPlatform& tap_platform() {
  static TTapPlatform platform;
  return platform;
}

void tap(int x, int y) {
  on_pen_down(x, y);
  on_pen_up(x, y);
}

void tap_a_key() {
  KeyRect rect;
  if (key_rect(bytes.below(shown_key_table().count), rect))
    tap((rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2);
}

int any_x() { return bytes.take() - 8; }
int any_y() { return bytes.take() * 5 / 4 - 8; }

void drag() {
  on_pen_down(any_x(), any_y());
  for (int moves = bytes.below(4); moves > 0; --moves) on_pen_move(any_x(), any_y());
  if (bytes.below(4) != 0) on_pen_up(any_x(), any_y());
}

void one_event() {
  switch (bytes.below(16)) {
    case 0:
      return on_char(static_cast<std::uint16_t>(bytes.take() * 3));
    case 1:
    case 2:
      return on_char(static_cast<std::uint16_t>(32 + bytes.below(95)));
    case 3:
      return on_char(std::uint16_t{13});
    case 4:
      return on_arrow(static_cast<TArrow>(1 + bytes.below(6)));
    case 5:
      return drag();
    case 6:
      return tap(any_x(), any_y());
    case 7:
      for (int rounds = bytes.below(32); rounds > 0 && on_idle(); --rounds) {
      }
      return;
    default:
      return tap_a_key();
  }
}

void must_hold(bool condition, const char* what) {
  if (condition) return;
  std::fprintf(stderr, "%s\n", what);
  std::abort();
}

void must_be_sound() {
  must_hold(state.calcMode >= BASE_MODE && state.calcMode <= LIST_MODE, "mode out of range");
  must_hold(entry_line.cursor >= 0 && entry_line.cursor <= entry_line.expression.count, "cursor outside of the line");
  must_hold(entry_line.expression.count <= EXPRESSION_LIMIT, "line too long");
  must_hold(std::strlen(alpha_entry.text) <= 22, "text too long");
  must_hold(!(state.blue_shift && state.orange_shift), "two shifts at once");
}

// Every screen has keys and legends of several colours.
void must_be_painted() {
  on_paint();
  std::set<TColour> colours;
  for (int y = 0; y < screen().height() && colours.size() < 8; y += 3)
    for (int x = 0; x < screen().width(); x += 3) colours.insert(screen().pixel(x, y));
  must_hold(colours.size() >= 8, "an empty picture");
}

void start_afresh() {
  start_once();
  set_platform(&tap_platform());
  tap_platform().depth = 0;
  on_start();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  start_afresh();
  bytes.begin(data, std::min<std::size_t>(size, 400));
  while (bytes.left()) {
    tap_platform().be_impatient(true);
    one_event();
    must_be_sound();
    must_be_painted();
  }
  tap_platform().be_impatient(false);
  on_stop();
  state.alpha_active = state.at_prompt = state.key_wait = false;
  must_answer();
  return 0;
}
