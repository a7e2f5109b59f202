// The store beside bare SQLite. At the end stand the ratios, with the limit that each should keep.
#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <QDate>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <cstdio>
#include <map>

#include "core/data/data_access.h"
#include "platform/store/database.h"
#include "platform/store/recordset.h"
#include "platform/text/text_format.h"
#include "ratio_reporter.h"
#include "support/paths.h"

using namespace trimlog;

namespace {

const QTemporaryDir &Folder() {
  static const QTemporaryDir folder;
  return folder;
}

// A copy of the shipped file for each side, since each works on its own alone; the samples' weights become a person's.
QString CopyOfShipped(const char *name) {
  const QString path = Folder().filePath(QString::fromLatin1(name));
  QFile::remove(path);
  QFile::copy(ShippedDir() + QStringLiteral("/tlg.dat"), path);
  QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner);
  const auto data = Database::Open(path);
  Transaction transaction(*data);
  data->Execute(QStringLiteral("INSERT INTO people ( PersonID, PersonName ) SELECT 1, \"Ann\";"));
  for (int day = 0; day < 365 * 20; ++day) {
    data->Execute(
        QStringLiteral("INSERT INTO weight_loss ( PersonID, ThisDate, ThisWeight, ThisLoss ) SELECT 1, ?, 180.5, 0.5;"),
        {QDate(2004, 1, 1).addDays(day)});
  }
  transaction.Commit();
  return path;
}

Database &Store() {
  static const auto data = Database::Open(CopyOfShipped("store.dat"));
  return *data;
}

class Bare {
 public:
  explicit Bare(const QString &path) {
    sqlite3_open_v2(path.toUtf8().constData(), &connection_, SQLITE_OPEN_READWRITE, nullptr);
    sqlite3_exec(connection_, "PRAGMA locking_mode = EXCLUSIVE; PRAGMA foreign_keys = ON; PRAGMA synchronous = FULL",
                 nullptr, nullptr, nullptr);
  }
  ~Bare() { sqlite3_close(connection_); }
  sqlite3_stmt *Prepare(const char *sql) {
    sqlite3_stmt *statement = nullptr;
    sqlite3_prepare_v2(connection_, sql, -1, &statement, nullptr);
    if (statement == nullptr) std::abort();
    return statement;
  }

 private:
  sqlite3 *connection_ = nullptr;
};

Bare &BareFile() {
  static Bare bare(CopyOfShipped("bare.dat"));
  return bare;
}

QString ColumnText(sqlite3_stmt *statement, int column) {
  return QString::fromUtf8(reinterpret_cast<const char *>(sqlite3_column_text(statement, column)),
                           sqlite3_column_bytes(statement, column));
}

int TakeRows(sqlite3_stmt *statement) {
  int rows = 0;
  for (; sqlite3_step(statement) == SQLITE_ROW; ++rows) {
    for (int i = 0; i < sqlite3_column_count(statement); ++i) {
      switch (sqlite3_column_type(statement, i)) {
        case SQLITE_INTEGER:
          benchmark::DoNotOptimize(sqlite3_column_int64(statement, i));
          break;
        case SQLITE_FLOAT:
          benchmark::DoNotOptimize(sqlite3_column_double(statement, i));
          break;
        default:
          benchmark::DoNotOptimize(ColumnText(statement, i));
      }
    }
  }
  sqlite3_reset(statement);
  return rows;
}

int TakeRows(Recordset rows) {
  const int count = rows.RecordCount();
  const int fields = static_cast<int>(rows.FieldNames().size());
  for (; !rows.Eof(); rows.MoveNext()) {
    for (int i = 0; i < fields; ++i) benchmark::DoNotOptimize(rows.Field(i));
  }
  return count;
}

std::vector<int> FoodKeys() {
  std::vector<int> keys;
  for (Recordset rows = Store().OpenRecordset(QStringLiteral("SELECT meals_list.MealID FROM meals_list")); !rows.Eof();
       rows.MoveNext()) {
    keys.push_back(rows.Integer(QStringLiteral("MealID")));
  }
  return keys;
}

