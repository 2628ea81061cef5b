// The sample plots: each can be set up, is defined all over its ranges, and looks as it did.

#include <gtest/gtest.h>

#include <cmath>
#include <ostream>
#include <string>
#include <vector>

#include "engine/state.h"
#include "engine/text_resources.h"
#include "engine/values.h"
#include "persistence/samples.h"
#include "plot/custom_function.h"
#include "plot/plot.h"
#include "plot/plot_slots.h"
#include "support/calculator.h"
#include "support/golden.h"

namespace zephyl {
namespace {

struct TSample {
  const char* name;
  const char* picture;
  int plot_type;
  int plot_type_3d;  // -1: not 3D
  int slots;
  int angle_mode;
  TPlotRange t, v;
};

void PrintTo(const TSample& sample, std::ostream* out) { *out << sample.name; }

constexpr TSample samples[] = {
    {"Function", "sample_function", PLOT_FUNCTION, -1, 6, RADIANS, {0, 6.2832, 6.2832e-3}, {}},
    {"Polar", "sample_polar", PLOT_POLAR, -1, 4, DEGREES, {0, 360, 0.36}, {}},
    {"Parametric", "sample_parametric", PLOT_PARAMETRIC, -1, 6, RADIANS, {0, 6.2832, 6.2832e-3}, {}},
    {"3D Cartesian",
     "sample_cartesian",
     PLOT_3D,
     PLOT_CARTESIAN,
     3,
     RADIANS,
     {-3.1415, 3.1415, 2.2566e-1},
     {-6.2832, 6.2832, 2.5133e-1}},
    {"3D Cylindrical",
     "sample_cylindrical",
     PLOT_3D,
     PLOT_CYLINDRICAL,
     3,
     RADIANS,
     {0, 5.2832, 2.2566e-1},
     {0, 9.1415, 2.8283e-1}},
    {"3D Spherical",
     "sample_spherical",
     PLOT_3D,
     PLOT_SPHERICAL,
     3,
     RADIANS,
     {0, 6.2832, 1.25664e-1},
     {0, 3.1415, 6.283e-2}},
};

class sample_plot : public calculator, public ::testing::WithParamInterface<TSample> {
 protected:
  sample_plot() {
    settings.angleMode = GRADS;
    EXPECT_TRUE(load_sample(GetParam().name));
  }

  // The parameters that the plot evaluates at: columns of a function, the range of all others.
  static std::vector<double> parameters() {
    const TPlotVariables& view = plot_variables;
    std::vector<double> values;
    if (view.plotType == PLOT_FUNCTION)
      for (int column = 0; column <= PLOT_WIDTH; ++column)
        values.push_back(column * (view.xMax - view.xMin) / PLOT_WIDTH + view.xMin);
    else
      for (double t = view.t.min; t <= view.t.max; t += view.t.step) values.push_back(t);
    return values;
  }
};

std::string name_of(const ::testing::TestParamInfo<TSample>& info) { return info.param.picture; }

TEST_P(sample_plot, sets_type_ranges_and_angle_mode) {
  const TSample& sample = GetParam();
  const TPlotVariables& view = plot_variables;
  EXPECT_EQ(view.plotType, sample.plot_type);
  EXPECT_EQ(slots_in_use(), sample.slots);
  EXPECT_EQ(settings.angleMode, sample.angle_mode);
  EXPECT_DOUBLE_EQ(view.t.min, sample.t.min);
  EXPECT_DOUBLE_EQ(view.t.max, sample.t.max);
  EXPECT_DOUBLE_EQ(view.t.step, sample.t.step);
  EXPECT_TRUE(view.displayGrid && view.connectDots && view.enablePlots);
  EXPECT_EQ(view.plotCursor, sample.plot_type == PLOT_3D ? CURSOR_ROTATE : CURSOR_TRACE);
  if (sample.plot_type != PLOT_3D) return;
  EXPECT_EQ(view.plotType3D, sample.plot_type_3d);
  EXPECT_DOUBLE_EQ(view.v.min, sample.v.min);
  EXPECT_DOUBLE_EQ(view.v.max, sample.v.max);
  EXPECT_DOUBLE_EQ(view.v.step, sample.v.step);
}

TEST_P(sample_plot, is_defined_all_over_its_ranges) {
  const TPlotVariables& view = plot_variables;
  for (int slot = 0; slot < GetParam().slots; ++slot) {
    // The half circle ends at 3; sin(4x)/(4x) has its hole at 0.
    const bool has_edges = view.plotType == PLOT_FUNCTION && (slot == 5 || slot == 0);
    int undefined = 0, samples_taken = 0;
    custom_function(view.plotType, 0, 0, slot, PHASE_BEGIN);
    for (const double t : parameters())
      for (double v = view.plotType == PLOT_3D ? view.v.min : view.v.max; v <= view.v.max; v += view.v.step) {
        const double value = custom_function(view.plotType, t, v, slot, PHASE_SAMPLE);
        ++samples_taken;
        undefined += value == undefined_value;
        ASSERT_TRUE(std::isfinite(value)) << slot << " at " << t << ", " << v;
      }
    custom_function(view.plotType, 0, 0, slot, PHASE_END);
    EXPECT_GT(samples_taken, 200);
    EXPECT_LE(undefined, has_edges ? samples_taken / 2 : 0) << slot;
  }
}

TEST_P(sample_plot, keeps_what_was_drawn_and_all_variables) {
  eval("5->x");
  eval("6->u");
  plot_it();
  EXPECT_EQ(eval("x"), "5");
  EXPECT_EQ(eval("u"), "6");
}

// The curves alone: grid and labels have pictures of their own.
TEST_P(sample_plot, looks_as_it_did) {
  plot_variables.displayGrid = 0;
  plot_it();
  expect_picture(GetParam().picture, shown_plot());
}

INSTANTIATE_TEST_SUITE_P(all, sample_plot, ::testing::ValuesIn(samples), name_of);

class sample_text : public calculator {};

TEST_F(sample_text, offers_six_plots) {
  std::vector<std::string> expected;
  for (const TSample& sample : samples) expected.push_back(sample.name);
  EXPECT_EQ(sample_names(), expected);
}

TEST_F(sample_text, has_each_expression_in_words_above_its_tokens) {
  const std::string text(text_resource("samples"));
  std::string words;
  int expressions = 0;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = text.find("\r\n", at);
    const std::string line = text.substr(at, end - at);
    at = end + 2;
    if (line[0] == '#') words = line.substr(2);
    if (line[0] != 'E') continue;
    eval(words);
    std::string tokens = codes();
    for (char& c : tokens)
      if (c == ' ') c = ',';
    EXPECT_EQ(line.substr(line.find(':', 2) + 1), tokens + ",") << words;
    ++expressions;
  }
  EXPECT_EQ(expressions, 25);
}

TEST_F(sample_text, replaces_the_functions_of_the_one_before) {
  ASSERT_TRUE(load_sample("Function"));
  ASSERT_TRUE(load_sample("Polar"));
  EXPECT_FALSE(slot_in_use(PLOT_FUNCTION, 0));
  EXPECT_TRUE(slot_in_use(PLOT_POLAR, 3));
  EXPECT_FALSE(load_sample("Hyperbolic"));
  EXPECT_TRUE(slot_in_use(PLOT_POLAR, 3));
}

}  // namespace
}  // namespace zephyl
