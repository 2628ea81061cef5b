#include "platform/desktop/zoom.h"

#include <QPointF>
#include <QScreen>
#include <algorithm>
#include <cmath>

#include "platform/events.h"

namespace zephyl {

namespace {

constexpr double PICTURE_DOTS_PER_INCH = 72.0;
// What the title bar takes, in the units of the desktop.
constexpr double FRAME_HEIGHT = 40.0;
// A position such as 235.2 * 1.25 must not be carried past a whole number by the last bit of a product.
constexpr double ROUNDING = 1e-6;

int length_for(int device_pixels, double scale) {
  return static_cast<int>(std::ceil(device_pixels / scale - ROUNDING));
}

int picture_coordinate(double at, int zoom, double scale) {
  return static_cast<int>(std::floor((at * scale + ROUNDING) / zoom));
}

}  // namespace

int zoom_for_density(double device_dots_per_inch) {
  const long zoom = std::lround(device_dots_per_inch / PICTURE_DOTS_PER_INCH);
  return static_cast<int>(std::clamp(zoom, 1l, static_cast<long>(LARGEST_ZOOM)));
}

int zoom_that_fits(QSize device_pixels) {
  const int zoom = std::min(device_pixels.width() / SCREEN_WIDTH, device_pixels.height() / SCREEN_HEIGHT);
  return std::clamp(zoom, 1, LARGEST_ZOOM);
}

int largest_zoom(const QScreen& screen) {
  const QSizeF area = screen.availableSize() - QSizeF(0.0, FRAME_HEIGHT);
  return zoom_that_fits((area * screen.devicePixelRatio()).toSize());
}

int automatic_zoom(const QScreen& screen) {
  const double units_per_inch = std::max(screen.physicalDotsPerInch(), screen.logicalDotsPerInch());
  return std::min(zoom_for_density(units_per_inch * screen.devicePixelRatio()), largest_zoom(screen));
}

QSize widget_size(int zoom, double scale) {
  return {length_for(SCREEN_WIDTH * zoom, scale), length_for(SCREEN_HEIGHT * zoom, scale)};
}

TPoint picture_point(const QPointF& at, int zoom, double scale) {
  return {picture_coordinate(at.x(), zoom, scale), picture_coordinate(at.y(), zoom, scale)};
}

}  // namespace zephyl
