// How each type of plot takes its coordinates, 200 by 187: the pictures of a dialog.

#include <cmath>

#include "fronts.h"
#include "sketch.h"
#include "typefaces.h"

namespace art {

namespace {

constexpr int SYSTEM_WIDTH = 200;
constexpr int SYSTEM_HEIGHT = 187;

TCanvas sheet(const char* title) {
  TCanvas canvas(SYSTEM_WIDTH, SYSTEM_HEIGHT, 0xFFFFFF);
  canvas.frame({0, 0, SYSTEM_WIDTH - 1, SYSTEM_HEIGHT - 1}, 0xA8B0B8);
  const TMask text = typefaces().round.label(title);
  canvas.fill({1, 1, SYSTEM_WIDTH - 2, 20}, 0xEEF2F6);
  canvas.stamp_centred(text, {1, 1, SYSTEM_WIDTH - 2, 20}, AXIS);
  return canvas;
}

void flat_axes(TCanvas& canvas, TPoint2 origin) {
  for (double x = origin.x - 80; x < SYSTEM_WIDTH - 2; x += 20)
    if (x > 2) canvas.stroke(x, 24, x, SYSTEM_HEIGHT - 6, 1, FAINT);
  for (double y = origin.y - 140; y < SYSTEM_HEIGHT - 4; y += 20)
    if (y > 24) canvas.stroke(6, y, SYSTEM_WIDTH - 7, y, 1, FAINT);
  arrow(canvas, {8, origin.y}, {SYSTEM_WIDTH - 10, origin.y}, AXIS);
  arrow(canvas, {origin.x, SYSTEM_HEIGHT - 8}, {origin.x, 27}, AXIS);
  write(canvas, "x", SYSTEM_WIDTH - 14, origin.y + 8, AXIS);
  write(canvas, "y", origin.x + 9, 26, AXIS);
}

TCanvas function_system() {
  TCanvas canvas = sheet("y = f(x)");
  const TPoint2 origin = {40, 150};
  flat_axes(canvas, origin);
  const auto at = [&](double t) {
    return TPoint2{origin.x + t, origin.y - 48 - 34 * std::sin(t / 24) - t * 0.14};
  };
  curve(canvas, at, -28, 142, CURVE);
  const TPoint2 point = at(92);
  dashes(canvas, point, {point.x, origin.y}, HELP);
  dashes(canvas, point, {origin.x, point.y}, HELP);
  canvas.disc(point.x, point.y, 3, MARK);
  write(canvas, "x", point.x - 2, origin.y + 6, MARK);
  write(canvas, "f(x)", 8, point.y - 5, MARK);
  return canvas;
}

TCanvas parametric_system() {
  TCanvas canvas = sheet("x = X(t), y = Y(t)");
  const TPoint2 origin = {46, 152};
  flat_axes(canvas, origin);
  const auto at = [&](double t) {
    return TPoint2{origin.x + 62 + 56 * std::cos(t) + 12 * std::cos(3 * t),
                   origin.y - 58 - 44 * std::sin(2 * t) * 0.9};
  };
  curve(canvas, at, 0, 2 * PI, CURVE);
  const TPoint2 point = at(0.62), ahead = at(0.95);
  arrow(canvas, {ahead.x + 0.3, ahead.y}, at(1.05), CURVE);
  dashes(canvas, point, {point.x, origin.y}, HELP);
  dashes(canvas, point, {origin.x, point.y}, HELP);
  canvas.disc(point.x, point.y, 3, MARK);
  write(canvas, "X(t)", point.x - 12, origin.y + 6, MARK);
  write(canvas, "Y(t)", 12, point.y - 5, MARK);
  return canvas;
}

TCanvas polar_system() {
  TCanvas canvas = sheet("r = R(θ)");
  const TPoint2 origin = {84, 116};
  for (int radius = 20; radius <= 60; radius += 20)
    curve(
        canvas,
        [&](double t) {
          return TPoint2{origin.x + radius * std::cos(t), origin.y + radius * std::sin(t)};
        },
        0, 2 * PI, FAINT, 1);
  arrow(canvas, {8, origin.y}, {SYSTEM_WIDTH - 10, origin.y}, AXIS);
  arrow(canvas, {origin.x, SYSTEM_HEIGHT - 8}, {origin.x, 27}, AXIS);
  const auto at = [&](double t) {
    const double r = 36 + 27 * std::cos(3 * t - 0.6);
    return TPoint2{origin.x + r * std::cos(t), origin.y - r * std::sin(t)};
  };
  curve(canvas, at, 0, 2 * PI, CURVE);
  const double angle = 0.5;
  const TPoint2 point = at(angle);
  canvas.stroke(origin.x, origin.y, point.x, point.y, 1.5, MARK);
  curve(
      canvas,
      [&](double t) {
        return TPoint2{origin.x + 30 * std::cos(t), origin.y - 30 * std::sin(t)};
      },
      0, angle, GREEN_MARK);
  canvas.disc(point.x, point.y, 3, MARK);
  write(canvas, "θ", origin.x + 36, origin.y - 14, GREEN_MARK);
  write(canvas, "R(θ)", point.x + 7, point.y - 8, MARK);
  return canvas;
}

// The corner view of the three systems in space.
TPoint2 seen(TPoint3 p) { return {92 + p.y * 0.95 - p.x * 0.62, 128 - p.z * 0.98 + p.x * 0.42 + p.y * 0.10}; }

void space_axes(TCanvas& canvas) {
  arrow(canvas, seen({0, 0, 0}), seen({108, 0, 0}), AXIS);
  arrow(canvas, seen({0, 0, 0}), seen({0, 96, 0}), AXIS);
  arrow(canvas, seen({0, 0, 0}), seen({0, 0, 98}), AXIS);
  write(canvas, "x", 14, 160, AXIS);
  write(canvas, "y", 186, 144, AXIS);
  write(canvas, "z", 99, 26, AXIS);
}

void space_line(TCanvas& canvas, TPoint3 a, TPoint3 b, TColour colour, bool dashed) {
  const TPoint2 from = seen(a), to = seen(b);
  if (dashed)
    dashes(canvas, from, to, colour);
  else
    canvas.stroke(from.x, from.y, to.x, to.y, 1.5, colour);
}

void space_dot(TCanvas& canvas, TPoint3 p) {
  const TPoint2 at = seen(p);
  canvas.disc(at.x, at.y, 3, MARK);
}

constexpr TPoint3 POINT = {46, 86, 62};

TCanvas cartesian_system() {
  TCanvas canvas = sheet("X, Y, Z (u,v)");
  space_axes(canvas);
  const auto [x, y, z] = POINT;
  space_line(canvas, {x, 0, 0}, {x, y, 0}, HELP, true);
  space_line(canvas, {0, y, 0}, {x, y, 0}, HELP, true);
  space_line(canvas, {x, y, 0}, POINT, HELP, true);
  space_line(canvas, {0, 0, 0}, {x, 0, 0}, MARK, false);
  space_line(canvas, {x, 0, 0}, {x, y, 0}, GREEN_MARK, false);
  space_line(canvas, {x, y, 0}, POINT, CURVE, false);
  space_dot(canvas, POINT);
  write(canvas, "X", 62, 134, MARK);
  write(canvas, "Y", 96, 160, GREEN_MARK);
  write(canvas, "Z", 152, 116, CURVE);
  return canvas;
}

void ground_arc(TCanvas& canvas, double radius, double angle) {
  curve(
      canvas,
      [&](double t) {
        return seen({radius * std::cos(t), radius * std::sin(t), 0});
      },
      0, angle, GREEN_MARK);
}

TCanvas cylindrical_system() {
  TCanvas canvas = sheet("θ, R, Z (u,v)");
  space_axes(canvas);
  const auto [x, y, z] = POINT;
  space_line(canvas, {0, 0, 0}, {x, y, 0}, MARK, false);
  space_line(canvas, {x, y, 0}, POINT, CURVE, false);
  space_line(canvas, {0, 0, z}, POINT, HELP, true);
  ground_arc(canvas, 34, std::atan2(y, x));
  space_dot(canvas, POINT);
  write(canvas, "θ", 86, 150, GREEN_MARK);
  write(canvas, "R", 108, 147, MARK);
  write(canvas, "Z", 152, 116, CURVE);
  return canvas;
}

TCanvas spherical_system() {
  TCanvas canvas = sheet("θ, Ψ, R (u,v)");
  space_axes(canvas);
  const auto [x, y, z] = POINT;
  const double ground = std::hypot(x, y), tilt = std::atan2(ground, z);
  space_line(canvas, {0, 0, 0}, POINT, MARK, false);
  space_line(canvas, {0, 0, 0}, {x, y, 0}, HELP, true);
  space_line(canvas, {x, y, 0}, POINT, HELP, true);
  ground_arc(canvas, 34, std::atan2(y, x));
  curve(
      canvas,
      [&, x = x, y = y](double t) {
        return seen({46 * std::sin(t) * x / ground, 46 * std::sin(t) * y / ground, 46 * std::cos(t)});
      },
      0, tilt, CURVE);
  space_dot(canvas, POINT);
  write(canvas, "θ", 86, 150, GREEN_MARK);
  write(canvas, "Ψ", 110, 74, CURVE);
  write(canvas, "R", 130, 108, MARK);
  return canvas;
}

}  // namespace

void add_coordinate_pictures(TProduct& product) {
  product.add_image("FUNCTION", function_system());
  product.add_image("POLAR", polar_system());
  product.add_image("PARAMETRIC", parametric_system());
  product.add_image("CARTESIAN", cartesian_system());
  product.add_image("CYLINDRICAL", cylindrical_system());
  product.add_image("SPHERICAL", spherical_system());
}

}  // namespace art
