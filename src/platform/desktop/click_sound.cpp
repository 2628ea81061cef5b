#include "platform/desktop/click_sound.h"

#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

namespace zephyl {

namespace {

// What plays a file under PipeWire, PulseAudio and bare ALSA, in the order of preference.
const QStringList PLAYERS[] = {{"pw-play"}, {"paplay"}, {"aplay", "-q"}};

}  // namespace

void TClickSound::find_player() {
  if (searched_) return;
  searched_ = true;
  for (const QStringList& player : PLAYERS) {
    if (QStandardPaths::findExecutable(player.first()).isEmpty()) continue;
    player_ = player;
    return;
  }
}

void TClickSound::play() {
  const QString file = QString::fromStdString(file_);
  if (!QFileInfo::exists(file)) return;
  find_player();
  if (player_.isEmpty()) return;
  QProcess process;
  process.setProgram(player_.first());
  process.setArguments(player_.mid(1) << file);
  process.setStandardOutputFile(QProcess::nullDevice());
  process.setStandardErrorFile(QProcess::nullDevice());
  process.startDetached();
}

}  // namespace zephyl
