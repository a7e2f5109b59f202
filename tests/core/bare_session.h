#pragma once

#include <QTemporaryDir>

#include "platform/machine/operating_system.h"
#include "support/test_session.h"

namespace trimlog {

/// A session on an empty program directory: no data file is opened and no setting stored.
class BareSession {
 public:
  /// The error log as it stands.
  QString Log() const {
    QFile file(directory.filePath("errorlog.txt"));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
  }
  QStringList LogLines() const { return Log().split(u'\n', Qt::SkipEmptyParts); }
  void Put(const QString &name, const QString &value) { store->SaveSettingString(settingsRoot, name, value); }
  QString Setting(const QString &name) const { return store->GetSettingString(settingsRoot, name, "none"); }

  QTemporaryDir directory;
  FixedClock clock{QDateTime(QDate(2026, 3, 1), QTime(12, 0))};
  RecordingMachine machine;
  QueuedBoxes boxes;
  RecordingPrinting printing;
  std::unique_ptr<SettingsStore> store = MemorySettings();
  Session session{
      {directory.path(), *store, clock, machine, boxes, printing, QLocale(QLocale::English, QLocale::UnitedStates)}};
};

/// A registry that holds what a test puts in, on a system that a test chooses.
class TestSystem final : public OperatingSystem {
 public:
  WindowsVersion Version() const override { return version; }
  std::optional<QVariant> ReadKey(KeyRoot, const QString &key, const QString &valueName) const override {
    const auto found = values.find(key + u'|' + valueName);
    return found == values.end() ? std::nullopt : std::optional<QVariant>(*found);
  }
  WindowsVersion version;
  QMap<QString, QString> values;
};

}  // namespace trimlog
