#include "platform/desktop/dialogs/mnemonics.h"

#include <gtest/gtest.h>

#include "platform/dialog.h"

using namespace zephyl;

namespace {

std::vector<QString> marked(std::vector<TControl> controls) {
  TDialog dialog(1, "T");
  for (TControl& control : controls) dialog.add(std::move(control));
  return labels_with_mnemonics(dialog);
}

}  // namespace

TEST(mnemonics, are_the_first_letters_of_words_while_those_are_free) {
  EXPECT_EQ(marked({edit_control("Decimal Digits:", ""), edit_control("Decimal Mark:", ""),
                    check_control("Digits", false)}),
            (std::vector<QString>{"&Decimal Digits:", "Decimal &Mark:", "D&igits"}));
}

TEST(mnemonics, run_out) {
  EXPECT_EQ(marked({button_control("u"), button_control("v"), button_control("u")}),
            (std::vector<QString>{"&u", "&v", "u"}));
}

TEST(mnemonics, differ_without_regard_to_case) {
  EXPECT_EQ(marked({button_control("a"), button_control("AB")}), (std::vector<QString>{"&a", "A&B"}));
}

TEST(mnemonics, are_not_spent_on_ok_cancel_and_words) {
  EXPECT_EQ(marked({label_control("A & B"), text_control("Alpha:", "x"), button_control("OK", BUTTON_DEFAULT),
                    button_control("Cancel", BUTTON_CANCEL), button_control("About & more")}),
            (std::vector<QString>{"A & B", "Alpha:", "OK", "Cancel", "&About && more"}));
}

TEST(mnemonics, are_letters_that_every_keyboard_has) {
  EXPECT_EQ(marked({button_control("\xCE\xB1(1)"), button_control("...")}),
            (std::vector<QString>{QString::fromUtf8("\xCE\xB1(&1)"), "..."}));
}