void KeyBare(benchmark::State &state) {
  sqlite3_stmt *statement = BareFile().Prepare("SELECT MealDesc FROM meals_list WHERE MealID = ?1");
  const std::vector<int> keys = FoodKeys();
  size_t i = 0;
  for (auto _ : state) {
    sqlite3_bind_int(statement, 1, keys[i++ % keys.size()]);
    sqlite3_step(statement);
    benchmark::DoNotOptimize(ColumnText(statement, 0));
    sqlite3_reset(statement);
  }
  sqlite3_finalize(statement);
}
BENCHMARK(KeyBare);

void KeyGetDataValue(benchmark::State &state) {
  const std::vector<int> keys = FoodKeys();
  std::vector<QString> criteria;
  for (const int key : keys) criteria.push_back(QStringLiteral("meals_list.MealID=%1").arg(key));
  const QString field = QStringLiteral("MealDesc"), table = QStringLiteral("meals_list");
  size_t i = 0;
  for (auto _ : state) benchmark::DoNotOptimize(GetDataValue(Store(), field, table, criteria[i++ % criteria.size()]));
}
BENCHMARK(KeyGetDataValue);

const QString monthText = QStringLiteral(
    "SELECT weight_loss.ThisDate, weight_loss.ThisWeight, weight_loss.ThisLoss FROM weight_loss WHERE "
    "(((weight_loss.PersonID)=1) AND "
    "((weight_loss.ThisDate) Between %1 And %2)); ");

void MonthBare(benchmark::State &state) {
  sqlite3_stmt *statement = BareFile().Prepare(
      "SELECT ThisDate, ThisWeight, ThisLoss FROM weight_loss WHERE PersonID = ?1 AND ThisDate BETWEEN ?2 AND ?3");
  for (auto _ : state) {
    sqlite3_bind_int(statement, 1, 1);
    sqlite3_bind_text(statement, 2, "2012-02-26", -1, SQLITE_STATIC);
    sqlite3_bind_text(statement, 3, "2012-04-07", -1, SQLITE_STATIC);
    if (TakeRows(statement) != 42) state.SkipWithError("rows");
  }
  sqlite3_finalize(statement);
}
BENCHMARK(MonthBare);

void MonthPrepared(benchmark::State &state) {
  const QString sql = monthText.arg(QStringLiteral("?"), QStringLiteral("?"));
  const Params params{QDate(2012, 2, 26), QDate(2012, 4, 7)};
  for (auto _ : state) {
    if (TakeRows(Store().OpenRecordset(sql, params)) != 42) state.SkipWithError("rows");
  }
}
BENCHMARK(MonthPrepared);

void MonthText(benchmark::State &state) {
  const QString sql = monthText.arg(SQLDate(QDate(2012, 2, 26)), SQLDate(QDate(2012, 4, 7)));
  for (auto _ : state) {
    if (TakeRows(Store().OpenRecordset(sql)) != 42) state.SkipWithError("rows");
  }
}
BENCHMARK(MonthText);

// Another month every time, so that the text itself is new and only its shape is known.
void MonthNewText(benchmark::State &state) {
  int day = 0;
  for (auto _ : state) {
    const QDate first = QDate(2004, 1, 1).addDays(day++ % 7000);
    if (TakeRows(Store().OpenRecordset(monthText.arg(SQLDate(first), SQLDate(first.addDays(41))))) != 42)
      state.SkipWithError("rows");
  }
}
BENCHMARK(MonthNewText);

void WeightPrepared(benchmark::State &state) {
  Transaction transaction(Store());
  const QString sql = QStringLiteral(
      "UPDATE weight_loss SET weight_loss.ThisLoss = ? WHERE ((weight_loss.PersonID=?) And (weight_loss.ThisDate=?));");
  const Params params{1.5, 1, QDate(2012, 3, 3)};
  for (auto _ : state) Store().Execute(sql, params);
}
BENCHMARK(WeightPrepared);

void WeightText(benchmark::State &state) {
  Transaction transaction(Store());
  const QString sql = QStringLiteral(
      "UPDATE weight_loss SET weight_loss.ThisLoss = 1.5 WHERE ((weight_loss.PersonID=1) And "
      "(weight_loss.ThisDate=#3/3/2012#));");
  for (auto _ : state) Store().Execute(sql);
}
BENCHMARK(WeightText);

