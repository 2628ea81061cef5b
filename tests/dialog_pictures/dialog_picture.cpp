#include "dialog_pictures/dialog_picture.h"

#include <QCoreApplication>
#include <QPainter>

#include "platform/desktop/dialogs/dialog_window.h"

namespace zephyl {

namespace {

constexpr int TITLE_HEIGHT = 26;
constexpr int FRAME = 1;

void paint_frame(QPainter& painter, const QSize& size, const QString& title) {
  painter.fillRect(QRect(QPoint(), size), QColor(96, 102, 112));
  QFont bold = painter.font();
  bold.setBold(true);
  painter.setFont(bold);
  painter.setPen(Qt::white);
  painter.drawText(QRect(0, 0, size.width(), TITLE_HEIGHT), Qt::AlignCenter, title);
}

}  // namespace

QImage dialog_picture(TDialog& dialog, int scale) {
  TDialogWindow window(dialog, nullptr, 1);
  window.setAttribute(Qt::WA_DontShowOnScreen);
  window.show();
  QCoreApplication::processEvents();
  const QSize size = window.size() + QSize(2 * FRAME, TITLE_HEIGHT + FRAME);
  QImage image(size * scale, QImage::Format_RGB32);
  image.setDevicePixelRatio(scale);
  QPainter painter(&image);
  paint_frame(painter, size, window.windowTitle());
  window.render(&painter, QPoint(FRAME, TITLE_HEIGHT));
  return image;
}

}  // namespace zephyl
