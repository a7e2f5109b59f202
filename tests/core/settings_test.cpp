#include "core/settings/settings.h"

#include <gtest/gtest.h>

#include "core/settings/window_position.h"
#include "core/start/edition.h"
#include "platform/error.h"
#include "support/test_session.h"

namespace trimlog {
namespace {

constexpr int saved = 1;  // by SaveControlValues
constexpr int unsaved = 0;

struct Row {
  const char *name;
  const char *fallback;
  const char *other;    // another value that it takes
  QStringList refused;  // values that count as missing
  int whenSaved;
};

QStringList Bad(std::initializer_list<const char *> texts) {
  QStringList list = {QString(), QStringLiteral("abc"), QStringLiteral("1.5"), QStringLiteral("99999999999")};
  for (const char *text : texts) list.append(QLatin1String(text));
  return list;
}
const QStringList badBoolean = Bad({"1", "true", "-1 ", "00", "False"});
const QStringList badWhole = Bad({"32768", "-32769"});

std::vector<Row> Table() {
  std::vector<Row> rows = {
      {"UomID", "1", "2", Bad({"0", "3"}), saved},
      {"OpenToday", "-1", "0", badBoolean, saved},
      {"ShowLoss", "0", "-1", badBoolean, saved},
      {"ColorCoding", "-1", "0", badBoolean, saved},
      {"LossFactor", "1", "-1", Bad({"0", "2", "-2"}), saved},
      {"ShowCalories", "-1", "0", badBoolean, saved},
      {"NutrientID", "102", "35", Bad({"0", "36", "100", "103"}), saved},
      {"BodyMeasDefault", "1", "8", Bad({"0", "9"}), saved},
      {"LinkDisclaimer", "0", "-1", badBoolean, saved},
      {"RecalcCalories", "-1", "0", badBoolean, saved},
      {"ShowSplash", "-1", "0", badBoolean, saved},
      {"ConfirmDeletes", "-1", "0", badBoolean, saved},
      {"ConfirmMealsUpdates", "2", "0", Bad({"3", "-1"}), saved},
      {"ConfirmExerciseUpdates", "2", "1", Bad({"3", "-1"}), saved},
      {"SmartDates", "-1", "0", badBoolean, saved},
      {"BodyFat", "-1", "0", badBoolean, saved},
      {"NetCaloriesBMR", "-1", "0", badBoolean, saved},
      {"PersonID", "1", "17", {QString()}, unsaved},
      {"NotesLines", "3", "10", Bad({"0", "4", "11"}), unsaved},
      {"DefaultDiaryTab", "1", "0", Bad({"4", "-1"}), saved},
      {"LastDiaryView", "2", "1", Bad({"0", "3"}), unsaved},
      {"LastPlannerView", "2", "1", Bad({"0", "3"}), unsaved},
      {"ShowTutorial", "-1", "0", badBoolean, unsaved},
      {"UserName", "Unknown User", "Smith, \"J\"", {QString()}, unsaved},
      {"MedicalDisclaimer", "0", "-1", badBoolean, saved},
      {"FastFoodDisclaimer", "0", "-1", badBoolean, unsaved},
      {"LastRecordTypeMeals", "-1", "-3", Bad({"7", "4", "-4"}), unsaved},
  };
  static const char *const perChart[6][4] = {
      {"ShowGridlines1", "ShowGridlines2", "ShowGridlines3", "ShowGridlines4"},
      {"ShowDataLabels1", "ShowDataLabels2", "ShowDataLabels3", "ShowDataLabels4"},
      {"PlotPoints1", "PlotPoints2", "PlotPoints3", "PlotPoints4"},
      {"LineWidth1", "LineWidth2", "LineWidth3", "LineWidth4"},
      {"LineColor1", "LineColor2", "LineColor3", "LineColor4"},
      {"PointColor1", "PointColor2", "PointColor3", "PointColor4"}};
  for (int chart = 0; chart < 4; ++chart) {
    rows.push_back({perChart[0][chart], "-1", "0", badBoolean, saved});
    rows.push_back({perChart[1][chart], "0", "-1", badBoolean, saved});
    rows.push_back({perChart[2][chart], "-1", "0", badBoolean, saved});
    rows.push_back({perChart[3][chart], "1", "5", badWhole, saved});
    rows.push_back({perChart[4][chart], "16711680", "255", Bad({"-1", "16777216"}), saved});
    rows.push_back({perChart[5][chart], "0", "16777215", Bad({"-1", "16777216"}), saved});
  }
  return rows;
}

class SettingsTable : public ::testing::Test {
 protected:
  QString InStore(const char *name) const { return store->GetSettingString(settingsRoot, QLatin1String(name)); }
  void Put(const char *name, const QString &text) { store->SaveSettingString(settingsRoot, QLatin1String(name), text); }
  QString InMember(const char *name) const { return StoredValue(settings, QLatin1String(name)); }

