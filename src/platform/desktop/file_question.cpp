#include "platform/desktop/file_question.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QString>

#include "platform/platform.h"

namespace zephyl {

namespace {

QString last_folder;

QString filter_of(const TFileQuestion& question) {
  return QString("%1 (*.%2)")
      .arg(QString::fromUtf8(question.type_name), QString::fromUtf8(question.extension));
}

// The question comes for the file that will be written, which the box doesn't know: it would ask for the name as typed.
bool may_replace(const QString& file, const TFileQuestion& question, QWidget* parent) {
  if (!QFileInfo::exists(file)) return true;
  const QString text = QString("%1 already exists.\nDo you want to replace it?").arg(QFileInfo(file).fileName());
  return QMessageBox::warning(parent, QString::fromUtf8(question.title), text, QMessageBox::Yes | QMessageBox::No,
                              QMessageBox::No) == QMessageBox::Yes;
}

// The chosen file; "" on Cancel.
QString chosen_file(QFileDialog& box, const TFileQuestion& question) {
  while (box.exec() == QDialog::Accepted && !box.selectedFiles().isEmpty()) {
    const QString chosen = box.selectedFiles().first();
    if (!question.save) return chosen;
    const QString file = QString::fromStdString(path_to_save(question, chosen.toStdString()));
    if (may_replace(file, question, box.parentWidget())) return file;
  }
  return {};
}

}  // namespace

bool ask_for_file(const TFileQuestion& question, QWidget* parent, const QString& folder, std::string& path) {
  QFileDialog box(parent, QString::fromUtf8(question.title), last_folder.isEmpty() ? folder : last_folder,
                  filter_of(question));
  box.setAcceptMode(question.save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  box.setFileMode(question.save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
  box.setOption(QFileDialog::DontConfirmOverwrite);
  if (!question.save) box.setDefaultSuffix(QString::fromUtf8(question.extension));
  const QString chosen = chosen_file(box, question);
  if (chosen.isEmpty()) return false;
  last_folder = QFileInfo(chosen).absolutePath();
  path = chosen.toStdString();
  return true;
}

}  // namespace zephyl
