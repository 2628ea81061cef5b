#include "platform/desktop/calculator_window.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QTimer>
#include <QWindow>
#include <algorithm>
#include <cstring>

#include "platform/desktop/accessible/calculator_accessible.h"
#include "platform/desktop/accessible/shown_keys.h"
#include "platform/desktop/key_events.h"
#include "platform/desktop/zoom.h"
#include "platform/events.h"
#include "platform/surface.h"

namespace zephyl {

namespace {

constexpr QRgb OPAQUE = 0xff000000u;
constexpr QRgb RING_COLOUR = 0xffffb000u;
constexpr QRgb RING_EDGE = 0xff101418u;

struct TDirection {
  int key;
  int dx, dy;
};
constexpr TDirection DIRECTIONS[] = {
    {Qt::Key_Left, -1, 0}, {Qt::Key_Right, 1, 0}, {Qt::Key_Up, 0, -1}, {Qt::Key_Down, 0, 1}};

bool presses_ringed_key(const QKeyEvent& event) {
  const Qt::KeyboardModifiers others = event.modifiers() & ~Qt::KeypadModifier;
  const int key = event.key();
  return !others && (key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter);
}

// A row of the picture, each pixel `zoom` times, the last one up to the end.
void enlarge_row(const TColour* from, QRgb* to, int width, int zoom) {
  int x = 0;
  for (int column = 0; column < SCREEN_WIDTH; ++column)
    for (const int end = std::min(width, (column + 1) * zoom); x < end; ++x) to[x] = OPAQUE | from[column];
  for (; x < width; ++x) to[x] = OPAQUE | from[SCREEN_WIDTH - 1];
}

}  // namespace

TCalculatorWindow::TCalculatorWindow(std::function<void(const TInput&)> take, std::function<bool()> close)
    : QWidget(nullptr, Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                           Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint),
      take_(std::move(take)),
      close_(std::move(close)) {
  offer_calculator_to_screen_readers();
  // The picture covers all of the window.
  setAttribute(Qt::WA_OpaquePaintEvent);
  setAttribute(Qt::WA_NoSystemBackground);
  // Signs that take two keys to type, such as ^ on many keyboards, come from the input method.
  setAttribute(Qt::WA_InputMethodEnabled);
  setFocusPolicy(Qt::StrongFocus);
  setAccessibleName("Calculator");
  setWindowTitle("Zephyl");
  create();
  connect(windowHandle(), &QWindow::screenChanged, this, [this] { fit_to_zoom(); });
  fit_to_zoom();
}

void TCalculatorWindow::choose_zoom(int zoom) {
  chosen_zoom_ = zoom == AUTOMATIC_ZOOM ? AUTOMATIC_ZOOM : std::clamp(zoom, 1, largest_zoom(*screen()));
  fit_to_zoom();
}

void TCalculatorWindow::fit_to_zoom() {
  const QScreen& place = *screen();
  fitted_scale_ = devicePixelRatioF();
  zoom_ =
      chosen_zoom_ == AUTOMATIC_ZOOM ? automatic_zoom(place) : std::min(chosen_zoom_, largest_zoom(place));
  setFixedSize(widget_size(zoom_, fitted_scale_));
  update();
}

QImage TCalculatorWindow::enlarged_picture(QSize device_size) const {
  QImage image(device_size, QImage::Format_RGB32);
  const auto row_bytes = static_cast<std::size_t>(device_size.width()) * sizeof(QRgb);
  for (int y = 0; y < device_size.height(); ++y) {
    const int row = std::min(y / zoom_, SCREEN_HEIGHT - 1);
    if (y % zoom_ != 0 && y > 0)
      std::memcpy(image.scanLine(y), image.constScanLine(y - 1), row_bytes);
    else
      enlarge_row(zephyl::screen().row(row), reinterpret_cast<QRgb*>(image.scanLine(y)), device_size.width(),
                  zoom_);
  }
  return image;
}

void TCalculatorWindow::paintEvent(QPaintEvent*) {
  const double scale = devicePixelRatioF();
  if (scale != fitted_scale_) QTimer::singleShot(0, this, [this] { fit_to_zoom(); });
  const QImage image = enlarged_picture((QSizeF(size()) * scale).toSize());
  QPainter painter(this);
  painter.scale(1.0 / scale, 1.0 / scale);
  painter.drawImage(0, 0, image);
  if (ring_.shows()) paint_ring(painter);
}

// A bright line with dark edges, which shows on caps of any skin. In device pixels.
void TCalculatorWindow::paint_ring(QPainter& painter) const {
  const TRect key = rect_of_key(ring_.key());
  const int line = zoom_ + 1;
  const QRect around(key.left * zoom_, key.top * zoom_, key.width() * zoom_, key.height() * zoom_);
  painter.setRenderHint(QPainter::Antialiasing);
  for (const auto& [colour, width] : {std::pair(RING_EDGE, line + 2), std::pair(RING_COLOUR, line)}) {
    painter.setPen(QPen(QColor::fromRgba(colour), width));
    painter.drawRoundedRect(around.adjusted(-1, -1, 1, 1), 3 * zoom_, 3 * zoom_);
  }
}

QRect TCalculatorWindow::place_on_screen(const TRect& picture_rect) const {
  const double unit = zoom_ / devicePixelRatioF();
  const QRectF rect(picture_rect.left * unit, picture_rect.top * unit, picture_rect.width() * unit,
                    picture_rect.height() * unit);
  return rect.toAlignedRect().translated(mapToGlobal(QPoint(0, 0)));
}

TPoint TCalculatorWindow::point_of(const QMouseEvent& event) const {
  return picture_point(event.position(), zoom_, devicePixelRatioF());
}

// The second press of a double click is a press like any other: the faceplate knows no double clicks.
void TCalculatorWindow::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  hide_ring();
  put_pen_down(point_of(*event));
}

