#include "core/profiles/sample_profiles.h"

#include <array>

#include "core/profiles/profiles.h"
#include "core/session/change.h"
#include "core/session/failure_guard.h"

namespace trimlog {

namespace {

struct SampleTable {
  Table table;
  QStringList columns;
};

constexpr std::array clearedTables = {Table::Activities, Table::Meals, Table::Notes, Table::Measurements,
                                      Table::WeightLoss};

QStringList SampleColumns(const char *names) { return QString::fromLatin1(names).split(QLatin1Char(' ')); }

QStringList MealColumns(const Nutrients &nutrients) {
  QStringList columns = SampleColumns("PersonID RecordID ThisDate MealTypeID MealID Amount GIValue");
  for (const NutrientDef &nutrient : nutrients.NutrientDefs) {
    if (!nutrient.fieldName.isEmpty()) columns.append(nutrient.fieldName);
  }
  columns.append(QStringLiteral("Notes"));
  return columns;
}

QList<SampleTable> CopiedTables(const Nutrients &nutrients) {
  return {
      {Table::Activities,
       SampleColumns("PersonID RecordID ThisDate ActivityID Duration Amount Pace Sets Reps Calories Notes")},
      {Table::Meals, MealColumns(nutrients)},
      {Table::Measurements,
       SampleColumns("PersonID RecordID ThisDate Biceps Forearm Thigh Calf Chest Waist Hips BodyFat")},
      {Table::Notes, SampleColumns("PersonID RecordID ThisDate Notes")},
      {Table::WeightLoss, SampleColumns("PersonID ThisDate ThisWeight ThisLoss")},
  };
}

QString CopyStatement(const SampleTable &copied) {
  const QString table = TableName(copied.table);
  const QString source = table + QStringLiteral("_sample");
  QStringList values;
  for (const QString &column : copied.columns) values.append(source + QLatin1Char('.') + column);
  return QStringLiteral("INSERT INTO %1 ( %2 ) SELECT %3 FROM %4 WHERE (((%4.PersonID)=?));")
      .arg(table, copied.columns.join(QStringLiteral(", ")), values.join(QStringLiteral(", ")), source);
}

QStringList ResetStatements(const Nutrients &nutrients) {
  QStringList statements;
  for (const Table cleared : clearedTables) {
    statements.append(
        QStringLiteral("DELETE %1.*, %1.PersonID From %1 WHERE (((%1.PersonID)=?));").arg(TableName(cleared)));
  }
  for (const SampleTable &copied : CopiedTables(nutrients)) statements.append(CopyStatement(copied));
  return statements;
}

}  // namespace

void ResetSampleProfile(Session &session, const QString &personID) {
  if (personID != sampleProfile1 && personID != sampleProfile2) return;
  QString running;
  const FailureExit failure{QStringLiteral("basMain"),
                            QStringLiteral("ResetSampleProfile"),
                            QStringLiteral("Error Reseting Data"),
                            QStringLiteral("An error occurred while resetting the sample data.  "),
                            true,
                            [&personID, &running](const QString &description) {
                              return QStringLiteral("Error resetting sample data for profile ") + personID +
                                     QStringLiteral(" with SQL=") + running + QStringLiteral(".  Error Description: ") +
                                     description;
                            }};
  Guarded(session, failure, [&session, &personID, &running] {
    Change change(session);
    for (const QString &statement : ResetStatements(session.nutrients)) {
      running = statement;
      session.Data().Execute(statement, {personID.toInt()});
    }
    for (const Table cleared : clearedTables) change.Announce({.table = cleared, .personID = personID});
    change.Commit();
  });
}

bool AskResetSampleProfile(Session &session) {
  return session.boxes.Ask(QStringLiteral("Reset Sample Profile"),
                           QStringLiteral("Reset all data for this sample profile?"));
}

}  // namespace trimlog
