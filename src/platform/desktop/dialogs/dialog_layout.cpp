#include "platform/desktop/dialogs/dialog_layout.h"

#include <QBoxLayout>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>
#include <algorithm>

#include "platform/desktop/dialogs/dialog_plan.h"
#include "platform/dialog.h"

namespace zephyl {

namespace {

using TLine = std::vector<int>;

constexpr int MARGIN = 12;
constexpr int COLUMN_GAP = 8;
constexpr int LINE_GAP = 7;
constexpr int COMPANION_GAP = 4;
constexpr int PART_GAP = 14;  // between body, button column and bottom row
// A line of more controls than these has columns of its own.
constexpr std::size_t MOST_ALIGNED = 3;
// The part of the screen's height that a body may take before it is scrolled.
constexpr double MOST_OF_SCREEN = 0.8;

class TLayouter {
 public:
  TLayouter(const TDialog& dialog, const TControlWidgets& widgets, QWidget* parent)
      : dialog_(dialog), widgets_(widgets), parent_(parent), plan_(plan_of(dialog)) {}

  TLaidOut lay_out();

 private:
  const TControl& control(int index) const { return dialog_[index]; }
  TControlWidget& widget(int index) const { return *widgets_[static_cast<std::size_t>(index)]; }

  QWidget* lay_body();
  void lay_line(const TLine& line, bool stacked_buttons);
  void lay_pieces(const TLine& line);
  void lay_piece(int index, int column, int columns);
  void lay_tall(const TLine& line);
  void lay_button(int index, bool fills);
  void add_body(QBoxLayout* box, int index);
  void put_body(int index, int column, int columns);
  QBoxLayout* pack(int index);
  QLayout* pack_line(const TLine& line);
  QLayout* stack(const TLine& line, std::size_t first);
  QWidget* scrolled(QWidget* body);
  QLayout* with_column(QWidget* body);
  QLayout* column_beside();
  QLayout* column_below(int width);
  QLayout* bottom_row();
  void note_stops(const TLine& line);
  bool is_button_line(std::size_t line) const;
  bool is_radio_line(std::size_t line) const;
  int stretch_of(int index) const;