void TCalculatorWindow::put_pen_down(TPoint at) {
  pen_is_down_ = true;
  pen_ = at;
  take_({INPUT_PEN_DOWN, pen_});
}

void TCalculatorWindow::mouseMoveEvent(QMouseEvent* event) {
  const TPoint at = point_of(*event);
  if (!pen_is_down_ || (at.x == pen_.x && at.y == pen_.y)) return;
  pen_ = at;
  take_({INPUT_PEN_MOVE, pen_});
}

void TCalculatorWindow::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  pen_ = point_of(*event);
  lift_pen();
}

void TCalculatorWindow::lift_pen() {
  if (!pen_is_down_) return;
  pen_is_down_ = false;
  take_({INPUT_PEN_UP, pen_});
}

// The release may have gone to a box that opened under the pen.
void TCalculatorWindow::changeEvent(QEvent* event) {
  const bool held = QGuiApplication::mouseButtons() & Qt::LeftButton;
  if (event->type() == QEvent::ActivationChange && !held) lift_pen();
  QWidget::changeEvent(event);
}

void TCalculatorWindow::keyPressEvent(QKeyEvent* event) {
  TInput input;
  if (zoom_by_key(*event) || works_ring(*event)) return;
  if (input_of_key(*event, input)) {
    if (input.kind == INPUT_ARROW) hide_ring();
    return take_(input);
  }
  const QString characters = characters_of_key(*event);
  if (characters.isEmpty()) return QWidget::keyPressEvent(event);
  hide_ring();
  take_characters(characters);
}

void TCalculatorWindow::keyReleaseEvent(QKeyEvent* event) {
  if (presses_ringed_key(*event) && !event->isAutoRepeat()) lift_pen();
}

// A key that is held is pressed once.
bool TCalculatorWindow::works_ring(const QKeyEvent& event) {
  if (event.modifiers() == Qt::NoModifier && event.key() == Qt::Key_Escape && ring_.shows()) {
    hide_ring();
    return true;
  }
  for (const TDirection& direction : DIRECTIONS) {
    const bool controlled = (event.modifiers() & ~Qt::KeypadModifier) == Qt::ControlModifier;
    if (!controlled || event.key() != direction.key) continue;
    ring_.move(direction.dx, direction.dy);
    ring_has_moved();
    return true;
  }
  TPoint at;
  if (!presses_ringed_key(event) || !ring_.shows() || !point_of_key(ring_.key(), at)) return false;
  if (!event.isAutoRepeat() && !pen_is_down_) put_pen_down(at);
  return true;
}

// The window has no other widgets: what Tab goes through are the keys.
bool TCalculatorWindow::focusNextPrevChild(bool next) {
  ring_.step(next);
  ring_has_moved();
  return true;
}

void TCalculatorWindow::show_ring(int key) {
  ring_.go_to(key);
  ring_has_moved();
}

void TCalculatorWindow::hide_ring() {
  if (!ring_.shows()) return;
  ring_.hide();
  ring_has_moved();
}

void TCalculatorWindow::ring_has_moved() {
  update();
  if (ring_moved_) ring_moved_();
}

void TCalculatorWindow::press_key(int key) {
  TPoint at;
  if (pen_is_down_ || !point_of_key(key, at)) return;
  put_pen_down(at);
  lift_pen();
}

bool TCalculatorWindow::zoom_by_key(const QKeyEvent& event) {
  if (!(event.modifiers() & Qt::ControlModifier)) return false;
  switch (event.key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
      choose_zoom(zoom_ + 1);
      return true;
    case Qt::Key_Minus:
    case Qt::Key_Underscore:
      choose_zoom(std::max(zoom_ - 1, 1));
      return true;
    case Qt::Key_0:
      choose_zoom(AUTOMATIC_ZOOM);
      return true;
    default:
      return false;
  }
}

void TCalculatorWindow::inputMethodEvent(QInputMethodEvent* event) {
  take_characters(event->commitString());
  event->accept();
}

void TCalculatorWindow::take_characters(const QString& characters) {
  for (const QChar character : characters) take_({INPUT_CHARACTER, {}, character.unicode()});
}

void TCalculatorWindow::closeEvent(QCloseEvent* event) { event->setAccepted(close_()); }

}  // namespace zephyl
