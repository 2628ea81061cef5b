// What combos, lists and tables have in common: the rows, and the filter line that narrows them where they
// are many.
#pragma once

#include <QLineEdit>

#include "platform/desktop/dialogs/control_widget.h"
#include "platform/desktop/dialogs/row_model.h"

class QAbstractItemView;

namespace zephyl {

// A list or combo of more rows than these has a filter line.
constexpr int LONG_ROWS = 40;

// The keys that move through rows go on to what shows them.
class TFilterLine : public QLineEdit {
 public:
  TFilterLine(QWidget* rows, QWidget* parent);
  // Whether any row matches what was typed.
  void show_match(bool matches);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QWidget* rows_;
};

class TRowsWidget : public TControlWidget {
 public:
  using TControlWidget::TControlWidget;

 protected:
  void show(const TControl& control, const QString& label) override;

  bool shows_companion() const override { return filtering_; }
  // What shows the rows, and the filter line with it.
  void assemble(QWidget* rows, QWidget* parent);
  // The view takes line `line` as its current one; -1 none.
  virtual void show_line(int line) = 0;
  // The model has new rows.
  virtual void rows_changed(const TControl& control) = 0;
  // Of the view: the user went to a line.
  void line_chosen(int line);
  void line_activated();

  TRowModel model_;
  TFilterLine* filter_ = nullptr;

 private:
  void narrow(const QString& filter);
  void renew_filter(const TControl& control);

  int selected_ = -1;       // row of the control
  bool filtering_ = false;  // the rows are many
  bool narrowing_ = false;  // the filter changes just now
};

}  // namespace zephyl
