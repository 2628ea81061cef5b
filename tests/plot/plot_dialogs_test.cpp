// Plot Setup, Plot Functions and the coordinate systems.

#include <string>

#include "engine/state.h"
#include "platform/dialog.h"
#include "plot/dialog_acts.h"
#include "plot/plotting.h"

namespace zephyl {
namespace {

class plot_dialogs : public plotting {
 protected:
  using TAct = std::function<void(TDialog&)>;

  void setup(const TAct& act) {
    platform_.dialog_answers.push_back(act);
    open_plot_setup();
  }
  void functions(const TAct& act) {
    platform_.dialog_answers.push_back(act);
    open_plot_functions();
  }
};

// --- Plot Setup

TEST_F(plot_dialogs, setup_has_its_controls_in_the_order_of_the_form) {
  setup([](TDialog& dialog) {
    EXPECT_EQ(dialog.id(), 185);
    EXPECT_EQ(dialog.title, "Plot Setup");
    EXPECT_EQ(labels(dialog),
              "x min:|x max:|y min:|y max:|t min:|t max:|t step:|Plot Type:|?|Plot Cursor:|Display "
              "Grid?|Connect Dots?|"
              "Disable Plots?|z Scale:|OK|Defaults|Cancel|");
  });
}

TEST_F(plot_dialogs, setup_shows_what_is_set) {
  choose(PLOT_3D, PLOT_SPHERICAL);
  plot_variables.plotCursor = CURSOR_PAN;
  plot_variables.enablePlots = 0;
  plot_variables.connectDots = 0;
  plot_variables.zScale = 2.5;
  plot_variables.v.step = 1e-20;
  setup([](TDialog& dialog) {
    EXPECT_EQ(text_of(dialog, "x min"), "-10");
    EXPECT_EQ(text_of(dialog, "u max"), "6.2831853072");
    EXPECT_EQ(text_of(dialog, "v step"), "1e-20");
    EXPECT_EQ(text_of(dialog, "z Scale"), "2.5");
    EXPECT_EQ(dialog[find_control(dialog, "Plot Type")].selected, 5);
    EXPECT_EQ(dialog[find_control(dialog, "Plot Cursor")].selected, 2);
    EXPECT_TRUE(dialog[find_control(dialog, "Display Grid?")].checked);
    EXPECT_FALSE(dialog[find_control(dialog, "Connect Dots?")].checked);
    EXPECT_TRUE(dialog[find_control(dialog, "Disable Plots?")].checked);
  });
}

TEST_F(plot_dialogs, setup_shows_a_point_whatever_the_decimal_mark_is) {
  settings.decimalMark = 1;
  plot_variables.zScale = 2.5;
  setup([](TDialog& dialog) { EXPECT_EQ(text_of(dialog, "z Scale"), "2.5"); });
}

TEST_F(plot_dialogs, setup_names_the_parameter_of_the_type) {
  setup([](TDialog& dialog) {
    const char* const first[] = {"t min:", "theta min:", "t min:", "u min:", "u min:", "u min:"};
    for (int kind = 0; kind < 6; ++kind) {
      select(dialog, "Plot Type", kind);
      EXPECT_NE(find_control(dialog, first[kind]), -1) << kind;
      EXPECT_EQ(dialog[find_control(dialog, "v min:")].visible, kind >= 3) << kind;
    }
  });
}

TEST_F(plot_dialogs, setup_takes_expressions) {
  setup([](TDialog& dialog) {
    write(dialog, "x max", "2pi");
    write(dialog, "y min", "-sqRt(16)");
    write(dialog, "t step", "1/8");
    write(dialog, "z Scale", "2");
    press(dialog, "OK");
    EXPECT_TRUE(dialog.closed());
  });
  EXPECT_EQ(plot_variables.xMax, 6.283185307179586);
  EXPECT_EQ(plot_variables.yMin, -4.0);
  EXPECT_EQ(plot_variables.t.step, 0.125);
  EXPECT_EQ(plot_variables.zScale, 2.0);
}

TEST_F(plot_dialogs, setup_leaves_no_trace_of_its_expressions) {
  state.calcMode = COMP_MODE;
  eval("7->A");
  setup([](TDialog& dialog) {
    write(dialog, "x max", "5->A");
    press(dialog, "OK");
  });
  EXPECT_EQ(plot_variables.xMax, 5.0);
  EXPECT_EQ(eval("A"), "7");
}

TEST_F(plot_dialogs, setup_takes_the_choices) {
  setup([](TDialog& dialog) {
    select(dialog, "Plot Type", 4);
    select(dialog, "Plot Cursor", 3);
    check(dialog, "Display Grid?", false);
    check(dialog, "Connect Dots?", false);
    check(dialog, "Disable Plots?", true);
    press(dialog, "OK");
  });
  EXPECT_EQ(plot_variables.plotType, PLOT_3D);
  EXPECT_EQ(plot_variables.plotType3D, PLOT_CYLINDRICAL);
  EXPECT_EQ(plot_variables.plotCursor, CURSOR_ROTATE);
  EXPECT_FALSE(plot_variables.displayGrid);
  EXPECT_FALSE(plot_variables.connectDots);
  EXPECT_FALSE(plot_variables.enablePlots);
}

TEST_F(plot_dialogs, setup_keeps_the_kind_of_3d_behind_a_flat_type) {
  choose(PLOT_3D, PLOT_SPHERICAL);
  plot_variables.plotCursor = CURSOR_ROTATE;
  setup([](TDialog& dialog) {
    select(dialog, "Plot Type", 1);
    press(dialog, "OK");
  });
  EXPECT_EQ(plot_variables.plotType, PLOT_POLAR);
  EXPECT_EQ(plot_variables.plotType3D, PLOT_SPHERICAL);
  EXPECT_EQ(plot_variables.plotCursor, CURSOR_TRACE);
}

TEST_F(plot_dialogs, setup_keeps_values_that_were_not_touched_with_all_their_digits) {
  setup([](TDialog& dialog) { press(dialog, "OK"); });
  EXPECT_EQ(plot_variables.t.max, 6.283185307179586);
  EXPECT_EQ(plot_variables.t.step, 0.006283185307179587);
}

TEST_F(plot_dialogs, setup_drops_a_view_that_is_none_in_silence) {
  setup([](TDialog& dialog) {
    write(dialog, "x max", "-20");
    write(dialog, "t max", "5");
    press(dialog, "OK");
  });
  EXPECT_EQ(plot_variables.xMax, 10.0);
  EXPECT_EQ(plot_variables.t.max, 5.0);
  EXPECT_EQ(message(), "none");
}

TEST_F(plot_dialogs, setup_stays_open_with_a_message_for_what_is_no_number) {
  setup([this](TDialog& dialog) {
    const std::vector<std::string> texts = {"",    "what?", "1/0",   "{1,2}",
                                            "(i)", "1+",    "\"a\"", std::string(10000, '(')};
    for (const std::string& nonsense : texts) {
      write(dialog, "t max", nonsense);
      press(dialog, "OK");
      EXPECT_FALSE(dialog.closed()) << nonsense;
      EXPECT_EQ(message().substr(0, 8), "Error | ") << nonsense;
    }
  });
  EXPECT_EQ(plot_variables.t.max, 6.283185307179586);
}

TEST_F(plot_dialogs, setup_fills_in_the_defaults_and_cancel_takes_them_back) {
  settings.angleMode = DEGREES;
  choose(PLOT_POLAR);
  set_plot_view(-1, -1, 1, 1);
  setup([](TDialog& dialog) {
    press(dialog, "Defaults");
    EXPECT_EQ(text_of(dialog, "x max"), "10");
    EXPECT_EQ(text_of(dialog, "t step"), "0.36");
    EXPECT_EQ(dialog[find_control(dialog, "Plot Type")].selected, 0);
    press(dialog, "Cancel");
  });
  EXPECT_EQ(plot_variables.plotType, PLOT_POLAR);
  EXPECT_EQ(plot_variables.xMax, 1.0);
  setup([](TDialog& dialog) {
    press(dialog, "Defaults");
    press(dialog, "OK");
  });
  EXPECT_EQ(plot_variables.plotType, PLOT_FUNCTION);
  EXPECT_EQ(plot_variables.t.max, 360.0);
}

TEST_F(plot_dialogs, setup_shows_the_coordinate_system_of_the_type_chosen) {
  bool shown = false;
  setup([&](TDialog& dialog) {
    select(dialog, "Plot Type", 4);
    platform_.dialog_answers.push_back([&](TDialog& system) {
      EXPECT_EQ(system.id(), 195);
      EXPECT_EQ(system.title, "Plot Coordinate System");
      ASSERT_EQ(system[0].picture.size(), 1u);
      EXPECT_EQ(system[0].label, "3D Cylindrical");
      EXPECT_EQ(system[0].picture[0].width(), 200);
      EXPECT_NE(system[0].picture[0].pixel(0, 0), WHITE);
      shown = true;
    });
    press(dialog, "?");
  });
  EXPECT_TRUE(shown);
  EXPECT_EQ(message(), "none");
}

// --- Plot Functions

TEST_F(plot_dialogs, functions_have_a_line_a_slot_with_its_colour) {
  put(PLOT_FUNCTION, 1, "x^(2)");
  functions([](TDialog& dialog) {
    EXPECT_EQ(dialog.id(), 186);
    EXPECT_EQ(dialog.title, "Plot Functions");
    EXPECT_EQ(text_of(dialog, "f1(x)"), "");
    EXPECT_EQ(text_of(dialog, "f2(x)"), "x^(2)");
    ASSERT_EQ(dialog[1].picture.size(), 1u);
    EXPECT_EQ(dialog[1].picture[0].pixel(5, 5), BLUE);
    EXPECT_EQ(dialog[16].picture[0].pixel(5, 5), rgb(0x13, 0xC8, 0xC0));
  });
}

TEST_F(plot_dialogs, functions_are_named_by_the_type) {
  const struct {
    int type, type_3d;
    const char* second;
    const char* last;
    const char* trace;
    int traces;
  } rows[] = {{PLOT_FUNCTION, 0, "f2(x)", "f6(x)", "f2(x)", 6},
              {PLOT_POLAR, 0, "R2(theta)", "R6(theta)", "R2(theta)", 6},
              {PLOT_PARAMETRIC, 0, "Y1(t)", "Y3(t)", "X2(t), Y2(t)", 3},
              {PLOT_3D, PLOT_CARTESIAN, "Y1(u,v)", "Z2(u,v)", "X2(u,v), Y2(u,v), Z2(u,v)", 2},
              {PLOT_3D, PLOT_CYLINDRICAL, "R1(u,v)", "Z2(u,v)", "(theta)2(u,v), R2(u,v), Z2(u,v)", 2},
              {PLOT_3D, PLOT_SPHERICAL, "(Psi)1(u,v)", "R2(u,v)", "(theta)2(u,v), (Psi)2(u,v), R2(u,v)", 2}};
  for (const auto& row : rows) {
    choose(row.type, row.type_3d);
    functions([&](TDialog& dialog) {
      EXPECT_EQ(dialog[3].label, row.second);
      EXPECT_EQ(dialog[15].label, row.last);
      const TControl& trace = dialog[find_control(dialog, "Trace Function:")];
      EXPECT_EQ(static_cast<int>(trace.rows.size()), row.traces);
      EXPECT_EQ(trace.rows[1], row.trace);
    });
  }
}

TEST_F(plot_dialogs, functions_go_into_their_slots) {
  choose(PLOT_POLAR);
  put(PLOT_POLAR, 1, "7");
  functions([](TDialog& dialog) {
    write(dialog, "R1(theta)", "2sin(3(theta))");
    press(dialog, "#5");  // Clear of the second line
    EXPECT_EQ(text_of(dialog, "R2(theta)"), "");
    select(dialog, "Trace Function:", 4);
    press(dialog, "OK");
  });
  EXPECT_TRUE(slot_in_use(PLOT_POLAR, 0));
  EXPECT_FALSE(slot_in_use(PLOT_POLAR, 1));
  EXPECT_EQ(trace_function(), 4);
}

TEST_F(plot_dialogs, functions_trace_pairs_and_triples_by_their_first_slot) {
  choose(PLOT_PARAMETRIC);
  functions([](TDialog& dialog) {
    select(dialog, "Trace Function:", 2);
    press(dialog, "OK");
  });
  EXPECT_EQ(trace_functions.slot[PLOT_PARAMETRIC], 4);
  choose(PLOT_3D);
  functions([](TDialog& dialog) {
    select(dialog, "Trace Function:", 1);
    press(dialog, "OK");
  });
  EXPECT_EQ(trace_functions.slot[PLOT_3D], 3);
  functions([](TDialog& dialog) { EXPECT_EQ(dialog[find_control(dialog, "Trace Function:")].selected, 1); });
}

TEST_F(plot_dialogs, functions_that_can_not_be_read_keep_the_dialog_open) {
  put(PLOT_FUNCTION, 1, "x");
  functions([this](TDialog& dialog) {
    write(dialog, "f1(x)", "x+1");
    write(dialog, "f2(x)", "what?");
    press(dialog, "OK");
    EXPECT_FALSE(dialog.closed());
    EXPECT_NE(message(), "none");
    write(dialog, "f2(x)", std::string(10000, 'x'));
    press(dialog, "OK");
    EXPECT_FALSE(dialog.closed());
    EXPECT_EQ(message(), "Error | Reached expression size limit");
  });
  EXPECT_FALSE(slot_in_use(PLOT_FUNCTION, 0));
  EXPECT_EQ(plot_slot(PLOT_FUNCTION, 1).count, 1);
}

TEST_F(plot_dialogs, functions_stay_when_the_dialog_is_cancelled) {
  put(PLOT_FUNCTION, 0, "x");
  functions([](TDialog& dialog) {
    press(dialog, "#2");
    select(dialog, "Trace Function:", 3);
    press(dialog, "Cancel");
  });
  EXPECT_TRUE(slot_in_use(PLOT_FUNCTION, 0));
  EXPECT_EQ(trace_function(), 0);
}

TEST_F(plot_dialogs, a_line_that_was_not_touched_keeps_its_tokens) {
  put(PLOT_FUNCTION, 0, "x->A");
  const TExpression before = plot_slot(PLOT_FUNCTION, 0);
  functions([](TDialog& dialog) { press(dialog, "OK"); });
  EXPECT_EQ(plot_slot(PLOT_FUNCTION, 0), before);
}

}  // namespace
}  // namespace zephyl
