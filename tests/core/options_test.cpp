#include "core/settings/options.h"

#include <gtest/gtest.h>

#include "core/profiles/goal.h"
#include "core/settings/window_position.h"
#include "support/test_session.h"

namespace trimlog {
namespace {

TEST(NutrientChoices, HoldTheThreeCalorieFiguresAndEveryNutrientOnce) {
  TestSession session;
  session->nutrients.SelectedNutrients[3] = {nutrient_id::firstCustom, "Caffeine", true, {}};
  const QList<OptionChoice> choices = NutrientChoices(session->nutrients);
  ASSERT_EQ(choices.size(), nutrientCount + 2);
  std::map<int, std::string> byID;
  for (const OptionChoice &choice : choices) byID[choice.value] = choice.text.toStdString();
  EXPECT_EQ(byID.size(), static_cast<size_t>(choices.size()));
  EXPECT_EQ(byID[1], "Calories Consumed (kcal)");
  EXPECT_EQ(byID[101], "Calories Burned (kcal)");
  EXPECT_EQ(byID[102], "Net Calories (kcal)");
  EXPECT_EQ(byID[4], "Protein (g)");
  EXPECT_EQ(byID[28], "Caffeine") << "a custom nutrient goes by the name that the person gave it";
  EXPECT_FALSE(byID[29].empty());
  EXPECT_FALSE(byID.contains(0));
}

TEST(Options, AreStoredAndTakenOverTogether) {
  TestSession session;
  int announced = 0;
  QObject::connect(&session->changes, &DataChanges::SettingsChanged, [&announced] { ++announced; });
  Settings edited = session->settings;
  edited.UomID = 2;
  edited.LineWidth[3] = 8;
  edited.DefaultDiaryTab = 0;
  StoreOptions(*session, edited);
  EXPECT_EQ(session->UomDisplay, "Kg");
  EXPECT_EQ(session->settings.LineWidth[3], 8);
  EXPECT_EQ(announced, 1);
  Settings fresh;
  LoadControlValues(fresh, *session.store, false);
  EXPECT_EQ(fresh.UomID, 2);
  EXPECT_EQ(fresh.LineWidth[3], 8);
  EXPECT_EQ(fresh.DefaultDiaryTab, 0);
}

TEST(Options, TheNutrientIsReadAfreshFromTheStore) {
  TestSession session;
  session.store->SaveSettingString(settingsRoot, "NutrientID", "4");
  RereadNutrientID(*session);
  EXPECT_EQ(session->settings.NutrientID, 4);
  session.store->SaveSettingString(settingsRoot, "NutrientID", "many");
  RereadNutrientID(*session);
  EXPECT_EQ(session->settings.NutrientID, 4);
}

TEST(Options, TheQuickJournalGoesBackBesideTheFrame) {
  TestSession session;
  session->windows.framePlace = {100, 200, 12000, 9000};
  session->windows.quickJournalPlace = {5, 6, 7, 8};
  ResetQuickJournalPlace(*session);
  const std::pair<const char *, int> stored[] = {
      {"QDLeft", 100 + 9525 - 8235}, {"QDTop", 200 + 7095 - 2760}, {"QDWidth", 8235}, {"QDHeight", 2760}};
  for (const auto &[name, value] : stored) {
    EXPECT_EQ(session.store->GetSettingLong(settingsRoot, name, -1), value) << name;
  }
}

TEST(ConfirmGoal, AsksOnlyForWhatIsNoGoal) {
  struct Case {
    const char *goal;
    bool asks;
  };
  for (const Case &row : {Case{"150", false},
                          {"0.5", false},
                          {" 93.5 ", false},
                          {"", true},
                          {"0", true},
                          {"-5", true},
                          {"abc", true},
                          {"12.3.4", true},
                          {"1e309", true}}) {
    for (const bool yes : {true, false}) {
      SCOPED_TRACE(row.goal);
      TestSession session;
      if (row.asks) {
        session.boxes.Expect("Invalid Goal",
                             "The goal that you entered is invalid.  Are you sure that you want to continue?",
                             yes ? BoxButton::Yes : BoxButton::No);
      }
      EXPECT_EQ(ConfirmGoal(*session, row.goal), !row.asks || yes);
      if (!row.asks) break;
    }
  }
  TestSession comma{QLocale(QLocale::German, QLocale::Germany)};
  EXPECT_TRUE(ConfirmGoal(*comma, "93,5"));
}

}  // namespace
}  // namespace trimlog
