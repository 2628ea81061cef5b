// The turtle of an L-system: it walks over the expanded rules, turns, steps, and tells each place it comes
// to.
#pragma once

#include <cstdint>

#include "plot/fractals/l_system_grammar.h"

namespace zephyl {

constexpr int L_SYSTEM_ORDER_LIMIT = 100;

struct TLSystemSettings {
  int order = 0;             // how deep rules are expanded, to L_SYSTEM_ORDER_LIMIT
  double turn_angle = 0.0;   // degrees, of + and -
  double scale = 1.0;        // of a step, for each level of depth
  double start_angle = 0.0;  // degrees
  double length = 1.0;       // of a step at depth 0
};

class TLSystemTurtle {
 public:
  // Told a place, in the order of the walk, and whether a line leads there from the one before.
  using TOutput = void (*)(void* context, double x, double y, bool line);

  // The grammar must live as long as the turtle.
  TLSystemTurtle(const TLSystemGrammar& grammar, const TLSystemSettings& settings);

  // Walks from (0, 0) to the end of the axiom; the start is told too. Reports ERR_MEMORY_LIMIT for too many
  // open brackets, and a cancel. False if there was an error.
  bool walk(TOutput output, void* context);

 private:
  // A rule under way.
  struct TFrame {
    const char* at = nullptr;
    int depth = 0;
    std::int64_t pending = 0;  // the number in front of + or -, 0 for none
  };
  struct TPose {
    double x = 0.0;
    double y = 0.0;
    std::int64_t turns = 0;
  };
  struct TDirection {
    double cosine, sine;
  };

  static constexpr int KNOWN_TURNS = 100;  // either way
  static constexpr int FRAME_LIMIT = 105;
  static constexpr int BRACKET_LIMIT = 105;
  static_assert(L_SYSTEM_ORDER_LIMIT < FRAME_LIMIT, "a rule of every level can be under way");

  void obey(TFrame& frame, char command);
  void expand(int rule, int depth);
  void turn(TFrame& frame, int sign);
  void add_digit(TFrame& frame, int digit);
  void step(TFrame& frame, bool line);
  void open_bracket();
  void close_bracket();
  TDirection computed_direction(std::int64_t turns) const;
  TDirection direction(std::int64_t turns) const;

  const TLSystemGrammar& grammar_;
  TLSystemSettings settings_;
  double step_lengths_[L_SYSTEM_ORDER_LIMIT + 1];  // by depth
  TDirection directions_[2 * KNOWN_TURNS - 1];     // of -99 to 99 turns
  TFrame frames_[FRAME_LIMIT];
  int frame_count_ = 0;
  TPose pose_;
  TPose brackets_[BRACKET_LIMIT];
  int bracket_count_ = 0;
  TOutput output_ = nullptr;
  void* context_ = nullptr;
};

}  // namespace zephyl
