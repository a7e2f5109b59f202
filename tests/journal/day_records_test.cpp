#include "journal/day/day_records.h"

#include <gtest/gtest.h>

#include "platform/store/recordset.h"
#include "support/test_session.h"

namespace trimlog {
namespace {

const QDate day(2026, 2, 10);

class DayRecords : public testing::Test {
 protected:
  DayRecords() {
    session.AddProfile(2, QStringLiteral("Ann"));
    QObject::connect(&session->changes, &DataChanges::Changed, &session->changes,
                     [this](const DataChange &change) { heard.push_back(change); });
  }
  /// The keys that a list shows, in its order.
  std::vector<int> Keys(const GridSource &source) {
    const GridStatement keys = KeysStatement(source);
    std::vector<int> found;
    Recordset rows = session.Data().OpenRecordset(keys.sql, keys.params);
    for (; !rows.Eof(); rows.MoveNext()) found.push_back(rows.Field(0).toInt());
    return found;
  }
  MealEntry Meal(const QDate &date, int mealTypeID, double calories = 100) {
    MealEntry entry{date, mealTypeID, food, QStringLiteral("2.5"), {}};
    for (std::size_t i = 0; i < nutrientCount; ++i) entry.values[i] = calories + static_cast<double>(i);
    return entry;
  }
  QString Field(const char *field, const char *table, int person, int record) {
    return session.ValueOf(QString::fromLatin1(field), QString::fromLatin1(table),
                           QStringLiteral("PersonID=%1 AND RecordID=%2").arg(person).arg(record));
  }
  DayScope Scope(JournalView view, int person = 1) const { return {person, view, day}; }

