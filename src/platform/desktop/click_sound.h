// The sound of a key, played by a program of the desktop: a whole sound library would weigh more than the
// calculator.
#pragma once

#include <QStringList>
#include <string>

namespace zephyl {

class TClickSound {
 public:
  explicit TClickSound(std::string file) : file_(std::move(file)) {}

  // Returns at once. Silent without the file, and where no player is installed.
  void play();

 private:
  void find_player();

  std::string file_;
  bool searched_ = false;
  QStringList player_;  // its name and the arguments in front of the file
};

}  // namespace zephyl
