// The table of constants, its file, and how the user adds to it.

#include "persistence/constants.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <string>

#include "engine/expression.h"
#include "engine/memory.h"
#include "engine/state.h"
#include "faceplate/alpha_entry.h"
#include "faceplate/dialogs/menu.h"
#include "faceplate/key_tables.h"
#include "faceplate/modes.h"
#include "persistence/constant_dialogs.h"
#include "persistence/conversion_dialog.h"
#include "persistence/text_order.h"
#include "persistence/units.h"
#include "platform/events.h"
#include "support/calculator.h"
#include "support/file_faults.h"

namespace zephyl {

class constants : public calculator {
 protected:
  constants() { restart(folder_.path()); }

  std::string file() const { return folder_.file("constants.const"); }
  std::string row(const char* name) const {
    const int i = find_constant(name);
    return i < 0 ? "none" : std::string(constant_name(i)) + "|" + constant_unit(i) + "|" + constant_value(i);
  }
  // Starts with a file of these lines.
  void start_with(const std::string& content) {
    make_file(file(), content);
    restart(folder_.path());
  }

  static void tap_key(int key) {
    KeyRect at;
    ASSERT_TRUE(key_rect(key, at));
    on_pen_down((at.left + at.right) / 2, (at.top + at.bottom) / 2);
    on_pen_up((at.left + at.right) / 2, (at.top + at.bottom) / 2);
  }

