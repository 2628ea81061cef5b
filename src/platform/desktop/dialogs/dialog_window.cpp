#include "platform/desktop/dialogs/dialog_window.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QLabel>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QShowEvent>
#include <QVBoxLayout>
#include <algorithm>
#include <map>

#include "platform/desktop/dialogs/dialog_plan.h"
#include "platform/desktop/dialogs/mnemonics.h"
#include "platform/dialog.h"

namespace zephyl {

namespace {

// Room for the title beside the buttons of the frame.
constexpr int FRAME_BUTTONS = 110;

// What makes other widgets necessary when it changes.
std::vector<int> shape_of(const TDialog& dialog) {
  std::vector<int> shape;
  for (const TControl& control : dialog.controls)
    shape.insert(shape.end(), {control.kind, control.role, control.group, control.lines,
                               control.beside ? 1 : 0, control.label.empty() ? 1 : 0});
  return shape;
}

QString without_colon(const std::string& label) {
  const QString text = QString::fromStdString(label);
  return text.endsWith(':') ? text.chopped(1) : text;
}

// A control without a label goes by the words in front of it.
QString name_of(const TDialog& dialog, int control) {
  if (!dialog[control].label.empty()) return without_colon(dialog[control].label);
  const bool words_in_front = control > 0 && leads_to_next(dialog, control - 1);
  return words_in_front ? without_colon(dialog[control - 1].label) : QString::fromStdString(dialog.title);
}

}  // namespace

TDialogWindow::TDialogWindow(TDialog& dialog, QWidget* parent, int picture_zoom)
    : QDialog(parent), dialog_(dialog), picture_zoom_(picture_zoom) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  connect(&ticks_, &QTimer::timeout, this, [this] {
    act([](TDialog& told) { told.tell(DIALOG_TICK); });
  });
  sync();
  focus_first();
}

// The widgets of the controls go before the widgets of the window that they know.
TDialogWindow::~TDialogWindow() {
  ticks_.stop();
  widgets_.clear();
  replaced_.clear();
}

void TDialogWindow::run() {
  if (!dialog_.closed()) exec();
  cancel_dialog(dialog_);
}

int TDialogWindow::control_of(const QWidget* widget) const {
  for (std::size_t i = 0; i < widgets_.size(); ++i) {
    const std::vector<QWidget*>& stops = widgets_[i]->tab_stops();
    if (widgets_[i]->body() == widget || std::find(stops.begin(), stops.end(), widget) != stops.end())
      return static_cast<int>(i);
  }
  return -1;
}

QWidget* TDialogWindow::widget_of(int control) const {
  if (control < 0 || control >= static_cast<int>(widgets_.size())) return nullptr;
  const TControlWidget& widget = *widgets_[static_cast<std::size_t>(control)];
  return widget.tab_stops().empty() ? widget.body() : widget.tab_stops().back();
}

void TDialogWindow::act(const std::function<void(TDialog&)>& act) {
  if (syncing_ || working_ || dialog_.closed()) return;
  working_ = true;
  act(dialog_);
  working_ = cancel_wished_ = false;
  follow();
}

void TDialogWindow::reject() {
  cancel_wished_ = working_;
  act(cancel_dialog);
}

void TDialogWindow::follow() {
  if (dialog_.closed()) {
    ticks_.stop();
    return done(0);
  }
  sync();
}

void TDialogWindow::sync() {
  syncing_ = true;
  if (!content_ || shape_ != shape_of(dialog_)) build();
  const std::vector<QString> labels = labels_with_mnemonics(dialog_);
  for (std::size_t i = 0; i < widgets_.size(); ++i) widgets_[i]->sync(dialog_.controls[i], labels[i]);
  name_controls();
  const QString title = QString::fromStdString(dialog_.title);
  if (windowTitle() != title) setWindowTitle(title);
  sync_ticks();
  syncing_ = false;
}

void TDialogWindow::build() {
  const int focused = control_of(focusWidget());
  if (content_) content_->hide();
  replaced_.push_back(std::move(widgets_));
  widgets_.clear();
  content_ = new QWidget(this);
  for (int i = 0; i < dialog_.count(); ++i)
    widgets_.push_back(make_control_widget(*this, i, dialog_[i], content_));
  shape_ = shape_of(dialog_);
  group_radio_buttons();
  settle_default();
  tie_words();
  const std::vector<QString> labels = labels_with_mnemonics(dialog_);
  for (std::size_t i = 0; i < widgets_.size(); ++i) widgets_[i]->sync(dialog_.controls[i], labels[i]);
  const TLaidOut laid_out = lay_out(dialog_, widgets_, content_);
  chain_tab_stops(laid_out.tab_stops);
  layout()->addWidget(content_);
  content_->show();
  layout()->setSizeConstraint(laid_out.can_grow ? QLayout::SetDefaultConstraint : QLayout::SetFixedSize);
  content_->setMinimumWidth(fontMetrics().horizontalAdvance(QString::fromStdString(dialog_.title)) +
                            FRAME_BUTTONS);
  if (QWidget* widget = widget_of(focused)) widget->setFocus();
}

