// LSystem(: the grammar, what the turtle does, and how its walk becomes a drawing.

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "engine/errors.h"
#include "engine/hooks.h"
#include "engine/records.h"
#include "engine/state.h"
#include "plot/fractals/l_system_grammar.h"
#include "plot/fractals/l_system_turtle.h"
#include "plot/plot_variables.h"
#include "support/drawing.h"

namespace zephyl {
namespace {

const char* axiom_of(const TLSystemGrammar& grammar) { return grammar.rule(TLSystemGrammar::AXIOM); }

TEST(l_system_grammar, has_an_axiom_and_rules) {
  TLSystemGrammar grammar;
  ASSERT_EQ(grammar.read("l--F,L=+R-F-R+,r=-L+f"), GRAMMAR_READ);
  EXPECT_STREQ(axiom_of(grammar), "L--F");
  EXPECT_STREQ(grammar.rule('L' - 'A'), "+R-F-R+");
  EXPECT_STREQ(grammar.rule('R' - 'A'), "-L+F");
  EXPECT_TRUE(grammar.has_rule('L'));
  EXPECT_FALSE(grammar.has_rule('F'));
}

TEST(l_system_grammar, skips_equal_signs) {
  TLSystemGrammar grammar;
  ASSERT_EQ(grammar.read("=F=G,A==B=C"), GRAMMAR_READ);
  EXPECT_STREQ(axiom_of(grammar), "FG");
  EXPECT_STREQ(grammar.rule(0), "BC");
}

TEST(l_system_grammar, goes_on_with_a_rule_that_comes_again) {
  TLSystemGrammar grammar;
  ASSERT_EQ(grammar.read("F,A=B,C=D,A=E"), GRAMMAR_READ);
  EXPECT_STREQ(grammar.rule(0), "BE");
}

TEST(l_system_grammar, is_malformed_where_a_comma_begins_no_rule) {
  for (const char* text : {",A=B", "F,", "F,A", "F,A=B,", "F,1=B", "F,AB", "F, A=B", "F,=B", ","}) {
    TLSystemGrammar grammar;
    EXPECT_EQ(grammar.read(text), GRAMMAR_MALFORMED) << text;
  }
}

TEST(l_system_grammar, holds_rules_of_119_characters) {
  TLSystemGrammar grammar, too_long;
  EXPECT_EQ(grammar.read(std::string(119, 'F').c_str()), GRAMMAR_READ);
  EXPECT_EQ(too_long.read(std::string(120, 'F').c_str()), GRAMMAR_TOO_LONG);
  TLSystemGrammar long_rule;
  EXPECT_EQ(long_rule.read(("F,Z=" + std::string(120, '+')).c_str()), GRAMMAR_TOO_LONG);
}

struct TStep {
  double x, y;
  bool line;
};

class l_system : public drawn {
 protected:
  std::vector<TStep> walk(const std::string& text, TLSystemSettings settings = {}) {
    TLSystemGrammar grammar;
    EXPECT_EQ(grammar.read(text.c_str()), GRAMMAR_READ);
    std::vector<TStep> steps;
    clear_error();
    TLSystemTurtle turtle(grammar, settings);
    turtle.walk(
        [](void* list, double x, double y, bool line) {
          static_cast<std::vector<TStep>*>(list)->push_back({x, y, line});
        },
        &steps);
    return steps;
  }
  // The last place of the walk.
  TStep end_of(const std::string& text, TLSystemSettings settings = {}) {
    return walk(text, settings).back();
  }

