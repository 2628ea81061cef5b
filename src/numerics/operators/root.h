// A zero of a function between two bounds: a scan for a change of sign, then the method of van Wijngaarden,
// Dekker and Brent (1973), in the form of Numerical Recipes (2nd edition, 9.3).
#pragma once

namespace zephyl {

enum TRootOutcome { ROOT_SEARCHING, ROOT_FOUND, ROOT_NOT_FOUND };

class TRoot {
 public:
  // The place of the first sample. Bounds in either order.
  double start(double lower, double upper);
  // Takes the sample at the last place. ROOT_SEARCHING with the next place; ROOT_FOUND with result().
  // ROOT_NOT_FOUND: no change of sign in the scan, or the change was a pole.
  TRootOutcome next(double sample, double& place);
  double result() const { return b_; }

 private:
  TRootOutcome next_of_scan(double sample, double& place);
  TRootOutcome choose_place(double& place);
  void keep_bracket();
  double interpolation(double tolerance, double half_width);
  TRootOutcome end_of_search() const;

  double step_ = 0.0, at_ = 0.0;
  int samples_ = 0;
  double previous_x_ = 0.0, previous_ = 0.0;
  bool searching_ = false;
  int rounds_ = 0;
  double a_ = 0.0, b_ = 0.0, c_ = 0.0;  // b the best place, c beyond the zero, a the last b
  double fa_ = 0.0, fb_ = 0.0, fc_ = 0.0;
  double d_ = 0.0, e_ = 0.0;
};

}  // namespace zephyl
