#include "platform/desktop/dialogs/control_widget.h"

#include <QLabel>

#include "platform/desktop/dialogs/dialog_plan.h"
#include "platform/dialog.h"

namespace zephyl {

void TControlWidget::sync(const TControl& control, const QString& label) {
  if (caption_) {
    if (caption_->text() != label) caption_->setText(label);
    caption_->setEnabled(control.enabled);
    caption_->setVisible(control.visible);
  }
  show(control, label);
  body_->setEnabled(control.enabled);
  body_->setVisible(control.visible);
  if (!companion_) return;
  companion_->setEnabled(control.enabled);
  companion_->setVisible(control.visible && shows_companion());
}

void TControlWidget::set_name(const QString& name) {
  QWidget* named = tab_stops_.empty() ? body_ : tab_stops_.back();
  if (named->accessibleName() != name) named->setAccessibleName(name);
}

void TControlWidget::add_caption(QWidget* parent) {
  caption_ = new QLabel(parent);
  caption_->setTextFormat(Qt::PlainText);
  caption_->setBuddy(tab_stops_.empty() ? body_ : tab_stops_.back());
}

namespace {

std::unique_ptr<TControlWidget> make_bare(TDialogUser& user, int index, const TControl& control,
                                          QWidget* parent) {
  switch (control.kind) {
    case CONTROL_TEXT:
      return make_text(user, index, control, parent);
    case CONTROL_EDIT:
      return make_edit(user, index, control, parent);
    case CONTROL_COMBO:
      return make_combo(user, index, parent);
    case CONTROL_LIST:
      return make_list(user, index, control, parent);
    case CONTROL_TABLE:
      return make_table(user, index, control, parent);
    case CONTROL_CHECK:
    case CONTROL_RADIO:
      return make_mark(user, index, control, parent);
    case CONTROL_BUTTON:
      return make_button(user, index, control, parent);
    case CONTROL_SLIDER:
      return make_slider(user, index, parent);
    case CONTROL_PICTURE:
      return make_picture(user, index, parent);
    default:
      return make_words(user, index, parent);
  }
}

}  // namespace

std::unique_ptr<TControlWidget> make_control_widget(TDialogUser& user, int index, const TControl& control,
                                                    QWidget* parent) {
  std::unique_ptr<TControlWidget> widget = make_bare(user, index, control, parent);
  if (has_caption(control)) widget->add_caption(parent);
  return widget;
}

}  // namespace zephyl