void TDialogWindow::name_controls() {
  for (int i = 0; i < dialog_.count(); ++i)
    if (dialog_[i].kind != CONTROL_LABEL)
      widgets_[static_cast<std::size_t>(i)]->set_name(name_of(dialog_, i));
}

void TDialogWindow::tie_words() {
  for (int i = 0; i < dialog_.count(); ++i)
    if (leads_to_next(dialog_, i)) static_cast<QLabel*>(widget_of(i))->setBuddy(widget_of(i + 1));
}

void TDialogWindow::group_radio_buttons() {
  std::map<int, QButtonGroup*> groups;
  for (int i = 0; i < dialog_.count(); ++i) {
    if (dialog_[i].kind != CONTROL_RADIO) continue;
    QButtonGroup*& group = groups[dialog_[i].group];
    if (!group) group = new QButtonGroup(content_);
    group->addButton(static_cast<QAbstractButton*>(widgets_[static_cast<std::size_t>(i)]->body()));
  }
}

// Where the dialog names no default Qt would take the first button, and Enter in a field would press it.
void TDialogWindow::settle_default() {
  const bool named = std::any_of(dialog_.controls.begin(), dialog_.controls.end(), [](const TControl& control) {
    return control.kind == CONTROL_BUTTON && control.role == BUTTON_DEFAULT;
  });
  for (QPushButton* button : content_->findChildren<QPushButton*>()) button->setAutoDefault(named);
}

void TDialogWindow::keyPressEvent(QKeyEvent* event) {
  auto* button = qobject_cast<QPushButton*>(focusWidget());
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (enter && button && !button->autoDefault()) return button->click();
  QDialog::keyPressEvent(event);
}

void TDialogWindow::chain_tab_stops(const std::vector<QWidget*>& stops) {
  for (std::size_t i = 1; i < stops.size(); ++i) setTabOrder(stops[i - 1], stops[i]);
}

// The control that the dialog names, else the first that takes the keyboard.
void TDialogWindow::focus_first() {
  QWidget* first = widget_of(dialog_.focus);
  for (int i = 0; i < dialog_.count() && !first; ++i) {
    const TControl& control = dialog_[i];
    const bool usable = control.enabled && control.visible && control.kind != CONTROL_TEXT;
    const bool left_out = control.kind == CONTROL_RADIO && !control.checked;
    if (usable && !left_out && !widgets_[static_cast<std::size_t>(i)]->tab_stops().empty())
      first = widget_of(i);
  }
  if (!first) return;
  first->setFocus(Qt::TabFocusReason);
  if (auto* field = qobject_cast<QLineEdit*>(first)) field->selectAll();
}

void TDialogWindow::sync_ticks() {
  const int interval = static_cast<int>(dialog_.tick_interval);
  if (interval == (ticks_.isActive() ? ticks_.interval() : 0)) return;
  if (interval > 0)
    ticks_.start(interval);
  else
    ticks_.stop();
}

void TDialogWindow::showEvent(QShowEvent* event) {
  if (!event->spontaneous()) {
    resize(sizeHint().boundedTo(screen()->availableSize()));
    place_over_calculator();
  }
  QDialog::showEvent(event);
}

// Its middle over that of the calculator, as far as the screen allows.
void TDialogWindow::place_over_calculator() {
  const QWidget* calculator = parentWidget();
  if (!calculator) return;
  while (calculator->parentWidget()) calculator = calculator->parentWidget();
  const QRect area = calculator->screen()->availableGeometry();
  QRect place(QPoint(), frameSize());
  place.moveCenter(calculator->frameGeometry().center());
  place.moveRight(std::min(place.right(), area.right()));
  place.moveBottom(std::min(place.bottom(), area.bottom()));
  place.moveLeft(std::max(place.left(), area.left()));
  place.moveTop(std::max(place.top(), area.top()));
  move(place.topLeft());
}

}  // namespace zephyl
