#include "platform/desktop/data_folder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace zephyl {

std::string desktop_data_folder() {
  const QString own = QCoreApplication::applicationDirPath();
  if (QFileInfo(own).isWritable()) return own.toStdString();
  const QString users = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
  QDir().mkpath(users);
  return users.toStdString();
}

}  // namespace zephyl
