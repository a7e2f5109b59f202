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
    const char *why;
    std::vector<Typed> typed;
    const char *rows;
    int LossFactor = 1;
  };
  for (const Case &c : {
           Case{"the first of all", {{"2026-01-05", "200"}}, "01-05 200/0"},
           Case{"put between two others",
                {{"2026-01-01", "200"}, {"2026-01-10", "190"}, {"2026-01-05", "195"}},
                "01-01 200/0, 01-05 195/5, 01-10 190/5"},
           Case{"removed again",
                {{"2026-01-01", "200"}, {"2026-01-10", "190"}, {"2026-01-05", "195"}, {"2026-01-05", ""}},
                "01-01 200/0, 01-10 190/10"},
           Case{"the first one removed",
                {{"2026-01-01", "200"}, {"2026-01-10", "190"}, {"2026-01-01", ""}},
                "01-10 190/0"},
           Case{"a new first one", {{"2026-01-10", "190"}, {"2026-01-01", "200"}}, "01-01 200/0, 01-10 190/10"},
           Case{"changed in the middle: the row behind the next keeps its loss",
                {{"2026-01-01", "200"},
                 {"2026-01-02", "198"},
                 {"2026-01-03", "197"},
                 {"2026-01-04", "196"},
                 {"2026-01-02", "199"}},
                "01-01 200/0, 01-02 199/1, 01-03 197/2, 01-04 196/1"},
           Case{"the next weight lies in another month",
                {{"2026-01-01", "200"}, {"2026-05-10", "190"}, {"2026-01-05", "195"}},
                "01-01 200/0, 01-05 195/5, 05-10 190/5"},
           Case{"losses shown as negative are kept as losses",
                {{"2026-01-01", "200"}, {"2026-01-10", "190"}, {"2026-01-05", "195"}},
                "01-01 200/0, 01-05 195/5, 01-10 190/5",
                -1},
           Case{"the own loss goes through its one shown decimal, the neighbour's keeps two",
                {{"2026-01-01", "200.1"}, {"2026-01-03", "189.45"}, {"2026-01-02", "190.05"}},
                "01-01 200.1/0, 01-02 190.05/10.1, 01-03 189.45/0.6"},
           Case{"a gain", {{"2026-01-01", "200"}, {"2026-01-02", "201.5"}}, "01-01 200/0, 01-02 201.5/-1.5"},
           Case{"typed the same again", {{"2026-01-01", "200"}, {"2026-01-01", " 200 "}}, "01-01 200/0"},
       }) {
    SCOPED_TRACE(c.why);
    TypedCalendar calendar;
    calendar.session->settings.LossFactor = c.LossFactor;
    for (const Typed &typed : c.typed) EXPECT_TRUE(calendar.Type(typed.date, typed.text));
    EXPECT_EQ(calendar.Rows(), c.rows);
  }
}

TEST(TypedWeight, TouchesNobodyElsesWeights) {
  TypedCalendar calendar;
  const auto as = [&calendar](const char *person) {
    calendar.session->profile.CurrentPersonID = QLatin1String(person);
  };
  as("-1");
  calendar.session.Data().Execute(QStringLiteral("DELETE weight_loss.* FROM weight_loss;"));
  for (const char *day : {"2026-01-01", "2026-01-05", "2026-01-10"})
    WeightLog(*calendar.session).Insert({Day(day), 90, 7});
  const std::string others = calendar.Rows();
  as("1");
  calendar.Type("2026-01-01", "200");
  calendar.Type("2026-01-10", "190");
  calendar.Type("2026-01-05", "195");
  calendar.Type("2026-01-05", "");
  EXPECT_EQ(calendar.Rows(), "01-01 200/0, 01-10 190/10");
  EXPECT_EQ(calendar.session->profile.statistics.LbsLost, QStringLiteral("10"));
  as("-1");
  EXPECT_EQ(calendar.Rows(), others);
}

