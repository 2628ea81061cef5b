#include "platform_desktop/desktop.h"

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QMessageBox>
#include <QMouseEvent>
#include <QTimer>

#include "app/start_up.h"
#include "engine/expression.h"
#include "engine/tokens.h"
#include "faceplate/key_tables.h"

namespace zephyl {

namespace {

int argument_count = 1;
char program_name[] = "zephyl";
char* arguments[] = {program_name, nullptr};
QApplication* application = nullptr;

}  // namespace

void window_system::open_application(const char* scale_factor) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("QT_SCALE_FACTOR", scale_factor);
  application = new QApplication(argument_count, arguments);
}

void window_system::close_application() {
  delete application;
  application = nullptr;
}

desktop::desktop() { start_again(); }

desktop::~desktop() {
  platform_->stop();
  set_platform(nullptr);
}

void desktop::start_again() {
  if (platform_) platform_->stop();
  platform_ = std::make_unique<TDesktopPlatform>(folder_.path().toStdString());
  set_platform(platform_.get());
  register_families();
  platform_->start();
  window().show();
  settle();
}

void desktop::settle() {
  for (int round = 0; round < 5; ++round) QCoreApplication::processEvents();
}

void desktop::send_mouse(QEvent::Type type, TPoint at) {
  const double unit = window().zoom() / window().devicePixelRatioF();
  const QPointF position((at.x + 0.5) * unit, (at.y + 0.5) * unit);
  const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
  const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
  QMouseEvent event(type, position, window().mapToGlobal(position), button, held, Qt::NoModifier);
  QCoreApplication::sendEvent(&window(), &event);
}

void desktop::mouse(QEvent::Type type, TPoint at) {
  send_mouse(type, at);
  settle();
}

void desktop::tap(TPoint at) {
  mouse(QEvent::MouseButtonPress, at);
  mouse(QEvent::MouseButtonRelease, at);
}

void desktop::tap_key(int number) {
  KeyRect key;
  ASSERT_TRUE(key_rect(number, key)) << number;
  tap({(key.left + key.right) / 2, (key.top + key.bottom) / 2});
}

void desktop::type(const QString& characters) {
  for (const QChar character : characters) {
    QKeyEvent event(QEvent::KeyPress, 0, Qt::NoModifier, QString(character));
    QCoreApplication::sendEvent(&window(), &event);
  }
  settle();
}

void desktop::press(int key, Qt::KeyboardModifiers modifiers) {
  QKeyEvent event(QEvent::KeyPress, key, modifiers);
  QCoreApplication::sendEvent(&window(), &event);
  settle();
}

void desktop::paste(const QString& text) {
  QGuiApplication::clipboard()->setText(text);
  press(Qt::Key_V, Qt::ControlModifier);
}

QString desktop::copied() {
  QGuiApplication::clipboard()->setText("nothing was copied");
  press(Qt::Key_C, Qt::ControlModifier);
  return QGuiApplication::clipboard()->text();
}

QString desktop::entry() const {
  char text[2000] = "";
  expression_text(entry_line.expression, text, sizeof text);
  return text;
}

TBox desktop::box_of(const std::function<void()>& act) {
  TBox told;
  QTimer look;
  QObject::connect(&look, &QTimer::timeout, [&told] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!box) return;
    told = {true, box->windowTitle(), box->text(), box->icon() == QMessageBox::Warning};
    box->accept();
  });
  look.start(1);
  act();
  settle();
  return told;
}

}  // namespace zephyl
