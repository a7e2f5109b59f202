#include "core/settings/settings.h"

#include <gtest/gtest.h>

#include "core/bare_session.h"
#include "core/settings/window_position.h"
#include "core/start/edition.h"
#include "platform/error.h"

namespace trimlog {
namespace {

struct Row {
  QString name;
  const char *fallback;
  const char *other;    // another value that it takes
  QStringList refused;  // values that count as missing
  bool saved = true;    // by SaveControlValues
};

std::vector<Row> Table() {
  const auto bad = [](QStringList list) {
    return list << QString() << "abc"
                << "1.5"
                << "99999999999";
  };
  const QStringList badBoolean = bad({"1", "true", "-1 ", "00", "False"});
  const QStringList badColour = bad({"-1", "16777216"});
  std::vector<Row> rows = {{"UomID", "1", "2", bad({"0", "3"})},
                           {"LossFactor", "1", "-1", bad({"0", "2", "-2"})},
                           {"NutrientID", "102", "35", bad({"0", "36", "100", "103"})},
                           {"BodyMeasDefault", "1", "8", bad({"0", "9"})},
                           {"ConfirmMealsUpdates", "2", "0", bad({"3", "-1"})},
                           {"ConfirmExerciseUpdates", "2", "1", bad({"3", "-1"})},
                           {"DefaultDiaryTab", "1", "0", bad({"4", "-1"})},
                           {"PersonID", "1", "17", {QString()}, false},
                           {"NotesLines", "3", "10", bad({"0", "4", "11"}), false},
                           {"LastDiaryView", "2", "1", bad({"0", "3"}), false},
                           {"LastPlannerView", "2", "1", bad({"0", "3"}), false},
                           {"UserName", "Unknown User", "Smith, \"J\"", {QString()}, false},
                           {"LastRecordTypeMeals", "-1", "-3", bad({"7", "4", "-4"}), false},
                           {"ShowTutorial", "-1", "0", badBoolean, false},
                           {"FastFoodDisclaimer", "0", "-1", badBoolean, false}};
  for (const char *on : {"OpenToday", "ColorCoding", "ShowCalories", "RecalcCalories", "ShowSplash", "ConfirmDeletes",
                         "SmartDates", "BodyFat", "NetCaloriesBMR"}) {
    rows.push_back({on, "-1", "0", badBoolean});
  }
  for (const char *off : {"ShowLoss", "LinkDisclaimer", "MedicalDisclaimer"}) {
    rows.push_back({off, "0", "-1", badBoolean});
  }
  for (int chart = 1; chart <= 4; ++chart) {
    const QString n = QString::number(chart);
    rows.push_back({"ShowGridlines" + n, "-1", "0", badBoolean});
    rows.push_back({"ShowDataLabels" + n, "0", "-1", badBoolean});
    rows.push_back({"PlotPoints" + n, "-1", "0", badBoolean});
    rows.push_back({"LineWidth" + n, "1", "5", bad({"32768", "-32769"})});
    rows.push_back({"LineColor" + n, "16711680", "255", badColour});
    rows.push_back({"PointColor" + n, "0", "16777215", badColour});
  }
  return rows;
}

class SettingsTable : public ::testing::Test {
 protected:
  QString InStore(const Row &row) const { return store->GetSettingString(settingsRoot, row.name); }
  void Put(const Row &row, const QString &text) { store->SaveSettingString(settingsRoot, row.name, text); }
  void Expect(const Row &row, const QString &member, const QString &stored) const {
    EXPECT_EQ(StoredValue(settings, row.name), member) << row.name;
    EXPECT_EQ(InStore(row), stored) << row.name;
  }

