#include "platform/desktop/file_question.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QString>

#include "platform/platform.h"

namespace zephyl {

namespace {

QString last_folder;

QString filter_of(const TFileQuestion& question) {
  return QString("%1 (*.%2)")
      .arg(QString::fromUtf8(question.type_name), QString::fromUtf8(question.extension));
}

}  // namespace

bool ask_for_file(const TFileQuestion& question, QWidget* parent, const QString& folder, std::string& path) {
  QFileDialog box(parent, QString::fromUtf8(question.title), last_folder.isEmpty() ? folder : last_folder,
                  filter_of(question));
  box.setAcceptMode(question.save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  box.setFileMode(question.save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
  box.setDefaultSuffix(QString::fromUtf8(question.extension));
  if (box.exec() != QDialog::Accepted || box.selectedFiles().isEmpty()) return false;
  const QString chosen = box.selectedFiles().first();
  last_folder = QFileInfo(chosen).absolutePath();
  path = chosen.toStdString();
  return true;
}

}  // namespace zephyl