  TTestFolder folder_;
};

TEST_F(constants, the_first_start_writes_the_file) {
  const std::string content = file_content(file());
  EXPECT_EQ(content.substr(0, 48), "Cons: Astronomical unit, m, 1.4959787066e11\r\nCon");
  EXPECT_NE(content.find("\r\nCons: e, , 2.718281828459045\r\n"), std::string::npos);
  EXPECT_NE(content.find("Cons: Natural logarithm base, , 2.7182818284590452\r\n"), std::string::npos);
  EXPECT_EQ(content.substr(content.size() - 58),
            "Cons: Stefan-Boltzmann constant, W/(m^2 K^4), 5.67051e-8\r\n");
}

TEST_F(constants, the_file_takes_the_place_of_the_built_in_ones) {
  start_with("Cons: Zulu, kg, 1.5e3\r\nCons: alpha, , 7\r\n");
  EXPECT_EQ(constant_count(), 2);
  EXPECT_STREQ(constant_name(0), "alpha");
  EXPECT_EQ(row("ZULU"), "Zulu|kg|1.5e3");
  EXPECT_EQ(unit_table.unit_count, 139);
}

TEST_F(constants, they_sort_ignoring_case) {
  for (int i = 1; i < constant_count(); ++i)
    EXPECT_LT(compare_ignoring_case(constant_name(i - 1), constant_name(i)), 0) << constant_name(i);
  EXPECT_LT(compare_ignoring_case("e", "Electron charge"), 0);
  EXPECT_LT(compare_ignoring_case("Z", "\xC3\xA9"), 0);
}

TEST_F(constants, line_ends_of_other_systems) {
  start_with("Cons: a, m, 1\rCons: b, m, 2");
  EXPECT_EQ(constant_count(), 2);
  start_with("Cons: a, m, 1\nCons: b, m, 2\n");  // LF alone is no end: one line
  EXPECT_EQ(constant_count(), 1);
  EXPECT_EQ(row("a"), "a|m|1Cons: b, m, 2");
}

TEST_F(constants, accents_are_kept) {
  start_with("Cons: Consta\xC3\xB1te, \xCE\xA9, 1\r\n");
  EXPECT_EQ(row("Consta\xC3\xB1te"), "Consta\xC3\xB1te|\xCE\xA9|1");
}

TEST_F(constants, the_file_may_add_units) {
  start_with(
      "Prop: Data\r\nUnit: 139, bit, Bit, 1.0, 0.0\r\nUnit: 140, byte, Byte, 8.0, 0.0\r\nCons: a, , 1\r\n");
  EXPECT_EQ(unit_table.property_count, 14);
  EXPECT_EQ(message(), "Order | A property is out of alphabetic order: Data");
  EXPECT_EQ(eval("3(byte>bit)"), "24");
  eval("5");
  add_constant("b", "");
  EXPECT_EQ(file_content(file()),
            "Prop: Data\r\nUnit: 139, bit, Bit, 1.0, 0.0\r\nUnit: 140, byte, Byte, 8.0, 0.0\r\n"
            "Cons: a, , 1\r\nCons: b, , 5.0000000000e0\r\n");
}

TEST_F(constants, a_line_of_another_length_ends_the_file) {
  start_with("Cons: a, m, 1\r\nshort\r\nCons: b, m, 2\r\n");
  EXPECT_EQ(constant_count(), 1);
  start_with("Cons: a, m, 1\r\nCons: " + std::string(114, 'x') + "\r\nCons: b, m, 2\r\n");
  EXPECT_EQ(constant_count(), 1);
  start_with("");
  EXPECT_EQ(constant_count(), 0);
}

TEST_F(constants, a_file_that_can_not_be_read_is_left_alone) {
  ASSERT_EQ(::unlink(file().c_str()), 0);
  ASSERT_EQ(::mkdir(file().c_str(), 0700), 0);
  restart(folder_.path());
  EXPECT_EQ(constant_count(), 44);
  EXPECT_EQ(::rmdir(file().c_str()), 0);
}

TEST_F(constants, lines_of_another_kind_are_passed_over) {
  start_with("Note: mine\r\nCons: a, m, 1\r\n");
  EXPECT_EQ(constant_count(), 1);
}

TEST_F(constants, fields_that_do_not_fit_are_told) {
  start_with("Cons: " + std::string(40, 'n') + ", m, 1\r\n");
  EXPECT_EQ(message(), "strcpy problem | Dest length is shorter than source length (40 <= 40)");
  EXPECT_EQ(constant_count(), 1);
}

TEST_F(constants, a_file_holds_102) {
  std::string text;
  for (int i = 0; i < 102; ++i) text += "Cons: c" + std::to_string(i) + ", m, 1\r\n";
  start_with(text);
  EXPECT_EQ(constant_count(), 102);
  EXPECT_EQ(message(), "none");
  start_with(text + "Cons: one more, m, 1\r\n");
  EXPECT_EQ(constant_count(), 102);
  EXPECT_EQ(message(), "Array size limit | Constant array is not large enouph");
}

TEST_F(constants, one_is_added_with_the_answer) {
  eval("2/3");
  EXPECT_TRUE(add_constant("Two thirds", "of it"));
  EXPECT_EQ(row("two thirds"), "Two thirds|of it|6.6666666667e-1");
  EXPECT_EQ(constant_count(), 45);
  EXPECT_NE(file_content(file()).find("Cons: Two thirds, of it, 6.6666666667e-1\r\n"), std::string::npos);
  restart(folder_.path());
  EXPECT_EQ(row("Two thirds"), "Two thirds|of it|6.6666666667e-1");
}

TEST_F(constants, the_real_part_counts_and_the_mark_is_a_point) {
  settings.decimalMark = 1;
  answers.ans = {-1.5, 2.0};
  add_constant("c", "");
  EXPECT_EQ(row("c"), "c||-1.5000000000e0");
}

TEST_F(constants, typed_commas_become_blanks) {
  add_constant("a,b", "m,s");
  EXPECT_EQ(row("a b"), "a b|m s|0.0000000000e0");
}

TEST_F(constants, a_name_is_taken_once) {
  EXPECT_FALSE(add_constant("PI", ""));
  EXPECT_EQ(message(), "Error | Constant name in use");
  EXPECT_EQ(constant_count(), 44);
}

TEST_F(constants, adding_stops_at_101) {
  std::string text;
  for (int i = 0; i < 100; ++i) text += "Cons: c" + std::to_string(i) + ", m, 1\r\n";
  start_with(text);
  EXPECT_TRUE(add_constant("the last", ""));
  EXPECT_EQ(constant_count(), 101);
  EXPECT_FALSE(add_constant("one more", ""));
  EXPECT_EQ(message(), "Limit | Reached maximum number of constants");
  EXPECT_EQ(constant_count(), 101);
}

TEST_F(constants, deleting_asks) {
  platform_.answer = false;
  delete_constant("pi");
  EXPECT_EQ(platform_.questions.back(), "Delete Constant? | Delete Constant: pi?");
  EXPECT_EQ(constant_count(), 44);
  platform_.answer = true;
  delete_constant("pi");
  EXPECT_EQ(constant_count(), 43);
  EXPECT_EQ(file_content(file()).find("Cons: Pi,"), std::string::npos);
}

TEST_F(constants, deleting_the_last_one_brings_the_built_in_ones_back) {
  start_with("Cons: a, m, 1\r\n");
  delete_constant("a");
  EXPECT_EQ(constant_count(), 44);
  restart(folder_.path());
  EXPECT_EQ(constant_count(), 44);
}

TEST_F(constants, a_save_that_fails_leaves_the_file_and_keeps_the_constant_in_memory) {
  const std::string before = file_content(file());
  for (int call = 0; call < 5; ++call) {
    const TFileFaults faults(CALL_FAILS, call);
    add_constant(("c" + std::to_string(call)).c_str(), "");
    EXPECT_EQ(constant_count(), 45 + call);
    EXPECT_EQ(file_content(file()), before);
    EXPECT_EQ(folder_.names(), "constants.const");
  }
  EXPECT_EQ(message(), "none");
}

TEST_F(constants, a_process_that_dies_while_adding_leaves_the_old_file_or_the_new) {
  const std::string before = file_content(file());
  int call = 0;
  while (dies_at_call(call, [] { add_constant("new", ""); })) {
    const std::string content = file_content(file());
    EXPECT_EQ(content == before, call < 5) << "call " << call;
    ++call;
  }
  EXPECT_GE(call, 5);
  EXPECT_NE(file_content(file()).find("Cons: new"), std::string::npos);
}

TEST_F(constants, a_folder_without_files_has_the_built_in_ones) {
  restart("/dev/null");
  EXPECT_EQ(constant_count(), 44);
  EXPECT_EQ(message(), "none");
}

// The facts behind them: CODATA of 1973, 1986 and 1998, as each value's digits tell; none is farther from
// today's values (CODATA 2018, exact for most) than its time knew.
TEST_F(constants, values_agree_with_nature) {
  const struct {
    const char* name;
    double value;
    double tolerance;
  } facts[] = {{"Speed of light in vacuum", 299792458.0, 0.0},
               {"Planck's constant", 6.62607015e-34, 2e-6},
               {"Elementary charge", 1.602176634e-19, 1e-5},
               {"Electron volt", 1.602176634e-19, 2e-7},
               {"Boltzmann constant", 1.380649e-23, 2e-6},
               {"Avogadro's number", 6.02214076e23, 1e-6},
               {"Molar Gas constant", 8.31446261815324, 2e-6},
               {"Faraday constant", 96485.33212, 1e-6},
               {"Gravitational constant", 6.6743e-11, 3e-4},
               {"Electron rest mass", 9.1093837015e-31, 1e-6},
               {"Proton rest mass", 1.67262192369e-27, 1e-6},
               {"Neutron rest mass", 1.67492749804e-27, 1e-6},
               {"Atomic mass unit", 1.6605390666e-27, 3e-7},
               {"Bohr radius", 5.29177210903e-11, 1e-7},
               {"Rydberg constant", 10973731.568160, 1e-7},
               {"Fine structure constant", 7.2973525693e-3, 1e-7},
               {"Permittivity of vacuum", 8.8541878128e-12, 1e-9},
               {"Stefan-Boltzmann constant", 5.670374419e-8, 4e-5},
               {"Astronomical unit", 1.495978707e11, 1e-9},
               {"Gravitational acceleration", 9.80665, 0.0},
               {"Pi", 3.14159265358979323846, 1e-15},
               {"Quantum Hall resistance", 25812.80745, 1e-6}};
  for (const auto& fact : facts) {
    const int i = find_constant(fact.name);
    ASSERT_GE(i, 0) << fact.name;
    EXPECT_NEAR(std::stod(constant_value(i)), fact.value, fact.tolerance * fact.value) << fact.name;
  }
}

TEST_F(constants, the_dialog_shows_values_and_gives_the_chosen_one) {
  std::string shown, without_unit;
  platform_.dialog_answers.push_back([&](TDialog& dialog) {
    choose_row(dialog, find_control(dialog, "Constant"), find_constant("Gravitational acceleration"));
    shown = dialog[find_control(dialog, "Value")].text;
    choose_row(dialog, find_control(dialog, "Constant"), find_constant("e"));
    without_unit = dialog[find_control(dialog, "Value")].text;
    accept_dialog(dialog);
  });
  EXPECT_EQ(insert_selected_constant(), CONSTANT_CHOSEN);
  EXPECT_EQ(platform_.dialogs.back(), "147 Select Constant");
  EXPECT_EQ(shown, "9.80665 (m/s^2)");
  EXPECT_EQ(without_unit, "2.718281828459045 ");
  EXPECT_EQ(entry(), "(2.718281828459045)");
}

TEST_F(constants, the_dialog_follows_the_decimal_mark) {
  settings.decimalMark = 1;
  std::string shown;
  platform_.dialog_answers.push_back([&](TDialog& dialog) {
    choose_row(dialog, find_control(dialog, "Constant"), find_constant("Planck's constant"));
    shown = dialog[find_control(dialog, "Value")].text;
    accept_dialog(dialog);
  });
  insert_selected_constant();
  EXPECT_EQ(shown, "6,6260775e-34 (J s)");
  settings.decimalMark = 0;
  EXPECT_EQ(entry(), "(6.6260775e-34)");
}

TEST_F(constants, the_dialog_opens_where_it_was_left_and_cancel_changes_nothing) {
  const auto opened_at = [this] {
    int row = -1;
    platform_.dialog_answers.push_back([&](TDialog& dialog) { row = dialog[0].selected; });
    std::string value;
    EXPECT_EQ(select_constant(value), CONSTANT_CANCELLED);
    return row;
  };
  EXPECT_EQ(opened_at(), 0);
  std::string value;
  platform_.dialog_answers.push_back([](TDialog& dialog) {
    choose_row(dialog, 0, 7);
    accept_dialog(dialog);
  });
  EXPECT_EQ(select_constant(value), CONSTANT_CHOSEN);
  EXPECT_EQ(value, constant_value(7));
  EXPECT_EQ(opened_at(), 7);
  platform_.dialog_answers.push_back([](TDialog& dialog) { choose_row(dialog, 0, 3); });
  select_constant(value);
  EXPECT_EQ(opened_at(), 7);
}

TEST_F(constants, the_dialog_leads_to_the_elements) {
  platform_.dialog_answers.push_back(
      [](TDialog& dialog) { press_button(dialog, find_control(dialog, "Elements")); });
  EXPECT_EQ(insert_selected_constant(), CONSTANT_ELEMENTS);
  EXPECT_EQ(entry(), "");
}

TEST_F(constants, the_edit_dialog_deletes) {
  platform_.dialog_answers.push_back([](TDialog& dialog) {
    choose_row(dialog, find_control(dialog, "Constant"), find_constant("Pi"));
    choose_row(dialog, find_control(dialog, "Action"), 1);
    accept_dialog(dialog);
  });
  EXPECT_FALSE(edit_constants());
  EXPECT_EQ(platform_.dialogs.back(), "181 Edit Constant");
  EXPECT_EQ(platform_.questions.back(), "Delete Constant? | Delete Constant: Pi?");
  EXPECT_EQ(row("Pi"), "none");
}

TEST_F(constants, the_edit_dialog_asks_for_a_new_one) {
  platform_.dialog_answers.push_back([](TDialog& dialog) {
    choose_row(dialog, find_control(dialog, "Action"), 0);
    accept_dialog(dialog);
  });
  EXPECT_TRUE(edit_constants());
  EXPECT_FALSE(edit_constants());  // cancelled
  EXPECT_TRUE(platform_.questions.empty());
}

TEST_F(constants, the_conversion_dialog_inserts_its_token) {
  std::vector<std::string> from_rows;
  platform_.dialog_answers.push_back([&](TDialog& dialog) {
    choose_row(dialog, find_control(dialog, "Property"), 1);
    from_rows = dialog[find_control(dialog, "From Unit")].rows;
    choose_row(dialog, find_control(dialog, "From Unit"), 4);
    choose_row(dialog, find_control(dialog, "To Unit"), 11);
    accept_dialog(dialog);
  });
  eval("10");
  insert_selected_conversion();
  EXPECT_EQ(platform_.dialogs.back(), "138 Select Conversion");
  ASSERT_EQ(from_rows.size(), 20u);
  EXPECT_EQ(from_rows[4], "ft (Feet)");
  EXPECT_EQ(entry(), "(Ans)(ft>m)");
}

TEST_F(constants, the_conversion_dialog_opens_where_it_was_left) {
  int from, position;
  platform_.dialog_answers.push_back([](TDialog& dialog) {
    choose_row(dialog, 0, 9);
    choose_row(dialog, 1, 1);
    choose_row(dialog, 2, 2);
    accept_dialog(dialog);
  });
  EXPECT_TRUE(select_conversion(from, position));
  EXPECT_EQ(from, 83);
  EXPECT_EQ(position, 2);
  platform_.dialog_answers.push_back([](TDialog& dialog) {
    choose_row(dialog, 1, 0);
    EXPECT_EQ(dialog[0].selected, 9);
    EXPECT_EQ(dialog[2].selected, 2);
  });
  EXPECT_FALSE(select_conversion(from, position));
  platform_.dialog_answers.push_back([](TDialog& dialog) {
    EXPECT_EQ(dialog[1].selected, 1);
    choose_row(dialog, 0, 0);
    EXPECT_EQ(dialog[1].selected, 0);
    EXPECT_EQ(dialog[2].selected, 0);
  });
  EXPECT_FALSE(select_conversion(from, position));
}

// --- From the keys

TEST_F(constants, a_blue_key_opens_each_dialog) {
  platform_.dialog_answers.push_back([](TDialog& dialog) {
    choose_row(dialog, 0, find_constant("Gravitational acceleration"));
    accept_dialog(dialog);
  });
  tap_key(1);
  tap_key(8);
  EXPECT_EQ(entry(), "(9.80665)");
  platform_.dialog_answers.push_back([](TDialog& dialog) {
    choose_row(dialog, 0, 11);
    choose_row(dialog, 1, 15);
    choose_row(dialog, 2, 5);
    accept_dialog(dialog);
  });
  tap_key(1);
  tap_key(9);
  EXPECT_EQ(entry(), "(9.80665)(m/s>ft/s)");
  EXPECT_EQ(platform_.dialogs, (std::vector<std::string>{"147 Select Constant", "138 Select Conversion"}));
}

TEST_F(constants, the_elements_button_leads_to_the_periodic_screen) {
  platform_.dialog_answers.push_back(
      [](TDialog& dialog) { press_button(dialog, find_control(dialog, "Elements")); });
  tap_key(1);
  tap_key(8);
  EXPECT_EQ(state.calcMode, PERIODIC_MODE);
}

TEST_F(constants, the_menu_opens_them_from_a_plot) {
  set_mode(PLOT_MODE, false);
  platform_.dialog_answers.push_back([](TDialog& dialog) {
    choose_row(dialog, 0, 8);
    accept_dialog(dialog);
  });
  platform_.dialog_answers.push_back([](TDialog& dialog) {
    choose_row(dialog, 0, find_constant("Gravitational acceleration"));
    accept_dialog(dialog);
  });
  show_menu();
  EXPECT_EQ(state.calcMode, COMP_MODE);
  EXPECT_EQ(entry(), "(9.80665)");
}

TEST_F(constants, a_new_one_is_typed_in_two_steps) {
  eval("1/8");
  start_alpha_entry(ALPHA_CONSTANT_NAME);
  for (const char c : std::string("abc")) on_char(static_cast<unsigned char>(c));
  on_char('\r');
  EXPECT_TRUE(state.alpha_active);
  on_char('m');
  on_char('\r');
  EXPECT_FALSE(state.alpha_active);
  EXPECT_EQ(row("abc"), "abc|m|1.2500000000e-1");
}

TEST_F(constants, a_new_one_needs_no_unit) {
  start_alpha_entry(ALPHA_CONSTANT_NAME);
  on_char('c');
  on_char('\r');
  on_char('\r');
  EXPECT_FALSE(state.alpha_active);
  EXPECT_EQ(row("c"), "c||0.0000000000e0");
}

}  // namespace zephyl
