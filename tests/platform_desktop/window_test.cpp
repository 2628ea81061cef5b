// The window: the picture, the pointer and the keyboard on their way to the calculator.

#include <QCoreApplication>
#include <QImage>
#include <QInputMethodEvent>
#include <QPixmap>
#include <QScreen>
#include <clocale>

#include "faceplate/key_tables.h"
#include "platform/events.h"
#include "platform/surface.h"
#include "platform_desktop/desktop.h"

using namespace zephyl;

namespace {

// Compares every device pixel with the picture pixel that it must show.
void expect_sharp(const QImage& image, int zoom) {
  ASSERT_GE(image.width(), SCREEN_WIDTH * zoom);
  ASSERT_GE(image.height(), SCREEN_HEIGHT * zoom);
  int wrong = 0;
  for (int y = 0; y < SCREEN_HEIGHT * zoom; ++y)
    for (int x = 0; x < SCREEN_WIDTH * zoom; ++x)
      if ((image.pixel(x, y) & 0xffffffu) != screen().pixel(x / zoom, y / zoom)) ++wrong;
  EXPECT_EQ(wrong, 0);
}

class desktop_at_a_fractional_scale : public desktop {
 protected:
  static void SetUpTestSuite() { open_application("1.25"); }
};

}  // namespace

TEST_F(desktop, shows_each_picture_pixel_as_a_square_of_device_pixels) {
  window().choose_zoom(2);
  settle();
  EXPECT_EQ(window().size(), QSize(480, 588));
  expect_sharp(window().grab().toImage(), 2);
}

TEST_F(desktop_at_a_fractional_scale, is_sharp) {
  ASSERT_EQ(window().devicePixelRatioF(), 1.25);
  window().choose_zoom(1);
  settle();
  EXPECT_EQ(window().size(), QSize(192, 236));
  expect_sharp(window().enlarged_picture(QSize(240, 295)), 1);
  window().choose_zoom(2);
  settle();
  expect_sharp(window().grab().toImage(), 2);
}

TEST_F(desktop_at_a_fractional_scale, taps_meet_their_keys) {
  tap_key(23);
  tap_key(35);
  EXPECT_EQ(entry(), "73");
}

TEST_F(desktop, the_picture_goes_on_to_the_edge_of_a_window_that_is_larger) {
  window().choose_zoom(1);
  const QImage image = window().enlarged_picture(QSize(242, 296));
  expect_sharp(image, 1);
  EXPECT_EQ(image.pixel(241, 100), image.pixel(239, 100));
  EXPECT_EQ(image.pixel(100, 295), image.pixel(100, 293));
}

TEST_F(desktop, can_not_be_resized) { EXPECT_EQ(window().minimumSize(), window().maximumSize()); }

TEST_F(desktop, ctrl_plus_and_ctrl_minus_change_the_size) {
  window().choose_zoom(1);
  press(Qt::Key_Minus, Qt::ControlModifier);
  EXPECT_EQ(window().zoom(), 1);
  press(Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_EQ(window().zoom(), 2);
  press(Qt::Key_Minus, Qt::ControlModifier);
  EXPECT_EQ(window().zoom(), 1);
  EXPECT_EQ(entry(), "");
}

TEST_F(desktop, ctrl_plus_stops_where_the_screen_ends) {
  for (int i = 0; i < 40; ++i) press(Qt::Key_Equal, Qt::ControlModifier);
  EXPECT_LE(window().width(), window().screen()->availableSize().width());
  EXPECT_LE(window().height(), window().screen()->availableSize().height());
}

TEST_F(desktop, ctrl_0_goes_back_to_the_size_for_the_screen) {
  const int at_first = window().zoom();
  press(Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_NE(window().zoom(), at_first);
  press(Qt::Key_0, Qt::ControlModifier);
  EXPECT_EQ(window().zoom(), at_first);
}

TEST_F(desktop, place_and_size_are_remembered) {
  window().choose_zoom(2);
  window().move(123, 77);
  start_again();
  EXPECT_EQ(window().chosen_zoom(), 2);
  EXPECT_EQ(window().pos(), QPoint(123, 77));
}

TEST_F(desktop, a_place_on_no_screen_is_forgotten) {
  window().move(90000, 90000);
  start_again();
  EXPECT_LT(window().x(), 10000);
}

TEST_F(desktop, taps_give_a_result) {
  for (const int key : {34, 36, 33, 31, 35, 42}) tap_key(key);
  EXPECT_EQ(copied(), "5");
}

TEST_F(desktop, the_second_press_of_a_double_click_is_a_tap) {
  KeyRect seven;
  ASSERT_TRUE(key_rect(23, seven));
  const TPoint at = {seven.left + 2, seven.top + 2};
  tap(at);
  mouse(QEvent::MouseButtonDblClick, at);
  mouse(QEvent::MouseButtonRelease, at);
  EXPECT_EQ(entry(), "77");
}

TEST_F(desktop, typed_characters_give_a_result) {
  type("2+3*4");
  press(Qt::Key_Return);
  EXPECT_EQ(copied(), "14");
}

TEST_F(desktop, a_sign_from_the_input_method_is_typed) {
  type("2");
  QInputMethodEvent event;
  event.setCommitString("^");
  QCoreApplication::sendEvent(&window(), &event);
  type("5");
  press(Qt::Key_Return);
  EXPECT_EQ(copied(), "32");
}

TEST_F(desktop, cursor_keys_move_and_delete) {
  type("123");
  press(Qt::Key_Left);
  press(Qt::Key_Left);
  press(Qt::Key_Delete);
  press(Qt::Key_Backspace);
  type("9");
  EXPECT_EQ(entry().size(), 2);
}

TEST_F(desktop, a_release_that_went_elsewhere_is_made_up_for) {
  KeyRect key;
  ASSERT_TRUE(key_rect(23, key));
  mouse(QEvent::MouseButtonPress, {key.left + 2, key.top + 2});
  const QImage pressed = window().enlarged_picture(window().size());
  QEvent activation(QEvent::ActivationChange);
  QCoreApplication::sendEvent(&window(), &activation);
  settle();
  EXPECT_TRUE(window().enlarged_picture(window().size()) != pressed);
}

TEST_F(desktop, the_title_is_the_window_title) {
  platform_->set_title("Zephyl (n=3)");
  EXPECT_EQ(window().windowTitle(), "Zephyl (n=3)");
}

TEST_F(desktop, numbers_keep_their_point_in_a_country_of_commas) {
  EXPECT_STREQ(std::localeconv()->decimal_point, ".");
}

TEST_F(desktop, closing_the_window_stops_the_calculator) {
  window().close();
  EXPECT_TRUE(platform_->stopped());
  EXPECT_FALSE(window().isVisible());
}
