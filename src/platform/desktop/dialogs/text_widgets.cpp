// Words, texts to read and fields to write in.

#include <QFontMetrics>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextBlock>
#include <algorithm>
#include <cmath>

#include "platform/desktop/dialogs/control_widget.h"
#include "platform/desktop/dialogs/dialog_plan.h"
#include "platform/dialog.h"

namespace zephyl {

namespace {

// Widths, in average characters.
constexpr int WIDEST_LINE = 56;  // longer words are wrapped
constexpr int USUAL_FIELD = 30;
constexpr int WIDEST_FIELD = 40;
constexpr int TALL_FIELD = 44;
constexpr int MOST_LINES = 16;
// Pixels without which the last line counts as hidden.
constexpr int BELOW_LAST_LINE = 4;

int characters_wide(const QWidget& widget, int count) {
  return widget.fontMetrics().averageCharWidth() * count;
}

// A label breaks lines only if it must: otherwise it would be as narrow as it can.
void fit_label(QLabel& label) {
  const int limit = characters_wide(label, WIDEST_LINE);
  const int width = label.fontMetrics().size(0, label.text()).width();
  label.setWordWrap(width > limit);
  label.setMinimumWidth(std::min(width, limit));
}

class TWordsWidget : public TControlWidget {
 public:
  TWordsWidget(TDialogUser& user, int index, QWidget* parent)
      : TControlWidget(user, index), label_(new QLabel(parent)) {
    label_->setTextFormat(Qt::PlainText);
    body_ = label_;
  }

 protected:
  void show(const TControl&, const QString& label) override {
    if (label_->text() == label) return;
    label_->setText(label);
    fit_label(*label_);
  }

 private:
  QLabel* label_;
};

class TTextWidget : public TControlWidget {
 public:
  TTextWidget(TDialogUser& user, int index, QWidget* parent)
      : TControlWidget(user, index), label_(new QLabel(parent)) {
    label_->setTextFormat(Qt::PlainText);
    label_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    body_ = label_;
  }

  // Nobody can go there by keyboard: the name says all of it.
  void set_name(const QString& name) override {
    TControlWidget::set_name(name.isEmpty() ? label_->text() : name + ": " + label_->text());
  }

 protected:
  void show(const TControl& control, const QString&) override {
    const QString text = QString::fromStdString(control.text);
    if (label_->text() == text) return;
    label_->setText(text);
    fit_label(*label_);
  }

 private:
  QLabel* label_;
};

// As high as its lines.
class TTextArea : public QPlainTextEdit {
 public:
  TTextArea(int lines, QWidget* parent) : QPlainTextEdit(parent), lines_(lines) {
    setTabChangesFocus(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);  // lines are wrapped
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  }
  QSize sizeHint() const override { return size_of(lines_); }
  QSize minimumSizeHint() const override { return size_of(std::min(lines_, 3)); }

  // A text that only is read shows as a whole when it opens, up to a length.
  void make_room_for(const QString& text) {
    const QRect widest(0, 0, size_of(1).width() - 2 * characters_wide(*this, 1), QWIDGETSIZE_MAX);
    const int height = fontMetrics().boundingRect(widest, Qt::TextWordWrap, text).height();
    const int needed = (height + fontMetrics().lineSpacing() - 1) / fontMetrics().lineSpacing();
    lines_ = std::max(lines_, std::min(needed, MOST_LINES));
    updateGeometry();
  }

  void replace_text(const QString& text) {
    const int position = std::min(textCursor().position(), static_cast<int>(text.size()));
    setPlainText(text);
    QTextCursor cursor = textCursor();
    cursor.setPosition(isReadOnly() ? 0 : position);
    setTextCursor(cursor);
  }

 private:
  QSize size_of(int lines) const {
    const double margins = 2.0 * (document()->documentMargin() + frameWidth()) + BELOW_LAST_LINE;
    const double height = lines * fontMetrics().lineSpacing() + margins;
    return {characters_wide(*this, TALL_FIELD), static_cast<int>(std::ceil(height))};
  }

  int lines_;
};

class TAreaWidget : public TControlWidget {
 public:
  TAreaWidget(TDialogUser& user, int index, const TControl& control, QWidget* parent)
      : TControlWidget(user, index), area_(new TTextArea(control.lines, parent)) {
    area_->setReadOnly(control.kind == CONTROL_TEXT);
    if (area_->isReadOnly())
      area_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    body_ = area_;
    tab_stops_ = {area_};
    QObject::connect(area_, &QPlainTextEdit::textChanged, [this] { changed(); });
  }

 protected:
  void show(const TControl& control, const QString&) override {
    const QString text = QString::fromStdString(control.text);
    if (area_->toPlainText() == text) return;
    if (area_->isReadOnly() && area_->document()->isEmpty()) area_->make_room_for(text);
    area_->replace_text(text);
  }

 private:
  void changed() {
    if (area_->isReadOnly()) return;
    const std::string text = area_->toPlainText().toStdString();
    act([index = index_, text](TDialog& dialog) {
      if (dialog[index].text != text) set_text(dialog, index, text);
    });
  }

  TTextArea* area_;
};

// Wide enough for what is usually written there.
class TField : public QLineEdit {
 public:
  using QLineEdit::QLineEdit;
  void set_limit(int limit) {
    setMaxLength(limit > 0 ? limit : UNLIMITED);
    characters_ = limit > 0 ? std::clamp(limit, 4, WIDEST_FIELD) : USUAL_FIELD;
  }
  QSize sizeHint() const override {
    const QSize usual = QLineEdit::sizeHint();
    return {characters_wide(*this, characters_ + 2), usual.height()};
  }

 private:
  static constexpr int UNLIMITED = 1000000;
  int characters_ = USUAL_FIELD;
};

class TFieldWidget : public TControlWidget {
 public:
  TFieldWidget(TDialogUser& user, int index, const TControl& control, QWidget* parent)
      : TControlWidget(user, index), field_(new TField(parent)) {
    field_->set_limit(control.text_limit);
    body_ = field_;
    tab_stops_ = {field_};
    QObject::connect(field_, &QLineEdit::textEdited, [this](const QString& text) {
      TControlWidget::act(
          [index = index_, text = text.toStdString()](TDialog& dialog) { set_text(dialog, index, text); });
    });
  }

 protected:
  void show(const TControl& control, const QString&) override {
    const QString text = QString::fromStdString(control.text);
    if (field_->text() == text) return;
    field_->setText(text);
    if (!field_->hasFocus()) field_->setCursorPosition(0);
  }

 private:
  TField* field_;
};

}  // namespace

std::unique_ptr<TControlWidget> make_words(TDialogUser& user, int index, QWidget* parent) {
  return std::make_unique<TWordsWidget>(user, index, parent);
}

std::unique_ptr<TControlWidget> make_text(TDialogUser& user, int index, const TControl& control,
                                          QWidget* parent) {
  if (is_tall(control)) return std::make_unique<TAreaWidget>(user, index, control, parent);
  return std::make_unique<TTextWidget>(user, index, parent);
}

std::unique_ptr<TControlWidget> make_edit(TDialogUser& user, int index, const TControl& control,
                                          QWidget* parent) {
  if (is_tall(control)) return std::make_unique<TAreaWidget>(user, index, control, parent);
  return std::make_unique<TFieldWidget>(user, index, control, parent);
}

}  // namespace zephyl
