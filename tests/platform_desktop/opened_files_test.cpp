// Files given to the window, and the help that it shows.

#include <QDesktopServices>
#include <QFile>
#include <QTextBrowser>

#include "platform_desktop/desktop.h"

using namespace zephyl;

namespace {

class opened_files : public desktop {
 protected:
  std::string file(const QString& name, const QByteArray& content) {
    const QString path = folder_.filePath(name);
    QFile out(path);
    EXPECT_TRUE(out.open(QIODevice::WriteOnly));
    out.write(content);
    return path.toStdString();
  }
};

// What the desktop's viewer is asked to show is shown by a browser of the test.
class help : public desktop {
 protected:
  help() { QDesktopServices::setUrlHandler("file", &viewer_, "setSource"); }
  ~help() override { QDesktopServices::unsetUrlHandler("file"); }

  void start_with(const std::string& help_file) {
    platform_->stop();
    platform_ = std::make_unique<TDesktopPlatform>(folder_.path().toStdString(), help_file);
    set_platform(platform_.get());
    platform_->start();
  }
  QTextBrowser viewer_;
};

}  // namespace

TEST_F(opened_files, a_state_is_there_when_the_window_shows) {
  platform_->open(file("monday.state", "V: 2.7A\r\nR: 10:1.5\r\n"));
  settle();
  paste("A*2");
  press(Qt::Key_Return);
  EXPECT_EQ(copied(), "3");
}

TEST_F(opened_files, each_file_has_its_turn) {
  platform_->open(file("one.state", "V: 2.7A\r\nR: 10:1.5\r\n"));
  platform_->open(file("two.state", "V: 2.7A\r\nR: 11:4.0\r\n"));
  settle();
  paste("A*B");
  press(Qt::Key_Return);
  EXPECT_EQ(copied(), "6");
}

TEST_F(opened_files, what_can_not_be_opened_is_told_in_a_box) {
  const std::string path = file("letter.txt", "Dear Sir");
  const TBox box = box_of([&] { platform_->open(path); });
  EXPECT_EQ(box.text, "\"letter.txt\" is neither a state file nor a program.");
}

TEST_F(opened_files, a_program_is_among_the_users_programs) {
  const std::string path = file("One.prgm", "N: One\r\nV: 2.7A\r\nI: 12\r\n");
  const TBox box = box_of([&] { platform_->open(path); });
  EXPECT_EQ(box.text, "The program \"One\" is now among the programs.");
  EXPECT_TRUE(QFile::exists(folder_.filePath("programs/One.prgm")));
}

TEST_F(help, is_shown_by_the_desktops_viewer) {
  QFile page(folder_.filePath("Zephyl_help.html"));
  ASSERT_TRUE(page.open(QIODevice::WriteOnly));
  page.write("<p>help</p>");
  page.close();
  start_with(page.fileName().toStdString());
  platform_->show_help();
  EXPECT_EQ(viewer_.source(), QUrl::fromLocalFile(page.fileName()));
}

TEST_F(help, that_is_missing_shows_nothing_and_says_nothing) {
  start_with("");
  const TBox box = box_of([this] { platform_->show_help(); });
  EXPECT_FALSE(box.opened);
  EXPECT_TRUE(viewer_.source().isEmpty());
}