constexpr const char *startReads[] = {
    "SELECT version_info.Version FROM version_info",
    "SELECT people.* FROM people WHERE ((people.PersonID) > 0) ORDER BY people.PersonID",
    "SELECT uom.* FROM uom WHERE ((uom.UomID)=1)",
    "SELECT nutrients.* FROM nutrients ORDER BY nutrients.NutSortOrder",
    "SELECT selected_nutrients.* FROM selected_nutrients WHERE ((selected_nutrients.PersonID)=1)",
    "SELECT nutrition_targets.* FROM nutrition_targets WHERE ((nutrition_targets.TargetID)=30)",
    "SELECT rewards.* FROM rewards WHERE ((rewards.PersonID)=1)",
    "SELECT weight_loss.ThisDate, weight_loss.ThisWeight FROM weight_loss WHERE (weight_loss.PersonID=1) ORDER BY "
    "weight_loss.ThisDate"};

void StartBare(benchmark::State &state) {
  const QString path = CopyOfShipped("start_bare.dat");
  for (auto _ : state) {
    Bare bare(path);
    for (const char *sql : startReads) {
      sqlite3_stmt *statement = bare.Prepare(sql);
      TakeRows(statement);
      sqlite3_finalize(statement);
    }
  }
}
BENCHMARK(StartBare)->Unit(benchmark::kMillisecond);

void StartStore(benchmark::State &state) {
  const QString path = CopyOfShipped("start_store.dat");
  for (auto _ : state) {
    const auto data = Database::Open(path);
    for (const char *sql : startReads) TakeRows(data->OpenRecordset(QString::fromLatin1(sql)));
  }
}
BENCHMARK(StartStore)->Unit(benchmark::kMillisecond);

void FoodListBare(benchmark::State &state) {
  sqlite3_stmt *statement =
      BareFile().Prepare("SELECT rowid FROM meals_list WHERE RecordTypeID <> 0 ORDER BY MealDesc");
  for (auto _ : state) {
    while (sqlite3_step(statement) == SQLITE_ROW) benchmark::DoNotOptimize(sqlite3_column_int64(statement, 0));
    sqlite3_reset(statement);
  }
  sqlite3_finalize(statement);
}
BENCHMARK(FoodListBare)->Unit(benchmark::kMillisecond);

void FoodListDynaset(benchmark::State &state) {
  const QString sql = QStringLiteral(
      "SELECT meals_list.* FROM meals_list WHERE ((meals_list.RecordTypeID) <> 0) ORDER BY meals_list.MealDesc ASC ;");
  for (auto _ : state) benchmark::DoNotOptimize(Store().OpenRecordset(sql, {}, RecordsetKind::Dynaset).RecordCount());
}
BENCHMARK(FoodListDynaset)->Unit(benchmark::kMillisecond);

void MakeDataFile(benchmark::State &state) {
  const QString target = Folder().filePath(QStringLiteral("made"));
  for (auto _ : state) {
    QDir(target).removeRecursively();
    QDir().mkdir(target);
    if (QProcess::execute(QStringLiteral(TRIMLOG_MAKER), {SourceDir() + QStringLiteral("/data"), target}) != 0)
      state.SkipWithError("maker");
  }
}
BENCHMARK(MakeDataFile)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(1);

}  // namespace

int main(int count, char **arguments) {
  benchmark::Initialize(&count, arguments);
  RatioReporter reporter({
      {"GetDataValue by key / a prepared SQLite query", "KeyGetDataValue", "KeyBare", 2.0},
      {"a month by its text, once seen / prepared", "MonthText", "MonthPrepared", 1.2},
      {"a weight saved by its text, once seen / prepared", "WeightText", "WeightPrepared", 1.2},
      {"a month by a text never seen / prepared", "MonthNewText", "MonthPrepared", 0},
      {"a month by its text / bare SQLite", "MonthText", "MonthBare", 0},
      {"open and read the start data / bare SQLite", "StartStore", "StartBare", 3.0},
      {"open the list of all foods / its keys from bare SQLite", "FoodListDynaset", "FoodListBare", 0},
  });
  benchmark::RunSpecifiedBenchmarks(&reporter);
  const bool kept = reporter.PrintRatios();
  const double making = reporter.Seconds("MakeDataFile");
  std::printf("%-58s %5.2f s (under 5)%s\n", "making the shipped files from text", making,
              making >= 5 ? "  EXCEEDED" : "");
  return kept && making < 5 ? 0 : 1;
}
