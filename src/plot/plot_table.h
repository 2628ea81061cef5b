// The table of the functions on a flat plot: ten rows of values from a start on, a step apart. What was
// evaluated is kept, so that moving the table by a row evaluates one row.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "plot/custom_function.h"

namespace zephyl {

constexpr int PLOT_TABLE_ROWS = 10;
constexpr int PLOT_TABLE_COLUMNS = PLOT_SLOT_COUNT;

class TPlotTable {
 public:
  // The table of the current type, from where it begins at first.
  TPlotTable();

  double start() const { return row_value(0); }
  double delta() const { return delta_; }

  // From other values on; everything is evaluated anew.
  void recalculate(double start, double delta);
  // Down, or up for less than 0. False, and nothing changes, where no double is so large.
  bool move(int rows);

  // "x", "theta (Rad)" or "t", then the functions: those in use, of a pair both if one is.
  std::vector<std::string> headings() const;
  // The cells of the rows, the parameter first, separated by tabs. Evaluates what isn't known yet; a tap
  // cancels that.
  std::vector<std::string> rows();

 private:
  struct TCell {
    bool valid = false;
    TPlotNumber number;
  };
  using TRow = std::array<TCell, PLOT_TABLE_COLUMNS>;
  using TCells = std::array<TRow, PLOT_TABLE_ROWS>;

  double row_value(int row) const;
  TCell& cell(int row, std::size_t column) { return cells_[static_cast<std::size_t>(row)][column]; }
  void evaluate_column(std::size_t column);
  TCell plot_table_cell(int slot, double value) const;
  std::string row_text(int row);

  int plot_type_;
  std::vector<int> slots_;  // of the columns
  double origin_ = 0.0;     // start of the last calculation
  double delta_ = 0.0;
  double moved_ = 0.0;  // rows since then
  TCells cells_;
};

}  // namespace zephyl
