#include "platform/desktop/key_events.h"

#include <gtest/gtest.h>

#include <QKeyEvent>

#include "platform/events.h"
#include "platform_desktop/desktop.h"

using namespace zephyl;

namespace {

class key_events : public window_system {};

QKeyEvent key(int code, const QString& text = {}, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
  return QKeyEvent(QEvent::KeyPress, code, modifiers, text);
}

int arrow_of(int code) {
  TInput input;
  return input_of_key(key(code), input) && input.kind == INPUT_ARROW ? input.code : -1;
}

}  // namespace

TEST_F(key_events, six_keys_are_arrows) {
  EXPECT_EQ(arrow_of(Qt::Key_Right), ARROW_RIGHT);
  EXPECT_EQ(arrow_of(Qt::Key_Left), ARROW_LEFT);
  EXPECT_EQ(arrow_of(Qt::Key_Delete), ARROW_DELETE);
  EXPECT_EQ(arrow_of(Qt::Key_Up), ARROW_UP);
  EXPECT_EQ(arrow_of(Qt::Key_Down), ARROW_DOWN);
  EXPECT_EQ(arrow_of(Qt::Key_Home), ARROW_HOME);
  EXPECT_EQ(arrow_of(Qt::Key_End), -1);
  EXPECT_EQ(arrow_of(Qt::Key_PageUp), -1);
}

TEST_F(key_events, control_keys_have_their_characters_whatever_their_text) {
  EXPECT_EQ(characters_of_key(key(Qt::Key_Backspace)), QString(QChar(8)));
  EXPECT_EQ(characters_of_key(key(Qt::Key_Return, "\n")), QString(QChar(13)));
  EXPECT_EQ(characters_of_key(key(Qt::Key_Enter)), QString(QChar(13)));
  EXPECT_EQ(characters_of_key(key(Qt::Key_Escape)), QString(QChar(27)));
}

TEST_F(key_events, other_keys_type_their_text) {
  EXPECT_EQ(characters_of_key(key(Qt::Key_7, "7")), "7");
  EXPECT_EQ(characters_of_key(key(Qt::Key_A, "A", Qt::ShiftModifier)), "A");
  EXPECT_EQ(characters_of_key(key(Qt::Key_Plus, "+", Qt::KeypadModifier)), "+");
  EXPECT_EQ(characters_of_key(key(Qt::Key_BraceLeft, "{", Qt::GroupSwitchModifier)), "{");
}

TEST_F(key_events, keys_without_a_sign_type_nothing) {
  EXPECT_EQ(characters_of_key(key(Qt::Key_F1)), "");
  EXPECT_EQ(characters_of_key(key(Qt::Key_Tab, "\t")), "");
  EXPECT_EQ(characters_of_key(key(Qt::Key_Shift)), "");
}

TEST_F(key_events, with_ctrl_alt_or_meta_a_key_types_nothing) {
  EXPECT_EQ(characters_of_key(key(Qt::Key_A, "a", Qt::ControlModifier)), "");
  EXPECT_EQ(characters_of_key(key(Qt::Key_A, "a", Qt::AltModifier)), "");
  EXPECT_EQ(characters_of_key(key(Qt::Key_Return, "\r", Qt::MetaModifier)), "");
  TInput input;
  EXPECT_FALSE(input_of_key(key(Qt::Key_Left, {}, Qt::AltModifier), input));
}

TEST_F(key_events, ctrl_c_copies_and_ctrl_v_pastes) {
  TInput input;
  ASSERT_TRUE(input_of_key(key(Qt::Key_C, "\x03", Qt::ControlModifier), input));
  EXPECT_EQ(input.kind, INPUT_COPY);
  ASSERT_TRUE(input_of_key(key(Qt::Key_V, "\x16", Qt::ControlModifier), input));
  EXPECT_EQ(input.kind, INPUT_PASTE);
  EXPECT_FALSE(input_of_key(key(Qt::Key_X, "\x18", Qt::ControlModifier), input));
}
