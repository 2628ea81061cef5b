#include "platform/desktop/window_place.h"

#include <QGuiApplication>
#include <QPoint>
#include <QScreen>
#include <QSettings>

#include "platform/desktop/calculator_window.h"

namespace zephyl {

namespace {

// The corner of the picture, not of the frame: how wide a frame will be nobody knows before the window is
// shown.
constexpr const char* POSITION = "position";
constexpr const char* ZOOM = "zoom";

QString file_in(const std::string& folder) { return QString::fromStdString(folder) + "/window.ini"; }

}  // namespace

void save_place(const TCalculatorWindow& window, const std::string& folder) {
  QSettings file(file_in(folder), QSettings::IniFormat);
  file.setValue(POSITION, window.geometry().topLeft());
  file.setValue(ZOOM, window.chosen_zoom());
}

void restore_place(TCalculatorWindow& window, const std::string& folder) {
  const QSettings file(file_in(folder), QSettings::IniFormat);
  const QPoint position = file.value(POSITION).toPoint();
  const QPoint below_title = position + QPoint(window.width() / 2, 0);
  if (file.contains(POSITION) && QGuiApplication::screenAt(below_title))
    window.setGeometry({position, window.size()});
  window.choose_zoom(file.value(ZOOM).toInt());
}

}  // namespace zephyl
