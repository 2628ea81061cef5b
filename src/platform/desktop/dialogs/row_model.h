// The rows of a combo, list or table, for Qt's views: however many there are, a view asks only for those it
// shows. A filter narrows them; rows of the control and lines of the view are two numberings then.
#pragma once

#include <QAbstractTableModel>
#include <QString>
#include <string>
#include <vector>

#include "platform/dialog.h"

class QFontMetrics;

namespace zephyl {

class TRowModel : public QAbstractTableModel {
 public:
  // Takes over other rows and columns; false if they are those it has. Ends the filter.
  bool set_rows(const TControl& control);
  // Leaves the rows that hold each word of the filter, upper or lower case. False, and nothing changes, if
  // none does.
  bool set_filter(const QString& filter);

  // The line that shows a row of the control, and back. -1 if there is none.
  int line_of_row(int row) const;
  int row_of_line(int line) const;
  int row_count() const { return static_cast<int>(rows_.size()); }

  // The widest text of a column, its heading included, in pixels of the font. Of a long table some rows speak
  // for all.
  int text_width(int column, const QFontMetrics& font) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  QString cell(int row, int column) const;

  std::vector<std::string> rows_;
  std::vector<TColumn> columns_;
  bool table_ = false;
  bool filtered_ = false;
  std::vector<int> shown_;  // the rows that the filter leaves
};

}  // namespace zephyl