  std::unique_ptr<SettingsStore> store = MemorySettings();
  Settings settings;
};

TEST_F(SettingsTable, HasDefaultsTakesGoodValuesAndNoBadOnes) {
  EXPECT_EQ(static_cast<size_t>(SettingRows().size()), Table().size()) << "a row that this test does not know";
  LoadControlValues(settings, *store, true);
  for (const Row &row : Table()) Expect(row, row.fallback, row.fallback);
  for (const Row &row : Table()) Put(row, row.other);
  LoadControlValues(settings, *store, true);
  for (const Row &row : Table()) Expect(row, row.other, row.other);
  for (const Row &row : Table()) {
    for (const QString &bad : row.refused) {
      SCOPED_TRACE(bad.toStdString());
      Put(row, row.other);
      LoadControlValues(settings, *store, false);
      Put(row, bad);
      LoadControlValues(settings, *store, false);
      Expect(row, row.other, bad);  // keeps what it had
      LoadControlValues(settings, *store, true);
      Expect(row, row.fallback, row.fallback);
    }
  }
}

TEST_F(SettingsTable, SavingWritesWhatTheOptionsWindowEditsAndNothingElse) {
  for (const Row &row : Table()) Put(row, row.other);
  LoadControlValues(settings, *store, false);
  store = MemorySettings();
  SaveControlValues(settings, *store);
  for (const Row &row : Table()) EXPECT_EQ(InStore(row), row.saved ? row.other : "") << row.name;
  for (const Row &row : Table()) {
    SaveSetting(settings, *store, row.name);
    EXPECT_EQ(InStore(row), row.other) << row.name;
  }
  EXPECT_THROW(SaveSetting(settings, *store, "ShowLosses"), Error);
}

class Geometry : public ::testing::Test, public BareSession {
 protected:
  void Read(WindowGroup group) { WindowPosition(session, false, group, QSize(19200, 15360)); }
};

void ExpectPlace(const WindowPlace &place, int left, int top, int width, int height) {
  EXPECT_EQ((std::array{place.Left, place.Top, place.Width, place.Height}), (std::array{left, top, width, height}));
}

TEST_F(Geometry, DefaultsAreCentredAndFollowTheFrame) {
  for (const WindowGroup group :
       {WindowGroup::Frame, WindowGroup::QuickJournalPosition, WindowGroup::QuickJournalSize}) {
    Read(group);
  }
  ExpectPlace(session.windows.framePlace, 4837, 4132, 9525, 7095);
  ExpectPlace(session.windows.quickJournalPlace, 4837 + 9525 - 8235, 4132 + 7095 - 2760, 8235, 2760);
  EXPECT_EQ(Setting("Left"), "none") << "a start writes no geometry";

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
  EXPECT_EQ(Setting("QDLeft"), "none");
  WindowPosition(session, true, WindowGroup::QuickJournalSize);
  EXPECT_EQ(Setting("QDLeft"), "none");
  EXPECT_EQ(Setting("QDWidth"), "8300");
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
    bool bizEd, serava;
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
  EXPECT_EQ(ApplicationTitle(session), "Trimlog Pro 2.7");
  session.edition.SeravaEdition = true;
  EXPECT_EQ(ApplicationTitle(session), "Trimlog Pro SERAVA Edition 2.7");
  session.edition.BizEdLoginMode = true;
  EXPECT_EQ(ApplicationTitle(session), "Weight Club");
  Put("BizTitle", "");
  EXPECT_EQ(ApplicationTitle(session), "Trimlog Pro SERAVA Edition 2.7");
  const QString handheld = settingsRoot + "\\PPC";
  LoadHandheldSettings(session);
  EXPECT_FALSE(session.edition.HandheldSupport);
  store->SaveSettingString(handheld, "DaysHistory", "0");
  LoadHandheldSettings(session);
  EXPECT_TRUE(session.edition.HandheldSupport) << "any text counts";
  for (const auto &[text, on] : {std::pair{"", true}, {"maybe", true}, {"-1", true}, {"0", false}}) {
    store->SaveSettingString(handheld, "ActiveSyncOnExit", text);
    EXPECT_EQ(ActiveSyncOnExit(session), on) << text;
  }
}

}  // namespace
}  // namespace trimlog