  static TLSystemSettings turning(double angle, int order = 0) {
    TLSystemSettings settings;
    settings.turn_angle = angle;
    settings.order = order;
    return settings;
  }
};

TEST_F(l_system, the_walk_begins_at_the_origin_without_a_line) {
  const std::vector<TStep> steps = walk("");
  ASSERT_EQ(steps.size(), 1u);
  EXPECT_EQ(steps[0].x, 0);
  EXPECT_FALSE(steps[0].line);
}

TEST_F(l_system, f_and_the_bar_draw_and_g_only_goes) {
  const std::vector<TStep> steps = walk("F|G");
  ASSERT_EQ(steps.size(), 4u);
  EXPECT_TRUE(steps[1].line);
  EXPECT_TRUE(steps[2].line);
  EXPECT_FALSE(steps[3].line);
  EXPECT_EQ(steps[3].x, 3);
}

TEST_F(l_system, plus_turns_left_and_minus_right) {
  EXPECT_EQ(end_of("+F", turning(90)).y, 1);
  EXPECT_EQ(end_of("-F", turning(90)).y, -1);
  EXPECT_EQ(end_of("+F", turning(90)).x, 0) << "exactly";
  TLSystemSettings settings = turning(30);
  settings.start_angle = 60;
  EXPECT_EQ(end_of("+F", settings).y, 1);
}

TEST_F(l_system, a_number_multiplies_a_turn) {
  EXPECT_DOUBLE_EQ(end_of("2+F", turning(30)).y, std::sin(M_PI / 3));
  EXPECT_DOUBLE_EQ(end_of("12-F", turning(15)).x, -1);
  EXPECT_DOUBLE_EQ(end_of("2++F", turning(30)).y, 1);
  EXPECT_DOUBLE_EQ(end_of("0+F", turning(30)).y, 0.5) << "0 is no number";
  EXPECT_DOUBLE_EQ(end_of("3F+F", turning(90)).y, 1) << "a step uses the number up";
}

TEST_F(l_system, any_number_of_turns_has_its_direction) {
  for (const int turns : {98, 99, 100, 101, 250, 1000}) {
    const double angle = turns * 7.0 * M_PI / 180.0;
    const TStep left = end_of(std::to_string(turns) + "+F", turning(7));
    EXPECT_NEAR(left.x, std::cos(angle), 1e-12) << turns;
    EXPECT_NEAR(left.y, std::sin(angle), 1e-12);
    const TStep right = end_of(std::to_string(turns) + "-F", turning(7));
    EXPECT_NEAR(right.y, -std::sin(angle), 1e-12);
  }
  EXPECT_EQ(walk("99999999999999999999+F99999999999999999999+F", turning(90)).size(), 3u);
}

TEST_F(l_system, the_number_in_front_of_a_rule_waits_for_its_end) {
  // The rule's own + has no number; the 3 belongs to the + behind the rule.
  EXPECT_EQ(walk("3A+F,A=F+F", turning(90, 1)).back().y, 1);
}

TEST_F(l_system, rules_are_expanded_to_the_order) {
  EXPECT_EQ(walk("F,F=FF", turning(0, 0)).size(), 2u);
  EXPECT_EQ(walk("F,F=FF", turning(0, 1)).size(), 3u);
  EXPECT_EQ(walk("F,F=FF", turning(0, 5)).size(), 33u);
  EXPECT_EQ(walk("A,A=F", turning(0, 0)).size(), 1u) << "at full depth other letters are nothing";
  EXPECT_EQ(walk("A,A=F", turning(0, 1)).size(), 2u);
  EXPECT_EQ(walk("FXYZ!?*F", turning(0, 3)).size(), 3u);
}

TEST_F(l_system, rules_may_be_nested_to_order_100) {
  EXPECT_EQ(walk("A,A=FA", turning(0, 100)).size(), 101u);
  EXPECT_EQ(walk("A,A=AF", turning(0, 100)).size(), 101u);
  EXPECT_FALSE(errors.error_flag);
}

TEST_F(l_system, steps_are_scaled_by_depth) {
  TLSystemSettings settings = turning(0, 2);
  settings.scale = 0.5;
  settings.length = 8;
  EXPECT_EQ(end_of("FA,A=FB,B=F", settings).x, 8 + 4 + 2);
  settings.scale = 0;
  EXPECT_EQ(end_of("FA,A=FB,B=F", settings).x, 8);
}

TEST_F(l_system, brackets_remember_place_and_direction) {
  const std::vector<TStep> steps = walk("F[+F]F", turning(90));
  ASSERT_EQ(steps.size(), 5u);
  EXPECT_EQ(steps[2].y, 1);
  EXPECT_EQ(steps[3].x, 1);
  EXPECT_FALSE(steps[3].line);
  EXPECT_EQ(steps[4].x, 2);
  EXPECT_EQ(steps[4].y, 0);
}

TEST_F(l_system, a_closing_bracket_alone_is_nothing) { EXPECT_EQ(walk("F]F").size(), 3u); }

TEST_F(l_system, holds_105_open_brackets) {
  EXPECT_EQ(walk(std::string(105, '[') + "F").size(), 2u);
  EXPECT_FALSE(errors.error_flag);
  walk(std::string(106, '['));
  EXPECT_EQ(errors.error_code, ERR_MEMORY_LIMIT);
}

TEST_F(l_system, is_drawn_from_the_origin_with_a_length) {
  ASSERT_TRUE(set_plot_view(-112, -89, 113, 90));
  EXPECT_EQ(eval("LSystem(\"F+F\",0,90,1,0,50)"), "0");
  EXPECT_EQ(ink_count(), 51 + 50);
  EXPECT_TRUE(ink(112, 90));
  EXPECT_TRUE(ink(162, 90));
  EXPECT_TRUE(ink(162, 40));
  EXPECT_EQ(drawing.pen_x, 50) << "the pen of moveTo( and lineTo(";
  EXPECT_EQ(drawing.pen_y, 50);
}

TEST_F(l_system, is_fitted_to_the_view_without_one) {
  view_of_pixels();
  eval("LSystem(\"F+F+F+F\",0,90,1,0,0)");
  const TRect box = ink_box();
  EXPECT_NEAR(box.left, 0.025 * 225, 1);
  EXPECT_NEAR(box.right, 0.975 * 225, 1);
  EXPECT_NEAR(box.top, 179 - 0.975 * 179, 1);
  EXPECT_NEAR(box.bottom, 179 - 0.025 * 179, 1);
}

TEST_F(l_system, a_straight_stem_is_not_blown_up) {
  view_of_pixels();
  eval("LSystem(\"FFF\",0,90,1,90,0)");
  EXPECT_EQ(ink_box().width(), 1);
  EXPECT_GT(ink_box().height(), 160);
}

TEST_F(l_system, angles_are_degrees_in_any_angle_mode) {
  eval("LSystem(\"F+F\",0,90,1,45,3)");
  const std::vector<TColour> radians = pixels();
  eval("clrDraw()");
  settings.angleMode = GRADS;
  eval("LSystem(\"F+F\",0,90,1,45,3)");
  EXPECT_EQ(pixels(), radians);
}

TEST_F(l_system, orders_are_0_to_100) {
  for (const char* wrong : {"LSystem(\"F\",-1,90,1,0,0)", "LSystem(\"F\",101,90,1,0,0)",
                            "LSystem(\"F\",1.5,90,1,0,0)", "LSystem(str1,101,90,1,0,0)"})
    EXPECT_EQ(error_of(wrong), "Domain Error") << wrong;
  EXPECT_EQ(eval("LSystem(\"F\",100,90,1,0,0)"), "0");
}

TEST_F(l_system, what_is_malformed_draws_nothing_in_silence) {
  EXPECT_EQ(eval("LSystem(\"F,\",0,90,1,0,0)"), "0");
  EXPECT_EQ(eval("LSystem(str1,0,90,1,0,0)"), "0");
  EXPECT_EQ(ink_count(), 0);
  EXPECT_FALSE(drawing.drawing_used);
}

TEST_F(l_system, what_is_too_long_is_an_error) {
  std::snprintf(stores.strings[0].text, sizeof stores.strings[0].text, "%s", std::string(120, 'F').c_str());
  EXPECT_EQ(error_of("LSystem(str1,0,90,1,0,0)"), "Memory Limit Error");
  std::snprintf(stores.strings[0].text, sizeof stores.strings[0].text, "%s",
                ("FF" + std::string(110, '[')).c_str());
  EXPECT_EQ(error_of("LSystem(str1,0,90,1,0,0)"), "Memory Limit Error");
  EXPECT_EQ(ink_count(), 0) << "the measuring walk has failed";
  EXPECT_EQ(error_of("LSystem(str1,0,90,1,0,5)"), "Memory Limit Error");
  EXPECT_GT(ink_count(), 0) << "what was drawn stays";
}

TEST_F(l_system, overflow_is_no_error) {
  EXPECT_EQ(eval("LSystem(\"A,A=FA\",100,1e300,1e10,1e308,1e300)"), "0");
  EXPECT_EQ(eval("LSystem(\"A,A=FA\",100,90,1e10,0,0)"), "0");
}

int redraws = 0;

TEST_F(l_system, shows_every_thousand_lines_and_at_the_end) {
  state.calcMode = PLOT_MODE;
  hooks.request_plot_redraw = [] { ++redraws; };
  redraws = 0;
  eval("LSystem(\"F,F=FF\",11,90,1,0,0)");
  EXPECT_EQ(redraws, 3);
}

TEST_F(l_system, stops_at_a_tap) {
  platform_.pen_downs.push_back({111, 200});
  platform_.ticks_per_look = 100;
  EXPECT_EQ(error_of("LSystem(\"F,F=FF\",100,90,1,0,5)"), "Operation Canceled");
  EXPECT_GT(ink_count(), 0);
  clear_error();
  eval("clrDraw()");
  platform_.pen_downs.push_back({111, 200});
  EXPECT_EQ(error_of("LSystem(\"F,F=FF\",100,90,1,0,0)"), "Operation Canceled");
  EXPECT_EQ(ink_count(), 0) << "still measuring";
}

}  // namespace
}  // namespace zephyl
