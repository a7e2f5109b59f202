#include "core/session/error_log.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>

#include "platform/machine/private_file.h"

namespace trimlog {

namespace {

/// One entry is one line, whatever stands in the message.
QString OnOneLine(QString text) {
  static const QRegularExpression lineBreaks(QStringLiteral("[\\r\\n]+"));
  return text.replace(lineBreaks, QStringLiteral(" "));
}

}  // namespace

void AppendLogLine(const Session &session, const QString &path, const QString &message) {
  CreatePrivate(path);
  MakePrivate(path);
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Text)) return;
  const QString when = session.clock.Now().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
  file.write((when + QStringLiteral(" - ") + OnOneLine(message) + u'\n').toUtf8());
}

void LogError(const Session &session, const QString &module, const QString &procedure, const QString &message) {
  AppendLogLine(session, QDir(session.programDirectory).filePath(QStringLiteral("errorlog.txt")),
                module + QStringLiteral(", ") + procedure + QStringLiteral(", ") + message);
}

}  // namespace trimlog
