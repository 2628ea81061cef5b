#include "platform/desktop/dialogs/row_widgets.h"

#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QListView>
#include <QScrollBar>
#include <QStyleOptionComboBox>
#include <QStylePainter>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QWheelEvent>
#include <algorithm>
#include <functional>

namespace zephyl {

namespace {

constexpr int NARROWEST_ROWS = 14;  // in average characters
constexpr int WIDEST_ROWS = 60;
constexpr int WIDEST_TABLE = 100;
constexpr int CELL_PADDING = 14;
constexpr int LINE_AIR = 4;
// Widths of columns are told for letters of this width.
constexpr double PICTURE_LETTER = 6.0;
constexpr int COMBO_LINES = 16;

bool moves_through_rows(int key) {
  return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp || key == Qt::Key_PageDown;
}

int bounded_width(int width, const QWidget& widget, int widest = WIDEST_ROWS) {
  const int letter = widget.fontMetrics().averageCharWidth();
  return std::clamp(width, NARROWEST_ROWS * letter, widest * letter);
}

int line_height(const QWidget& widget) { return widget.fontMetrics().height() + LINE_AIR; }

// The room that a view of `lines` lines takes around its rows.
QSize view_size(const QAbstractScrollArea& view, int width, int height) {
  const int frame = 2 * view.frameWidth();
  return {width + frame + view.verticalScrollBar()->sizeHint().width(), height + frame};
}

void prepare(QAbstractItemView& view) {
  view.setEditTriggers(QAbstractItemView::NoEditTriggers);
  view.setSelectionMode(QAbstractItemView::SingleSelection);
  view.setSelectionBehavior(QAbstractItemView::SelectRows);
  view.setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

// Lines with a little air.
class TLineDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    return QStyledItemDelegate::sizeHint(option, index) + QSize(0, LINE_AIR);
  }
};

class TListView : public QListView {
 public:
  TListView(const TRowModel& rows, int lines, QWidget* parent)
      : QListView(parent), rows_(rows), lines_(lines) {
    prepare(*this);
    setUniformItemSizes(true);
    setItemDelegate(new TLineDelegate(this));
  }
  void fit(const TControl&) {
    width_ = rows_.text_width(0, fontMetrics()) + CELL_PADDING;
    updateGeometry();
  }
  QSize sizeHint() const override {
    return view_size(*this, bounded_width(width_, *this), lines_ * row_height());
  }
  QSize minimumSizeHint() const override {
    return {bounded_width(0, *this), std::min(lines_, 3) * row_height() + 2 * frameWidth()};
  }

 private:
  int row_height() const { return std::max(sizeHintForRow(0), line_height(*this)); }

  const TRowModel& rows_;
  int lines_;
  int width_ = 0;
};

// A table that scrolls asks for other rows where its own end: by the keys that go beyond the first and last
// row, by the wheel, and by a bar that springs back to its middle.
class TTableView : public QTableView {
 public:
  TTableView(const TRowModel& rows, int lines, QWidget* parent)
      : QTableView(parent), rows_(rows), lines_(lines) {
    prepare(*this);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setAlternatingRowColors(true);
    setShowGrid(false);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(line_height(*this));
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setStretchLastSection(true);
  }

  // scroll: asks for the rows so far down, or up for less than 0.
  void let_scroll(std::function<void(int)> scroll) {
    scroll_ = std::move(scroll);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    QObject::connect(verticalScrollBar(), &QScrollBar::actionTriggered, [this] { scroll_by_bar(); });
    QObject::connect(verticalScrollBar(), &QScrollBar::sliderReleased, [this] { release_bar(); });
  }

  void fit(const TControl& control) {
    width_ = 0;
    for (int column = 0; column < rows_.columnCount(); ++column) {
      const int width = column_width(control, column);
      setColumnWidth(column, width);
      width_ += width;
    }
    const bool named = std::any_of(control.columns.begin(), control.columns.end(),
                                   [](const TColumn& column) { return !column.heading.empty(); });
    horizontalHeader()->setVisible(named);
    updateGeometry();
  }

  QSize sizeHint() const override {
    const int width = bounded_width(width_, *this, WIDEST_TABLE);
    const int bar = width < width_ ? horizontalScrollBar()->sizeHint().height() : 0;
    return view_size(*this, width, height_of(lines_) + bar);
  }
  QSize minimumSizeHint() const override {
    return {bounded_width(0, *this), height_of(scroll_ ? lines_ : std::min(lines_, 3))};
  }

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    const int rows = scroll_ ? rows_beyond(event->key()) : 0;
    if (rows != 0)
      scroll_(rows);
    else
      QTableView::keyPressEvent(event);
  }

