#include "maker/tsv_table.h"

#include <QFile>

#include "platform/error.h"

namespace trimlog {

TsvTable::TsvTable(const QString &path) : path_(path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) {
    throw Error(error_number::fileMissing, QStringLiteral("%1: %2").arg(path, file.errorString()));
  }
  QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
  if (!lines.isEmpty() && lines.last().isEmpty()) lines.removeLast();
  if (lines.isEmpty()) Refuse(0, QStringLiteral("no header line"));
  columns_ = lines.takeFirst().split(QLatin1Char('\t'));
  for (qsizetype i = 0; i < columns_.size(); ++i) positions_.insert(columns_[i], i);
  for (const QString &line : lines) {
    rows_.append(line.split(QLatin1Char('\t')));
    if (rows_.last().size() != columns_.size()) {
      Refuse(rows_.size() - 1,
             QStringLiteral("%1 fields in place of %2").arg(rows_.last().size()).arg(columns_.size()));
    }
  }
}

QString TsvTable::Text(qsizetype row, const QString &column) const {
  const auto position = positions_.constFind(column);
  if (position == positions_.constEnd()) Refuse(row, QStringLiteral("no column ") + column);
  return rows_[row][*position];
}

int TsvTable::Integer(qsizetype row, const QString &column) const {
  bool ok = false;
  const int value = Text(row, column).toInt(&ok);
  if (!ok) Refuse(row, column + QStringLiteral(" is no whole number"));
  return value;
}

double TsvTable::Number(qsizetype row, const QString &column) const {
  bool ok = false;
  const double value = Text(row, column).toDouble(&ok);
  if (!ok) Refuse(row, column + QStringLiteral(" is no number"));
  return value;
}

void TsvTable::Refuse(qsizetype row, const QString &reason) const {
  throw Error(error_number::other, QStringLiteral("%1, line %2: %3").arg(path_).arg(row + 2).arg(reason));
}

}  // namespace trimlog
