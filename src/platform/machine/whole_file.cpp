#include "platform/machine/whole_file.h"

#include <QSaveFile>

#include "platform/error.h"

namespace trimlog {

namespace {

[[noreturn]] void Fail(const QFileDevice &file) {
  const bool full = file.error() == QFileDevice::WriteError || file.error() == QFileDevice::ResourceError;
  throw Error(full ? error_number::diskFull : error_number::cannotOpen,
              QStringLiteral("%1: %2").arg(file.fileName(), file.errorString()));
}

}  // namespace

void WriteWholeFile(const QString &path, const QByteArray &content) {
  QSaveFile file(path);
  // Without a buffer of Qt's: what it holds back until the end may fail there without a word.
  if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) Fail(file);
  if (file.write(content) != content.size() || !file.flush()) Fail(file);
  if (file.size() != content.size()) {
    throw Error(error_number::diskFull, QStringLiteral("%1: written in part only").arg(path));
  }
  if (!file.commit()) Fail(file);
}

}  // namespace trimlog
