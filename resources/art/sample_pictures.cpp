// A sample of each type of plot, six on one picture of 204 by 248: the picture of a dialog.

#include <algorithm>
#include <cmath>
#include <vector>

#include "fronts.h"
#include "sketch.h"
#include "typefaces.h"

namespace art {

namespace {

constexpr int SAMPLE_WIDTH = 204;
constexpr int SAMPLE_HEIGHT = 248;
constexpr int TILE_WIDTH = 102;
constexpr int TILE_HEIGHT = 82;

TPoint2 on_tile(double x, double y) { return {TILE_WIDTH / 2.0 + x * 32, 46 - y * 32}; }

TCanvas tile(const char* title) {
  TCanvas canvas(TILE_WIDTH, TILE_HEIGHT, 0xFFFFFF);
  canvas.fill({0, 0, TILE_WIDTH - 1, 11}, 0xEEF2F6);
  canvas.stamp_centred(typefaces().legend.label(title), {0, 0, TILE_WIDTH - 1, 11}, AXIS);
  return canvas;
}

void tile_axes(TCanvas& canvas) {
  canvas.stroke(4, 46, TILE_WIDTH - 5, 46, 1, 0xB8C0C8);
  canvas.stroke(TILE_WIDTH / 2.0, 15, TILE_WIDTH / 2.0, TILE_HEIGHT - 4, 1, 0xB8C0C8);
}

TCanvas function_sample() {
  TCanvas canvas = tile("Function");
  tile_axes(canvas);
  static constexpr TColour colours[] = {0x0000E0, 0xD82020, 0x00A800};
  for (int i = 0; i < 3; ++i)
    curve(
        canvas,
        [&](double t) {
          return on_tile(t * 0.45, std::sin(t * 2.2 + i) * std::exp(-t * t / 5) * (0.9 - 0.2 * i));
        },
        -3.1, 3.1, colours[i], 1.3);
  return canvas;
}

TCanvas polar_sample() {
  TCanvas canvas = tile("Polar");
  tile_axes(canvas);
  const auto rose = [](double t, double petals, double size) {
    const double r = size * std::cos(petals * t);
    return on_tile(r * std::cos(t), r * std::sin(t));
  };
  curve(
      canvas, [&](double t) { return rose(t, 4, 0.98); }, 0, 2 * PI, 0xD82020, 1.3);
  curve(
      canvas, [&](double t) { return rose(t, 3, 0.6); }, 0, PI, 0x0000E0, 1.3);
  return canvas;
}

TCanvas parametric_sample() {
  TCanvas canvas = tile("Parametric");
  tile_axes(canvas);
  curve(
      canvas, [](double t) { return on_tile(1.2 * std::sin(3 * t), 0.92 * std::sin(4 * t)); }, 0, 2 * PI,
      0x8020C0, 1.3);
  return canvas;
}

struct TFace {
  TPoint2 corner[4];
  double depth;
  double shade;
};

// A point turned about the vertical and tilted towards the eye: to the right, up, and depth.
TPoint3 turned(TPoint3 p) {
  constexpr double TURN = 0.62, TILT = 0.52;
  const double x = p.x * std::cos(TURN) - p.y * std::sin(TURN),
               y = p.x * std::sin(TURN) + p.y * std::cos(TURN);
  return {x, p.z * std::cos(TILT) + y * std::sin(TILT), y * std::cos(TILT) - p.z * std::sin(TILT)};
}

bool inside(const TFace& face, double x, double y) {
  bool odd = false;
  for (int i = 0, j = 3; i < 4; j = i++) {
    const TPoint2 a = face.corner[i], b = face.corner[j];
    if ((a.y > y) != (b.y > y) && x < (b.x - a.x) * (y - a.y) / (b.y - a.y) + a.x) odd = !odd;
  }
  return odd;
}

void draw_face(TCanvas& canvas, const TFace& face, TColour low, TColour high) {
  const TColour colour = mix(low, high, face.shade);
  double left = 1e9, right = -1e9, top = 1e9, bottom = -1e9;
  for (const TPoint2& p : face.corner) {
    left = std::min(left, p.x), right = std::max(right, p.x);
    top = std::min(top, p.y), bottom = std::max(bottom, p.y);
  }
  for (int y = static_cast<int>(top) - 1; y <= static_cast<int>(bottom) + 1; ++y)
    for (int x = static_cast<int>(left) - 1; x <= static_cast<int>(right) + 1; ++x)
      if (inside(face, x, y)) canvas.set(x, y, colour);
  for (int i = 0; i < 4; ++i)
    canvas.stroke(face.corner[i].x, face.corner[i].y, face.corner[(i + 1) % 4].x, face.corner[(i + 1) % 4].y,
                  0.5, mix(colour, 0x000000, 0.45));
}

// A surface over u and v from 0 to 1, its faces from the farthest to the nearest, coloured by their height.
void draw_surface(TCanvas& canvas, const std::function<TPoint3(double, double)>& at, TColour low,
                  TColour high) {
  constexpr int N = 20;
  constexpr double SHADES = 16;
  std::vector<TFace> faces;
  for (int i = 0; i < N; ++i)
    for (int j = 0; j < N; ++j) {
      TFace face{};
      double height = 0;
      for (int k = 0; k < 4; ++k) {
        const TPoint3 p =
            at((i + (k == 1 || k == 2)) / static_cast<double>(N), (j + (k >= 2)) / static_cast<double>(N));
        const TPoint3 eye = turned(p);
        face.corner[k] = on_tile(eye.x, eye.y);
        face.depth += eye.z;
        height += p.z / 4;
      }
      face.shade = std::round(std::clamp(height * 0.7 + 0.5, 0.0, 1.0) * SHADES) / SHADES;
      faces.push_back(face);
    }
  std::stable_sort(faces.begin(), faces.end(),
                   [](const TFace& a, const TFace& b) { return a.depth > b.depth; });
  for (const TFace& face : faces) draw_face(canvas, face, low, high);
}

TCanvas cartesian_sample() {
  TCanvas canvas = tile("3D Cartesian");
  draw_surface(
      canvas,
      [](double u, double v) {
        const double x = 2 * u - 1, y = 2 * v - 1, r = 7 * std::hypot(x, y) + 1e-6;
        return TPoint3{x, y, 0.75 * std::sin(r) / r - 0.1};
      },
      0x2040C0, 0xFFD860);
  return canvas;
}

TCanvas cylindrical_sample() {
  TCanvas canvas = tile("3D Cylindrical");
  draw_surface(
      canvas,
      [](double u, double v) {
        const double angle = 2 * PI * u;
        return TPoint3{v * std::cos(angle), v * std::sin(angle), 0.5 * v * v * std::cos(2 * angle + 1.3)};
      },
      0x106050, 0xB0F0C0);
  return canvas;
}

TCanvas spherical_sample() {
  TCanvas canvas = tile("3D Spherical");
  draw_surface(
      canvas,
      [](double u, double v) {
        const double angle = 2 * PI * u, fall = PI * v, r = 0.72 + 0.2 * std::sin(4 * angle) * std::sin(fall);
        return TPoint3{r * std::sin(fall) * std::cos(angle), r * std::sin(fall) * std::sin(angle),
                       r * std::cos(fall)};
      },
      0x902050, 0xFFC8A0);
  return canvas;
}

TCanvas samples() {
  TCanvas canvas(SAMPLE_WIDTH, SAMPLE_HEIGHT, 0xFFFFFF);
  const TCanvas tiles[] = {function_sample(),  polar_sample(),       parametric_sample(),
                           cartesian_sample(), cylindrical_sample(), spherical_sample()};
  for (int i = 0; i < 6; ++i) canvas.draw(tiles[i], i % 2 * TILE_WIDTH, 1 + i / 2 * TILE_HEIGHT);
  canvas.frame({0, 0, SAMPLE_WIDTH - 1, SAMPLE_HEIGHT - 1}, 0xA8B0B8);
  canvas.fill({TILE_WIDTH, 1, TILE_WIDTH, SAMPLE_HEIGHT - 2}, 0xC8D0D8);
  for (int i = 1; i < 3; ++i)
    canvas.fill({1, 1 + i * TILE_HEIGHT, SAMPLE_WIDTH - 2, 1 + i * TILE_HEIGHT}, 0xC8D0D8);
  return canvas;
}

}  // namespace

void add_sample_pictures(TProduct& product) { product.add_image("PLOT_SAMPLE_GIF", samples()); }

}  // namespace art
