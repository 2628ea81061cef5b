// What a key map is: a table of keys and their meanings, and the rules by which a meaning is chosen and
// refused. Each mode has such a table (key_maps.h); the meanings themselves are tokens, or actions of the
// files that hold the tables.
#pragma once

namespace zephyl {

constexpr int NO_TOKEN = -1;

// When a key does nothing but click. A program at a prompt doesn't run: its user types an expression.
enum TRefusal : unsigned {
  ALWAYS = 0,
  NOT_RUNNING = 1,
  NOT_ON_ERROR = 2,
  IDLE_ONLY = NOT_RUNNING | NOT_ON_ERROR
};

// One meaning of a key: a token, or an action that gives the key's result. Neither: the key has no such
// meaning, and the plain one stands in.
struct TMeaning {
  int token = NO_TOKEN;
  int (*act)(int key) = nullptr;
  unsigned refused = ALWAYS;

  constexpr bool defined() const { return token != NO_TOKEN || act; }
};

constexpr TMeaning token(int code, unsigned refused = ALWAYS) { return {code, nullptr, refused}; }
constexpr TMeaning action(int (*act)(int key), unsigned refused = ALWAYS) { return {NO_TOKEN, act, refused}; }
constexpr TMeaning none;

// The meanings of keys first to last, which are rows of the screen's key table.
struct TKeyRow {
  int first;
  int last;
  TMeaning plain;
  TMeaning blue = none;
  TMeaning orange = none;
};

struct TKeyMap {
  const TKeyRow* rows;
  int count;
};

// True if the rows name each key from 0 to count - 1 once and in order.
template <int ROWS>
constexpr bool names_each_key(const TKeyRow (&rows)[ROWS], int count) {
  int next = 0;
  for (const TKeyRow& row : rows) {
    if (row.first != next || row.last < row.first) return false;
    next = row.last + 1;
  }
  return next == count;
}

// Does what a key of the map means with the shifts as they are. Results as those of key_pressed_decoder
// (key_path.h). A key that the map doesn't name does nothing.
int press_mapped_key(const TKeyMap& map, int key);

}  // namespace zephyl
