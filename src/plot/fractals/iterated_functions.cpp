// ifsFractal(: the attractor of an iterated function system, by the random game of M. Barnsley, "Fractals
// Everywhere" (1988): a point jumps by an affine map drawn at random, and each place it comes to is drawn.

#include <algorithm>
#include <utility>

#include "collections/matrix_calls.h"
#include "numerics/random.h"
#include "plot/drawing.h"
#include "plot/drawing_operations.h"
#include "plot/fractals/fit_scale.h"
#include "plot/fractals/fractals.h"

namespace zephyl {

namespace {

constexpr int MOST_POINTS = 1000000;
constexpr int MEASURED_POINTS = 1000;  // those that a fitted picture's scale is made from
constexpr int REFRESH_POINTS = 3000;
constexpr int POLL_POINTS = 501;
constexpr double SENTINEL = 2.0;  // above every random number

struct TPlace {
  double x = 0.0;
  double y = 0.0;
};

// x' = a x + b y + e, y' = c x + d y + f; `limit` is the running sum of the probabilities.
struct TAffineMap {
  double a, b, c, d, e, f, limit;

  TPlace operator()(const TPlace& from) const {
    return {a * from.x + b * from.y + e, c * from.x + d * from.y + f};
  }
};

class TFunctionSystem {
 public:
  // A row a map: a, b, c, d, e, f and the probability.
  explicit TFunctionSystem(const MatrixRecord& matrix) : count_(row_count(matrix)) {
    for (int i = 0; i < count_; ++i) {
      const double* row = matrix.cells[i];
      maps_[i] = {row[0], row[1], row[2], row[3], row[4], row[5], row[6]};
    }
    put_likely_first();
    for (int i = 1; i < count_; ++i) maps_[i].limit += maps_[i - 1].limit;
    maps_[count_] = maps_[count_ - 1];
    maps_[count_].limit = SENTINEL;
  }

  // The first whose running sum exceeds the next random number; the last where none does.
  const TAffineMap& draw() const {
    const double number = next_random();
    const TAffineMap* map = maps_;
    while (number >= map->limit) ++map;
    return *map;
  }

 private:
  void put_likely_first() {
    const auto likelier = [](const TAffineMap& a, const TAffineMap& b) { return a.limit < b.limit; };
    for (int i = 0; i < count_; ++i)
      std::swap(maps_[i], *std::max_element(maps_ + i, maps_ + count_, likelier));
  }

  int count_;
  TAffineMap maps_[MATRIX_LIMIT + 1];
};

class TAttractor {
 public:
  TAttractor(const MatrixRecord& matrix, bool fitted)
      : system_(matrix), measuring_(fitted), fitted_(fitted) {}

  void draw(int points) {
    for (int n = 1; n <= points; ++n) {
      place_ = system_.draw()(place_);
      if (measuring_)
        measure();
      else
        draw_place(place_);
      if (n % REFRESH_POINTS == 0) drawing_changed();
      if (n % POLL_POINTS == 0 && poll_cancel()) return drawing_changed();
    }
    if (measuring_) fix_scale();
    for (int i = 0; i < kept_count_; ++i) draw_place(kept_[i]);
    drawing_changed();
  }

 private:
  void measure() {
    kept_[kept_count_++] = place_;
    extent_.take(place_.x, place_.y);
    if (kept_count_ == MEASURED_POINTS) fix_scale();
  }

  void fix_scale() {
    scale_ = fit_scale(extent_);
    measuring_ = false;
  }

  void draw_place(const TPlace& place) {
    if (fitted_)
      draw_point(scale_.x(place.x), scale_.y(place.y));
    else
      draw_point(place.x, place.y);
  }

  TFunctionSystem system_;
  TPlace place_;
  bool measuring_;
  bool fitted_;
  TExtent extent_;
  TFitScale scale_;
  TPlace kept_[MEASURED_POINTS];
  int kept_count_ = 0;
};

constexpr int MAP_COLUMNS = 7;

// matrix, number of points, 1 to fit the picture to the view
void draw_attractor(const TFamilyCall& call) {
  TMatrixOperands operands;
  if (!read_matrix_operands(call, operands)) return;
  if (column_count(*operands.first) != MAP_COLUMNS) return report_error(ERR_MATRIX_SIZE);
  const int points = checked_integer(call.numbers[0].re, 1, MOST_POINTS, ERR_DOMAIN);
  int fitted;
  if (errors.error_flag || !read_switch(call.numbers[1], fitted)) return;
  TAttractor(*operands.first, fitted != 0).draw(points);
}

}  // namespace

void register_iterated_functions() { operations[OP_IFS_FRACTAL].matrix = drawing_command<draw_attractor>; }

}  // namespace zephyl
