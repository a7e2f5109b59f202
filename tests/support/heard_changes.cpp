#include "support/heard_changes.h"

namespace trimlog {

namespace {

QString LineOf(const DataChange &change) {
  QStringList words{TableName(change.table)};
  for (const qint64 key : change.keys) words.append(QString::number(key));
  if (!change.personID.isEmpty()) words.append(QStringLiteral("person ") + change.personID);
  if (change.date.isValid()) words.append(change.date.toString(Qt::ISODate));
  return words.join(QLatin1Char(' '));
}

}  // namespace

HeardChanges::HeardChanges(Session &session) {
  const DataChanges *changes = &session.changes;
  connect(changes, &DataChanges::Changed, this, [this](const DataChange &change) { lines.append(LineOf(change)); });
  connect(changes, &DataChanges::StatisticsChanged, this, [this] { lines.append(QStringLiteral("statistics")); });
  connect(changes, &DataChanges::SettingsChanged, this, [this] { lines.append(QStringLiteral("settings")); });
  connect(changes, &DataChanges::ProfileLoaded, this, [this] { lines.append(QStringLiteral("profile loaded")); });
}

std::string HeardChanges::Take() { return std::exchange(lines, {}).join(QStringLiteral("; ")).toStdString(); }

}  // namespace trimlog
