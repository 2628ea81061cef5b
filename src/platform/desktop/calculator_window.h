// The window: shows the picture and puts what the user does with pointer and keyboard into the input queue.
// It knows nothing of the calculator but the finished picture, and the keys on it, which the keyboard reaches
// by a ring.
#pragma once

#include <QImage>
#include <QWidget>
#include <functional>

#include "platform/desktop/accessible/key_ring.h"
#include "platform/desktop/input_queue.h"

namespace zephyl {

class TCalculatorWindow : public QWidget {
 public:
  // take: told of each input, at any time, even while an earlier one is still being worked on.
  // close: told of the wish to close; true if the window may go at once.
  TCalculatorWindow(std::function<void(const TInput&)> take, std::function<bool()> close);

  // 1 to what the screen holds, or AUTOMATIC_ZOOM: by the density of the screen.
  void choose_zoom(int zoom);
  // As chosen, AUTOMATIC_ZOOM included.
  int chosen_zoom() const { return chosen_zoom_; }
  // The one in use.
  int zoom() const { return zoom_; }

  // A tap on a key of the screen that shows, by its number.
  void press_key(int key);
  // The ring that the keyboard moves from key to key: Tab, Shift+Tab, Ctrl with an arrow. Space and Enter
  // press its key; whoever types or takes the pen needs it no more. ring_key: -1 while it doesn't show.
  void show_ring(int key);
  int ring_key() const { return ring_.key(); }
  // Called when the ring has moved, or has gone.
  void when_ring_moves(std::function<void()> act) { ring_moved_ = std::move(act); }

  // Where a part of the picture is, in the desktop's units.
  QRect place_on_screen(const TRect& picture_rect) const;

  // What stands on the screen, in device pixels: the picture, each pixel a square of zoom() by zoom(), its
  // last column and row going on to the edge where the window can't be that small.
  QImage enlarged_picture(QSize device_size) const;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  bool focusNextPrevChild(bool next) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void changeEvent(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void fit_to_zoom();
  bool zoom_by_key(const QKeyEvent& event);
  void take_characters(const QString& characters);
  void put_pen_down(TPoint at);
  void lift_pen();
  bool works_ring(const QKeyEvent& event);
  void hide_ring();
  void ring_has_moved();
  void paint_ring(QPainter& painter) const;
  TPoint point_of(const QMouseEvent& event) const;

  std::function<void(const TInput&)> take_;
  std::function<bool()> close_;
  int chosen_zoom_ = 0;
  int zoom_ = 1;
  double fitted_scale_ = 0.0;  // the scale factor that the size was made for
  bool pen_is_down_ = false;
  TPoint pen_;
  TKeyRing ring_;
  std::function<void()> ring_moved_;
};

}  // namespace zephyl
