// The events that a driver feeds to the calculator, all on one thread, and the finished picture.
#pragma once

#include <cstdint>

namespace zephyl {

class TSurface;

constexpr int SCREEN_WIDTH = 240;
constexpr int SCREEN_HEIGHT = 294;

enum TArrow { ARROW_RIGHT = 1, ARROW_LEFT = 2, ARROW_DELETE = 3, ARROW_UP = 4, ARROW_DOWN = 5, ARROW_HOME = 6 };

// Once, after `set_platform` and `register_families` (app/start_up.h); leaves the calculator ready for events.
void on_start();
// Once, as the last event; the driver ends afterwards.
void on_stop();

// Pen or left mouse button, in pixels of the picture. Moves are fed only while the pen is down.
void on_pen_down(int x, int y);
void on_pen_move(int x, int y);
void on_pen_up(int x, int y);

// A typed character, 8 Backspace, 13 Enter and 27 Escape included.
void on_char(std::uint16_t character);
void on_arrow(TArrow arrow);

// Composes the picture if anything asked for it; to be called in answer to TPlatform::invalidate.
void on_paint();
// One round with an empty queue. Returns true if there is more to do at once, false if the driver may sleep
// for IDLE_SLEEP milliseconds or until the next event.
bool on_idle();
constexpr std::uint32_t IDLE_SLEEP = 30;

// The picture, SCREEN_WIDTH by SCREEN_HEIGHT, always complete between two events.
const TSurface& screen();

}  // namespace zephyl
