// zephyl: the calculator in a window.

#include <QApplication>
#include <QIcon>

#include "app/command_line.h"
#include "app/start_up.h"
#include "platform/desktop/desktop_platform.h"
#include "platform/posix/folders.h"

namespace {

constexpr zephyl::TUsage USAGE = {
    "zephyl", "Shows the calculator; loads state files (.state) and adds programs (.prgm).", "[FILE...]"};
// Of the desktop entry and of the icons.
constexpr const char* DESKTOP_NAME = "zephyl";

}  // namespace

int main(int count, char** arguments) {
  if (zephyl::answer_question(USAGE, count, arguments)) return 0;
  QApplication application(count, arguments);  // takes out the words that are the toolkit's
  QApplication::setApplicationName("zephyl");
  QApplication::setDesktopFileName(DESKTOP_NAME);
  QApplication::setWindowIcon(QIcon::fromTheme(DESKTOP_NAME));
  std::vector<std::string> files;
  if (!zephyl::read_files(USAGE, count, arguments, files)) return zephyl::USAGE_ERROR;
  const std::string folder = zephyl::executable_folder();
  zephyl::TDesktopPlatform platform(zephyl::data_folder_of(folder), zephyl::help_file_of(folder));
  zephyl::set_platform(&platform);
  zephyl::register_families();
  for (const std::string& file : files) platform.open(file);
  return platform.run();
}
