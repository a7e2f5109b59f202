#include "platform/machine/private_file.h"

#include <QFile>

namespace trimlog {

namespace {

[[maybe_unused]] constexpr QFile::Permissions owners = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
[[maybe_unused]] constexpr QFile::Permissions others =
    QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup | QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;

}  // namespace

void MakePrivate([[maybe_unused]] const QString &path) {
#ifdef Q_OS_UNIX
  const QFile::Permissions found = QFile::permissions(path);
  if (found & others) QFile::setPermissions(path, found & owners);
#endif
}

bool CreatePrivate(const QString &path) {
  QFile file(path);
  return file.open(QIODevice::WriteOnly | QIODevice::NewOnly, QFile::ReadOwner | QFile::WriteOwner);
}

}  // namespace trimlog