  std::unique_ptr<SettingsStore> store = MemorySettings();
  Settings settings;
};

TEST_F(SettingsTable, AnEmptyStoreIsFilledWithTheDefaults) {
  LoadControlValues(settings, *store, true);
  for (const Row &row : Table()) {
    EXPECT_EQ(InStore(row.name).toStdString(), row.fallback) << row.name;
    EXPECT_EQ(InMember(row.name).toStdString(), row.fallback) << row.name;
  }
  EXPECT_EQ(static_cast<size_t>(SettingRows().size()), Table().size()) << "a row that this test does not know";
}

TEST_F(SettingsTable, AGoodValueIsTakenAndStays) {
  for (const Row &row : Table()) Put(row.name, QLatin1String(row.other));
  LoadControlValues(settings, *store, true);
  for (const Row &row : Table()) {
    EXPECT_EQ(InMember(row.name).toStdString(), row.other) << row.name;
    EXPECT_EQ(InStore(row.name).toStdString(), row.other) << row.name;
  }
}

TEST_F(SettingsTable, ABadValueCountsAsMissing) {
  for (const Row &row : Table()) {
    for (const QString &bad : row.refused) {
      Put(row.name, QLatin1String(row.other));
      LoadControlValues(settings, *store, false);
      Put(row.name, bad);
      LoadControlValues(settings, *store, false);
      EXPECT_EQ(InMember(row.name).toStdString(), row.other)
          << row.name << " keeps what it had at '" << bad.toStdString() << "'";
      EXPECT_EQ(InStore(row.name), bad) << row.name;

      LoadControlValues(settings, *store, true);
      EXPECT_EQ(InMember(row.name).toStdString(), row.fallback) << row.name << " at '" << bad.toStdString() << "'";
      EXPECT_EQ(InStore(row.name).toStdString(), row.fallback) << row.name;
    }
  }
}

TEST_F(SettingsTable, SavingWritesWhatTheOptionsWindowEditsAndNothingElse) {
  for (const Row &row : Table()) Put(row.name, QLatin1String(row.other));
  LoadControlValues(settings, *store, false);
  store = MemorySettings();
  SaveControlValues(settings, *store);
  for (const Row &row : Table()) {
    EXPECT_EQ(InStore(row.name).toStdString(), row.whenSaved == saved ? row.other : "") << row.name;
  }
  for (const Row &row : Table()) {
    SaveSetting(settings, *store, QLatin1String(row.name));
    EXPECT_EQ(InStore(row.name).toStdString(), row.other) << row.name;
  }
  EXPECT_THROW(SaveSetting(settings, *store, QStringLiteral("ShowLosses")), Error);
}

class Geometry : public ::testing::Test {
 protected:
  Geometry() : session({folder.path(), *store, clock, machine, boxes, printing, QLocale::c()}) {}
  void Put(const char *name, const char *text) {
    store->SaveSettingString(settingsRoot, QLatin1String(name), QLatin1String(text));
  }
  QString InStore(const char *name) const {
    return store->GetSettingString(settingsRoot, QLatin1String(name), QStringLiteral("none"));
  }
  void Read(WindowGroup group) { WindowPosition(session, false, group, QSize(19200, 15360)); }

