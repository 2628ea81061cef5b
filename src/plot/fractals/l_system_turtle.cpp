#include "plot/fractals/l_system_turtle.h"

#include <algorithm>
#include <cmath>

#include "engine/errors.h"
#include "engine/evaluator.h"
#include "engine/polar.h"
#include "engine/values.h"

namespace zephyl {

namespace {

constexpr int POLL_CHARACTERS = 501;

// A straight stem must have no width that fitting would blow up.
double snapped(double x) { return std::fabs(x) < near_zero_limit ? 0.0 : x; }

}  // namespace

TLSystemTurtle::TLSystemTurtle(const TLSystemGrammar& grammar, const TLSystemSettings& settings)
    : grammar_(grammar), settings_(settings) {
  for (int depth = 0; depth <= settings.order; ++depth)
    step_lengths_[depth] =
        settings.scale == 1.0 ? settings.length : std::pow(settings.scale, depth) * settings.length;
  for (int turns = 1 - KNOWN_TURNS; turns < KNOWN_TURNS; ++turns)
    directions_[turns + KNOWN_TURNS - 1] = computed_direction(turns);
}

TLSystemTurtle::TDirection TLSystemTurtle::computed_direction(std::int64_t turns) const {
  const double angle = static_cast<double>(turns) * (settings_.turn_angle * degrees_to_radians) +
                       settings_.start_angle * degrees_to_radians;
  return {snapped(std::cos(angle)), snapped(std::sin(angle))};
}

TLSystemTurtle::TDirection TLSystemTurtle::direction(std::int64_t turns) const {
  const bool known = turns > -KNOWN_TURNS && turns < KNOWN_TURNS;
  return known ? directions_[turns + KNOWN_TURNS - 1] : computed_direction(turns);
}

bool TLSystemTurtle::walk(TOutput output, void* context) {
  output_ = output;
  context_ = context;
  pose_ = {};
  bracket_count_ = frame_count_ = 0;
  output_(context_, pose_.x, pose_.y, false);
  expand(TLSystemGrammar::AXIOM, 0);
  int characters = 0;
  while (frame_count_ > 0 && !errors.error_flag) {
    TFrame& frame = frames_[frame_count_ - 1];
    const char command = *frame.at;
    if (!command) {
      --frame_count_;
      continue;
    }
    ++frame.at;
    obey(frame, command);
    if (++characters % POLL_CHARACTERS == 0) poll_cancel();
  }
  return !errors.error_flag;
}

void TLSystemTurtle::obey(TFrame& frame, char command) {
  if (is_rule_letter(command) && grammar_.has_rule(command) && frame.depth < settings_.order)
    return expand(command - 'A', frame.depth + 1);
  switch (command) {
    case 'F':
    case '|':
      return step(frame, true);
    case 'G':
      return step(frame, false);
    case '+':
      return turn(frame, 1);
    case '-':
      return turn(frame, -1);
    case '[':
      return open_bracket();
    case ']':
      return close_bracket();
    default:
      if (command >= '0' && command <= '9') add_digit(frame, command - '0');
  }
}

void TLSystemTurtle::expand(int rule, int depth) {
  frames_[frame_count_++] = {grammar_.rule(rule), depth, 0};
}

void TLSystemTurtle::add_digit(TFrame& frame, int digit) {
  constexpr std::int64_t most = 1000000000;
  frame.pending = std::min(frame.pending * 10 + digit, most);
}

void TLSystemTurtle::turn(TFrame& frame, int sign) {
  pose_.turns += sign * (frame.pending ? frame.pending : 1);
  frame.pending = 0;
}

void TLSystemTurtle::step(TFrame& frame, bool line) {
  const TDirection ahead = direction(pose_.turns);
  pose_.x += step_lengths_[frame.depth] * ahead.cosine;
  pose_.y += step_lengths_[frame.depth] * ahead.sine;
  output_(context_, pose_.x, pose_.y, line);
  frame.pending = 0;
}

void TLSystemTurtle::open_bracket() {
  if (bracket_count_ == BRACKET_LIMIT) return report_error(ERR_MEMORY_LIMIT);
  brackets_[bracket_count_++] = pose_;
}

void TLSystemTurtle::close_bracket() {
  if (bracket_count_ == 0) return;
  pose_ = brackets_[--bracket_count_];
  output_(context_, pose_.x, pose_.y, false);
}

}  // namespace zephyl
