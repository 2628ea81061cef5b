// The dialogs behind the Setup tab: the settings, the colour and skin, and what they leave when they are
// cancelled.

#include "faceplate/dialogs/setup.h"

#include <string>
#include <vector>

#include "engine/errors.h"
#include "engine/hooks.h"
#include "engine/state.h"
#include "faceplate/alpha_entry.h"
#include "faceplate/dialogs/colour.h"
#include "faceplate/face.h"
#include "faceplate/modes.h"
#include "persistence/constants.h"
#include "persistence/settings.h"
#include "persistence/state_file.h"
#include "support/file_faults.h"
#include "support/golden.h"

namespace zephyl {
namespace {

constexpr int SETUP_TAB_KEY = 48;

void press(TDialog& dialog, const std::string& button) {
  EXPECT_TRUE(press_button(dialog, find_control(dialog, button))) << button;
}
void choose(TDialog& dialog, const std::string& control, int row) {
  EXPECT_TRUE(choose_row(dialog, find_control(dialog, control), row)) << control;
}
void check(TDialog& dialog, const std::string& control, bool on = true) {
  EXPECT_TRUE(set_checked(dialog, find_control(dialog, control), on)) << control;
}
void slide(TDialog& dialog, const std::string& slider, int value) {
  EXPECT_TRUE(set_value(dialog, find_control(dialog, slider), value)) << slider;
}
const TControl& control(const TDialog& dialog, const std::string& name) {
  return dialog[find_control(dialog, name)];
}

int plots_asked_for = 0;

class setup : public face {
 protected:
  setup() {
    platform_.folder = folder_.path();
    plots_asked_for = 0;
    hooks.plot_changed = [] { ++plots_asked_for; };
  }

  using TUser = std::function<void(TDialog&)>;
  // Taps the tab; the users play one after the other, in the order in which the dialogs open.
  void open(const std::vector<TUser>& users) {
    for (const TUser& user : users) platform_.dialog_answers.push_back(user);
    tap_key(SETUP_TAB_KEY);
    EXPECT_TRUE(platform_.dialog_answers.empty());
  }
  bool saved() const { return folder_.names() == "startup.txt"; }

