#include <SQLiteCpp/SQLiteCpp.h>
#include <gtest/gtest.h>

#include "core/data/data_access.h"
#include "support/heard_changes.h"
#include "typed_calendar.h"
#include "weightlog/weight_log.h"

namespace trimlog {
namespace {

TEST(TypedWeight, KeepsEveryLossConsistentWithTheWeightBefore) {
  struct Case {
    const char *why, *typed, *rows;
    int LossFactor = 1;
  };
  for (const Case &c : std::initializer_list<Case>{
           {"the first of all", "01-05 200", "01-05 200/0"},
           {"removed again", "01-01 200, 01-10 190, 01-05 195, 01-05 ", "01-01 200/0, 01-10 190/10"},
           {"changed in the middle: the row behind the next keeps its loss",
            "01-01 200, 01-02 198, 01-03 197, 01-04 196, 01-02 199",
            "01-01 200/0, 01-02 199/1, 01-03 197/2, 01-04 196/1"},
           {"shown as negative, kept as losses", "01-01 200, 01-10 190, 01-05 195",
            "01-01 200/0, 01-05 195/5, 01-10 190/5", -1},
           {"the own loss goes through its one shown decimal, the neighbour's keeps two",
            "01-01 200.1, 01-03 189.45, 01-02 190.05", "01-01 200.1/0, 01-02 190.05/10.1, 01-03 189.45/0.6"},
           {"typed the same again", "01-01 200, 01-01  200 ", "01-01 200/0"}}) {
    SCOPED_TRACE(c.why);
    TypedCalendar calendar;
    calendar.session->settings.LossFactor = c.LossFactor;
    EXPECT_TRUE(calendar.TypeAll(c.typed));
    EXPECT_EQ(calendar.Rows(), c.rows);
  }
}

TEST(TypedWeight, TouchesNobodyElsesWeights) {
  TypedCalendar calendar;
  const auto as = [&calendar](const char *person) { calendar.session->profile.CurrentPersonID = person; };
  as("-1");
  calendar.session.Data().Execute("DELETE weight_loss.* FROM weight_loss;");
  for (const char *day : {"2026-01-01", "2026-01-05", "2026-01-10"})
    WeightLog(*calendar.session).Insert({Day(day), 90, 7});
  const std::string others = calendar.Rows();
  as("1");
  calendar.TypeAll("01-01 200, 01-10 190, 01-05 195, 01-05 ");
  EXPECT_EQ(calendar.Rows(), "01-01 200/0, 01-10 190/10");
  EXPECT_EQ(calendar.session->profile.statistics.LbsLost, "10");
  as("-1");
  EXPECT_EQ(calendar.Rows(), others);
}

TEST(TypedWeight, ShowsTheSameFiguresAtOnceAsAfterReadingThemAgain) {
  TypedCalendar calendar;
  const auto shown = [&calendar] {
    const CalendarMonth &month = calendar.model->Month();
    return QStringList{calendar.Cell("2026-01-02").loss, calendar.Cell("2026-01-05").loss,
                       calendar.Cell("2026-01-09").loss, month.Total(2).text, month.monthTotal.text}
        .join(u'|');
  };
  calendar.TypeAll("01-02 200, 01-09 190, 01-05 195");
  EXPECT_EQ(shown(), "0|5.0|5.0|10.0|10.0");
  EXPECT_EQ(calendar.Cell("2026-01-05").lossColor, calendar_colour::loss);
  calendar.TypeAll("01-05 ");
  EXPECT_EQ(shown(), "0||10.0|10.0|10.0");
  calendar.model->BuildMonth(Day("2026-01-01"));
  EXPECT_EQ(calendar.Cell("2026-01-09").loss, "10.0");
}
TEST(TypedWeight, ShowsTwoDecimalsOfTheNeighbourInKilograms) {
  TypedCalendar calendar;
  calendar.session->settings.UomID = 2;
  calendar.session->settings.LossFactor = -1;
  calendar.TypeAll("01-02 90, 01-09 88.75, 01-05 89.5");
  EXPECT_EQ(calendar.Cell("2026-01-05").loss, "-0.5");
  EXPECT_EQ(calendar.Cell("2026-01-09").loss, "-0.75");
  EXPECT_EQ(calendar.Cell("2026-01-09").lossColor, calendar_colour::loss);
  EXPECT_EQ(calendar.model->Month().monthTotal.text, "-1.25");
}

TEST(TypedWeight, TakesWhatIsASanePositiveNumberAndRefusesTheRest) {
  const QLocale english(QLocale::English, QLocale::UnitedStates);
  const QLocale german(QLocale::German, QLocale::Germany);
  using Check = TypedWeight::Check;
  struct Case {
    const char *typed;
    QLocale locale;
    Check check;
    const char *shown;
    double weight;
  };
  for (const Case &c : {Case{"182.5", english, Check::Fine, "182.5", 182.5},
                        Case{" 182.5\t", english, Check::Fine, "182.5", 182.5},
                        Case{"180.0", english, Check::Fine, "180.0", 180},
                        Case{"182.567", english, Check::Fine, "182.57", 182.57},
                        Case{"１８２.５", english, Check::Fine, "182.5", 182.5},
                        Case{"99999", english, Check::Fine, "99999", 99999},
                        Case{"93,5", german, Check::Fine, "93,5", 93.5},
                        Case{"93.5", german, Check::Fine, "93,5", 93.5},
                        Case{"1.234", german, Check::Fine, "1,23", 1.23},
                        Case{"", english, Check::Fine, "", 0},
                        Case{" \n ", english, Check::Fine, "", 0},
                        Case{"12.3.4", english, Check::NotNumeric, "12.3.4", 0},
                        Case{"1e309", english, Check::NotNumeric, "1e309", 0},
                        Case{"1e300", english, Check::NotNumeric, "1e300", 0},
                        Case{"182 183", english, Check::NotNumeric, "182 183", 0},
                        Case{"abc", english, Check::NotNumeric, "abc", 0},
                        Case{"nan", english, Check::NotNumeric, "nan", 0},
                        Case{"0", english, Check::NotPositive, "0", 0},
                        Case{"-5", english, Check::NotPositive, "-5", 0},
                        Case{"0.001", english, Check::NotPositive, "0.001", 0}}) {
    const TypedWeight read = ReadTypedWeight(QString::fromUtf8(c.typed), c.locale);
    EXPECT_EQ(read.check, c.check) << c.typed;
    EXPECT_EQ(read.text, QString::fromUtf8(c.shown)) << c.typed;
    EXPECT_EQ(read.weight.value_or(0), c.weight) << c.typed;
  }
}

TEST(TypedWeight, RefusalsAreWordForWord) {
  TypedCalendar calendar;
  for (const auto &[typed, kind] : {std::pair{"heavy", "numeric"}, {"0", "positive"}}) {
    calendar.session.boxes.Expect(
        "Invalid Weight",
        QStringLiteral("The weight that you entered is invalid.  Please enter a %1 value for your weight.").arg(kind));
    EXPECT_FALSE(calendar.Type("2026-01-02", typed));
  }
  EXPECT_EQ(calendar.Rows(), "");
}
TEST(TypedWeight, AFailedSaveLosesNothingAndCanBeRepeated) {
  TypedCalendar calendar;
  calendar.TypeAll("01-02 200, 01-09 190");
  calendar.model->GotoCalendarDate(Day("2026-01-05"));
  const CalendarMonth before = calendar.model->Month();
  calendar.session->database.reset();
  calendar.session->database = Database::OpenReadOnly(calendar.session->DataFilePath());
  calendar.session.boxes.Expect("Error Saving Daily Loss", "An error occurred while saving daily loss information.");
  EXPECT_FALSE(calendar.Type("2026-01-05", "195"));
  const CalendarMonth &after = calendar.model->Month();
  EXPECT_EQ(after.Cell(after.currentIndex).data, "195");
  EXPECT_EQ(calendar.Cell("2026-01-09").loss, before.Cell(before.IndexOf(Day("2026-01-09"))).loss);
  EXPECT_EQ(after.monthTotal.text, before.monthTotal.text);
  EXPECT_EQ(calendar.session->profile.statistics.LbsLost, "10");
  EXPECT_TRUE(calendar.model->EntryText().isEmpty());

  calendar.session->database.reset();
  calendar.session->database = Database::Open(calendar.session->DataFilePath());
  EXPECT_EQ(calendar.Rows(), "01-02 200/0, 01-09 190/10");
  EXPECT_TRUE(calendar.model->SaveWeight("195"));
  EXPECT_EQ(calendar.Rows(), "01-02 200/0, 01-05 195/5, 01-09 190/5");
}

/// Runs statements on the closed data file behind the program's back.
void RunBehindTheBack(TypedCalendar &calendar, const char *statements) {
  calendar.session->database.reset();
  SQLite::Database(calendar.session->DataFilePath().toStdString(), SQLite::OPEN_READWRITE).exec(statements);
  calendar.session->database = Database::Open(calendar.session->DataFilePath());
}

TEST(TypedWeight, AHalfDoneSaveLeavesTheNeighbourAsItWas) {
  TypedCalendar calendar;
  calendar.TypeAll("01-02 200, 01-09 190");
  RunBehindTheBack(calendar,
                   "CREATE TRIGGER full BEFORE INSERT ON weight_loss BEGIN SELECT RAISE(ABORT, 'disk full'); END;");
  calendar.session.boxes.Expect("Error Saving Data", "An error occurred while saving your data for this day.");
  EXPECT_FALSE(calendar.Type("2026-01-05", "195"));
  EXPECT_EQ(calendar.Rows(), "01-02 200/0, 01-09 190/10");
  EXPECT_EQ(calendar.Cell("2026-01-09").loss, "10.0");
  RunBehindTheBack(calendar, "DROP TRIGGER full;");
  EXPECT_TRUE(calendar.model->SaveWeight("195"));
  EXPECT_EQ(calendar.Rows(), "01-02 200/0, 01-05 195/5, 01-09 190/5");
}

TEST(TypedWeight, AnnouncesItselfOnceAndCommitsOnce) {
  TypedCalendar calendar;
  calendar.session->settings.NutrientID = 1;
  calendar.Type("2026-01-02", "200");
  HeardChanges heard(*calendar.session);
  calendar.model->GotoCalendarDate(Day("2026-01-05"));
  for (const char *text : {"195", "196", ""}) {
    heard.Take();
    const qint64 before = calendar.session.Data().Counts().commits;
    calendar.Type("2026-01-05", text);
    EXPECT_EQ(calendar.session.Data().Counts().commits - before, 1) << text;
    EXPECT_EQ(heard.Take(), "statistics; weight_loss person 1 2026-01-05") << text;
  }
}

/// What an action costs the store, as statements and rows read.
std::pair<qint64, qint64> CostOf(TypedCalendar &calendar, const std::function<void()> &action) {
  const StoreCounts before = calendar.session.Data().Counts();
  action();
  const StoreCounts after = calendar.session.Data().Counts();
  return {after.statements - before.statements, after.rowsRead - before.rowsRead};
}

void FillDays(TypedCalendar &calendar, const QDate &first, const QDate &last) {
  Transaction transaction(calendar.session.Data());
  WeightLog log(*calendar.session);
  for (QDate day = first; day <= last; day = day.addDays(1)) log.Insert({day, 200, 0});
  transaction.Commit();
}

TEST(CalendarCost, IsTheSameWithTenYearsOfWeightsAsWithOneMonth) {
  struct Costs {
    std::pair<qint64, qint64> typed, cleared, month, opened;
    bool operator==(const Costs &) const = default;
  };
  const auto measure = [](const QDate &first) {
    TypedCalendar calendar;
    FillDays(calendar, first, QDate(2026, 3, 31));
    calendar.session.Data().Execute("DELETE weight_loss.* FROM weight_loss WHERE (ThisDate=#3/10/2026#);");
    Costs costs;
    costs.opened = CostOf(calendar, [&] { calendar.Load(); });
    calendar.model->GotoCalendarDate(Day("2026-03-10"));
    costs.typed = CostOf(calendar, [&] { calendar.Type("2026-03-10", "199"); });
    costs.cleared = CostOf(calendar, [&] { calendar.Type("2026-03-10", ""); });
    costs.month = CostOf(calendar, [&] { calendar.model->GotoPreviousMonth(); });
    return costs;
  };
  const Costs years = measure(QDate(2016, 3, 1));
  const Costs months = measure(QDate(2026, 1, 1));
  EXPECT_EQ(years, months);
  // The neighbours before and behind, the first and the last of all, the goal, and what the basal rate of 42 days asks.
  EXPECT_LE(months.typed.second, 5 + 2 * 42 + 5);
  EXPECT_LE(months.month.second, 42 + 2 * 42 + 5);
}

TEST(CalendarCost, ATypedWeightReadsOnlyItsNeighboursAndTheEndsOfTheLog) {
  TypedCalendar calendar;
  calendar.session->settings.NutrientID = 1;
  FillDays(calendar, QDate(2026, 1, 1), QDate(2026, 3, 9));
  FillDays(calendar, QDate(2026, 3, 11), QDate(2026, 3, 31));
  calendar.model->GotoCalendarDate(Day("2026-03-10"));
  const auto [statements, rows] = CostOf(calendar, [&] { calendar.Type("2026-03-10", "199"); });
  EXPECT_LE(rows, 5);
  EXPECT_LE(statements, 10);
  EXPECT_LE(CostOf(calendar, [&] { calendar.model->GotoPreviousMonth(); }).second, 42);
}

TEST(CalendarOpening, ChoosesTheMonthAndTheCell) {
  struct Case {
    const char *why;
    bool OpenToday;
    const char *person, *remembered;
    std::vector<const char *> weights;
    const char *active;  // "" for none
    const char *title;
  };
  for (const Case &c :
       {Case{"today", true, "1", "", {"2026-01-05"}, "2026-03-01", "March, 2026"},
        Case{"behind the last weight", false, "1", "", {"2026-01-05"}, "2026-01-06", "January, 2026"},
        Case{"on the last weight at the month's end", false, "1", "", {"2026-01-31"}, "2026-01-31", "January, 2026"},
        Case{"no weights", false, "1", "", {}, "", "March, 2026"},
        Case{"where it was left", true, "1", "2025-11-07", {"2026-01-05"}, "2025-11-07", "November, 2025"},
        Case{"where it was left, without weights", true, "1", "2025-11-07", {}, "2025-11-07", "November, 2025"},
        Case{"a sample on its data", true, "-1", "", {"2026-01-05"}, "2026-01-06", "January, 2026"}}) {
    SCOPED_TRACE(c.why);
    TypedCalendar calendar;
    calendar.session->profile.CurrentPersonID = c.person;
    calendar.session.Data().Execute("DELETE weight_loss.* FROM weight_loss;");
    for (const char *day : c.weights) WeightLog(*calendar.session).Insert({Day(day), 190, 0});
    calendar.session->settings.OpenToday = c.OpenToday;
    calendar.session->windows.RememberedDate = Day(c.remembered);
    calendar.Load();
    EXPECT_EQ(calendar.model->Month().currentDate, Day(c.active));
    EXPECT_EQ(calendar.model->Month().title, c.title);
    if (*c.active) {
      EXPECT_EQ(calendar.session->windows.RememberedDate, Day(c.active));
    }
  }
}

TEST(CalendarMonths, KeepTheDayAndClipItToTheMonth) {
  TypedCalendar calendar;
  calendar.model->GotoCalendarDate(Day("2026-01-31"));
  calendar.model->GotoNextMonth();
  EXPECT_EQ(calendar.model->Month().currentDate, Day("2026-02-28"));
  calendar.model->GotoPreviousMonth();
  calendar.model->GotoPreviousMonth();
  EXPECT_EQ(calendar.model->Month().currentDate, Day("2025-12-28"));
  calendar.model->GotoToday();
  EXPECT_EQ(calendar.model->Month().currentDate, Day("2026-03-01"));
  calendar.model->EnterCell(calendar.model->Month().IndexOf(Day("2026-03-05")));
  int marked = 0;
  for (const CalendarCell &cell : calendar.model->Month().cells)
    marked += cell.background == calendar.session->profile.BackColor;
  EXPECT_EQ(marked, 1);
}

TEST(CalendarMonths, ThatCannotBeReadLeaveTheShownOneAsItIs) {
  TypedCalendar calendar;
  calendar.Type("2026-01-02", "200");
  calendar.session.Data().Execute("ALTER TABLE weight_loss RENAME COLUMN ThisWeight TO Hidden;");
  calendar.session.boxes.Expect("Error Finding Data", "An error occurred while trying to find data for this month.");
  calendar.model->GotoNextMonth();
  EXPECT_EQ(calendar.model->Month().title, "January, 2026");
  EXPECT_EQ(calendar.model->Month().currentDate, Day("2026-01-02"));
  EXPECT_EQ(calendar.Cell("2026-01-02").data, "200");
  EXPECT_TRUE(calendar.session.Logged(" - frmData, FindRecords, "));
}

}  // namespace
}  // namespace trimlog
