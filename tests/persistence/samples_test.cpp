// The sample plots: their text is read by the reader of state files.

#include "persistence/samples.h"

#include <gtest/gtest.h>

#include "engine/state.h"
#include "faceplate/dialogs/menu.h"
#include "plot/plot_slots.h"
#include "plot/plot_variables.h"
#include "support/calculator.h"
#include "support/whole_state.h"

namespace zephyl {

class samples : public calculator {};

TEST_F(samples, there_are_six) {
  EXPECT_EQ(sample_names(), (std::vector<std::string>{"Function", "Polar", "Parametric", "3D Cartesian",
                                                      "3D Cylindrical", "3D Spherical"}));
}

TEST_F(samples, each_is_a_whole_setup) {
  const struct {
    const char* name;
    int type, type_3d, slots, angle;
    double xMin, xMax, yMax, yMin;
  } rows[] = {{"Function", 0, 0, 6, RADIANS, -5, 5, 3.25, -1.75},
              {"Polar", 1, 0, 4, DEGREES, -2.069, 2.069, 2.083, -2.083},
              {"Parametric", 2, 0, 6, RADIANS, -3.5, 3.5, 3.5, -3.5},
              {"3D Cartesian", 3, 0, 3, RADIANS, -4.547, 4.547, 4.547, -4.547},
              {"3D Cylindrical", 3, 1, 3, RADIANS, -9.372, 9.372, 8.048, -6.06},
              {"3D Spherical", 3, 2, 3, RADIANS, -1.1426053097345, 0.68249469026549, 1.0732483333333,
               -0.62165166666667}};
  for (const auto& row : rows) {
    ASSERT_TRUE(load_sample(row.name));
    EXPECT_EQ(plot_variables.plotType, row.type) << row.name;
    EXPECT_TRUE(row.type != PLOT_3D || plot_variables.plotType3D == row.type_3d) << row.name;
    EXPECT_EQ(settings.angleMode, row.angle) << row.name;
    EXPECT_EQ(slots_in_use(), row.slots) << row.name;
    EXPECT_EQ(plot_variables.xMin, row.xMin) << row.name;
    EXPECT_EQ(plot_variables.xMax, row.xMax) << row.name;
    EXPECT_EQ(plot_variables.yMax, row.yMax) << row.name;
    EXPECT_EQ(plot_variables.yMin, row.yMin) << row.name;
    EXPECT_EQ(calculator_fault(), "") << row.name;
    settings.angleMode = row.angle;
  }
}

TEST_F(samples, ranges_and_rotation_are_those_of_the_sample) {
  load_sample("3D Spherical");
  EXPECT_EQ(plot_variables.t.max, 6.2832);
  EXPECT_EQ(plot_variables.t.step, 0.125664);
  EXPECT_EQ(plot_variables.v.max, 3.1415);
  EXPECT_EQ(plot_variables.v.step, 0.06283);
  EXPECT_EQ(plot_variables.rotation_x, -69.0);
  EXPECT_EQ(plot_variables.rotation_y, -544.0);
  EXPECT_EQ(plot_variables.zScale, 1.0);
}

TEST_F(samples, functions_of_before_are_gone) {
  eval("x->f6(x)");
  eval("5->A");
  load_sample("Polar");
  EXPECT_FALSE(slot_in_use(PLOT_FUNCTION, 5));
  EXPECT_EQ(value("A"), 5.0);
}

TEST_F(samples, an_unknown_one_changes_nothing) {
  eval("x->f6(x)");
  EXPECT_FALSE(load_sample("Hyperbolic"));
  EXPECT_FALSE(load_sample(""));
  EXPECT_TRUE(slot_in_use(PLOT_FUNCTION, 5));
}

TEST_F(samples, the_menu_sets_one_up_and_plots_it) {
  platform_.dialog_answers.push_back([](TDialog& dialog) {
    choose_row(dialog, 0, 11);
    accept_dialog(dialog);
  });
  platform_.dialog_answers.push_back([](TDialog& dialog) {
    EXPECT_EQ(dialog.id(), 216);
    EXPECT_EQ(dialog.title, "Select Sample Plot");
    EXPECT_EQ(dialog[1].picture.size(), 1u);
    choose_row(dialog, find_control(dialog, "Sample Plot"), 4);
    accept_dialog(dialog);
  });
  show_menu();
  EXPECT_EQ(state.calcMode, PLOT_MODE);
  EXPECT_EQ(plot_variables.plotType3D, PLOT_CYLINDRICAL);
}

TEST_F(samples, cancel_sets_up_nothing) {
  platform_.dialog_answers.push_back([](TDialog& dialog) {
    choose_row(dialog, 0, 11);
    accept_dialog(dialog);
  });
  show_menu();
  EXPECT_EQ(state.calcMode, COMP_MODE);
  EXPECT_FALSE(any_slot_in_use());
}

}  // namespace zephyl
