// A fixture with the calculator in its window, on Qt's platform without a screen: events go in as Qt would
// send them, and what comes out is read off the window, the clipboard and the boxes.
#pragma once

#include <gtest/gtest.h>

#include <QEvent>
#include <QString>
#include <QTemporaryDir>
#include <functional>
#include <memory>

#include "platform/desktop/desktop_platform.h"

class QApplication;

namespace zephyl {

// What a box that opened said; it is accepted at once.
struct TBox {
  bool opened = false;
  QString title;
  QString text;
  bool warns = false;
};

// For whatever asks Qt about keys, screens or the clipboard.
class window_system : public ::testing::Test {
 protected:
  static void SetUpTestSuite() { open_application("1"); }
  static void TearDownTestSuite() { close_application(); }
  static void open_application(const char* scale_factor);
  static void close_application();
};

class desktop : public window_system {
 protected:
  desktop();
  ~desktop() override;

  TCalculatorWindow& window() { return platform_->window(); }
  // Lets the window and the calculator do what waits.
  void settle();
  // A new calculator with the data folder of this one, which is stopped.
  void start_again();

  void send_mouse(QEvent::Type type, TPoint picture_point);
  // The same, and what follows from it.
  void mouse(QEvent::Type type, TPoint picture_point);
  void tap(TPoint picture_point);
  // A tap on the centre of a row of the key table that shows.
  void tap_key(int number);
  void type(const QString& characters);
  void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
  void paste(const QString& text);
  // What Ctrl+C puts on the clipboard.
  QString copied();
  QString entry() const;
  // Does what opens a box, and tells what the box said.
  TBox box_of(const std::function<void()>& act);

  QTemporaryDir folder_;
  std::unique_ptr<TDesktopPlatform> platform_;
};

}  // namespace zephyl