  TestSession session;
  std::vector<DataChange> heard;
  int food = session.ValueOf(QStringLiteral("MealID"), QStringLiteral("meals_list")).toInt();
  int exercise = session.ValueOf(QStringLiteral("ActivityID"), QStringLiteral("activities_list")).toInt();
};

TEST_F(DayRecords, ListsComeByDayAndMealAndOrderOfEntry) {
  AddRecMeal(*session, EntryKind::Eaten, Meal(day, 3));              // 1
  AddRecMeal(*session, EntryKind::Eaten, Meal(day, 1));              // 2
  AddRecMeal(*session, EntryKind::Planned, Meal(day, 1));            // 3
  AddRecMeal(*session, EntryKind::Eaten, Meal(day, 1));              // 4
  AddRecMeal(*session, EntryKind::Eaten, Meal(day.addDays(1), 9));   // 5
  AddRecMeal(*session, EntryKind::Eaten, Meal(day.addDays(-1), 1));  // 6
  session->profile.CurrentPersonID = QStringLiteral("2");
  EXPECT_EQ(AddRecMeal(*session, EntryKind::Eaten, Meal(day, 2)), 1) << "keys run within a person";

  EXPECT_EQ(Keys(MealsSource(Scope(JournalView::SingleDate), EntryKind::Eaten)), (std::vector<int>{2, 4, 1}));
  EXPECT_EQ(Keys(MealsSource(Scope(JournalView::AllDates), EntryKind::Eaten)), (std::vector<int>{5, 2, 4, 1, 6}));
  EXPECT_EQ(Keys(MealsSource(Scope(JournalView::AllDates), EntryKind::Planned)), (std::vector<int>{3}));
  EXPECT_EQ(Keys(MealsSource(Scope(JournalView::AllDates, 2), EntryKind::Eaten)), (std::vector<int>{1}));
  EXPECT_EQ(Keys(MealsSource({1, JournalView::SingleDate, {}}, EntryKind::Eaten)), std::vector<int>{}) << "no date";
}

TEST_F(DayRecords, AMealKeepsAll35ValuesOfItsSnapshot) {
  const int id = AddRecMeal(*session, EntryKind::Eaten, Meal(day, 4));
  for (std::size_t i = 0; i < nutrientCount; ++i) {
    const QByteArray field = session->nutrients.NutrientDefs[i].fieldName.toLatin1();
    EXPECT_EQ(Field(field.constData(), "meals", 1, id).toInt(), 100 + static_cast<int>(i)) << field.constData();
  }
  EXPECT_EQ(Field("Amount", "meals", 1, id).toStdString(), "2.5");
  EXPECT_EQ(Field("MealTypeID", "meals", 1, id).toStdString(), "4");
  EXPECT_EQ(Field("MealID", "meals", 1, id).toInt(), food);
}

TEST_F(DayRecords, EveryWriterTellsWhatItDid) {
  const auto expect = [this](Table table, std::vector<qint64> keys, const QDate &date) {
    ASSERT_EQ(heard.size(), 1u);
    EXPECT_EQ(heard[0].table, table);
    EXPECT_EQ(heard[0].keys, keys);
    EXPECT_EQ(heard[0].personID.toStdString(), "1");
    EXPECT_EQ(heard[0].date, date);
    heard.clear();
  };
  AddRecMeal(*session, EntryKind::Eaten, Meal(day, 1));
  expect(Table::Meals, {1}, day);
  AddActivity(*session, EntryKind::Eaten, {day, exercise, QStringLiteral("30"), {}, 200, {}, {}, 3});
  expect(Table::Activities, {1}, day);
  EXPECT_EQ(Field("Reps", "activities", 1, 1).toStdString(), "3");
  EXPECT_EQ(Field("Sets", "activities", 1, 1).toStdString(), "") << "left blank";
  AddNote(*session, day, QStringLiteral("Said \"no\" & meant it 🙂"));
  expect(Table::Notes, {1}, day);
  AddMeasurements(*session, day, {40, 36, 41, 13, 11, 23, 15, 22.5});
  expect(Table::Measurements, {1}, day);
  SaveNote(*session, 1, QStringLiteral("other"));
  expect(Table::Notes, {1}, {});
  SaveMeasurements(*session, 1, {{bodyFatField, 21}});
  expect(Table::Measurements, {1}, {});
  DeleteDayRecords(*session, Table::Meals, {1});
  expect(Table::Meals, {1}, {});
}

TEST_F(DayRecords, ANoteAndASetOfMeasurementsOfTheDayAreFoundAndChangedAlone) {
  EXPECT_EQ(NoteOn(*session, day), std::nullopt);
  const QString text = QStringLiteral("line one\nline \"two\" and 'three' & שלום 🙂");
  const int note = AddNote(*session, day, QStringLiteral("x"));
  const int other = AddNote(*session, day.addDays(1), QStringLiteral("stays"));
  SaveNote(*session, note, text);
  EXPECT_EQ(NoteText(*session, NoteOn(*session, day).value()), text);
  EXPECT_EQ(NoteText(*session, other).toStdString(), "stays");

  const int sizes = AddMeasurements(*session, day, {40, 36, 41, 13, 11, 23, 15, 22.5});
  AddMeasurements(*session, day.addDays(1), {});
  SaveMeasurements(*session, sizes, {{waistField, 35.5}, {0, std::nullopt}});
  const auto stored = ReadMeasurements(*session, MeasurementsOn(*session, day).value());
  EXPECT_EQ(stored, (PerMeasurement<std::optional<double>>{std::nullopt, 35.5, 41, 13, 11, 23, 15, 22.5}));
  session->profile.CurrentPersonID = QStringLiteral("2");
  EXPECT_EQ(NoteOn(*session, day), std::nullopt);
  EXPECT_EQ(MeasurementsOn(*session, day), std::nullopt);
}

TEST_F(DayRecords, DeletingTouchesNoOtherPersonAndPlannedRowsGoToo) {
  for (int i = 0; i < 3; ++i) AddRecMeal(*session, i == 1 ? EntryKind::Planned : EntryKind::Eaten, Meal(day, 1));
  session->profile.CurrentPersonID = QStringLiteral("2");
  for (int i = 0; i < 3; ++i) AddRecMeal(*session, EntryKind::Eaten, Meal(day, 1));
  DeleteDayRecords(*session, Table::Meals, {2, 3});
  EXPECT_EQ(Keys(MealsSource(Scope(JournalView::AllDates, 2), EntryKind::Eaten)), (std::vector<int>{1}));
  EXPECT_EQ(Keys(MealsSource(Scope(JournalView::AllDates), EntryKind::Eaten)), (std::vector<int>{1, 3}));
  EXPECT_EQ(Keys(MealsSource(Scope(JournalView::AllDates), EntryKind::Planned)), (std::vector<int>{2}));
}

TEST_F(DayRecords, PastedRowsKeepTheirSnapshotOnAnotherDayOrTheirOwn) {
  AddRecMeal(*session, EntryKind::Planned, Meal(day, 3, 250));
  const GridStatement all = RowsStatement(MealsSource(Scope(JournalView::AllDates), EntryKind::Planned), {}, {1});
  const Recordset row = session.Data().OpenRecordset(all.sql, all.params);
  QVariantMap copied;
  for (const QString &field : row.FieldNames()) copied[field] = row.Field(field);

  const QDate target = day.addDays(5);
  const qint64 before = session.Data().Counts().commits;
  heard.clear();
  EXPECT_EQ(PasteDayRecords(*session, Table::Meals, EntryKind::Eaten, {copied, copied, copied}, target),
            (std::vector<qint64>{2, 3, 4}));
  EXPECT_EQ(session.Data().Counts().commits - before, 1);
  EXPECT_EQ(heard.size(), 1u) << "lists read once, however many rows came";
  EXPECT_EQ(Keys(MealsSource({1, JournalView::SingleDate, target}, EntryKind::Eaten)), (std::vector<int>{2, 3, 4}));
  EXPECT_EQ(Field("TransFat", "meals", 1, 4).toInt(), 250 + 34);

  EXPECT_EQ(PasteDayRecords(*session, Table::Meals, EntryKind::Planned, {copied}, {}).size(), 1u);
  EXPECT_EQ(Keys(MealsSource(Scope(JournalView::SingleDate), EntryKind::Planned)), (std::vector<int>{1, 5}));

  copied[QStringLiteral("MealID")] = -7;  // a food that is gone: none of the rows is added
  EXPECT_THROW(PasteDayRecords(*session, Table::Meals, EntryKind::Eaten, {copied}, target), Error);
  EXPECT_EQ(Keys(MealsSource({1, JournalView::SingleDate, target}, EntryKind::Eaten)).size(), 3u);
}

}  // namespace
}  // namespace trimlog
