#include "platform/desktop/dialogs/row_model.h"

#include <QFontMetrics>
#include <QStringList>
#include <algorithm>

namespace zephyl {

namespace {

constexpr int MEASURED_ROWS = 300;

bool same_columns(const std::vector<TColumn>& a, const std::vector<TColumn>& b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](const TColumn& one, const TColumn& other) {
    return one.heading == other.heading && one.width == other.width;
  });
}

bool holds_all(const QString& text, const QStringList& words) {
  return std::all_of(words.begin(), words.end(),
                     [&](const QString& word) { return text.contains(word, Qt::CaseInsensitive); });
}

QString part_between_tabs(const std::string& row, int part) {
  std::size_t begin = 0;
  for (; part > 0 && begin != std::string::npos; --part) {
    begin = row.find('\t', begin);
    if (begin != std::string::npos) ++begin;
  }
  if (begin == std::string::npos) return {};
  const std::size_t end = std::min(row.find('\t', begin), row.size());
  return QString::fromUtf8(row.data() + begin, static_cast<qsizetype>(end - begin));
}

}  // namespace

bool TRowModel::set_rows(const TControl& control) {
  const bool same = rows_ == control.rows && same_columns(columns_, control.columns);
  if (same && table_ == (control.kind == CONTROL_TABLE)) return false;
  beginResetModel();
  rows_ = control.rows;
  columns_ = control.columns;
  table_ = control.kind == CONTROL_TABLE;
  filtered_ = false;
  shown_.clear();
  endResetModel();
  return true;
}

bool TRowModel::set_filter(const QString& filter) {
  const QStringList words = filter.split(' ', Qt::SkipEmptyParts);
  std::vector<int> shown;
  for (int row = 0; row < row_count() && !words.empty(); ++row)
    if (holds_all(QString::fromStdString(rows_[static_cast<std::size_t>(row)]), words)) shown.push_back(row);
  if (shown.empty() && !words.empty()) return false;
  beginResetModel();
  filtered_ = !words.empty();
  shown_ = std::move(shown);
  endResetModel();
  return true;
}

int TRowModel::line_of_row(int row) const {
  if (row < 0 || row >= row_count()) return -1;
  if (!filtered_) return row;
  const auto found = std::lower_bound(shown_.begin(), shown_.end(), row);
  return found != shown_.end() && *found == row ? static_cast<int>(found - shown_.begin()) : -1;
}

int TRowModel::row_of_line(int line) const {
  if (line < 0 || line >= rowCount()) return -1;
  return filtered_ ? shown_[static_cast<std::size_t>(line)] : line;
}

int TRowModel::text_width(int column, const QFontMetrics& font) const {
  int width = font.horizontalAdvance(headerData(column, Qt::Horizontal, Qt::DisplayRole).toString());
  const int step = std::max(1, row_count() / MEASURED_ROWS);
  for (int row = 0; row < row_count(); row += step)
    width = std::max(width, font.horizontalAdvance(cell(row, column)));
  return width;
}

int TRowModel::rowCount(const QModelIndex& parent) const {
  if (parent.isValid()) return 0;
  return filtered_ ? static_cast<int>(shown_.size()) : row_count();
}

int TRowModel::columnCount(const QModelIndex& parent) const {
  if (parent.isValid()) return 0;
  return table_ ? std::max(1, static_cast<int>(columns_.size())) : 1;
}

QVariant TRowModel::data(const QModelIndex& index, int role) const {
  if (role != Qt::DisplayRole && role != Qt::EditRole) return {};
  const int row = row_of_line(index.row());
  return row < 0 ? QVariant() : cell(row, index.column());
}

QVariant TRowModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (role == Qt::TextAlignmentRole && orientation == Qt::Horizontal)
    return QVariant::fromValue(Qt::Alignment(Qt::AlignLeft | Qt::AlignVCenter));
  const bool named = orientation == Qt::Horizontal && section < static_cast<int>(columns_.size());
  if (role != Qt::DisplayRole || !named) return {};
  return QString::fromStdString(columns_[static_cast<std::size_t>(section)].heading);
}

QString TRowModel::cell(int row, int column) const {
  const std::string& text = rows_[static_cast<std::size_t>(row)];
  return table_ ? part_between_tabs(text, column) : QString::fromStdString(text);
}

}  // namespace zephyl