  void wheelEvent(QWheelEvent* event) override {
    if (!scroll_) return QTableView::wheelEvent(event);
    constexpr int row_of_wheel = 40;  // eighths of a degree
    wheel_ -= event->angleDelta().y();
    const int rows = wheel_ / row_of_wheel;
    wheel_ -= rows * row_of_wheel;
    if (rows != 0) scroll_(rows);
    event->accept();
  }

  void updateGeometries() override {
    QTableView::updateGeometries();
    if (!scroll_) return;
    const QSignalBlocker blocker(verticalScrollBar());
    verticalScrollBar()->setRange(-BAR_SPAN, BAR_SPAN);
    verticalScrollBar()->setPageStep(lines_);
    verticalScrollBar()->setSingleStep(1);
    if (!verticalScrollBar()->isSliderDown()) verticalScrollBar()->setValue(0);
  }

  // The rows in sight stay where they are: others come into them.
  void scrollContentsBy(int dx, int dy) override { QTableView::scrollContentsBy(dx, scroll_ ? 0 : dy); }

 private:
  static constexpr int BAR_SPAN = 20;  // rows from the middle of the bar to an end

  // How far beyond the rows a key leads from the current one.
  int rows_beyond(int key) const {
    const int row = currentIndex().row(), last = rows_.rowCount() - 1;
    if (key == Qt::Key_PageUp) return -lines_;
    if (key == Qt::Key_PageDown) return lines_;
    if (key == Qt::Key_Up && row <= 0) return -1;
    return key == Qt::Key_Down && row >= last ? 1 : 0;
  }

  void scroll_by_bar() {
    const int rows = verticalScrollBar()->sliderPosition() - bar_at_;
    bar_at_ = verticalScrollBar()->isSliderDown() ? verticalScrollBar()->sliderPosition() : 0;
    if (rows != 0) scroll_(rows);
    if (!verticalScrollBar()->isSliderDown()) verticalScrollBar()->setSliderPosition(0);
  }
  void release_bar() {
    bar_at_ = 0;
    verticalScrollBar()->setValue(0);
  }

  int column_width(const TControl& control, int column) const {
    const int text = rows_.text_width(column, fontMetrics()) + CELL_PADDING;
    const auto place = static_cast<std::size_t>(column);
    const int stated = place < control.columns.size() ? control.columns[place].width : 0;
    if (stated <= 0) return text;
    return std::max(text, static_cast<int>(stated * fontMetrics().averageCharWidth() / PICTURE_LETTER));
  }
  int height_of(int lines) const {
    const int heading = horizontalHeader()->isVisibleTo(this) ? horizontalHeader()->sizeHint().height() : 0;
    return lines * line_height(*this) + heading + 2 * frameWidth();
  }

  const TRowModel& rows_;
  int lines_;
  int width_ = 0;
  std::function<void(int)> scroll_;  // none where the rows are all there are
  int wheel_ = 0;                    // eighths of a degree that are no row yet
  int bar_at_ = 0;                   // where the dragged bar was last
};

// A row that is too long for it ends in dots.
class TComboBox : public QComboBox {
 public:
  using QComboBox::QComboBox;

 protected:
  void paintEvent(QPaintEvent*) override {
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    const QRect field = style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    option.currentText = fontMetrics().elidedText(option.currentText, Qt::ElideRight, field.width() - LINE_AIR);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
  }
};

class TComboWidget : public TRowsWidget {
 public:
  TComboWidget(TDialogUser& user, int index, QWidget* parent)
      : TRowsWidget(user, index), combo_(new TComboBox(parent)) {
    combo_->setModel(&model_);
    combo_->setMaxVisibleItems(COMBO_LINES);
    combo_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    combo_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    assemble(combo_, parent);
    filter_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    QObject::connect(combo_, &QComboBox::currentIndexChanged, [this](int line) { line_chosen(line); });
  }
  // The model goes before the combo.
  ~TComboWidget() override { combo_->disconnect(); }

 protected:
  void show_line(int line) override {
    if (combo_->currentIndex() != line) combo_->setCurrentIndex(line);
  }
  void rows_changed(const TControl&) override {
    const int text = model_.text_width(0, combo_->fontMetrics());
    const int letter = combo_->fontMetrics().averageCharWidth();
    const int letters = bounded_width(text, *combo_) / letter + 1;
    combo_->setMinimumContentsLength(std::max(letters, combo_->minimumContentsLength()));
    combo_->view()->setMinimumWidth(std::min(text + 2 * CELL_PADDING, 2 * WIDEST_ROWS * letter));
  }

 private:
  QComboBox* combo_;
};

