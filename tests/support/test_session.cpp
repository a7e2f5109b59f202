#include "support/test_session.h"

#include <gtest/gtest.h>

#include <map>

#include "core/data/data_access.h"
#include "core/session/change.h"
#include "platform/store/recordset.h"
#include "support/paths.h"

namespace trimlog {

namespace {

class MemoryStore final : public SettingsStore {
 public:
  QString GetSettingString(const QString &key, const QString &valueName, const QString &fallback) const override {
    const auto found = values_.find({key, valueName});
    if (found == values_.end()) return fallback;
    return found->second.section(QChar(0), 0, 0);
  }
  bool SaveSettingString(const QString &key, const QString &valueName, const QString &value) override {
    values_[{key, valueName}] = value;
    return true;
  }
  bool DeleteValue(const QString &key, const QString &valueName) override {
    return values_.erase({key, valueName}) > 0;
  }
  bool DeleteKey(const QString &key) override {
    return std::erase_if(values_, [&key](const auto &entry) {
             return entry.first.first == key || entry.first.first.startsWith(key + QLatin1Char('\\'));
           }) > 0;
  }
  bool CreateKey(const QString &) override { return true; }

 private:
  std::map<std::pair<QString, QString>, QString> values_;
};

}  // namespace

std::unique_ptr<SettingsStore> MemorySettings() { return std::make_unique<MemoryStore>(); }

TestSession::TestSession(const QLocale &locale) {
  EXPECT_TRUE(QFile::copy(ShippedDir() + "/tlg.dat", directory.filePath("tlg.dat")));
  session = std::make_unique<Session>(SessionPlaces{directory.path(), *store, clock, machine, boxes, printing, locale});
  boxes.changeOpen = [this] { return session->database && session->database->InTransaction(); };
  session->database = Database::Open(session->DataFilePath());
  LoadControlValues(session->settings, *store, true);
  FillNutrientDefinitions(session->nutrients, Data());
  AddProfile(1, "Test Person");
  session->profile.CurrentPersonID = "1";
  session->profile.LastRealPersonID = "1";
  session->UomDisplay = "Lbs";
}

void TestSession::AddProfile(int personID, const QString &name, const QString &goal) {
  Data().Execute(
      "INSERT INTO people ( PersonID, PersonName, Goal, GenderID, BirthDate, HeightFeet, "
      "HeightInches, NutTargetID ) VALUES ( ?, ?, ?, 2, #1/1/1990#, 5, 6, 30 );",
      {personID, name, goal});
}

void TestSession::Announce(const DataChange &told) {
  Change change(*session);
  change.Announce(told);
  change.Commit();
}

QString TestSession::ValueOf(const QString &field, const QString &table, const QString &where) {
  return GetDataValue(Data(), field, table, where);
}

QString TestSession::Rows(const QString &query, const Params &params) {
  QStringList rows;
  for (Recordset found = Data().OpenRecordset(query, params); !found.Eof(); found.MoveNext()) {
    QStringList values;
    for (const QString &name : found.FieldNames()) values.append(found.Text(name));
    rows.append(values.join(u'|'));
  }
  return rows.join("; ");
}

void TestSession::Weigh(const QDate &date, double weight, int personID) {
  Data().Execute("INSERT INTO weight_loss ( PersonID, ThisDate, ThisWeight, ThisLoss ) VALUES ( ?, ?, ?, 0 );",
                 {personID, date, weight});
}

QStringList TestSession::LogLines() const {
  QFile file(directory.filePath("errorlog.txt"));
  if (!file.open(QIODevice::ReadOnly)) return {};
  return QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

}  // namespace trimlog