TEST(TypedWeight, ShowsTheSameFiguresAtOnceAsAfterReadingThemAgain) {
  TypedCalendar calendar;
  calendar.Type("2026-01-02", "200");
  calendar.Type("2026-01-09", "190");
  calendar.Type("2026-01-05", "195");
  EXPECT_EQ(calendar.Cell("2026-01-02").loss, QStringLiteral("0"));
  EXPECT_EQ(calendar.Cell("2026-01-05").loss, QStringLiteral("5.0"));
  EXPECT_EQ(calendar.Cell("2026-01-09").loss, QStringLiteral("5.0"));
  EXPECT_EQ(calendar.model->Month().Total(2).text, QStringLiteral("10.0"));
  EXPECT_EQ(calendar.model->Month().monthTotal.text, QStringLiteral("10.0"));
  EXPECT_EQ(calendar.Cell("2026-01-05").lossColor, calendar_colour::loss);
  calendar.Type("2026-01-05", "");
  EXPECT_TRUE(calendar.Cell("2026-01-05").loss.isEmpty());
  EXPECT_EQ(calendar.Cell("2026-01-09").loss, QStringLiteral("10.0"));
  calendar.model->BuildMonth(Day("2026-01-01"));
  EXPECT_EQ(calendar.Cell("2026-01-09").loss, QStringLiteral("10.0"));
}

TEST(TypedWeight, ShowsTwoDecimalsOfTheNeighbourInKilograms) {
  TypedCalendar calendar;
  calendar.session->settings.UomID = 2;
  calendar.session->settings.LossFactor = -1;
  calendar.Type("2026-01-02", "90");
  calendar.Type("2026-01-09", "88.75");
  calendar.Type("2026-01-05", "89.5");
  EXPECT_EQ(calendar.Cell("2026-01-05").loss, QStringLiteral("-0.5"));
  EXPECT_EQ(calendar.Cell("2026-01-09").loss, QStringLiteral("-0.75"));
  EXPECT_EQ(calendar.Cell("2026-01-09").lossColor, calendar_colour::loss);
  EXPECT_EQ(calendar.model->Month().monthTotal.text, QStringLiteral("-1.25"));
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
  calendar.session.boxes.Expect(QStringLiteral("Invalid Weight"), {});
  calendar.session.boxes.Expect(QStringLiteral("Invalid Weight"), {});
  EXPECT_FALSE(calendar.Type("2026-01-02", "heavy"));
  EXPECT_FALSE(calendar.Type("2026-01-02", "0"));
  EXPECT_EQ(calendar.session.boxes.Shown()[0].text.toStdString(),
            "The weight that you entered is invalid.  Please enter a numeric value for your weight.");
  EXPECT_EQ(calendar.session.boxes.Shown()[1].text.toStdString(),
            "The weight that you entered is invalid.  Please enter a positive value for your weight.");
  EXPECT_EQ(calendar.Rows(), "");
}

TEST(TypedWeight, ShowsTheLocalesNumbersAndKeepsPlainOnes) {
  TypedCalendar calendar(QLocale(QLocale::German, QLocale::Germany));
  calendar.Type("2026-01-02", "94");
  calendar.Type("2026-01-03", "93,5");
  EXPECT_EQ(calendar.Rows(), "01-02 94/0, 01-03 93.5/0.5");
  calendar.model->BuildMonth(Day("2026-01-01"));
  EXPECT_EQ(calendar.Cell("2026-01-03").data, QStringLiteral("93,5"));
  EXPECT_EQ(calendar.Cell("2026-01-03").loss, QStringLiteral("0,5"));
  EXPECT_EQ(calendar.model->Month().monthTotal.text, QStringLiteral("0,5"));
}

