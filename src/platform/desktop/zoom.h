// How large the picture stands on the screen. One picture pixel is always a square of a whole number of
// device pixels, the zoom, so that the picture is sharp whatever scale factor the desktop works with.
#pragma once

#include <QSize>

class QPointF;
class QScreen;
class QWidget;

#include "platform/geometry.h"

namespace zephyl {

constexpr int AUTOMATIC_ZOOM = 0;
constexpr int LARGEST_ZOOM = 16;

// The zoom that makes a picture pixel about a 72nd of an inch, and so the picture as large as a pocket
// calculator.
int zoom_for_density(double device_dots_per_inch);
// The largest zoom at which the picture and its frame fit into an area of that many device pixels; 1 at
// least.
int zoom_that_fits(QSize device_pixels);

// Both for a screen. The density is that of the glass or the one that the desktop works with, whichever is
// higher: a desktop set to large signs wants a large calculator too.
int automatic_zoom(const QScreen& screen);
int largest_zoom(const QScreen& screen);

// The smallest widget, in the widget's own units, that holds the whole picture. scale: device pixels a unit.
QSize widget_size(int zoom, double scale);
// The picture pixel under a point of the widget; outside of the picture it is below 0 or beyond the last one.
TPoint picture_point(const QPointF& at, int zoom, double scale);

}  // namespace zephyl