  const TDialog& dialog_;
  const TControlWidgets& widgets_;
  QWidget* parent_;
  TDialogPlan plan_;
  QGridLayout* grid_ = nullptr;
  int columns_ = 2;  // of the grid: a caption and its control for each of a line
  int row_ = 0;
  TLaidOut result_;
};

bool grows(const TControl& control) { return is_tall(control) && control.kind != CONTROL_PICTURE; }

// Height that is left over, or missing, is shared by the tall controls in proportion.
int TLayouter::stretch_of(int index) const {
  return grows(control(index)) ? widget(index).body()->sizeHint().height() : 0;
}

bool TLayouter::is_radio_line(std::size_t line) const {
  return control(plan_.lines[line][0]).kind == CONTROL_RADIO;
}

bool TLayouter::is_button_line(std::size_t line) const {
  return line < plan_.lines.size() && plan_.lines[line].size() == 1 &&
         control(plan_.lines[line][0]).kind == CONTROL_BUTTON;
}

void TLayouter::note_stops(const TLine& line) {
  for (const int index : line)
    for (QWidget* stop : widget(index).tab_stops()) result_.tab_stops.push_back(stop);
}

// A control with what goes with it: above a list, to the right of anything else.
void TLayouter::add_body(QBoxLayout* box, int index) {
  TControlWidget& piece = widget(index);
  const bool above = is_tall(control(index));
  if (piece.companion() && above) box->addWidget(piece.companion());
  box->addWidget(piece.body(), 1);
  if (piece.companion() && !above) box->addWidget(piece.companion());
}

// The same as one cell of the grid.
void TLayouter::put_body(int index, int column, int columns) {
  TControlWidget& piece = widget(index);
  if (!piece.companion()) return grid_->addWidget(piece.body(), row_, column, 1, columns);
  auto* box = new QBoxLayout(is_tall(control(index)) ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
  box->setSpacing(COMPANION_GAP);
  add_body(box, index);
  grid_->addLayout(box, row_, column, 1, columns);
}

// A control with its caption above or in front of it.
QBoxLayout* TLayouter::pack(int index) {
  const bool above = is_tall(control(index));
  auto* box = new QBoxLayout(above ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
  box->setSpacing(above ? COMPANION_GAP : COLUMN_GAP);
  if (widget(index).caption()) box->addWidget(widget(index).caption());
  add_body(box, index);
  return box;
}

QLayout* TLayouter::pack_line(const TLine& line) {
  auto* box = new QHBoxLayout;
  box->setSpacing(COLUMN_GAP);
  for (const int index : line) box->addLayout(pack(index), 1);
  return box;
}

// Controls below one another, from the top.
QLayout* TLayouter::stack(const TLine& line, std::size_t first) {
  auto* box = new QVBoxLayout;
  box->setSpacing(LINE_GAP);
  for (std::size_t i = first; i < line.size(); ++i) box->addLayout(pack(line[i]));
  box->addStretch(1);
  return box;
}

// The control fills the width that the buttons beside it, a column, leave.
void TLayouter::lay_tall(const TLine& line) {
  TControlWidget& tall = widget(line[0]);
  if (tall.caption()) grid_->addWidget(tall.caption(), row_++, 0, 1, columns_);
  grid_->setRowStretch(row_, stretch_of(line[0]));
  if (line.size() == 1) {
    put_body(line[0], 0, columns_);
  } else {
    auto* box = new QHBoxLayout;
    box->setSpacing(COLUMN_GAP);
    auto* rows = new QVBoxLayout;
    rows->setSpacing(COMPANION_GAP);
    add_body(rows, line[0]);
    box->addLayout(rows, 1);
    box->addLayout(stack(line, 1));
    grid_->addLayout(box, row_, 0, 1, columns_);
  }
  ++row_;
}

// Each control has two columns, one for its caption; the last one goes on to the end.
void TLayouter::lay_pieces(const TLine& line) {
  for (std::size_t i = 0; i < line.size(); ++i) {
    const int column = 2 * static_cast<int>(i);
    const int columns = i + 1 == line.size() ? columns_ - column : 2;
    lay_piece(line[i], column, columns);
    grid_->setRowStretch(row_, std::max(grid_->rowStretch(row_), stretch_of(line[i])));
    const TControlKind kind = control(line[i]).kind;
    if (kind != CONTROL_BUTTON && kind != CONTROL_PICTURE) grid_->setColumnStretch(column + 1, 1);
  }
  ++row_;
}

void TLayouter::lay_piece(int index, int column, int columns) {
  QLabel* caption = widget(index).caption();
  if (caption && is_tall(control(index))) return grid_->addLayout(pack(index), row_, column, 1, columns);
  if (caption) grid_->addWidget(caption, row_, column);
  const int taken = caption ? 1 : 0;
  put_body(index, column + taken, columns - taken);
}

void TLayouter::lay_button(int index, bool fills) {
  grid_->addWidget(widget(index).body(), row_++, 0, 1, columns_, fills ? Qt::Alignment() : Qt::AlignLeft);
}

void TLayouter::lay_line(const TLine& line, bool stacked_buttons) {
  const bool others_are_buttons = std::all_of(
      line.begin() + 1, line.end(), [&](int index) { return control(index).kind == CONTROL_BUTTON; });
  if (is_tall(control(line[0])) && others_are_buttons) return lay_tall(line);
  if (line.size() == 1 && control(line[0]).kind == CONTROL_BUTTON)
    return lay_button(line[0], stacked_buttons);
  const bool all_buttons = others_are_buttons && control(line[0]).kind == CONTROL_BUTTON;
  if (line.size() <= MOST_ALIGNED && !all_buttons) return lay_pieces(line);
  grid_->addLayout(pack_line(line), row_++, 0, 1, columns_);
}

QWidget* TLayouter::lay_body() {
  auto* body = new QWidget(parent_);
  grid_ = new QGridLayout(body);
  grid_->setContentsMargins(0, 0, 0, 0);
  grid_->setHorizontalSpacing(COLUMN_GAP);
  grid_->setVerticalSpacing(LINE_GAP);
  for (const TLine& line : plan_.lines)
    if (line.size() <= MOST_ALIGNED) columns_ = std::max(columns_, 2 * static_cast<int>(line.size()));
  for (std::size_t i = 0; i < plan_.lines.size(); ++i) {
    if (i > 0 && is_radio_line(i) != is_radio_line(i - 1)) grid_->setRowMinimumHeight(row_++, LINE_GAP);
    lay_line(plan_.lines[i], is_button_line(i + 1) || (i > 0 && is_button_line(i - 1)));
  }
  return body;
}

// A body that is higher than the screen.
QWidget* TLayouter::scrolled(QWidget* body) {
  if (body->sizeHint().height() <= parent_->screen()->availableSize().height() * MOST_OF_SCREEN) return body;
  auto* area = new QScrollArea(parent_);
  area->setFocusPolicy(Qt::NoFocus);
  area->setFrameShape(QFrame::NoFrame);
  area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  area->setWidgetResizable(true);
  const int bar = area->style()->pixelMetric(QStyle::PM_ScrollBarExtent) + COLUMN_GAP;
  body->layout()->setContentsMargins(0, 0, COLUMN_GAP, 0);
  area->setMinimumWidth(body->sizeHint().width() + bar);
  area->setWidget(body);
  result_.can_grow = true;
  return area;
}

QLayout* TLayouter::column_beside() {
  auto* box = new QVBoxLayout;
  box->setSpacing(LINE_GAP);
  for (const int index : plan_.column) box->addWidget(widget(index).body());
  box->addStretch(1);
  return box;
}

// As many in a row as the width holds.
QLayout* TLayouter::column_below(int width) {
  int widest = 1;
  for (const int index : plan_.column) widest = std::max(widest, widget(index).body()->sizeHint().width());
  const int columns =
      std::clamp((width + COLUMN_GAP) / (widest + COLUMN_GAP), 1, static_cast<int>(MOST_ALIGNED));
  auto* grid = new QGridLayout;
  grid->setSpacing(LINE_GAP);
  for (std::size_t i = 0; i < plan_.column.size(); ++i) {
    const int place = static_cast<int>(i);
    grid->addWidget(widget(plan_.column[i]).body(), place / columns, place % columns);
  }
  return grid;
}

// The column of buttons stands beside a body that is about as high, else below.
QLayout* TLayouter::with_column(QWidget* body) {
  int height = 0;
  for (const int index : plan_.column) height += widget(index).body()->sizeHint().height() + LINE_GAP;
  const bool beside = !plan_.lines.empty() && body->sizeHint().height() >= height * 2 / 3;
  auto* box = new QBoxLayout(beside ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
  box->setSpacing(beside ? PART_GAP : LINE_GAP);
  if (!plan_.lines.empty()) box->addWidget(scrolled(body), 1);
  if (!plan_.column.empty())
    box->addLayout(beside ? column_beside() : column_below(body->sizeHint().width()));
  return box;
}

bool accepts_last(const QWidget& widget) {
  const int order = widget.style()->styleHint(QStyle::SH_DialogButtonLayout, nullptr, &widget);
  return order == QDialogButtonBox::GnomeLayout || order == QDialogButtonBox::MacLayout;
}

// Buttons that close are at the right, in the order of the desktop; others stand apart.
QLayout* TLayouter::bottom_row() {
  TLine plain, closing;
  for (const int index : plan_.bottom)
    (control(index).role == BUTTON_PLAIN ? plain : closing).push_back(index);
  if (accepts_last(*parent_)) std::reverse(closing.begin(), closing.end());
  auto* box = new QHBoxLayout;
  box->setSpacing(LINE_GAP);
  for (const int index : plain) box->addWidget(widget(index).body());
  box->addStretch(1);
  for (const int index : closing) box->addWidget(widget(index).body());
  note_stops(plain);
  note_stops(closing);
  return box;
}

TLaidOut TLayouter::lay_out() {
  result_.can_grow = std::any_of(dialog_.controls.begin(), dialog_.controls.end(), grows);
  for (const TLine& line : plan_.lines) note_stops(line);
  note_stops(plan_.column);
  auto* box = new QVBoxLayout(parent_);
  box->setContentsMargins(MARGIN, MARGIN, MARGIN, MARGIN);
  box->setSpacing(PART_GAP);
  if (!plan_.lines.empty() || !plan_.column.empty()) box->addLayout(with_column(lay_body()), 1);
  if (!plan_.bottom.empty()) box->addLayout(bottom_row());
  return std::move(result_);
}

}  // namespace

TLaidOut lay_out(const TDialog& dialog, const TControlWidgets& widgets, QWidget* parent) {
  return TLayouter(dialog, widgets, parent).lay_out();
}

}  // namespace zephyl
