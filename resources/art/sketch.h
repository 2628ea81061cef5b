// Sketches with smooth lines, for the pictures of the dialogs.
#pragma once

#include <functional>

#include "canvas.h"

namespace art {

constexpr double PI = 3.14159265358979323846;

// Ink of the sketches.
constexpr TColour AXIS = 0x30363C;
constexpr TColour CURVE = 0x2458D8;
constexpr TColour MARK = 0xD03A20;
constexpr TColour HELP = 0x8A949E;
constexpr TColour FAINT = 0xE0E5EA;
constexpr TColour GREEN_MARK = 0x1E8A3C;

struct TPoint2 {
  double x;
  double y;
};
struct TPoint3 {
  double x;
  double y;
  double z;
};

void arrow(TCanvas& canvas, TPoint2 from, TPoint2 to, TColour colour);
void dashes(TCanvas& canvas, TPoint2 from, TPoint2 to, TColour colour);
// The points of a curve joined, its parameter from `first` to `last`.
void curve(TCanvas& canvas, const std::function<TPoint2(double)>& at, double first, double last,
           TColour colour, double width = 1.6);
void write(TCanvas& canvas, const char* text, double x, double y, TColour colour);

}  // namespace art
