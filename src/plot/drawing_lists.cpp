// The commands that draw lists as lines from point to point.

#include <algorithm>

#include "collections/list_calls.h"
#include "plot/drawing.h"
#include "plot/drawing_operations.h"
#include "plot/plot_variables.h"

namespace zephyl {

namespace {

// How the values of a list become coordinates of an axis: as they stand, or so that they fill the view.
struct TAxisFit {
  double least = 0.0;
  double factor = 1.0;
  double start = 0.0;

  double operator()(double value) const { return (value - least) * factor + start; }
};

// Equal values go to the middle of the view.
TAxisFit fit_to_view(const ListRecord& list, double min, double max) {
  TAxisFit fit;
  double greatest = fit.least = list.elements[0].re;
  for (int i = 1; i <= list.last; ++i) {
    fit.least = std::min(fit.least, list.elements[i].re);
    greatest = std::max(greatest, list.elements[i].re);
  }
  const bool equal = greatest == fit.least;
  fit.factor = equal ? 0.0 : (max - min) / (greatest - fit.least);
  fit.start = equal ? (min + max) / 2.0 : min;
  return fit;
}

bool real_lists(const TListOperands& operands) {
  if (!is_complex_list(*operands.first) && !(operands.second && is_complex_list(*operands.second)))
    return true;
  report_error(ERR_DATA_TYPE);
  return false;
}

TAxisFit x_fit(const ListRecord& list, bool fitted) {
  return fitted ? fit_to_view(list, plot_variables.xMin, plot_variables.xMax) : TAxisFit{};
}

TAxisFit y_fit(const ListRecord& list, bool fitted) {
  return fitted ? fit_to_view(list, plot_variables.yMin, plot_variables.yMax) : TAxisFit{};
}

// list, 1 to fit y to the view; the points lie evenly from the left edge to the right one
void draw_list_y(const TFamilyCall& call) {
  TListOperands operands;
  int fitted;
  if (!read_list_operands(call, operands) || !real_lists(operands) || !read_switch(call.numbers[0], fitted))
    return;
  const ListRecord& list = *operands.first;
  const TAxisFit fit = y_fit(list, fitted != 0);
  const double left = plot_variables.xMin, width = plot_variables.xMax - plot_variables.xMin;
  const auto x_of = [&](int i) { return left + i * (width / list.last); };
  for (int i = 1; i <= list.last; ++i)
    draw_line(x_of(i - 1), fit(list.elements[i - 1].re), x_of(i), fit(list.elements[i].re));
  drawing_changed();
}

bool same_size(const TListOperands& operands) {
  if (operands.first->last == operands.second->last) return true;
  report_error(ERR_LIST_MISMATCH);
  return false;
}

// list of x, list of y, and what is fitted to the view: 0 nothing, 1 x, 2 y, 3 both
void draw_list_xy(const TFamilyCall& call) {
  TListOperands operands;
  int fitted;
  if (!read_list_operands(call, operands) || !real_lists(operands) || !same_size(operands)) return;
  if (!read_switch(call.numbers[0], fitted, 3)) return;
  const ListRecord &xs = *operands.first, &ys = *operands.second;
  const TAxisFit fit_x = x_fit(xs, fitted & 1), fit_y = y_fit(ys, fitted & 2);
  for (int i = 1; i <= xs.last; ++i)
    draw_line(fit_x(xs.elements[i - 1].re), fit_y(ys.elements[i - 1].re), fit_x(xs.elements[i].re),
              fit_y(ys.elements[i].re));
  drawing_changed();
}

}  // namespace

void register_drawing_lists() {
  operations[OP_DRAW_LIST_Y].list = drawing_command<draw_list_y>;
  operations[OP_DRAW_LIST_XY].list = drawing_command<draw_list_xy>;
}

}  // namespace zephyl