// Lists and tables.
template <typename TView>
class TViewWidget : public TRowsWidget {
 public:
  TViewWidget(TDialogUser& user, int index, int lines, QWidget* parent)
      : TRowsWidget(user, index), view_(new TView(model_, lines, parent)) {
    view_->setModel(&model_);
    assemble(view_, parent);
    QObject::connect(view_->selectionModel(), &QItemSelectionModel::currentRowChanged,
                     [this](const QModelIndex& current) { line_chosen(current.row()); });
    QObject::connect(view_, &QAbstractItemView::doubleClicked, [this] { line_activated(); });
  }
  TView& view() { return *view_; }
  ~TViewWidget() override {
    view_->verticalScrollBar()->disconnect();
    view_->disconnect();
    view_->selectionModel()->disconnect();
    view_->setModel(nullptr);
  }

 protected:
  void show_line(int line) override {
    if (view_->currentIndex().row() == line) return;
    const QModelIndex index = model_.index(line, 0);
    view_->setCurrentIndex(index);
    if (!index.isValid()) view_->clearSelection();
  }
  void rows_changed(const TControl& control) override { view_->fit(control); }

 private:
  TView* view_;
};

}  // namespace

TFilterLine::TFilterLine(QWidget* rows, QWidget* parent) : QLineEdit(parent), rows_(rows) {
  setPlaceholderText("Filter");
  setAccessibleName("Filter");
  setClearButtonEnabled(true);
  setMinimumWidth(fontMetrics().averageCharWidth() * 12);
}

void TFilterLine::keyPressEvent(QKeyEvent* event) {
  if (moves_through_rows(event->key()))
    QApplication::sendEvent(rows_, event);
  else
    QLineEdit::keyPressEvent(event);
}

void TFilterLine::show_match(bool matches) {
  QPalette colours;
  if (!matches) colours.setColor(QPalette::Text, Qt::red);
  setPalette(colours);
  setAccessibleDescription(matches ? "" : "No row matches");
}

void TRowsWidget::assemble(QWidget* rows, QWidget* parent) {
  body_ = rows;
  companion_ = filter_ = new TFilterLine(rows, parent);
  tab_stops_ = {filter_, rows};
  QObject::connect(filter_, &QLineEdit::textChanged, [this](const QString& text) { narrow(text); });
}

void TRowsWidget::show(const TControl& control, const QString&) {
  selected_ = control.selected;
  if (model_.set_rows(control)) {
    renew_filter(control);
    rows_changed(control);
  }
  // A row that the procedure chose may be one that the filter leaves out.
  if (model_.line_of_row(selected_) < 0 && selected_ >= 0) filter_->clear();
  show_line(model_.line_of_row(selected_));
}

void TRowsWidget::renew_filter(const TControl& control) {
  const QSignalBlocker blocker(filter_);
  filter_->clear();
  filter_->show_match(true);
  filtering_ = control.kind != CONTROL_TABLE && static_cast<int>(control.rows.size()) > LONG_ROWS;
}

// What nothing matches is left out of account: the rows stay as they are. The first that matches is chosen
// where the selected one doesn't.
void TRowsWidget::narrow(const QString& filter) {
  narrowing_ = true;
  filter_->show_match(model_.set_filter(filter));
  const int line = model_.line_of_row(selected_);
  show_line(line);
  narrowing_ = false;
  if (line < 0 && !filter.isEmpty()) line_chosen(0);
}

void TRowsWidget::line_chosen(int line) {
  if (narrowing_) return;
  const int row = model_.row_of_line(line);
  if (row < 0) return;
  act([index = index_, row](TDialog& dialog) { choose_row(dialog, index, row); });
}

void TRowsWidget::line_activated() {
  act([index = index_](TDialog& dialog) { activate_row(dialog, index); });
}

std::unique_ptr<TControlWidget> make_combo(TDialogUser& user, int index, QWidget* parent) {
  return std::make_unique<TComboWidget>(user, index, parent);
}

std::unique_ptr<TControlWidget> make_list(TDialogUser& user, int index, const TControl& control,
                                          QWidget* parent) {
  return std::make_unique<TViewWidget<TListView>>(user, index, control.lines, parent);
}

std::unique_ptr<TControlWidget> make_table(TDialogUser& user, int index, const TControl& control,
                                           QWidget* parent) {
  auto table = std::make_unique<TViewWidget<TTableView>>(user, index, control.lines, parent);
  if (control.scrolls) {
    table->view().let_scroll([&user, index](int rows) {
      user.act([index, rows](TDialog& dialog) { scroll_rows(dialog, index, rows); });
    });
  }
  return table;
}

}  // namespace zephyl
