// Check boxes, radio buttons, buttons, sliders and pictures.

#include <QButtonGroup>
#include <QCheckBox>
#include <QImage>
#include <QLabel>
#include <QPixmap>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QSlider>
#include <algorithm>
#include <cstring>

#include "platform/desktop/dialogs/control_widget.h"
#include "platform/dialog.h"

namespace zephyl {

namespace {

class TMarkWidget : public TControlWidget {
 public:
  TMarkWidget(TDialogUser& user, int index, QAbstractButton* mark)
      : TControlWidget(user, index), mark_(mark) {
    body_ = mark_;
    tab_stops_ = {mark_};
    QObject::connect(mark_, &QAbstractButton::toggled,
                     [this, radio = qobject_cast<QRadioButton*>(mark)](bool on) {
                       // Of two radio buttons that change, the one that goes on is the user's doing.
                       if (on || !radio)
                         act([index = index_, on](TDialog& dialog) { set_checked(dialog, index, on); });
                     });
  }

 protected:
  void show(const TControl& control, const QString& label) override {
    if (mark_->text() != label) mark_->setText(label);
    if (mark_->isChecked() != control.checked) set_mark(control.checked);
  }

 private:
  // In an exclusive group no button goes off by itself.
  void set_mark(bool on) {
    QButtonGroup* group = mark_->group();
    if (group) group->setExclusive(false);
    mark_->setChecked(on);
    if (group) group->setExclusive(true);
  }

  QAbstractButton* mark_;
};

class TButtonWidget : public TControlWidget {
 public:
  TButtonWidget(TDialogUser& user, int index, const TControl& control, QWidget* parent)
      : TControlWidget(user, index), button_(new QPushButton(parent)) {
    button_->setDefault(control.role == BUTTON_DEFAULT);
    body_ = button_;
    tab_stops_ = {button_};
    QObject::connect(button_, &QPushButton::clicked, [this] {
      TControlWidget::act([index = index_](TDialog& dialog) { press_button(dialog, index); });
    });
  }

 protected:
  void show(const TControl&, const QString& label) override {
    if (button_->text() != label) button_->setText(label);
  }

 private:
  QPushButton* button_;
};

class TSliderWidget : public TControlWidget {
 public:
  TSliderWidget(TDialogUser& user, int index, QWidget* parent) : TControlWidget(user, index) {
    body_ = slider_ = new QSlider(Qt::Horizontal, parent);
    companion_ = number_ = new QLabel(parent);
    number_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    slider_->setMinimumWidth(slider_->fontMetrics().averageCharWidth() * 24);
    tab_stops_ = {slider_};
    QObject::connect(slider_, &QSlider::valueChanged, [this](int value) {
      TControlWidget::act([index = index_, value](TDialog& dialog) { set_value(dialog, index, value); });
    });
  }

 protected:
  void show(const TControl& control, const QString&) override {
    if (slider_->minimum() != control.minimum || slider_->maximum() != control.maximum) set_range(control);
    if (slider_->value() != control.value) slider_->setValue(control.value);
    number_->setNum(control.value);
  }

 private:
  void set_range(const TControl& control) {
    slider_->setRange(control.minimum, control.maximum);
    slider_->setPageStep(std::max(1, (control.maximum - control.minimum) / 16));
    const QFontMetrics metrics = number_->fontMetrics();
    number_->setFixedWidth(std::max(metrics.horizontalAdvance(QString::number(control.minimum)),
                                    metrics.horizontalAdvance(QString::number(control.maximum))));
  }

  QSlider* slider_ = nullptr;
  QLabel* number_ = nullptr;
};

QImage image_of(const TSurface& surface) {
  QImage image(surface.width(), surface.height(), QImage::Format_RGB32);
  const auto row_bytes = static_cast<std::size_t>(surface.width()) * sizeof(TColour);
  for (int y = 0; y < surface.height(); ++y) std::memcpy(image.scanLine(y), surface.row(y), row_bytes);
  return image;
}

class TPictureWidget : public TControlWidget {
 public:
  TPictureWidget(TDialogUser& user, int index, QWidget* parent)
      : TControlWidget(user, index), picture_(new QLabel(parent)) {
    picture_->setAlignment(Qt::AlignCenter);
    body_ = picture_;
  }

 protected:
  // Each pixel becomes a square of whole device pixels.
  void show(const TControl& control, const QString&) override {
    if (control.picture.empty()) return picture_->clear();
    const QImage image = image_of(control.picture[0]);
    if (image == shown_ && !picture_->pixmap(Qt::ReturnByValue).isNull()) return;
    shown_ = image;
    QImage enlarged = image.scaled(image.size() * zoom_for(image));
    enlarged.setDevicePixelRatio(picture_->devicePixelRatioF());
    picture_->setPixmap(QPixmap::fromImage(enlarged));
  }

 private:
  // That of the calculator, unless the picture would fill the screen.
  int zoom_for(const QImage& image) const {
    const double room = picture_->screen()->availableSize().height() * picture_->devicePixelRatioF() / 2.0;
    const int most = static_cast<int>(room) / std::max(image.height(), 1);
    return std::clamp(user_.picture_zoom(), 1, std::max(most, 1));
  }

  QLabel* picture_;
  QImage shown_;
};

}  // namespace

std::unique_ptr<TControlWidget> make_mark(TDialogUser& user, int index, const TControl& control,
                                          QWidget* parent) {
  QAbstractButton* mark = control.kind == CONTROL_CHECK ? static_cast<QAbstractButton*>(new QCheckBox(parent))
                                                        : new QRadioButton(parent);
  return std::make_unique<TMarkWidget>(user, index, mark);
}

std::unique_ptr<TControlWidget> make_button(TDialogUser& user, int index, const TControl& control,
                                            QWidget* parent) {
  return std::make_unique<TButtonWidget>(user, index, control, parent);
}

std::unique_ptr<TControlWidget> make_slider(TDialogUser& user, int index, QWidget* parent) {
  return std::make_unique<TSliderWidget>(user, index, parent);
}

std::unique_ptr<TControlWidget> make_picture(TDialogUser& user, int index, QWidget* parent) {
  return std::make_unique<TPictureWidget>(user, index, parent);
}

}  // namespace zephyl
