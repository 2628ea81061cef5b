#include "stats/dialogs/stats_plots.h"

#include "engine/state.h"
#include "stats/stats.h"
#include "support/calculator.h"
#include "support/golden.h"

namespace zephyl {

namespace {

class stats_plots : public calculator {
 protected:
  void one_variable(std::initializer_list<double> values) {
    for (const double value : values) add_stats_value(value);
  }
  void two_variables(std::initializer_list<double> values) {
    set_stats_variables(1);
    one_variable(values);
  }
};

TEST_F(stats_plots, equal_data_make_a_flat_line_at_the_bottom) {
  one_variable({5, 5, 5});
  const TSurface picture = line_chart_picture();
  for (int x = 24; x <= 24 + 196; ++x) EXPECT_NE(picture.pixel(x, 8 + 202), WHITE) << x;
}

TEST_F(stats_plots, one_value_is_one_plus) {
  one_variable({7});
  const TSurface picture = line_chart_picture();
  EXPECT_EQ(picture.pixel(24, 210), BLACK);
  EXPECT_EQ(picture.pixel(25, 210), BLACK);
  EXPECT_EQ(picture.pixel(24, 209), BLACK);
  EXPECT_EQ(picture.pixel(60, 210), WHITE);
}

TEST_F(stats_plots, the_extremes_lie_at_the_edges_of_the_chart) {
  one_variable({0, 10});
  const TSurface picture = line_chart_picture();
  EXPECT_EQ(picture.pixel(24, 210), BLACK);       // least, bottom
  EXPECT_EQ(picture.pixel(24 + 196, 8), BLACK);   // greatest, top
  EXPECT_EQ(picture.pixel(24 + 98, 109), PLOT_MARK);
}

TEST_F(stats_plots, two_variables_stand_one_above_the_other) {
  two_variables({1, 10, 2, 20});
  const std::vector<TStatsPane> panes = stats_panes();
  ASSERT_EQ(panes.size(), 2u);
  EXPECT_EQ(panes[0].top, 8);
  EXPECT_EQ(panes[1].top, 115);
  EXPECT_EQ(panes[1].height, 96);
  EXPECT_EQ(panes[1].data[1], 20.0);
}

TEST_F(stats_plots, the_last_bin_includes_its_upper_edge) {
  const double data[] = {0, 1, 2, 3, 4};
  EXPECT_EQ(values_in_bin(data, 5, 0, 2), 2);
  EXPECT_EQ(values_in_bin(data, 5, 1, 2), 3);
}

TEST_F(stats_plots, rounding_moves_no_value_over_an_edge) {
  const double data[] = {0, 49, 98};
  EXPECT_EQ(values_in_bin(data, 3, 0, 2), 1);
  EXPECT_EQ(values_in_bin(data, 3, 1, 2), 2);
}

TEST_F(stats_plots, equal_values_are_all_in_the_first_bin) {
  const double data[] = {4, 4, 4};
  EXPECT_EQ(values_in_bin(data, 3, 0, 10), 3);
  EXPECT_EQ(values_in_bin(data, 3, 9, 10), 0);
}

TEST_F(stats_plots, values_of_any_size_are_plotted) {
  two_variables({-1e308, 1e308, 1e308, -1e308, 0, 0});
  line_chart_picture();
  histogram_picture();
  scatter_picture();
  const double data[] = {-1.7e308, 1.7e308, 0};
  EXPECT_EQ(values_in_bin(data, 3, 1, 3), 1);
}

TEST_F(stats_plots, a_curve_ends_where_numbers_do) {
  two_variables({1, 1, 1e308, 2});
  for (const int model : {R_LINEAR, R_LOGARITHMIC, R_EXPON, R_POWER}) {
    settings.statsRegress = model;
    const TSurface picture = scatter_picture();
    EXPECT_NE(picture.pixel(9, 179), WHITE) << model;
    EXPECT_NE(picture.pixel(9 + 208, 9), WHITE) << model;
  }
  EXPECT_EQ(error_of("1+1"), "");
}

TEST_F(stats_plots, the_smallest_ranges_have_their_places_too) {
  two_variables({0, 0, 4e-309, 1, 8e-309, 2});
  EXPECT_EQ(values_in_bin(stats.x, 3, 0, 10), 1);
  EXPECT_EQ(values_in_bin(stats.x, 3, 5, 10), 1);
  EXPECT_EQ(values_in_bin(stats.x, 3, 9, 10), 1);
  EXPECT_EQ(line_chart_picture().pixel(24 + 196, 8), BLACK);
  EXPECT_EQ(scatter_picture().pixel(9 + 104, 180 - 86), PLOT_MARK);
}

TEST_F(stats_plots, bars_are_as_high_as_their_counts) {
  one_variable({1, 1, 1, 2, 3, 3});
  histogram = {3, 1};
  const TSurface picture = histogram_picture();
  const int columns[] = {24, 24 + 197 / 3, 24 + 2 * 197 / 3, 24 + 197};
  EXPECT_EQ(picture.pixel(columns[0] + 1, 8 + 1), PLOT_MARK);
  EXPECT_EQ(picture.pixel(columns[1] + 1, 210 - 202 / 3 + 1), rgb(192, 192, 255)) << "the selected bin";
  EXPECT_EQ(picture.pixel(columns[1] + 1, 210 - 202 / 3 - 2), WHITE);
  EXPECT_EQ(picture.pixel(columns[2] + 1, 210 - 2 * 202 / 3 + 2), PLOT_MARK);
  EXPECT_EQ(picture.pixel(columns[2] + 1, 210 - 2 * 202 / 3 - 2), WHITE);
  EXPECT_EQ(picture.pixel(columns[3], 200), PLOT_FRAME);
}

TEST_F(stats_plots, look_as_they_did) {
  one_variable({2, 3, 3, 4, 4, 4, 5, 5, 7, 9});
  histogram = {5, 1};
  expect_picture("stats_histogram", histogram_picture());
  expect_picture("stats_line_chart", line_chart_picture());
}

TEST_F(stats_plots, of_two_variables_look_as_they_did) {
  two_variables({1, 2.1, 2, 3.8, 3, 6.5, 4, 7.1, 5, 11.2, 6, 11.9, 7, 16});
  histogram = {4, 3};
  expect_picture("stats_two_histograms", histogram_picture());
  expect_picture("stats_two_line_charts", line_chart_picture());
  for (const int model : {R_LINEAR, R_LOGARITHMIC, R_EXPON, R_POWER}) {
    settings.statsRegress = model;
    expect_picture("stats_scatter_" + std::to_string(model), scatter_picture());
  }
}

TEST_F(stats_plots, of_one_row_and_of_equal_rows_have_no_curve) {
  two_variables({3, 4});
  EXPECT_EQ(scatter_picture().pixel(9, 180), PLOT_MARK);
  histogram = {5, 0};
  EXPECT_EQ(values_in_bin(stats.y, 1, 0, 5), 1);
  platform_.dialog_answers.push_back(
      [](TDialog& dialog) { EXPECT_EQ(dialog[1].text, "a=error, b=error, r=error"); });
  show_scatter_plot();
  one_variable({3, 4, 3, 4});
  const TSurface equal = scatter_picture();
  for (int x = 12; x < 210; ++x) EXPECT_EQ(equal.pixel(x, 100), WHITE);
  platform_.dialog_answers.push_back([](TDialog& dialog) {
    EXPECT_EQ(dialog[find_control(dialog, "x Plot")].text, "min>=3.0000, max<3.0000, n=3");
    EXPECT_EQ(dialog[find_control(dialog, "y Plot")].text, "min>=4.0000, max<4.0000, n=3");
  });
  show_histogram();
}

TEST_F(stats_plots, fewer_bins_clip_the_selection) {
  one_variable({1, 2, 3});
  histogram = {100, 99};
  platform_.dialog_answers.push_back([](TDialog& dialog) {
    const int bins = find_control(dialog, "Bins");
    EXPECT_EQ(dialog[bins].rows.front(), "1 bins");
    EXPECT_EQ(dialog[bins].selected, 99);
    choose_row(dialog, bins, 4);
    EXPECT_EQ(histogram.bin_count, 5);
    EXPECT_EQ(histogram.selected_bin, 4);
    press_button(dialog, find_control(dialog, ">"));
    EXPECT_EQ(histogram.selected_bin, 0);
    press_button(dialog, find_control(dialog, "<"));
    EXPECT_EQ(histogram.selected_bin, 4);
    EXPECT_EQ(dialog[find_control(dialog, "x Plot")].text, "min>=2.6000, max<=3.0000, n=1");
    press_button(dialog, find_control(dialog, "<"));
    EXPECT_EQ(dialog[find_control(dialog, "x Plot")].text, "min>=2.2000, max<2.6000, n=0");
  });
  show_histogram();
  EXPECT_EQ(platform_.dialogs.back(), "190 Histogram Plot");
}

TEST_F(stats_plots, a_fit_shows_its_values_and_its_equation) {
  two_variables({1, 3, 2, 5, 3, 7});
  platform_.dialog_answers.push_back([](TDialog& dialog) {
    EXPECT_EQ(dialog[1].text, "a=2.0000, b=1.0000, r=1.0000");
    EXPECT_EQ(dialog[2].text, "y=(a*x)+b, r=1.0000");
  });
  show_scatter_plot();
  const TSurface picture = scatter_picture();
  EXPECT_EQ(picture.pixel(9 + 52, 180 - 43), rgb(255, 0, 0));
}

TEST_F(stats_plots, a_logarithmic_fit_over_zero_is_an_error_and_the_points_still_show) {
  two_variables({0, 1, 1, 2});
  settings.statsRegress = R_LOGARITHMIC;
  platform_.dialog_answers.push_back(
      [](TDialog& dialog) { EXPECT_EQ(dialog[1].text, "a=error, b=error, r=error"); });
  show_scatter_plot();
  EXPECT_EQ(scatter_picture().pixel(9, 180), PLOT_MARK);
  EXPECT_EQ(error_of("1+1"), "");
}

TEST_F(stats_plots, without_data_no_plot_is_offered) {
  choose_stats_plot();
  EXPECT_EQ(message(), "Stats | No Stats Data");
  EXPECT_TRUE(platform_.dialogs.empty());
}

TEST_F(stats_plots, a_scatter_plot_needs_two_variables) {
  one_variable({1, 2});
  platform_.dialog_answers.push_back([](TDialog& dialog) { press_button(dialog, 2); });
  choose_stats_plot();
  EXPECT_EQ(message(), "Stats | No Stats y Data");
  EXPECT_EQ(platform_.dialogs.size(), 1u);
}

TEST_F(stats_plots, the_choice_opens_its_plot) {
  one_variable({1, 2});
  for (const auto& [button, title] : {std::pair{0, "191 Line Chart"}, {1, "190 Histogram Plot"}}) {
    platform_.dialog_answers.push_back([button = button](TDialog& dialog) { press_button(dialog, button); });
    platform_.dialog_answers.push_back([](TDialog&) {});
    choose_stats_plot();
    EXPECT_EQ(platform_.dialogs.back(), title);
  }
}

}  // namespace

}  // namespace zephyl
