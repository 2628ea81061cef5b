#include "platform/desktop/dialogs/dialog_layout.h"

#include <QBoxLayout>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
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
  void lay_tall(const TLine& line);
  void lay_button(int index, bool fills);
  QLayout* pack(int index);
  QLayout* pack_line(const TLine& line);
  QLayout* stack(const TLine& line, std::size_t first);
  QWidget* scrolled(QWidget* body);
  QLayout* with_column(QWidget* body);
  QLayout* column_beside();
  QLayout* column_below(int width);
  QDialogButtonBox* bottom_row();
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

// A control with its caption above or in front of it.
QLayout* TLayouter::pack(int index) {
  const bool above = is_tall(control(index));
  auto* box = new QBoxLayout(above ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
  box->setSpacing(above ? LINE_GAP / 2 : COLUMN_GAP);
  if (widget(index).caption()) box->addWidget(widget(index).caption());
  box->addWidget(widget(index).body(), 1);
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

// The control fills the rest of the width; buttons beside it make a column.
void TLayouter::lay_tall(const TLine& line) {
  TControlWidget& tall = widget(line[0]);
  if (tall.caption()) grid_->addWidget(tall.caption(), row_++, 0, 1, columns_);
  grid_->setRowStretch(row_, stretch_of(line[0]));
  if (line.size() == 1) return grid_->addWidget(tall.body(), row_++, 0, 1, columns_);
  auto* box = new QHBoxLayout;
  box->setSpacing(COLUMN_GAP);
  box->addWidget(tall.body(), 1);
  box->addLayout(stack(line, 1));
  grid_->addLayout(box, row_++, 0, 1, columns_);
}

// Each control has two columns, one for its caption; the last one goes on to the end.
void TLayouter::lay_pieces(const TLine& line) {
  for (std::size_t i = 0; i < line.size(); ++i) {
    const int column = 2 * static_cast<int>(i);
    const int end = i + 1 == line.size() ? columns_ : column + 2;
    TControlWidget& piece = widget(line[i]);
    const bool captioned = piece.caption() && !is_tall(control(line[i]));
    if (captioned) grid_->addWidget(piece.caption(), row_, column);
    if (captioned || !piece.caption())
      grid_->addWidget(piece.body(), row_, captioned ? column + 1 : column, 1,
                       end - column - (captioned ? 1 : 0));
    else
      grid_->addLayout(pack(line[i]), row_, column, 1, end - column);
    grid_->setRowStretch(row_, std::max(grid_->rowStretch(row_), stretch_of(line[i])));
    if (control(line[i]).kind != CONTROL_BUTTON) grid_->setColumnStretch(column + 1, 1);
  }
  ++row_;
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
  if (line.size() <= MOST_ALIGNED) return lay_pieces(line);
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

QDialogButtonBox::ButtonRole role_of(TButtonRole role) {
  switch (role) {
    case BUTTON_DEFAULT:
      return QDialogButtonBox::AcceptRole;
    case BUTTON_CANCEL:
      return QDialogButtonBox::RejectRole;
    default:
      return QDialogButtonBox::ResetRole;  // stands apart, at the left
  }
}

// In the order of the desktop.
QDialogButtonBox* TLayouter::bottom_row() {
  auto* box = new QDialogButtonBox(parent_);
  for (const int index : plan_.bottom)
    box->addButton(static_cast<QPushButton*>(widget(index).body()), role_of(control(index).role));
  for (int i = 0; i < box->layout()->count(); ++i)
    if (QWidget* button = box->layout()->itemAt(i)->widget()) result_.tab_stops.push_back(button);
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
  if (!plan_.bottom.empty()) box->addWidget(bottom_row());
  return std::move(result_);
}

}  // namespace

TLaidOut lay_out(const TDialog& dialog, const TControlWidgets& widgets, QWidget* parent) {
  return TLayouter(dialog, widgets, parent).lay_out();
}

}  // namespace zephyl