  TTestFolder folder_;
};

TEST_F(setup, shows_the_settings_as_they_are) {
  settings = {};
  settings.numberFormat = FORMAT_SCIENTIFIC;
  settings.decimalDigits = 10;
  settings.decimalMark = 1;
  settings.complexFormat = ST_COMPLEX_P;
  settings.keyClick = 1;
  open({[](TDialog& dialog) {
    EXPECT_EQ(dialog.id(), 103);
    EXPECT_EQ(dialog.title, "Setup Options");
    EXPECT_FALSE(control(dialog, "Float").checked);
    EXPECT_FALSE(control(dialog, "Fixed").checked);
    EXPECT_TRUE(control(dialog, "Scientific").checked);
    EXPECT_FALSE(control(dialog, "Engineering").checked);
    EXPECT_EQ(control(dialog, "Decimal Digits:").selected, 10);
    EXPECT_EQ(control(dialog, "Decimal Digits:").rows.size(), 11u);
    EXPECT_EQ(control(dialog, "Decimal Mark:").rows, (std::vector<std::string>{"Dot(.)", "Comma(,)"}));
    EXPECT_EQ(control(dialog, "Decimal Mark:").selected, 1);
    EXPECT_EQ(control(dialog, "Complex Format:").rows,
              (std::vector<std::string>{"Real only", "a+bi (rectangular)", "re^((theta)i) (polar)"}));
    EXPECT_EQ(control(dialog, "Complex Format:").selected, 2);
    EXPECT_TRUE(control(dialog, "Key Click?").checked);
  }});
}

TEST_F(setup, ok_takes_everything_over_and_saves) {
  eval("1/8");
  const std::vector<TColour> before = picture();
  open({[](TDialog& dialog) {
    check(dialog, "Fixed");
    choose(dialog, "Decimal Digits:", 2);
    choose(dialog, "Decimal Mark:", 1);
    choose(dialog, "Complex Format:", 1);
    check(dialog, "Key Click?");
    press(dialog, "OK");
  }});
  EXPECT_EQ(settings.numberFormat, FORMAT_FIXED);
  EXPECT_EQ(settings.decimalDigits, 2);
  EXPECT_EQ(settings.decimalMark, 1);
  EXPECT_EQ(settings.complexFormat, ST_COMPLEX_R);
  EXPECT_EQ(settings.keyClick, 1);
  EXPECT_STREQ(state.result_text, "0,13");
  EXPECT_EQ(plots_asked_for, 1);
  EXPECT_NE(picture(), before);
  EXPECT_EQ(read_setting("format"), "FIX");
  EXPECT_EQ(read_setting("point_and_seperator"), "COMMA_POINT");
}

TEST_F(setup, cancel_changes_nothing_and_saves) {
  const std::vector<TColour> before = picture();
  open({[](TDialog& dialog) {
    check(dialog, "Engineering");
    choose(dialog, "Decimal Digits:", 9);
    press(dialog, "Cancel");
  }});
  EXPECT_EQ(settings.numberFormat, FORMAT_FLOAT);
  EXPECT_EQ(settings.decimalDigits, 4);
  EXPECT_EQ(plots_asked_for, 0);
  EXPECT_EQ(picture(), before);
  EXPECT_TRUE(saved());
}

TEST_F(setup, stays_shut_in_the_error_state_and_while_a_program_runs) {
  eval("1/0");
  tap_key(SETUP_TAB_KEY);
  tap_key(27);
  state.program_running = true;
  tap_key(SETUP_TAB_KEY);
  state.program_running = false;
  EXPECT_TRUE(platform_.dialogs.empty());
  EXPECT_FALSE(saved());
}

TEST_F(setup, opens_from_every_screen_with_tabs) {
  for (const int mode :
       {BASE_MODE, COMP_MODE, STATS_MODE, PROGRAM_EDIT_MODE, PLOT_MODE, MATRIX_MODE, LIST_MODE}) {
    state.calcMode = mode;
    platform_.dialogs.clear();
    press_tab(TAB_SETUP);
    EXPECT_EQ(platform_.dialogs, std::vector<std::string>{"103 Setup Options"}) << "mode " << mode;
  }
}

TEST_F(setup, its_buttons_lead_to_help_and_about) {
  open({[](TDialog& dialog) {
          press(dialog, "Help");
          press(dialog, "About");
          EXPECT_FALSE(dialog.closed());
        },
        [](TDialog& about) {
          EXPECT_EQ(about.id(), 160);
          EXPECT_EQ(about.title, "About");
          EXPECT_EQ(about[0].label, "Zephyl v2.7A");
          EXPECT_EQ(about[1].text,
                    "Send comments, suggestions, bug reports, or a custom function you would like to share");
          press(about, "OK");
          EXPECT_TRUE(about.closed());
        }});
  EXPECT_EQ(platform_.dialogs, (std::vector<std::string>{"103 Setup Options", "160 About"}));
}

TEST_F(setup, the_way_to_the_constants_closes_without_saving) {
  open({[](TDialog& dialog) {
          check(dialog, "Fixed");
          press(dialog, "Edit Constants");
          EXPECT_TRUE(dialog.closed());
        },
        [](TDialog& dialog) {
          EXPECT_EQ(dialog.id(), 181);
          press(dialog, "Cancel");
        }});
  EXPECT_EQ(settings.numberFormat, FORMAT_FLOAT);
  EXPECT_FALSE(state.alpha_active);
  EXPECT_EQ(folder_.names(), "");
}

TEST_F(setup, a_new_constant_is_named_and_given_a_unit) {
  const int before = constant_count();
  eval("42");
  open({[](TDialog& dialog) { press(dialog, "Edit Constants"); },
        [](TDialog& dialog) {
          choose(dialog, "Action:", 0);
          press(dialog, "OK");
        }});
  ASSERT_TRUE(state.alpha_active);
  type("Answer\rm\r");
  EXPECT_FALSE(state.alpha_active);
  EXPECT_EQ(message(), "none");
  EXPECT_EQ(constant_count(), before + 1);
  EXPECT_EQ(folder_.names(), "constants.const");
}

TEST_F(setup, a_name_in_use_is_told_and_ends_the_entry) {
  open({[](TDialog& dialog) { press(dialog, "Edit Constants"); },
        [](TDialog& dialog) { press(dialog, "OK"); }});
  alpha_entry.text[0] = 0;
  type(std::string(constant_name(0)) + "\r\r");
  EXPECT_EQ(message(), "Error | Constant name in use");
  EXPECT_FALSE(state.alpha_active);
}

TEST_F(setup, saving_a_state_leaves_it_open) {
  platform_.file_answers.push_back(folder_.file("kept.state"));
  open({[](TDialog& dialog) {
          press(dialog, "Save State");
          EXPECT_FALSE(dialog.closed());
        },
        [](TDialog& dialog) {
          EXPECT_EQ(dialog.id(), 217);
          press(dialog, "OK");
        }});
  EXPECT_EQ(folder_.names(), "kept.state startup.txt");
}

TEST_F(setup, a_loaded_state_closes_it_and_stands) {
  settings.decimalDigits = 8;
  save_state(folder_.file("kept.state").c_str());
  settings.decimalDigits = 2;
  platform_.file_answers.push_back(folder_.file("kept.state"));
  open({[](TDialog& dialog) {
    choose(dialog, "Decimal Digits:", 3);
    press(dialog, "Load State");
    EXPECT_TRUE(dialog.closed());
  }});
  EXPECT_EQ(settings.decimalDigits, 8);
  EXPECT_EQ(read_setting("precision"), "8");
}

TEST_F(setup, a_file_question_that_is_cancelled_leaves_it_open) {
  open({[](TDialog& dialog) {
    press(dialog, "Load State");
    EXPECT_FALSE(dialog.closed());
  }});
}

class colour_and_skin : public setup {};

TEST_F(colour_and_skin, shows_what_is_set) {
  settings.display_color = 1 + 256 * 2 + 65536 * 3;
  settings.brightness = 77;
  settings.skin = 2;
  open({[](TDialog& dialog) { press(dialog, "Display Color/Skin"); },
        [](TDialog& dialog) {
          EXPECT_EQ(dialog.id(), 194);
          EXPECT_EQ(dialog.title, "Select Color and Skin");
          EXPECT_EQ(control(dialog, "Skin:").rows,
                    (std::vector<std::string>{"Colorful (relatively)", "Dark", "Light"}));
          EXPECT_EQ(control(dialog, "Skin:").selected, 2);
          EXPECT_EQ(control(dialog, "Red:").value, 1);
          EXPECT_EQ(control(dialog, "Green:").value, 2);
          EXPECT_EQ(control(dialog, "Blue:").value, 3);
          EXPECT_EQ(control(dialog, "Brightness:").value, 77);
          for (const char* slider : {"Red:", "Green:", "Blue:", "Brightness:"}) {
            EXPECT_EQ(control(dialog, slider).minimum, 0);
            EXPECT_EQ(control(dialog, slider).maximum, 255);
          }
        }});
}

TEST_F(colour_and_skin, reaches_the_face_when_setup_ends_with_ok) {
  const std::vector<TColour> before = picture();
  open({[](TDialog& dialog) {
          press(dialog, "Display Color/Skin");
          EXPECT_EQ(settings.skin, 0) << "pending until OK";
          EXPECT_EQ(pending_display.skin, 1);
          press(dialog, "OK");
        },
        [](TDialog& dialog) {
          choose(dialog, "Skin:", 1);
          slide(dialog, "Red:", 10);
          slide(dialog, "Green:", 200);
          slide(dialog, "Blue:", 30);
          slide(dialog, "Brightness:", 255);
          press(dialog, "OK");
        }});
  EXPECT_EQ(settings.skin, 1);
  EXPECT_EQ(settings.display_color, 10 + 256 * 200 + 65536 * 30);
  EXPECT_EQ(settings.brightness, 255);
  EXPECT_NE(picture(), before);
  EXPECT_EQ(screen().pixel(7, 6), rgb(10, 200, 30));
  EXPECT_EQ(read_setting("skin"), "1");
}

TEST_F(colour_and_skin, is_dropped_when_setup_is_cancelled) {
  open({[](TDialog& dialog) {
          press(dialog, "Display Color/Skin");
          press(dialog, "Cancel");
        },
        [](TDialog& dialog) {
          choose(dialog, "Skin:", 1);
          press(dialog, "OK");
        }});
  EXPECT_EQ(settings.skin, 0);
  EXPECT_EQ(settings.display_color, 10406866);
}

TEST_F(colour_and_skin, cancel_brings_the_pending_look_back) {
  open({[](TDialog& dialog) {
          press(dialog, "Display Color/Skin");
          press(dialog, "Display Color/Skin");
          press(dialog, "OK");
        },
        [](TDialog& dialog) {
          slide(dialog, "Red:", 1);
          press(dialog, "OK");
        },
        [](TDialog& dialog) {
          EXPECT_EQ(control(dialog, "Red:").value, 1);
          slide(dialog, "Red:", 99);
          choose(dialog, "Skin:", 2);
          press(dialog, "Cancel");
        }});
  EXPECT_EQ(settings.display_color & 255, 1);
  EXPECT_EQ(settings.skin, 0);
}

TEST_F(colour_and_skin, opens_on_the_first_row_for_a_skin_out_of_range) {
  for (const int skin : {5, 3, -1}) {
    settings.skin = skin;
    open({[](TDialog& dialog) { press(dialog, "Display Color/Skin"); },
          [](TDialog& dialog) { EXPECT_EQ(control(dialog, "Skin:").selected, 0); }});
    EXPECT_EQ(settings.skin, skin);
  }
}

std::vector<TColour> sample_of(const TDialog& dialog) {
  const TSurface& picture = control(dialog, "Text Background").picture.at(0);
  return {picture.pixels(), picture.pixels() + picture.width() * picture.height()};
}

TEST_F(colour_and_skin, shows_the_colour_on_a_sample_and_the_brightness_not) {
  open({[](TDialog& dialog) { press(dialog, "Display Color/Skin"); },
        [](TDialog& dialog) {
          std::vector<TColour> sample = sample_of(dialog);
          EXPECT_EQ(sample.front(), rgb(210, 203, 158));
          slide(dialog, "Brightness:", 0);
          EXPECT_EQ(sample_of(dialog), sample);
          choose(dialog, "Skin:", 1);
          EXPECT_EQ(sample_of(dialog), sample);
          for (const char* slider : {"Red:", "Green:", "Blue:"}) {
            slide(dialog, slider, 100);
            EXPECT_NE(sample_of(dialog), sample) << slider;
            sample = sample_of(dialog);
          }
          EXPECT_EQ(sample.front(), rgb(100, 100, 100));
        }});
}

TEST_F(colour_and_skin, its_sample_is_150_by_23_with_the_words_in_the_middle) {
  expect_picture("colour_sample", colour_sample(10406866));
}

}  // namespace
}  // namespace zephyl
