#include "catalogs/exercise_catalog.h"

#include <gtest/gtest.h>

#include "catalogs/exercise_picking.h"
#include "platform/error.h"
#include "support/heard_changes.h"
#include "support/locales.h"
#include "support/test_session.h"

namespace trimlog {
namespace {

TEST(ExerciseCatalog, EachFieldIsCheckedInOrder) {
  const QString ofNumbers = " for this exercise (or leave the field blank if it does not apply).";
  struct Case {
    TypedExercise typed;
    const char *title;
    QString text;
  };
  const QString calories = "Please enter a valid number of Calories burned for this exercise.";
  const std::vector<Case> cases = {
      {{" ", "x", "", "x", "", "x", "x"}, "Description Required", "Please enter a description for this exercise."},
      {{"Run", "-1", "", "x", "", "", ""},
       "Invalid Number of Minutes",
       "Please enter a valid number of Minutes" + ofNumbers},
      {{"Run", "30 min", "", "1", "", "", ""},
       "Invalid Number of Minutes",
       "Please enter a valid number of Minutes" + ofNumbers},
      {{"Run", "", "", "", "", "x", ""}, "Invalid Number of Calories", calories},
      {{"Run", "30", "", "1/2", "", "", ""}, "Invalid Number of Calories", calories},
      {{"Run", "30", "", "1,5", "", "", ""}, "Invalid Number of Calories", calories},
      {{"Run", "30", "", "-1", "", "", ""}, "Invalid Number of Calories", calories},
      {{"Run", "30", "", "1e9", "", "", ""}, "Invalid Number of Calories", calories},
      {{"Run", "30", "", "1", "", "many", "x"},
       "Invalid Number of Sets",
       "Please enter a valid number of Sets" + ofNumbers},
      {{"Run", "30", "", "1", "", "40000", ""},
       "Invalid Number of Sets",
       "Please enter a valid number of Sets" + ofNumbers},
      {{"Run", "30", "", "1", "", "1", "-2"},
       "Invalid Number of Reps",
       "Please enter a valid number of Reps" + ofNumbers},
      {{"Run", "", "", "0", "", "", ""}, nullptr, {}},
      {{"Run", "30", "fast", "12.5", "1 mile", "2", "2.5"}, nullptr, {}},
  };
  for (const Case &c : cases) {
    const auto complaint = CheckExercise(c.typed, us);
    ASSERT_EQ(complaint.has_value(), c.title != nullptr) << qPrintable(c.typed.Calories);
    if (!complaint) continue;
    EXPECT_EQ(complaint->title.toStdString(), c.title);
    EXPECT_EQ(complaint->text, c.text);
  }
  EXPECT_FALSE(CheckExercise({"Lauf", "1,5", "", "1,5", "", "", ""}, german));
}

TEST(ExerciseCatalog, AnExerciseOfOnesOwnStandsInTheListAndIsAnnounced) {
  TestSession session;
  const int expected = session.ValueOf("Max(ActivityID)+1 AS N", "activities_list").toInt();
  HeardChanges heard(*session);
  const ListedExercise typed = ExerciseOf({" 5\" sprint ", "1,5", "fast", "12,25", "2 \"miles\"", "", "2,5"}, german);
  const int key = AddExercise(*session, typed);
  EXPECT_EQ(key, expected);
  const auto stored = ReadExercise(*session, key);
  ASSERT_TRUE(stored);
  EXPECT_EQ(stored->ActivityDesc, "5'' sprint");
  EXPECT_EQ(stored->Duration, "1.5");
  EXPECT_EQ(stored->Calories, 12.25);
  EXPECT_EQ(stored->Amount, "2 ''miles''");
  EXPECT_EQ(stored->Sets, std::nullopt);
  EXPECT_EQ(stored->Reps, 2) << "halves to even";
  EXPECT_EQ(stored->RecordTypeID, exercise_kind::myExercises);
  EXPECT_EQ(heard.Take(), "activities_list " + std::to_string(key));
}

TEST(ExercisePicking, AnEntryHasTheListsCaloriesForTheBodyAndTheMinutes) {
  const QDate day(2026, 2, 10);
  struct Case {
    const char *about;
    const char *listMinutes;
    double listCalories;
    const char *minutes;
    double weight;  ///< on the day; 0 for none
    int UomID;
    bool byWeight;
    double calories;
    const char *stored;
  };
  for (const Case &c :
       {Case{"more minutes", "30", 200, "45", 0, 1, true, 300, "45"},
        Case{"no minutes in the list", "", 200, "45", 0, 1, true, 200, "45"},
        Case{"list minutes of 0", "0", 200, "45", 0, 1, true, 200, "45"},
        Case{"words in the list", "half an hour", 200, "45", 0, 1, true, 200, "45"},
        Case{"pounds", "30", 200, "30", 180, 1, true, 240, "30"},
        Case{"pounds and minutes", "30", 200, "45", 180, 1, true, 360, "45"},
        Case{"kilograms", "30", 200, "30", 85, 2, true, 250, "30"},
        Case{"112.5 goes to the even", "30", 75, "30", 225, 1, true, 112, "30"},
        Case{"minutes are not rounded", "30", 100, "20", 225, 1, true, 100, "20"},
        Case{"nor is what they give", "30", 200, "10", 0, 1, true, 200.0 / 3, "10"},
        Case{"without a weight it is whole too", "30", 99.5, "30", 0, 1, true, 100, "30"},
        Case{"as the list has it", "30", 99.5, "30", 180, 1, false, 99.5, "30"},
        Case{"no minutes", "30", 200, "", 0, 1, true, 200, ""}, Case{"none at all", "30", 200, "0", 0, 1, true, 0, "0"},
        Case{"a fraction", "30", 200, "1.5", 0, 1, true, 10, "1.5"}}) {
    SCOPED_TRACE(c.about);
    TestSession session;
    session->settings.UomID = c.UomID;
    if (c.weight > 0) {
      session.Data().Execute(
          "INSERT INTO weight_loss ( PersonID, ThisDate, ThisWeight, ThisLoss ) VALUES ( 1, ?, ?, 0 );",
          {day, c.weight});
    }
    ListedExercise listed;
    listed.ActivityDesc = "Zebra walk";
    listed.Duration = QString::fromLatin1(c.listMinutes);
    listed.Calories = c.listCalories;
    const int key = AddExercise(*session, listed);
    const ActivityEntry entry = EntryOf(*session, {key, day, QString::fromLatin1(c.minutes), c.byWeight});
    EXPECT_DOUBLE_EQ(entry.Calories, c.calories);
    EXPECT_EQ(entry.Duration.toStdString(), c.stored);
  }
}

TEST(ExercisePicking, CaloriesThatNoNumberHoldsAreRefused) {
  TestSession session;
  ListedExercise listed;
  listed.Calories = 1e9;
  const int key = AddExercise(*session, listed);
  EXPECT_THROW(EntryOf(*session, {key, QDate(2026, 2, 10), "30", true}), Error);
}

TEST(ExercisePicking, MinutesAreNumbersInThePersonsForm) {
  struct Case {
    const char *text;
    bool in_us, in_german;
  };
  for (const Case &c : {Case{"30", true, true}, Case{"", false, false}, Case{"abc", false, false},
                        Case{"-1", false, false}, Case{"1/2", false, false}, Case{"1,5", false, true},
                        Case{"1.5", true, true}, Case{"1e9", true, true}, Case{"0", true, true}}) {
    EXPECT_EQ(IsMinutes(QString::fromLatin1(c.text), us), c.in_us) << c.text;
    EXPECT_EQ(IsMinutes(QString::fromLatin1(c.text), german), c.in_german) << c.text;
  }
  EXPECT_EQ(ProposedMinutes("1.5", german), "1,5");
  EXPECT_EQ(ProposedMinutes("half an hour", german), "");
}

}  // namespace
}  // namespace trimlog
