// zephyl: the calculator in a window.

#include <QApplication>

#include "app/start_up.h"
#include "platform/desktop/data_folder.h"
#include "platform/desktop/desktop_platform.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setApplicationName("zephyl");
  zephyl::TDesktopPlatform platform(zephyl::desktop_data_folder());
  zephyl::set_platform(&platform);
  zephyl::register_families();
  return platform.run();
}
