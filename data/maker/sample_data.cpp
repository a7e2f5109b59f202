#include "maker/sample_data.h"

#include <QDate>

#include "core/data/nutrients.h"
#include "maker/table_writer.h"
#include "platform/store/recordset.h"
#include "platform/text/rounding.h"
#include "platform/text/text_format.h"

namespace trimlog {

namespace {

/// Weights by person and date, as texts.
using Weights = QHash<QString, double>;
QString DayOf(const TsvTable &plan, qsizetype row) {
  return plan.Text(row, QStringLiteral("PersonID")) + QLatin1Char(' ') + plan.Text(row, QStringLiteral("ThisDate"));
}

/// Numbers the entries of each person from 1 in the order of the plan.
class RecordNumbers {
 public:
  int Next(int person) { return ++last_[person]; }

 private:
  QHash<int, int> last_;
};

/// The same rows into a table of people's entries and into its pristine twin.
class SampleWriter {
 public:
  SampleWriter(Database &database, const QString &table, const QStringList &columns)
      : live_(database, table, columns), pristine_(database, table + QStringLiteral("_sample"), columns) {}
  void Add(const Params &values) {
    live_.Add(values);
    pristine_.Add(values);
  }

 private:
  TableWriter live_;
  TableWriter pristine_;
};

Value DateOf(const TsvTable &plan, qsizetype row) {
  return QDate::fromString(plan.Text(row, QStringLiteral("ThisDate")), Qt::ISODate);
}

Value TextOrNull(const QString &text) { return text.isEmpty() ? Value() : Value(text); }

/// A day's loss is the weight before it minus its own; a person's first day has none.
Weights WriteWeights(Database &database, const TsvTable &plan) {
  SampleWriter writer(database, QStringLiteral("weight_loss"),
                      {QStringLiteral("PersonID"), QStringLiteral("ThisDate"), QStringLiteral("ThisWeight"),
                       QStringLiteral("ThisLoss")});
  Weights weights;
  QHash<int, double> last;
  for (qsizetype row = 0; row < plan.RowCount(); ++row) {
    const int person = plan.Integer(row, QStringLiteral("PersonID"));
    const double weight = plan.Number(row, QStringLiteral("ThisWeight"));
    writer.Add({person, DateOf(plan, row), weight, last.value(person, weight) - weight});
    last.insert(person, weight);
    weights.insert(DayOf(plan, row), weight);
  }
  return weights;
}

/// Is this a share of the calories, which servings do not change?
bool IsPercentage(const QString &column) { return column.endsWith(QLatin1String("Pct")); }

/// What the program stores for so many servings of a food: the food's value times the servings, rounded as it is shown.
double ValueOfServings(const QString &column, double perServing, double servings) {
  const double value = IsPercentage(column) ? perServing : perServing * servings;
  return Format(value, GetNutrientFormat(column)).toDouble();
}

void WriteMeals(Database &database, const TsvTable &plan, const FoodFacts &foods) {
  const QStringList entry = {QStringLiteral("PersonID"),   QStringLiteral("RecordID"), QStringLiteral("ThisDate"),
                             QStringLiteral("MealTypeID"), QStringLiteral("MealID"),   QStringLiteral("Amount"),
                             QStringLiteral("GIValue"),    QStringLiteral("Notes")};
  QStringList custom;
  for (int i = 1; i <= 5; ++i) custom.append(QStringLiteral("Custom%1").arg(i));
  SampleWriter writer(database, QStringLiteral("meals"), entry + FoodNutrientColumns() + custom);
  RecordNumbers numbers;
  for (qsizetype row = 0; row < plan.RowCount(); ++row) {
    const int person = plan.Integer(row, QStringLiteral("PersonID"));
    const qsizetype food = foods.Find(plan.Text(row, QStringLiteral("MealDesc")));
    const QString glycemic = foods.GIValue(food);
    Params values = {person,
                     numbers.Next(person),
                     DateOf(plan, row),
                     plan.Integer(row, QStringLiteral("MealTypeID")),
                     foods.MealID(food),
                     plan.Text(row, QStringLiteral("Amount")),
                     glycemic.isEmpty() ? Value() : Value(glycemic.toDouble()),
                     TextOrNull(plan.Text(row, QStringLiteral("Notes")))};
    const double servings = plan.Number(row, QStringLiteral("Amount"));
    for (const QString &column : FoodNutrientColumns()) {
      values.append(ValueOfServings(column, foods.Rows().Number(food, column), servings));
    }
    for (int i = 0; i < 5; ++i) values.append(0);
    writer.Add(values);
  }
}

/// The exercise list's calories are those of a person of 150 lb for the list's minutes.
double CaloriesOf(const Recordset &exercise, double minutes, std::optional<double> weight) {
  constexpr double referenceWeight = 150;
  const double listed = exercise.Number(QStringLiteral("Calories"));
  const double calories = weight ? Whole(listed * *weight / referenceWeight) : listed;
  const double listedMinutes = exercise.Text(QStringLiteral("Duration")).toDouble();
  return listedMinutes == 0 ? calories : calories * (minutes / listedMinutes);
}

void WriteActivities(Database &database, const TsvTable &plan, const Weights &weights) {
  SampleWriter writer(
      database, QStringLiteral("activities"),
      {QStringLiteral("PersonID"), QStringLiteral("RecordID"), QStringLiteral("ThisDate"), QStringLiteral("ActivityID"),
       QStringLiteral("Duration"), QStringLiteral("Amount"), QStringLiteral("Pace"), QStringLiteral("Sets"),
       QStringLiteral("Reps"), QStringLiteral("Calories"), QStringLiteral("Notes")});
  RecordNumbers numbers;
  for (qsizetype row = 0; row < plan.RowCount(); ++row) {
    const int person = plan.Integer(row, QStringLiteral("PersonID"));
    const QString minutes = plan.Text(row, QStringLiteral("Duration"));
    const Recordset exercise = database.OpenRecordset(
        QStringLiteral("SELECT activities_list.* FROM activities_list WHERE activities_list.ActivityDesc = ?;"),
        {plan.Text(row, QStringLiteral("ActivityDesc"))});
    const auto weight = weights.constFind(DayOf(plan, row));
    writer.Add({person, numbers.Next(person), DateOf(plan, row), exercise.Field(QStringLiteral("ActivityID")),
                TextOrNull(minutes), exercise.Field(QStringLiteral("Amount")), exercise.Field(QStringLiteral("Pace")),
                exercise.Field(QStringLiteral("Sets")), exercise.Field(QStringLiteral("Reps")),
                CaloriesOf(exercise, minutes.toDouble(),
                           weight == weights.constEnd() ? std::nullopt : std::optional<double>(*weight)),
                TextOrNull(plan.Text(row, QStringLiteral("Notes")))});
  }
}

/// A plan that only lacks the record number: notes, measurements, water.
void WriteNumbered(const TsvTable &plan, std::initializer_list<TableWriter *> writers) {
  RecordNumbers numbers;
  for (qsizetype row = 0; row < plan.RowCount(); ++row) {
    const int person = plan.Integer(row, QStringLiteral("PersonID"));
    QStringList texts = {QString::number(numbers.Next(person))};
    for (const QString &column : plan.Columns()) texts.append(plan.Text(row, column));
    for (TableWriter *writer : writers) writer->AddTexts(texts);
  }
}

void WriteNumberedTwice(Database &database, const QString &table, const TsvTable &plan) {
  const QStringList columns = QStringList{QStringLiteral("RecordID")} + plan.Columns();
  TableWriter live(database, table, columns);
  TableWriter pristine(database, table + QStringLiteral("_sample"), columns);
  WriteNumbered(plan, {&live, &pristine});
}

/// The program takes this row as the sign that the table is ready for use.
void WriteSeravaMarker(Database &database) {
  TableWriter(database, QStringLiteral("serava_journal"),
              {QStringLiteral("PersonID"), QStringLiteral("ThisDate"), QStringLiteral("Question1")})
      .Add({-2, QDate(2003, 1, 1), QStringLiteral("Do Not Delete This Record")});
}

}  // namespace

void WriteSamples(Database &database, const QString &directory, const FoodFacts &foods) {
  const auto plan = [&directory](const char *name) {
    return TsvTable(directory + QStringLiteral("/samples/") + QString::fromLatin1(name));
  };
  CopyTable(database, QStringLiteral("people"), plan("people.tsv"));
  const Weights weights = WriteWeights(database, plan("weights.tsv"));
  WriteMeals(database, plan("meals.tsv"), foods);
  WriteActivities(database, plan("activities.tsv"), weights);
  WriteNumberedTwice(database, QStringLiteral("measurements"), plan("measurements.tsv"));
  WriteNumberedTwice(database, QStringLiteral("notes"), plan("notes.tsv"));
  const TsvTable water = plan("water.tsv");
  TableWriter live(database, QStringLiteral("other_daily_data"),
                   QStringList{QStringLiteral("RecordID")} + water.Columns());
  WriteNumbered(water, {&live});
  WriteSeravaMarker(database);
}

}  // namespace trimlog
