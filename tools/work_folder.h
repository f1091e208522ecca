#pragma once

#include <QDir>
#include <QFile>
#include <stdexcept>
#include <string>

namespace telarium {

inline bool CopyFolder(const QDir& from, const QDir& to) {
  if (!to.mkpath(QStringLiteral("."))) return false;
  for (const QString& name : from.entryList(QDir::Files))
    if (!QFile::copy(from.filePath(name), to.filePath(name))) return false;
  for (const QString& name : from.entryList(QDir::Dirs | QDir::NoDotAndDotDot))
    if (!CopyFolder(from.filePath(name), to.filePath(name))) return false;
  return true;
}

// A copy of the data folder, as long as this object lives.
class WorkFolder {
 public:
  WorkFolder(const QString& name, const QDir& data) : folder_(QDir(name).absolutePath()) {
    if (folder_.exists()) throw std::runtime_error("there is already " + name.toStdString());
    if (CopyFolder(data, folder_)) return;
    folder_.removeRecursively();
    throw std::runtime_error("cannot copy the data folder to " + name.toStdString());
  }
  ~WorkFolder() { folder_.removeRecursively(); }
  WorkFolder(const WorkFolder&) = delete;
  WorkFolder& operator=(const WorkFolder&) = delete;

  std::string Path() const { return QFile::encodeName(folder_.path()).toStdString(); }

 private:
  QDir folder_;
};

}  // namespace telarium
