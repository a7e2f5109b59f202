#include "platform/machine/settings_store.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

#include "platform/machine/private_file.h"
#include "platform/machine/safe_file.h"

namespace trimlog {

namespace {

QString UpToNul(const QString &text) { return text.section(QChar(0), 0, 0); }

/// One group per key path in an INI file: "[Software%5CCorvane%20Software%5C...]". QSettings writes through a temporary
/// file that it flushes to the disk and renames, so that a crash leaves the old values or the new ones.
class IniStore final : public SettingsStore {
 public:
  explicit IniStore(const QString &path) : ini_(Open(path)) { MakePrivate(path); }

  QString GetSettingString(const QString &key, const QString &valueName, const QString &fallback) const override {
    const QVariant value = ini_->value(PathOf(key, valueName));
    // A list is a line that somebody edited by hand; it is no text of ours.
    return value.typeId() == QMetaType::QString ? UpToNul(value.toString()) : fallback;
  }
  bool SaveSettingString(const QString &key, const QString &valueName, const QString &value) override {
    ini_->setValue(PathOf(key, valueName), value);
    changed_ = true;
    return Written();
  }
  bool DeleteValue(const QString &key, const QString &valueName) override {
    if (!ini_->contains(PathOf(key, valueName))) return false;
    ini_->remove(PathOf(key, valueName));
    changed_ = true;
    return Written();
  }
  bool DeleteKey(const QString &key) override {
    bool any = false;
    for (const QString &group : ini_->childGroups()) {
      if (group != Escaped(key) && !group.startsWith(Escaped(key + u'\\'))) continue;
      ini_->remove(group);
      any = changed_ = true;
    }
    return any && Written();
  }
  bool CreateKey(const QString &) override { return ini_->isWritable(); }  // a group is there once it holds a value

  void BeginBatch() override { ++batches_; }
  bool EndBatch() override {
    --batches_;
    return Written();
  }

 private:
  /// QSettings takes the slash for its own level mark.
  static QString Escaped(QString text) {
    return text.replace(u'%', QLatin1String("%25")).replace(u'/', QLatin1String("%2F"));
  }
  static QString PathOf(const QString &key, const QString &valueName) {
    return Escaped(key) + u'/' + Escaped(valueName);
  }
  static std::unique_ptr<QSettings> Open(const QString &path) {
    return std::make_unique<QSettings>(path, QSettings::IniFormat);
  }
  bool Written() {
    if (batches_ > 0) return true;
    // QSettings never forgets a failure; a second one on the file shares what waits to be written, and does.
    if (ini_->status() != QSettings::NoError) ini_ = Open(ini_->fileName());
    if (changed_) {  // a batch that found nothing to write costs no waiting for the disk
      const QString folder = QFileInfo(ini_->fileName()).absolutePath();
      QDir().mkpath(folder);
      CreatePrivate(ini_->fileName());  // what takes its place keeps its rights
      ini_->sync();
      FlushFolder(folder);
    }
    changed_ = ini_->status() != QSettings::NoError;
    if (changed_ && writeFailed) writeFailed(ini_->fileName());
    return !changed_;
  }

  std::unique_ptr<QSettings> ini_;
  int batches_ = 0;
  bool changed_ = false;  ///< something is not on the disk yet
};

#ifdef Q_OS_WIN
/// The registry of the user who is signed in.
class RegistryStore final : public SettingsStore {
 public:
  QString GetSettingString(const QString &key, const QString &valueName, const QString &fallback) const override {
    const QVariant value = QSettings(PathOf(key), QSettings::NativeFormat).value(valueName);
    return value.typeId() == QMetaType::QString ? UpToNul(value.toString()) : fallback;
  }
  bool SaveSettingString(const QString &key, const QString &valueName, const QString &value) override {
    QSettings registry(PathOf(key), QSettings::NativeFormat);
    registry.setValue(valueName, value);
    return Written(registry);
  }
  bool DeleteValue(const QString &key, const QString &valueName) override {
    QSettings registry(PathOf(key), QSettings::NativeFormat);
    if (!registry.contains(valueName)) return false;
    registry.remove(valueName);
    return Written(registry);
  }
  bool DeleteKey(const QString &key) override {
    QSettings registry(PathOf(key), QSettings::NativeFormat);
    const bool any = !registry.allKeys().isEmpty();
    registry.remove(QString());
    return any && Written(registry);
  }
  bool CreateKey(const QString &key) override { return QSettings(PathOf(key), QSettings::NativeFormat).isWritable(); }

 private:
  static QString PathOf(const QString &key) { return QStringLiteral("HKEY_CURRENT_USER\\") + key; }
  bool Written(QSettings &registry) const {
    registry.sync();
    if (registry.status() == QSettings::NoError) return true;
    if (writeFailed) writeFailed(registry.fileName());
    return false;
  }
};
#endif

}  // namespace

int SettingsStore::GetSettingLong(const QString &key, const QString &valueName, int fallback) const {
  bool ok = false;
  const int value = GetSettingString(key, valueName).trimmed().toInt(&ok);
  return ok ? value : fallback;
}

bool SettingsStore::SaveSettingLong(const QString &key, const QString &valueName, int value) {
  return SaveSettingString(key, valueName, QString::number(value));
}

int SettingsStore::GetSettingByte(const QString &key, const QString &valueName, int fallback) const {
  constexpr int largest = 255;
  const int value = GetSettingLong(key, valueName, -1);
  return value >= 0 && value <= largest ? value : fallback;
}

bool SettingsStore::SaveSettingByte(const QString &key, const QString &valueName, int value) {
  return SaveSettingLong(key, valueName, value);
}

std::unique_ptr<SettingsStore> OpenUserSettings() {
#ifdef Q_OS_WIN
  return std::make_unique<RegistryStore>();
#else
  const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
  return OpenSettingsFile(folder + QStringLiteral("/Corvane Software/Trimlog.ini"));
#endif
}

std::unique_ptr<SettingsStore> OpenSettingsFile(const QString &path) { return std::make_unique<IniStore>(path); }

}  // namespace trimlog