  QTemporaryDir folder;
  std::unique_ptr<SettingsStore> store = MemorySettings();
  FixedClock clock{QDateTime(QDate(2026, 3, 1), QTime(12, 0))};
  RecordingMachine machine;
  QueuedBoxes boxes;
  RecordingPrinting printing;
  Session session;
};

void ExpectPlace(const WindowPlace &place, int left, int top, int width, int height) {
  EXPECT_EQ(place.Left, left);
  EXPECT_EQ(place.Top, top);
  EXPECT_EQ(place.Width, width);
  EXPECT_EQ(place.Height, height);
}

TEST_F(Geometry, DefaultsAreCentredAndFollowTheFrame) {
  for (const WindowGroup group :
       {WindowGroup::Frame, WindowGroup::QuickJournalPosition, WindowGroup::QuickJournalSize}) {
    Read(group);
  }
  ExpectPlace(session.windows.framePlace, 4837, 4132, 9525, 7095);
  ExpectPlace(session.windows.quickJournalPlace, 4837 + 9525 - 8235, 4132 + 7095 - 2760, 8235, 2760);
  EXPECT_EQ(InStore("Left"), QStringLiteral("none")) << "a start writes no geometry";

  Put("Width", "12000");
  Put("Left", "-300");
  Put("Top", "oops");
  Put("Height", "0");
  Read(WindowGroup::Frame);
  ExpectPlace(session.windows.framePlace, -300, 4132, 12000, 7095);
}

TEST_F(Geometry, OnlyNormalAndMaximisedAreTaken) {
  for (const auto &[text, state] : {std::pair{"0", 0}, {"1", 0}, {"2", 2}, {"3", 0}, {"", 0}, {"x", 0}}) {
    Put("WindowState", text);
    Read(WindowGroup::Frame);
    EXPECT_EQ(session.windows.frameWindowState, state) << text;
  }
}

TEST_F(Geometry, EachGroupIsWrittenAloneAndReadBack) {
  session.windows.framePlace = {10, 20, 9600, 7200};
  session.windows.frameWindowState = 2;
  session.windows.quickJournalPlace = {30, 40, 8300, 2800};
  WindowPosition(session, true, WindowGroup::Frame);
  EXPECT_EQ(InStore("QDLeft"), QStringLiteral("none"));
  WindowPosition(session, true, WindowGroup::QuickJournalSize);
  EXPECT_EQ(InStore("QDLeft"), QStringLiteral("none"));
  EXPECT_EQ(InStore("QDWidth"), QStringLiteral("8300"));
  WindowPosition(session, true, WindowGroup::QuickJournalPosition);

  session.windows.framePlace = {};
  session.windows.quickJournalPlace = {};
  session.windows.frameWindowState = 0;
  for (const WindowGroup group :
       {WindowGroup::Frame, WindowGroup::QuickJournalPosition, WindowGroup::QuickJournalSize}) {
    Read(group);
  }
  ExpectPlace(session.windows.framePlace, 10, 20, 9600, 7200);
  ExpectPlace(session.windows.quickJournalPlace, 30, 40, 8300, 2800);
  EXPECT_EQ(session.windows.frameWindowState, 2);
}

TEST_F(Geometry, EditionFlags) {
  struct Case {
    const char *text;
    bool bizEd;
    bool serava;
  };
  for (const Case &c : {Case{"", false, false}, Case{"-1", true, true}, Case{"0", false, false}, Case{"1", false, true},
                        Case{"True", false, true}}) {
    for (const char *name : {"BizEd", "BizEdLoginMode", "Serava"}) Put(name, c.text);
    LoadBizEdSettings(session);
    LoadSeravaSetting(session);
    EXPECT_EQ(session.edition.BizEd, c.bizEd) << c.text;
    EXPECT_EQ(session.edition.BizEdLoginMode, c.bizEd) << c.text;
    EXPECT_EQ(session.edition.SeravaEdition, c.serava) << c.text;
  }
  session.edition.BizEdLoginMode = session.edition.SeravaEdition = false;
  Put("BizTitle", "Weight Club");
  EXPECT_EQ(ApplicationTitle(session), QStringLiteral("Trimlog Pro 2.7"));
  session.edition.SeravaEdition = true;
  EXPECT_EQ(ApplicationTitle(session), QStringLiteral("Trimlog Pro SERAVA Edition 2.7"));
  session.edition.BizEdLoginMode = true;
  EXPECT_EQ(ApplicationTitle(session), QStringLiteral("Weight Club"));
  Put("BizTitle", "");
  EXPECT_EQ(ApplicationTitle(session), QStringLiteral("Trimlog Pro SERAVA Edition 2.7"));
  const QString handheld = settingsRoot + QStringLiteral("\\PPC");
  LoadHandheldSettings(session);
  EXPECT_FALSE(session.edition.HandheldSupport);
  store->SaveSettingString(handheld, QStringLiteral("DaysHistory"), QStringLiteral("0"));
  LoadHandheldSettings(session);
  EXPECT_TRUE(session.edition.HandheldSupport) << "any text counts";
  for (const auto &[text, on] : {std::pair{"", true}, {"maybe", true}, {"-1", true}, {"0", false}}) {
    store->SaveSettingString(handheld, QStringLiteral("ActiveSyncOnExit"), QLatin1String(text));
    EXPECT_EQ(ActiveSyncOnExit(session), on) << text;
  }
}

}  // namespace
}  // namespace trimlog
