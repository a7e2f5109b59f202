#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

namespace trimlog {

/// A tab-separated text file with a header line, read whole. Throws Error for a missing file, a line whose fields do
/// not match the header, or an unknown column: a fact file that is wrong must stop the build.
class TsvTable {
 public:
  explicit TsvTable(const QString &path);

  const QStringList &Columns() const { return columns_; }
  qsizetype RowCount() const { return rows_.size(); }
  QString Text(qsizetype row, const QString &column) const;
  int Integer(qsizetype row, const QString &column) const;    ///< throws for text that is no whole number
  double Number(qsizetype row, const QString &column) const;  ///< throws for text that is no number

 private:
  [[noreturn]] void Refuse(qsizetype row, const QString &reason) const;

  QString path_;
  QStringList columns_;
  QHash<QString, qsizetype> positions_;
  QList<QStringList> rows_;
};

}  // namespace trimlog
