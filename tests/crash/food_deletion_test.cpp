// Nine thousand foods are deleted at once, their journal entries with them, and the program is killed on the way: all
// of them are gone or none.
#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>
#include <random>

#include "platform/store/recordset.h"
#include "support/paths.h"

namespace trimlog {
namespace {

constexpr int foods = 9000;
constexpr int kills = 24;

int Count(Database &data, const QString &from) {
  return data.OpenRecordset(QStringLiteral("SELECT Count(*) AS N FROM ") + from).Integer(QStringLiteral("N"));
}
int OwnFoods(Database &data) { return Count(data, QStringLiteral("meals_list WHERE (RecordTypeID=2)")); }
int Entries(Database &data) { return Count(data, QStringLiteral("meals WHERE (PersonID=1)")); }

/// The shipped file with foods of the user's own, each eaten once.
void MakeFile(const QString &path) {
  QFile::copy(ShippedDir() + QStringLiteral("/tlg.dat"), path);
  QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner);
  const auto data = Database::Open(path);
  Transaction transaction(*data);
  data->Execute(QStringLiteral("INSERT INTO people ( PersonID, PersonName ) SELECT 1, \"Ann\""));
  for (const auto &[shift, most] : {std::pair(100000, 8000), std::pair(200000, foods - 8000)}) {
    data->Execute(QStringLiteral("INSERT INTO meals_list ( MealID, MealDesc, MealGroupID, RecordTypeID ) SELECT TOP %1 "
                                 "MealID + %2, MealDesc, MealGroupID, 2 FROM meals_list WHERE (RecordTypeID=1) ORDER "
                                 "BY MealID")
                      .arg(most)
                      .arg(shift));
  }
  data->Execute(
      QStringLiteral("INSERT INTO meals ( PersonID, RecordID, ThisDate, MealTypeID, MealID, Amount, IsPlanned ) SELECT "
                     "1, MealID, #3/1/2026#, 1, MealID, \"1\", False FROM meals_list WHERE (RecordTypeID=2)"));
  transaction.Commit();
}

struct Outcome {
  qint64 microseconds = 0;
  bool committed = false;
};

/// Starts the deletion and kills it that long after it began; -1 lets it end.
Outcome Delete(const QString &path, qint64 killAfter) {
  QProcess deleter;
  deleter.start(QStringLiteral(TRIMLOG_FOOD_DELETER), {path});
  if (!deleter.waitForReadyRead(20000)) return {};
  QElapsedTimer time;
  time.start();
  if (killAfter >= 0) {
    QThread::usleep(static_cast<unsigned long>(killAfter));
    deleter.kill();
  }
  deleter.waitForFinished(60000);
  return {time.nsecsElapsed() / 1000, deleter.readAllStandardOutput().contains("committed")};
}

TEST(FoodDeletion, KilledOnTheWayItTookAllFoodsOrNone) {
  const QTemporaryDir folder;
  const QString whole = folder.filePath(QStringLiteral("whole.dat"));
  const QString path = folder.filePath(QStringLiteral("tlg.dat"));
  MakeFile(whole);
  QFile::copy(whole, path);
  const Outcome unharmed = Delete(path, -1);
  ASSERT_TRUE(unharmed.committed);

  std::mt19937 random(9000);
  int kept = 0;
  int torn = 0;
  for (int kill = 0; kill < kills; ++kill) {
    QFile::remove(path);
    QFile::copy(whole, path);
    const bool committed = Delete(path, static_cast<qint64>(random()) % unharmed.microseconds).committed;
    const QFileInfo journal(path + QStringLiteral("-journal"));
    if (journal.exists() && journal.size() > 0) ++torn;
    const auto data = Database::Open(path);
    const int left = OwnFoods(*data);
    ASSERT_TRUE(left == 0 || left == foods) << left << " foods are left after kill " << kill;
    ASSERT_EQ(Entries(*data), left) << "entries and foods go together";
    ASSERT_FALSE(committed && left > 0) << "told as deleted and still there";
    ASSERT_TRUE(data->IntegrityOk());
    if (left > 0) ++kept;
  }
  std::printf("%d kills, %d of them while the file was being written; %d times all foods stayed\n", kills, torn, kept);
  EXPECT_GT(torn, 0) << "no kill met the transaction, so nothing was tried";
}

}  // namespace
}  // namespace trimlog
