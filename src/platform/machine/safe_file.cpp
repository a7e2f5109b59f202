#include "platform/machine/safe_file.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>
#include <cerrno>
#include <filesystem>
#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>
#endif

#include "platform/error.h"

namespace trimlog {

namespace {

Error WriteError(const QString &path, const QString &why, bool full) {
  return {full ? error_number::diskFull : error_number::cannotOpen,
          QStringLiteral("'%1' could not be written: %2.").arg(path, why)};
}

/// A name beside the path that nobody has, taken; the file goes when this ends unless it was renamed.
class FileBeside {
 public:
  explicit FileBeside(const QString &path) : path_(path) {
    QTemporaryFile taken(path + QStringLiteral(".XXXXXX"));
    taken.setAutoRemove(false);
    if (!taken.open()) throw WriteError(path, taken.errorString(), false);
    name_ = taken.fileName();
    const QFileInfo former(path);
    taken.setPermissions(former.exists() ? former.permissions() : usual);
  }
  ~FileBeside() {
    if (!name_.isEmpty()) QFile::remove(name_);
  }
  FileBeside(const FileBeside &) = delete;
  FileBeside &operator=(const FileBeside &) = delete;
  const QString &Name() const { return name_; }

  void BringToDisk() const {
    QFile file(name_);
    if (!file.open(QIODevice::ReadWrite) || file.size() == 0) {
      throw WriteError(path_, QStringLiteral("nothing was written"), true);
    }
#ifdef Q_OS_UNIX
    if (fsync(file.handle()) != 0) throw WriteError(path_, QString::fromLocal8Bit(strerror(errno)), errno == ENOSPC);
#endif
  }
  void Rename() {
    std::error_code failure;
    std::filesystem::rename(name_.toStdU16String(), path_.toStdU16String(), failure);
    if (failure) throw WriteError(path_, QString::fromStdString(failure.message()), false);
    name_.clear();
    FlushFolder(QFileInfo(path_).absolutePath());
  }

 private:
  static constexpr QFile::Permissions usual =
      QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther;
  const QString path_;
  QString name_;
};

}  // namespace

void FlushFolder([[maybe_unused]] const QString &folder) {
#ifdef Q_OS_UNIX
  const int descriptor = open(QFile::encodeName(folder).constData(), O_RDONLY | O_CLOEXEC);
  if (descriptor < 0) return;
  fsync(descriptor);
  close(descriptor);
#endif
}

void WriteSafely(const QString &path, const std::function<void(const QString &)> &write,
                 const std::function<bool(const QString &)> &check) {
  FileBeside beside(path);
  write(beside.Name());
  beside.BringToDisk();
  if (check && !check(beside.Name())) throw WriteError(path, QStringLiteral("it did not reach the disk whole"), true);
  beside.Rename();
}

void WriteSafely(const QString &path, const QByteArray &content) {
  WriteSafely(
      path,
      [&path, &content](const QString &beside) {
        QFile file(beside);
        if (!file.open(QIODevice::WriteOnly)) throw WriteError(path, file.errorString(), false);
        if (file.write(content) != content.size() || !file.flush()) throw WriteError(path, file.errorString(), true);
      },
      [&content](const QString &beside) { return QFileInfo(beside).size() == content.size(); });
}

}  // namespace trimlog
