// zephyl-dialog-pictures FOLDER TRANSCRIPT...   writes a picture of each dialog that opens in the transcripts
// zephyl-dialog-pictures FOLDER --samples       writes the made-up dialogs of the tests
//
// Each dialog is written as it opens, the first time: "103-setup-options.png" and, for dense screens,
// "103-setup-options@2x.png". Nothing is shown on a screen.

#include <sys/wait.h>
#include <unistd.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <cstdio>
#include <cstring>

#include "app/start_up.h"
#include "dialog_pictures/dialog_picture.h"
#include "platform/dialog.h"
#include "platform/script/script.h"
#include "platform_desktop/sample_dialogs.h"
#include "scripts/transcript.h"

namespace zephyl {

namespace {

constexpr int SMALLEST_FILE = 0;  // of the qualities of a PNG

QString file_of(const QString& folder, const QString& name, int scale) {
  return folder + "/" + name + (scale == 1 ? "" : QString("@%1x").arg(scale)) + ".png";
}

void write_pictures(const QString& folder, const QString& name, TDialog& dialog) {
  for (const int scale : {1, 2}) {
    const QString path = file_of(folder, name, scale);
    if (!dialog_picture(dialog, scale).save(path, "PNG", SMALLEST_FILE))
      std::fprintf(stderr, "cannot write %s\n", qPrintable(path));
  }
}

QString name_of(const TDialog& dialog) {
  static const QRegularExpression others("[^a-z0-9]+");
  const QString title = QString::fromStdString(dialog.title).toLower().replace(others, "-");
  return QString("%1-%2").arg(dialog.id()).arg(title);
}

// The calculator of a transcript, whose dialogs are looked at before the script works them.
class TPicturePlatform : public TScriptPlatform {
 public:
  explicit TPicturePlatform(QString folder) : folder_(std::move(folder)) {}
  // Each is drawn once, however often it opens and under whatever title.
  void before_dialog(TDialog& dialog) override {
    const QStringList drawn = QDir(folder_).entryList({QString("%1-*.png").arg(dialog.id())});
    if (drawn.isEmpty()) write_pictures(folder_, name_of(dialog), dialog);
  }

 private:
  QString folder_;
};

int write_samples(const QString& folder) {
  for (const auto& [name, make] : sample_dialogs()) {
    TDialog dialog = make();
    write_pictures(folder, "sample-" + QString::fromStdString(name), dialog);
  }
  return 0;
}

int write_dialogs(const QString& folder, const char* path) {
  TTranscript transcript;
  TPicturePlatform platform(folder);
  return read_transcript(path, transcript) && run_transcript(transcript, platform) ? 0 : 1;
}

// Each transcript has a calculator of its own.
template <typename TWork>
int in_another_process(TWork work) {
  const pid_t child = fork();
  if (child == 0) _exit(work());
  int status = 1;
  waitpid(child, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : 1;
}

int with_application(int argc, char** argv, const char* what) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  const QString folder = QFileInfo(QFile::decodeName(argv[1])).absoluteFilePath();
  return std::strcmp(what, "--samples") == 0 ? write_samples(folder) : write_dialogs(folder, what);
}

}  // namespace

}  // namespace zephyl

int main(int argc, char** argv) {
  if (argc < 3) {
    std::fprintf(stderr, "zephyl-dialog-pictures FOLDER TRANSCRIPT... | --samples\n");
    return 2;
  }
  int failures = 0;
  for (int i = 2; i < argc; ++i)
    failures += zephyl::in_another_process([&] { return zephyl::with_application(argc, argv, argv[i]); });
  return failures == 0 ? 0 : 1;
}
