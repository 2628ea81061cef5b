// The drawing layer as it looks: a golden picture of each command and fractal.

#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "numerics/random.h"
#include "plot/plot_variables.h"
#include "support/drawing.h"
#include "support/golden.h"

namespace zephyl {
namespace {

struct TPictureRow {
  const char* name;
  const char* commands[10];
};

void PrintTo(const TPictureRow& row, std::ostream* out) { *out << row.name; }

constexpr TPictureRow rows[] = {
    {"drawing_lines",
     {"Line(-10,-10,10,10)", "Color(1,0,0)", "Line(-9,5,9,-2)", "Color(0,0,1)", "moveTo(-8,-8)",
      "lineTo(0,9)", "lineTo(8,-8)", "lineTo(-8,-8)"}},
    {"drawing_rectangles",
     {"Color(0,0.5,0)", "fillRect(-8,-3,-2,7)", "Color(0,0,0)", "Rect(-8,-3,-2,7)", "Rect(9,-9,1,2)",
      "Color(1,0.6,0)", "fillRect(2,9,20,4)", "Point(0,0)"}},
    {"drawing_ellipses",
     {"Color(0.8,0,0)", "fillCirc(-5,5,4)", "Color(0,0,0)", "Circle(-5,5,4)", "Circle(6,4,8)",
      "Ellipse(4,-6,5,2)", "Color(0.2,0.4,1)", "fillEllip(-5,-6,2,3.5)"}},
    {"drawing_arcs",
     {"Arc(0,0,9,0,1)", "Color(1,0,0)", "Arc(0,0,7,1,4)", "Color(0,0.5,0)", "Arc(0,0,5,5,2)", "Color(0,0,1)",
      "Arc(0,0,3,0,7)", "Arc(0,0,1,0,3)"}},
    {"drawing_strings",
     {"drawString(\"sin(x)/x = 1\",-9,9)", "Color(1,1,0.6,1)", "drawString(\"abc XYZ 0123456789\",-9,6,1)",
      "Color(0,0,1)", "Color(0.8,1,1,1)", "drawString(\"left edge\",-11,0,1)",
      "drawString(\"cut off at the right\",2,-4)"}},
    {"drawing_lists",
     {"drawListY({3,1,4,1,5,9,2,6},1)", "Color(1,0,0)", "drawListXY({-9,0,9},{-5,5,-5})", "Color(0,0,1)",
      "drawListXY({1,2,3,2,1},{2,1,2,3,2},3)"}},
    {"drawing_mandelbrot", {"-2.2->xMin", "0.8->xMax", "-1.2->yMin", "1.2->yMax", "Mandelbrot()"}},
    {"drawing_mandelbrot_near", {"-0.76->xMin", "-0.73->xMax", "0.08->yMin", "0.105->yMax", "Mandelbrot()"}},
    {"drawing_julia", {"-1.7->xMin", "1.7->xMax", "-1.35->yMin", "1.35->yMax", "Julia(-0.8+0.156(i))"}},
    {"drawing_fern",
     {"Color(0,0.45,0)", "{0,0,0,0.16,0,0,0.01,0.85,0.04,-0.04,0.85,0,1.6,0.85}->{A}",
      "{0.2,-0.26,0.23,0.22,0,1.6,0.07,-0.15,0.28,0.26,0.24,0,0.44,0.07}->{B}",
      "listToMatrix(augList({A},{B}),4)->[A]", "ifsFractal([A],30000,1)"}},
    {"drawing_triangle",
     {"Color(0.6,0,0.6)", "{0.5,0,0,0.5,0,0,1/3,0.5,0,0,0.5,0.5,0,1/3}->{A}",
      "{0.5,0,0,0.5,0.25,0.5,1/3}->{B}", "listToMatrix(augList({A},{B}),3)->[A]", "0->xMin", "0->yMin",
      "1->xMax", "1->yMax", "ifsFractal([A],20000,0)"}},
    {"drawing_plant", {"Color(0.1,0.4,0.1)", "LSystem(\"X,X=F-[[X]+X]+F[+FX]-X,F=FF\",5,25,1,75,0)"}},
    {"drawing_curve", {"LSystem(\"L--F--L--F,L=+R-F-R+,R=-L+F+L-\",9,45,1,90,0)"}},
    {"drawing_snowflake", {"Color(0,0.3,0.8)", "LSystem(\"F--F--F,F=F+F--F+F\",4,60,1,0,0)"}},
};

class drawing_picture : public drawn, public ::testing::WithParamInterface<TPictureRow> {};

TEST_P(drawing_picture, looks_as_it_did) {
  seed_random(0.5);
  for (const char* command : GetParam().commands) {
    if (!command) break;
    const std::string error = error_of(command);
    EXPECT_TRUE(error.empty() || error.rfind("Result in", 0) == 0) << command << ": " << error;
  }
  expect_picture(GetParam().name, drawing_bitmap());
}

INSTANTIATE_TEST_SUITE_P(commands, drawing_picture, ::testing::ValuesIn(rows),
                         [](const auto& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace zephyl
