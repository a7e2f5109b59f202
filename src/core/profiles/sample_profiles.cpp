#include "core/profiles/sample_profiles.h"

#include "core/profiles/profiles.h"
#include "core/session/failure_guard.h"

namespace trimlog {

namespace {

struct SampleTable {
  QString table;
  QStringList columns;
};

const QStringList &ClearedTables() {
  static const QStringList tables = {QStringLiteral("activities"), QStringLiteral("meals"), QStringLiteral("notes"),
                                     QStringLiteral("measurements"), QStringLiteral("weight_loss")};
  return tables;
}

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
      {QStringLiteral("activities"),
       SampleColumns("PersonID RecordID ThisDate ActivityID Duration Amount Pace Sets Reps Calories Notes")},
      {QStringLiteral("meals"), MealColumns(nutrients)},
      {QStringLiteral("measurements"),
       SampleColumns("PersonID RecordID ThisDate Biceps Forearm Thigh Calf Chest Waist Hips BodyFat")},
      {QStringLiteral("notes"), SampleColumns("PersonID RecordID ThisDate Notes")},
      {QStringLiteral("weight_loss"), SampleColumns("PersonID ThisDate ThisWeight ThisLoss")},
  };
}

QString CopyStatement(const SampleTable &copied, const QString &personID) {
  const QString source = copied.table + QStringLiteral("_sample");
  QStringList values;
  for (const QString &column : copied.columns) values.append(source + QLatin1Char('.') + column);
  return QStringLiteral("INSERT INTO %1 ( %2 ) SELECT %3 FROM %4 WHERE (((%4.PersonID)=%5));")
      .arg(copied.table, copied.columns.join(QStringLiteral(", ")), values.join(QStringLiteral(", ")), source,
           personID);
}

QStringList ResetStatements(const Nutrients &nutrients, const QString &personID) {
  QStringList statements;
  for (const QString &table : ClearedTables()) {
    statements.append(
        QStringLiteral("DELETE %1.*, %1.PersonID From %1 WHERE (((%1.PersonID)=%2));").arg(table, personID));
  }
  for (const SampleTable &copied : CopiedTables(nutrients)) statements.append(CopyStatement(copied, personID));
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
  const bool restored = Guarded(session, failure, [&session, &personID, &running] {
    Transaction transaction(session.Data());
    for (const QString &statement : ResetStatements(session.nutrients, personID)) {
      running = statement;
      session.Data().Execute(statement);
    }
    transaction.Commit();
  });
  if (!restored) return;
  for (const QString &table : ClearedTables()) session.changes.Announce({table, personID, {}});
}

bool AskResetSampleProfile(Session &session) {
  return session.boxes.Ask(QStringLiteral("Reset Sample Profile"),
                           QStringLiteral("Reset all data for this sample profile?"));
}

}  // namespace trimlog
