#include "support/heard_changes.h"

namespace trimlog {

namespace {

QString LineOf(const DataChange &change) {
  QStringList words{TableName(change.table)};
  for (const qint64 key : change.keys) words.append(QString::number(key));
  if (!change.personID.isEmpty()) words.append("person " + change.personID);
  if (change.date.isValid()) words.append(change.date.toString(Qt::ISODate));
  return words.join(QLatin1Char(' '));
}

}  // namespace

HeardChanges::HeardChanges(Session &session) {
  const DataChanges *changes = &session.changes;
  connect(changes, &DataChanges::Changed, this, [this](const DataChange &change) { lines.append(LineOf(change)); });
  connect(changes, &DataChanges::StatisticsChanged, this, [this] { lines.append("statistics"); });
  connect(changes, &DataChanges::SettingsChanged, this, [this] { lines.append("settings"); });
  connect(changes, &DataChanges::ProfileLoaded, this, [this] { lines.append("profile loaded"); });
}

std::string HeardChanges::Take() { return std::exchange(lines, {}).join("; ").toStdString(); }

}  // namespace trimlog
