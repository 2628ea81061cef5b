#include "dialogs/user_acts.h"

#include "platform/dialog.h"

namespace zephyl {

namespace {

constexpr std::size_t LONG_TEXT = 10000;

bool has_rows(const TControl& control) {
  return control.kind == CONTROL_COMBO || control.kind == CONTROL_LIST || control.kind == CONTROL_TABLE;
}

int last_row(const TControl& control) { return static_cast<int>(control.rows.size()) - 1; }

bool any_disabled_rows(const TDialog& dialog) {
  for (const TControl& control : dialog.controls)
    if (has_rows(control) && !control.enabled) return true;
  return false;
}

std::vector<std::vector<std::string>> rows_of_controls(const TDialog& dialog) {
  std::vector<std::vector<std::string>> rows;
  for (const TControl& control : dialog.controls) rows.push_back(control.rows);
  return rows;
}

// The rows that other controls have since `before`, each reached by `way`.
void add_rows_that_followed(TDialog& dialog, const std::vector<std::vector<std::string>>& before, const TChoices& way,
                            std::vector<TChoices>& ways) {
  for (int control = 0; control < dialog.count(); ++control) {
    if (!has_rows(dialog[control]) || dialog[control].rows == before[static_cast<std::size_t>(control)]) continue;
    for (int row = 0; row <= last_row(dialog[control]); ++row) {
      choose_row(dialog, control, row);
      ways.push_back(way);
      ways.back().push_back({control, row});
    }
  }
}

}  // namespace

const std::vector<std::string>& nonsense_texts() {
  static const std::vector<std::string> texts = {
      "",
      " ",
      "oh?",
      "2+",
      ")(",
      "1/0",
      "ln(0)",
      "1e999",
      "10^(300)*10^(300)",
      "(-1)^(0.5)+(i)",
      "{1,2}",
      "\"text\"",
      "[C]",
      "[J]",
      "nan",
      "inf",
      "0x10",
      "-",
      "%s%n",
      "a\nb\r\nc\td",
      "\xc3\xa4\xce\xb1\xf0\x9f\x98\x80",
      "\xff\xfe\x80",
      "fnRoot(1,x,0,1)",
      "Area(1)",
      "nothing()",
      std::string(LONG_TEXT, '1'),
      std::string(LONG_TEXT, '('),
      std::string(LONG_TEXT, '~'),
      std::string(LONG_TEXT, '\xc3')};
  return texts;
}

std::vector<TChoices> choose_every_row(TDialog& dialog) {
  std::vector<TChoices> ways;
  const bool guarded = any_disabled_rows(dialog);  // its first control says how many of the others count
  if (guarded) choose_row(dialog, 0, last_row(dialog[0]));
  const TChoices start = guarded ? TChoices{{0, last_row(dialog[0])}} : TChoices{};
  for (int control = 0; control < dialog.count(); ++control) {
    if (!has_rows(dialog[control])) continue;
    const auto before = rows_of_controls(dialog);
    const int selected = dialog[control].selected;
    for (int row = 0; row <= last_row(dialog[control]); ++row) {
      TChoices way = start;
      way.push_back({control, row});
      choose_row(dialog, control, row);
      ways.push_back(way);
      add_rows_that_followed(dialog, before, way, ways);
    }
    choose_row(dialog, control, selected);
  }
  return ways;
}

void make(TDialog& dialog, const TChoices& choices) {
  for (const TChoice& choice : choices) choose_row(dialog, choice.control, choice.row);
}

void change_everything(TDialog& dialog) {
  for (int control = 0; control < dialog.count(); ++control) {
    const TControl& changed = dialog[control];
    choose_row(dialog, control, changed.selected > 0 ? 0 : last_row(changed));
    set_checked(dialog, control, !changed.checked);
    set_value(dialog, control, changed.value == changed.maximum ? changed.minimum : changed.maximum);
    set_text(dialog, control, changed.text + "7");
  }
}

std::vector<int> controls_of(const TDialog& dialog, int kind) {
  std::vector<int> controls;
  for (int control = 0; control < dialog.count(); ++control)
    if (dialog[control].kind == kind) controls.push_back(control);
  return controls;
}

namespace {

void act_at_random(TDialog& dialog, std::mt19937& dice) {
  const auto below = [&dice](int end) { return static_cast<int>(dice() % static_cast<unsigned>(std::max(end, 1))); };
  const int control = below(dialog.count());
  const TControl& chosen = dialog[control];
  const auto& texts = nonsense_texts();
  choose_row(dialog, control, below(last_row(chosen) + 1));
  set_checked(dialog, control, below(2) == 1);
  set_value(dialog, control, chosen.minimum + below(chosen.maximum - chosen.minimum + 1));
  set_text(dialog, control, texts[static_cast<std::size_t>(below(static_cast<int>(texts.size())))]);
  if (below(4) == 0) press_button(dialog, control);
  if (below(8) == 0) activate_row(dialog, control);
}

}  // namespace

void act_at_random(TDialog& dialog, std::mt19937& dice, int acts) {
  for (int act = 0; act < acts && !dialog.closed(); ++act) act_at_random(dialog, dice);
}

}  // namespace zephyl
