#include "platform/store_fixture.h"

#include "platform/error.h"
#include "platform/store/database_internals.h"
#include "platform/store/stored_value.h"

namespace trimlog {

StoreTest::StoreTest() {
  data = Database::Create(path);
  const auto column = [](const char *name, ColumnType type, int length = 0) {
    return ColumnDeclaration(name, type, length);
  };
  const auto table = [&](const char *name, const QStringList &columns) {
    data->Execute(QStringLiteral("CREATE TABLE %1 (%2)").arg(name, columns.join(u',')));
  };
  table("people", {column("PersonID", ColumnType::Long) + " PRIMARY KEY", column("PersonName", ColumnType::Text, 50),
                   column("Goal", ColumnType::Text, 20), column("NutTargetID", ColumnType::Byte)});
  table("weight_loss", {column("PersonID", ColumnType::Long), column("ThisDate", ColumnType::Date),
                        column("ThisWeight", ColumnType::Decimal2), column("ThisLoss", ColumnType::Decimal2),
                        "PRIMARY KEY (PersonID, ThisDate)",
                        "FOREIGN KEY (PersonID) REFERENCES people (PersonID) ON UPDATE CASCADE ON DELETE CASCADE"});
  table("foods", {column("MealID", ColumnType::Long) + " PRIMARY KEY", column("MealDesc", ColumnType::Text),
                  column("Calories", ColumnType::Integer), column("Water", ColumnType::Single),
                  column("TransFat", ColumnType::Double), column("IsModified", ColumnType::Boolean),
                  column("Notes", ColumnType::Memo)});
  table("meals", {column("PersonID", ColumnType::Long), column("RecordID", ColumnType::Long),
                  column("ThisDate", ColumnType::Date), column("MealID", ColumnType::Long),
                  column("Calories", ColumnType::Integer), column("IsPlanned", ColumnType::Boolean)});
  data->Execute("INSERT INTO people (PersonID, PersonName, Goal) SELECT 1, \"Ann\", \"120\";");
  data->Execute("INSERT INTO people (PersonID, PersonName, Goal) SELECT 2, \"Bob\", \"180.5\"; ");
}

QString RowsOf(Database &database, const QString &sql, const Params &params) {
  QStringList rows;
  for (Recordset set = database.OpenRecordset(sql, params); !set.Eof(); set.MoveNext()) {
    QStringList fields;
    for (int i = 0; i < set.FieldNames().size(); ++i) fields.append(ValueText(set.Field(i)));
    rows.append(fields.join(u'|'));
  }
  return rows.join(" / ");
}

QString StoreTest::Rows(const QString &sql, const Params &params) { return RowsOf(*data, sql, params); }

QString StoreTest::Raw(const QString &expression, const QString &from) {
  PreparedStatement statement(data->Internals().handle,
                              QStringLiteral("SELECT typeof(%1) || ' ' || (%1) FROM %2").arg(expression, from));
  return statement.Step(data->Internals().failure) ? statement.Stored(0).toString() : QString();
}

int StoreTest::ErrorOf(const QString &sql, const Params &params) {
  try {
    if (sql.startsWith("SELECT") && !sql.contains(" INTO ")) {
      data->OpenRecordset(sql, params);
    } else {
      data->Execute(sql, params);
    }
  } catch (const Error &error) {
    description = error.Description();
    return error.Number();
  }
  description.clear();
  return 0;
}

}  // namespace trimlog
