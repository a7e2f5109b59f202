#include "journal/day/grid_layout.h"

#include <QFile>
#include <QStringList>

#include "core/session/error_log.h"
#include "core/session/session.h"

namespace trimlog {

namespace {

constexpr int widestColumn = 200;         // average characters
constexpr qint64 largestLayout = 100000;  // bytes: nobody writes a longer one

/// Takes one line over into the columns; false when it is no line of a layout.
bool ApplyLine(const QString &line, GridColumns &columns) {
  const QStringList words = line.split(QLatin1Char(' '));
  const int column = words.size() == 2 ? ColumnIndex(columns, words[0]) : -1;
  if (column < 0) return false;
  if (words[1] == QStringLiteral("hidden")) {
    columns[column].visible = false;
    return true;
  }
  bool isNumber = false;
  const int width = words[1].toInt(&isNumber);
  if (!isNumber || width < 1 || width > widestColumn) return false;
  columns[column].width = width;
  return true;
}

}  // namespace

bool ApplyLayout(const QString &text, GridColumns &columns, QString &complaint) {
  GridColumns laidOut = columns;
  int number = 0;
  for (const QString &line : text.split(QLatin1Char('\n'))) {
    ++number;
    const QString words = line.section(QLatin1Char('#'), 0, 0).simplified();
    if (words.isEmpty() || ApplyLine(words, laidOut)) continue;
    complaint = QStringLiteral("line %1 is no column and width: %2").arg(number).arg(words.left(60));
    return false;
  }
  columns = std::move(laidOut);
  return true;
}

void LoadLayout(const Session &session, const QString &fileName, GridColumns &columns) {
  QFile file(session.programDirectory + QLatin1Char('/') + fileName);
  if (!file.exists()) return;
  QString complaint = QStringLiteral("it cannot be read");
  const bool readable = file.open(QIODevice::ReadOnly) && file.size() <= largestLayout;
  if (readable && ApplyLayout(QString::fromUtf8(file.readAll()), columns, complaint)) return;
  LogError(session, QStringLiteral("basDiaryFunctions"), QStringLiteral("LoadLayout"),
           QStringLiteral("%1 is passed over: %2").arg(fileName, complaint));
}

}  // namespace trimlog
