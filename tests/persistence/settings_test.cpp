// The settings between two runs: what is written, what is read back, and what becomes of a file that isn't as
// it was written.

#include "persistence/settings.h"

#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include "engine/hooks.h"
#include "engine/state.h"
#include "platform/events.h"
#include "support/calculator.h"
#include "support/file_faults.h"
#include "support/whole_state.h"
#include "tools/tvm_state.h"

namespace zephyl {
namespace {

class settings_file : public calculator {
 protected:
  settings_file() { platform_.folder = folder_.path(); }

  std::string path() const { return folder_.file("startup.txt"); }
  std::string content() const { return file_content(path()); }
  void load(const std::string& text) {
    make_file(path(), text);
    load_settings();
  }
  void load_line(const std::string& line) { load(line + "\r\n"); }
  // The value of a key in the file, as a line "KEY: VALUE" of its own.
  static std::string saved(const std::string& key) {
    save_settings();
    return read_setting(key);
  }

  TTestFolder folder_;
};

TEST_F(settings_file, is_written_in_its_order_with_every_default) {
  save_settings();
  EXPECT_EQ(content(),
            "precision: 4\r\n"
            "format: NORM\r\n"
            "point_and_seperator: DECIMAL_POINT\r\n"
            "angle_unit: RADIAN\r\n"
            "display_mode: COMP_MODE\r\n"
            "base_bits: BITS_16\r\n"
            "base_unit: U_DEC\r\n"
            "stats_var: STATS_SINGLE_VAR\r\n"
            "regress_type: R_LINEAR\r\n"
            "button_click: OFF\r\n"
            "display_color: 10406866\r\n"
            "brightness: 128\r\n"
            "skin: 0\r\n"
            "dynamic_mode: STATS_MODE\r\n"
            "scaler_type: ST_REAL\r\n"
            "TVM_n: 0.0000000000000000e+00\r\n"
            "TVM_i: 0.0000000000000000e+00\r\n"
            "TVM_pv: 0.0000000000000000e+00\r\n"
            "TVM_pmt: 0.0000000000000000e+00\r\n"
            "TVM_fv: 0.0000000000000000e+00\r\n"
            "TVM_py: 1.2000000000000000e+01\r\n"
            "TVM_cy: 1.2000000000000000e+01\r\n"
            "TVM_pmt_at: 0\r\n");
  EXPECT_EQ(folder_.names(), "startup.txt");
}

// Each word that a key can hold, with the value it stands for.
struct TWordRow {
  const char* key;
  int* variable;
  std::vector<std::pair<const char*, int>> words;
  int otherwise;
  int initial;
};

const std::vector<TWordRow>& word_rows() {
  static const std::vector<TWordRow> rows = {
      {"format",
       &settings.numberFormat,
       {{"NORM", 0}, {"FIX", 1}, {"SCIENTIFIC", 2}, {"ENGINEERING", 3}},
       0,
       0},
      {"point_and_seperator", &settings.decimalMark, {{"DECIMAL_POINT", 0}, {"COMMA_POINT", 1}}, 0, 0},
      {"angle_unit", &settings.angleMode, {{"RADIAN", 0}, {"DEGREE", 1}, {"GRADIAN", 2}}, 1, 0},
      {"display_mode",
       &state.calcMode,
       {{"BASE_MODE", 0},
        {"COMP_MODE", 1},
        {"STATS_MODE", 2},
        {"PLOT_MODE", 5},
        {"MATRIX_MODE", 6},
        {"LIST_MODE", 7}},
       1,
       1},
      {"base_bits", &settings.baseBits, {{"BITS_8", 0}, {"BITS_16", 1}, {"BITS_32", 2}}, 1, 1},
      {"base_unit", &settings.baseType, {{"U_BIN", 0}, {"U_OCT", 1}, {"U_DEC", 2}, {"U_HEX", 3}}, 2, 2},
      {"stats_var", &settings.statsVar, {{"STATS_SINGLE_VAR", 0}, {"STATS_DOUBLE_VAR", 1}}, 0, 0},
      {"regress_type",
       &settings.statsRegress,
       {{"R_LINEAR", 0}, {"R_LOGARITHMIC", 1}, {"R_EXPON", 2}, {"R_POWER", 3}},
       0,
       0},
      {"button_click", &settings.keyClick, {{"OFF", 0}, {"ON", 1}}, 0, 0},
      {"dynamic_mode",
       &state.dynamic_mode,
       {{"BASE_MODE", 0}, {"STATS_MODE", 2}, {"MATRIX_MODE", 6}, {"LIST_MODE", 7}},
       2,
       2},
      {"scaler_type",
       &settings.complexFormat,
       {{"ST_REAL", 0}, {"ST_COMPLEX_R", 1}, {"ST_COMPLEX_P", 2}},
       0,
       0},
  };
  return rows;
}

TEST_F(settings_file, writes_and_reads_every_word) {
  for (const TWordRow& row : word_rows())
    for (const auto& [word, value] : row.words) {
      *row.variable = value;
      EXPECT_EQ(saved(row.key), word);
      *row.variable = row.initial;
      load_line(std::string(row.key) + ": " + word);
      EXPECT_EQ(*row.variable, value) << row.key << ": " << word;
    }
}

TEST_F(settings_file, takes_the_stated_value_for_a_word_that_it_does_not_know) {
  for (const TWordRow& row : word_rows()) {
    load_line(std::string(row.key) + ": SOMETHING");
    EXPECT_EQ(*row.variable, row.otherwise) << row.key;
    std::string lower = row.words.back().first;
    for (char& c : lower) c = static_cast<char>(c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c);
    load_line(std::string(row.key) + ": " + lower);
    EXPECT_EQ(*row.variable, row.otherwise) << row.key << ": " << lower;
    load_line(std::string(row.key) + ": " + row.words.back().first + " ");
    EXPECT_EQ(*row.variable, row.otherwise) << row.key << " with a blank behind";
  }
}

TEST_F(settings_file, leaves_the_default_where_there_is_no_value) {
  for (const TWordRow& row : word_rows())
    for (const char* ending : {": ", ":", ""}) {
      *row.variable = row.words.front().second;
      load_line(row.key + std::string(ending));
      EXPECT_EQ(*row.variable, row.initial) << row.key << ending;
    }
}

TEST_F(settings_file, keeps_the_modes_that_a_start_can_show) {
  for (const int mode : {3, 4, 8, -1}) {
    state.calcMode = mode;
    EXPECT_EQ(saved("display_mode"), "COMP_MODE") << mode;
  }
  load_line("display_mode: PROG");
  EXPECT_EQ(state.calcMode, COMP_MODE);
}

TEST_F(settings_file, takes_from_0_to_10_digits) {
  for (int digits = 0; digits <= 10; ++digits) {
    load_line("precision: " + std::to_string(digits));
    EXPECT_EQ(settings.decimalDigits, digits);
    EXPECT_EQ(saved("precision"), std::to_string(digits));
  }
  for (const char* value : {"11", "-1", "99999999999999999999", "2147483648"}) {
    load_line(std::string("precision: ") + value);
    EXPECT_EQ(settings.decimalDigits, 4) << value;
  }
}

TEST_F(settings_file, takes_any_colour_brightness_and_skin) {
  load_line("display_color: -5\r\nbrightness: 100000\r\nskin: 7");
  EXPECT_EQ(settings.display_color, -5);
  EXPECT_EQ(settings.brightness, 100000);
  EXPECT_EQ(settings.skin, 7);
  EXPECT_EQ(saved("skin"), "7");
  load_line("brightness: -2147483648\r\nskin: 2147483647\r\ndisplay_color: 2147483647");
  on_paint();
  EXPECT_EQ(message(), "none");
}

TEST_F(settings_file, keeps_the_values_of_the_money_solver_to_the_last_bit) {
  const double values[] = {360.0,     6.007, -200000.0 / 3.0, 1e-300, std::numeric_limits<double>::max(),
                           1.0 / 3.0, 4.0};
  for (int i = TVM_N; i <= TVM_CY; ++i) set_tvm_value(i, values[i]);
  set_tvm_value(TVM_PMT_AT, 1.0);
  save_settings();
  reset_tvm_state();
  load_settings();
  for (int i = TVM_N; i <= TVM_CY; ++i) EXPECT_EQ(tvm_value(i), values[i]) << i;
  EXPECT_EQ(tvm_value(TVM_PMT_AT), 1.0);
  EXPECT_EQ(read_setting("TVM_pmt_at"), "1");
  EXPECT_EQ(read_setting("TVM_i"), "6.0069999999999997e+00");
}

TEST_F(settings_file, leaves_the_money_solver_alone_where_nothing_is_said) {
  set_tvm_value(TVM_PV, 1000.0);
  set_tvm_value(TVM_PMT_AT, 1.0);
  load_line("skin: 1");
  EXPECT_EQ(tvm_value(TVM_PV), 1000.0);
  EXPECT_EQ(tvm_value(TVM_PMT_AT), 1.0);
}

TEST_F(settings_file, never_takes_the_mark_of_no_value_nor_what_is_no_finite_number) {
  set_tvm_value(TVM_PV, 1000.0);
  for (const char* value : {"9.54334561e300", "inf", "nan", "1e999"}) {
    load_line(std::string("TVM_pv: ") + value);
    EXPECT_EQ(tvm_value(TVM_PV), 1000.0) << value;
  }
  load_line("TVM_pv: text");
  EXPECT_EQ(tvm_value(TVM_PV), 0.0);
  set_tvm_value(TVM_PMT_AT, 1.0);
  load_line("TVM_pmt_at: begin");
  EXPECT_EQ(tvm_value(TVM_PMT_AT), 0.0);
  load_line("TVM_pmt_at: 7");
  EXPECT_EQ(tvm_value(TVM_PMT_AT), 1.0);
}

TEST_F(settings_file, is_read_key_by_key_in_any_order_up_to_an_empty_line) {
  load("skin: 1\r\nno colon here\r\n unknown: 3\r\nprecision: 7\r\nskin: 2\r\n\r\nbrightness: 5\r\n");
  EXPECT_EQ(settings.skin, 1);
  EXPECT_EQ(settings.decimalDigits, 7);
  EXPECT_EQ(settings.brightness, 128);
}

TEST_F(settings_file, compares_keys_with_their_case_and_blanks) {
  for (const char* line : {"Skin: 1", "skin : 1", " skin: 1", "ski: 1", "skins: 1"}) {
    load_line(line);
    EXPECT_EQ(settings.skin, 0) << line;
  }
}

TEST_F(settings_file, takes_the_value_two_characters_behind_the_colon) {
  load_line("skin:12");
  EXPECT_EQ(settings.skin, 2);
  load_line("skin: 1: 2");
  EXPECT_EQ(settings.skin, 1);
}

TEST_F(settings_file, gives_at_most_119_characters_of_a_value) {
  make_file(path(), "key: " + std::string(300, 'x') + "\r\n");
  EXPECT_EQ(read_setting("key"), std::string(119, 'x'));
}

TEST_F(settings_file, forgets_what_was_set_before_a_load) {
  settings.skin = 2;
  settings.numberFormat = FORMAT_FIXED;
  state.calcMode = state.dynamic_mode = LIST_MODE;
  load_settings();
  EXPECT_EQ(settings.skin, 0);
  EXPECT_EQ(settings.numberFormat, FORMAT_FLOAT);
  EXPECT_EQ(state.calcMode, COMP_MODE);
  EXPECT_EQ(state.dynamic_mode, STATS_MODE);
}

int plots_asked_for = 0;

TEST_F(settings_file, asks_for_the_plot_where_a_start_shows_one) {
  plots_asked_for = 0;
  hooks.plot_changed = [] { ++plots_asked_for; };
  load_line("display_mode: LIST_MODE");
  EXPECT_EQ(plots_asked_for, 0);
  load_line("display_mode: PLOT_MODE");
  EXPECT_EQ(plots_asked_for, 1);
}

TEST_F(settings_file, is_read_at_the_start_and_written_at_the_stop) {
  settings.skin = 2;
  settings.angleMode = DEGREES;
  state.calcMode = STATS_MODE;
  set_tvm_value(TVM_FV, 12.5);
  on_stop();
  on_start();
  EXPECT_EQ(settings.skin, 2);
  EXPECT_EQ(settings.angleMode, DEGREES);
  EXPECT_EQ(state.calcMode, STATS_MODE);
  EXPECT_EQ(tvm_value(TVM_FV), 12.5);
}

TEST_F(settings_file, is_missing_in_silence) {
  platform_.folder = folder_.file("no such folder");
  save_settings();
  load_settings();
  EXPECT_EQ(message(), "none");
  EXPECT_EQ(folder_.names(), "");
}

TEST_F(settings_file, is_the_old_one_or_the_new_one_wherever_a_save_is_cut_off) {
  save_settings();
  const std::string old_content = content();
  settings.skin = 1;
  for (int call = 0;; ++call) {
    const bool died = dies_at_call(call, [] { save_settings(); });
    if (!died) break;
    const std::string now = content();
    EXPECT_TRUE(now == old_content || now.find("skin: 1\r\n") != std::string::npos) << "call " << call;
    EXPECT_EQ(now.size(), old_content.size()) << "call " << call;
  }
  EXPECT_NE(content().find("skin: 1\r\n"), std::string::npos);
}

TEST_F(settings_file, survives_a_disk_that_is_full) {
  save_settings();
  const std::string old_content = content();
  settings.skin = 1;
  for (const TFileFault fault : {CALL_FAILS, CALL_HALVES}) {
    const TFileFaults faults(fault, 1);
    save_settings();
    EXPECT_EQ(content(), old_content);
    EXPECT_EQ(folder_.names(), "startup.txt");
  }
  EXPECT_EQ(message(), "none");
}

TEST_F(settings_file, reads_any_bytes) {
  std::string bytes;
  for (int i = 0; i < 4000; ++i) bytes += static_cast<char>(i * 7919 >> 3 & 255);
  load(bytes);
  load(std::string(5000, 'x') + "\r\nskin: 1\r\n");
  EXPECT_EQ(settings.skin, 0) << "a line that is too long ends the file";
  load(std::string("skin: 1"));
  EXPECT_EQ(settings.skin, 1) << "the last line needs no end";
}

// --- Damaged files: whatever they say, the settings are some that there are.

TEST_F(settings_file, cut_at_each_byte) {
  save_settings();
  const std::string whole = content();
  for (std::size_t size = 0; size <= whole.size(); ++size) {
    load(whole.substr(0, size));
    ASSERT_EQ(calculator_fault(), "") << "cut at " << size;
  }
}

TEST_F(settings_file, with_each_byte_changed) {
  save_settings();
  const std::string whole = content();
  for (const char byte : {'\0', '\r', '9', ':', '-', 'e', '\xFF'}) {
    for (std::size_t at = 0; at < whole.size(); ++at) {
      std::string changed = whole;
      changed[at] = byte;
      load(changed);
      ASSERT_EQ(calculator_fault(), "") << "byte " << at << " changed to " << static_cast<int>(byte);
    }
  }
}

TEST_F(settings_file, of_a_million_characters_or_a_hundred_thousand_lines) {
  for (const char* start : {"skin: ", "TVM_n: ", "format: ", ""}) {
    load(start + std::string(1000000, '9') + "\r\n");
    ASSERT_EQ(calculator_fault(), "") << start;
  }
  std::string lines;
  for (int i = 0; i < 100000; ++i) lines += "key" + std::to_string(i) + ": 1\r\n";
  load(lines + "skin: 1\r\n");
  EXPECT_EQ(settings.skin, 1);
  EXPECT_EQ(calculator_fault(), "");
}

TEST_F(settings_file, with_line_feeds_only_or_in_two_byte_characters) {
  save_settings();
  std::string line_feeds, wide;
  for (const char c : content()) {
    if (c != '\r') line_feeds += c;
    wide += std::string(1, c) + std::string(1, '\0');
  }
  for (const std::string& text : {line_feeds, wide, "\xEF\xBB\xBF" + content()}) {
    load(text);
    EXPECT_EQ(calculator_fault(), "");
  }
}

}  // namespace
}  // namespace zephyl