TEST(TypedWeight, AFailedSaveLosesNothingAndCanBeRepeated) {
  TypedCalendar calendar;
  calendar.Type("2026-01-02", "200");
  calendar.Type("2026-01-09", "190");
  calendar.model->GotoCalendarDate(Day("2026-01-05"));
  const CalendarMonth before = calendar.model->Month();
  calendar.session->database.reset();
  calendar.session->database = Database::OpenReadOnly(calendar.session->DataFilePath());
  calendar.session.boxes.Expect(QStringLiteral("Error Saving Daily Loss"),
                                QStringLiteral("An error occurred while saving daily loss information."));
  EXPECT_FALSE(calendar.Type("2026-01-05", "195"));
  const CalendarMonth &after = calendar.model->Month();
  EXPECT_EQ(after.Cell(after.currentIndex).data, QStringLiteral("195"));
  EXPECT_EQ(calendar.Cell("2026-01-09").loss, before.Cell(before.IndexOf(Day("2026-01-09"))).loss);
  EXPECT_EQ(after.monthTotal.text, before.monthTotal.text);
  EXPECT_EQ(calendar.session->profile.statistics.LbsLost, QStringLiteral("10"));
  EXPECT_TRUE(calendar.model->EntryText().isEmpty());

  calendar.session->database.reset();
  calendar.session->database = Database::Open(calendar.session->DataFilePath());
  EXPECT_EQ(calendar.Rows(), "01-02 200/0, 01-09 190/10");
  EXPECT_TRUE(calendar.model->SaveWeight(QStringLiteral("195")));
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
  calendar.Type("2026-01-02", "200");
  calendar.Type("2026-01-09", "190");
  RunBehindTheBack(calendar,
                   "CREATE TRIGGER full BEFORE INSERT ON weight_loss BEGIN SELECT RAISE(ABORT, 'disk full'); END;");
  calendar.session.boxes.Expect(QStringLiteral("Error Saving Data"),
                                QStringLiteral("An error occurred while saving your data for this day."));
  EXPECT_FALSE(calendar.Type("2026-01-05", "195"));
  EXPECT_EQ(calendar.Rows(), "01-02 200/0, 01-09 190/10");
  EXPECT_EQ(calendar.Cell("2026-01-09").loss, QStringLiteral("10.0"));
  RunBehindTheBack(calendar, "DROP TRIGGER full;");
  EXPECT_TRUE(calendar.model->SaveWeight(QStringLiteral("195")));
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
  };
  const auto measure = [](const QDate &first) {
    TypedCalendar calendar;
    FillDays(calendar, first, QDate(2026, 3, 31));
    calendar.session.Data().Execute(
        QStringLiteral("DELETE weight_loss.* FROM weight_loss WHERE (ThisDate=#3/10/2026#);"));
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
  EXPECT_EQ(years.typed, months.typed);
  EXPECT_EQ(years.cleared, months.cleared);
  EXPECT_EQ(years.month, months.month);
  EXPECT_EQ(years.opened, months.opened);
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
    const char *person;
    const char *remembered;
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
    calendar.session->profile.CurrentPersonID = QLatin1String(c.person);
    calendar.session.Data().Execute(QStringLiteral("DELETE weight_loss.* FROM weight_loss;"));
    for (const char *day : c.weights) WeightLog(*calendar.session).Insert({Day(day), 190, 0});
    calendar.session->settings.OpenToday = c.OpenToday;
    calendar.session->windows.RememberedDate = Day(c.remembered);
    calendar.Load();
    EXPECT_EQ(calendar.model->Month().currentDate, Day(c.active));
    EXPECT_EQ(calendar.model->Month().title, QLatin1String(c.title));
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
  int marked = 0;
  for (const CalendarCell &cell : calendar.model->Month().cells)
    marked += cell.background == calendar.session->profile.BackColor;
  EXPECT_EQ(marked, 1);
}

TEST(CalendarMonths, ThatCannotBeReadLeaveTheShownOneAsItIs) {
  TypedCalendar calendar;
  calendar.Type("2026-01-02", "200");
  calendar.session.Data().Execute(QStringLiteral("ALTER TABLE weight_loss RENAME COLUMN ThisWeight TO Hidden;"));
  calendar.session.boxes.Expect(QStringLiteral("Error Finding Data"),
                                QStringLiteral("An error occurred while trying to find data for this month."));
  calendar.model->GotoNextMonth();
  EXPECT_EQ(calendar.model->Month().title, QStringLiteral("January, 2026"));
  EXPECT_EQ(calendar.model->Month().currentDate, Day("2026-01-02"));
  EXPECT_EQ(calendar.Cell("2026-01-02").data, QStringLiteral("200"));
  QFile log(calendar.session->programDirectory + QStringLiteral("/errorlog.txt"));
  ASSERT_TRUE(log.open(QIODevice::ReadOnly));
  EXPECT_TRUE(QString::fromUtf8(log.readAll()).contains(QStringLiteral(" - frmData, FindRecords, ")));
}

}  // namespace
}  // namespace trimlog
