#include "persistence/settings.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>

#include "engine/hooks.h"
#include "engine/state.h"
#include "persistence/text_file.h"
#include "tools/tvm_state.h"

namespace zephyl {

namespace {

constexpr std::size_t VALUE_LIMIT = 119;
constexpr int MOST_DIGITS = 10;

enum TSettingKind {
  SETTING_DIGITS,  // a number from 0 to 10; another leaves the default
  SETTING_NUMBER,  // any number: whoever uses it copes with it
  SETTING_WORD,    // one of `words`
  SETTING_MONEY    // the value of the money solver with the index `otherwise`
};

struct TWord {
  const char* text = nullptr;
  int value = 0;
};

struct TSetting {
  const char* key;
  TSettingKind kind;
  int* variable = nullptr;
  // What an unknown word reads as, and what a value without a word is written as.
  int otherwise = 0;
  TWord words[7] = {};  // the last one is empty
};

// In the order of the file, which programs that read it may count on. The spelling of the keys is part of it.
// clang-format off
constexpr TSetting setting_table[] = {
    {"precision", SETTING_DIGITS, &settings.decimalDigits},
    {"format", SETTING_WORD, &settings.numberFormat, FORMAT_FLOAT,
     {{"NORM", FORMAT_FLOAT}, {"FIX", FORMAT_FIXED}, {"SCIENTIFIC", FORMAT_SCIENTIFIC}, {"ENGINEERING", FORMAT_ENGINEERING}}},
    {"point_and_seperator", SETTING_WORD, &settings.decimalMark, 0, {{"DECIMAL_POINT", 0}, {"COMMA_POINT", 1}}},
    {"angle_unit", SETTING_WORD, &settings.angleMode, DEGREES, {{"RADIAN", RADIANS}, {"DEGREE", DEGREES}, {"GRADIAN", GRADS}}},
    {"display_mode", SETTING_WORD, &state.calcMode, COMP_MODE,
     {{"BASE_MODE", BASE_MODE}, {"COMP_MODE", COMP_MODE}, {"STATS_MODE", STATS_MODE}, {"PLOT_MODE", PLOT_MODE},
      {"MATRIX_MODE", MATRIX_MODE}, {"LIST_MODE", LIST_MODE}}},
    {"base_bits", SETTING_WORD, &settings.baseBits, BITS_16, {{"BITS_8", BITS_8}, {"BITS_16", BITS_16}, {"BITS_32", BITS_32}}},
    {"base_unit", SETTING_WORD, &settings.baseType, U_DEC,
     {{"U_BIN", U_BIN}, {"U_OCT", U_OCT}, {"U_DEC", U_DEC}, {"U_HEX", U_HEX}}},
    {"stats_var", SETTING_WORD, &settings.statsVar, 0, {{"STATS_SINGLE_VAR", 0}, {"STATS_DOUBLE_VAR", 1}}},
    {"regress_type", SETTING_WORD, &settings.statsRegress, R_LINEAR,
     {{"R_LINEAR", R_LINEAR}, {"R_LOGARITHMIC", R_LOGARITHMIC}, {"R_EXPON", R_EXPON}, {"R_POWER", R_POWER}}},
    {"button_click", SETTING_WORD, &settings.keyClick, 0, {{"OFF", 0}, {"ON", 1}}},
    {"display_color", SETTING_NUMBER, &settings.display_color},
    {"brightness", SETTING_NUMBER, &settings.brightness},
    {"skin", SETTING_NUMBER, &settings.skin},
    {"dynamic_mode", SETTING_WORD, &state.dynamic_mode, STATS_MODE,
     {{"BASE_MODE", BASE_MODE}, {"MATRIX_MODE", MATRIX_MODE}, {"LIST_MODE", LIST_MODE}, {"STATS_MODE", STATS_MODE}}},
    {"scaler_type", SETTING_WORD, &settings.complexFormat, ST_REAL,
     {{"ST_REAL", ST_REAL}, {"ST_COMPLEX_R", ST_COMPLEX_R}, {"ST_COMPLEX_P", ST_COMPLEX_P}}},
    {"TVM_n", SETTING_MONEY, nullptr, TVM_N},
    {"TVM_i", SETTING_MONEY, nullptr, TVM_I},
    {"TVM_pv", SETTING_MONEY, nullptr, TVM_PV},
    {"TVM_pmt", SETTING_MONEY, nullptr, TVM_PMT},
    {"TVM_fv", SETTING_MONEY, nullptr, TVM_FV},
    {"TVM_py", SETTING_MONEY, nullptr, TVM_PY},
    {"TVM_cy", SETTING_MONEY, nullptr, TVM_CY},
    {"TVM_pmt_at", SETTING_MONEY, nullptr, TVM_PMT_AT},
};
// clang-format on

std::string file_path() { return data_file_path("startup", "txt", true); }

int integer_of(const std::string& text) {
  const long number = std::strtol(text.c_str(), nullptr, 10);
  // 32 bits, as they were written.
  return static_cast<int>(static_cast<std::int32_t>(static_cast<std::uint32_t>(number)));
}

int value_of_word(const TSetting& setting, const std::string& text) {
  for (const TWord* word = setting.words; word->text; ++word)
    if (text == word->text) return word->value;
  return setting.otherwise;
}

const char* word_of_value(const TSetting& setting, int value) {
  const char* otherwise = "";
  for (const TWord* word = setting.words; word->text; ++word) {
    if (word->value == value) return word->text;
    if (word->value == setting.otherwise) otherwise = word->text;
  }
  return otherwise;
}

void take_money_value(int index, const std::string& text) {
  const double number = index == TVM_PMT_AT ? integer_of(text) : std::strtod(text.c_str(), nullptr);
  if (std::isfinite(number)) set_tvm_value(index, number);
}

void take_value(const TSetting& setting, const std::string& text) {
  switch (setting.kind) {
    case SETTING_DIGITS: {
      const int digits = integer_of(text);
      if (digits >= 0 && digits <= MOST_DIGITS) *setting.variable = digits;
      break;
    }
    case SETTING_NUMBER:
      *setting.variable = integer_of(text);
      break;
    case SETTING_WORD:
      *setting.variable = value_of_word(setting, text);
      break;
    case SETTING_MONEY:
      take_money_value(setting.otherwise, text);
      break;
  }
}

std::string money_text(int index) {
  if (index == TVM_PMT_AT) return std::to_string(static_cast<int>(tvm_value(index)));
  char text[40];
  std::snprintf(text, sizeof text, "%.16e", tvm_value(index));
  return text;
}

std::string written_value(const TSetting& setting) {
  switch (setting.kind) {
    case SETTING_WORD:
      return word_of_value(setting, *setting.variable);
    case SETTING_MONEY:
      return money_text(setting.otherwise);
    default:
      return std::to_string(*setting.variable);
  }
}

void take_defaults() {
  reset_settings();
  state.calcMode = COMP_MODE;
  state.dynamic_mode = STATS_MODE;
}

}  // namespace

std::string read_setting(const std::string& key) {
  TLineReader file(file_path());
  for (std::string line = file.read_line(); !line.empty(); line = file.read_line()) {
    const std::size_t colon = line.find(':');
    if (colon == std::string::npos || line.compare(0, colon, key) != 0) continue;
    return colon + 2 < line.size() ? line.substr(colon + 2, VALUE_LIMIT) : "";
  }
  return "";
}

void load_settings() {
  take_defaults();
  for (const TSetting& setting : setting_table) {
    const std::string text = read_setting(setting.key);
    if (!text.empty()) take_value(setting, text);
  }
  if (state.calcMode == PLOT_MODE) hooks.plot_changed();
}

void save_settings() {
  std::string content;
  for (const TSetting& setting : setting_table)
    append_line(content, std::string(setting.key) + ": " + written_value(setting));
  write_file(file_path(), content);
}

}  // namespace zephyl
