// What takes many rows at once is killed on the way: nine thousand foods are deleted, their journal entries with them,
// or five hundred entries are pasted. Then all of it was done or none.
#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>
#include <functional>
#include <random>

#include "platform/store/recordset.h"
#include "support/paths.h"

namespace trimlog {
namespace {

constexpr int foods = 9000;
constexpr int pasted = 500;
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

/// Starts an action and kills it that long after it began; -1 lets it end.
Outcome Do(const QString &folder, const QString &action, qint64 killAfter) {
  QProcess writer;
  writer.start(QStringLiteral(TRIMLOG_BULK_WRITER), {folder, action});
  if (!writer.waitForReadyRead(20000)) return {};
  QElapsedTimer time;
  time.start();
  if (killAfter >= 0) {
    QThread::usleep(static_cast<unsigned long>(killAfter));
    writer.kill();
  }
  writer.waitForFinished(60000);
  return {time.nsecsElapsed() / 1000, writer.readAllStandardOutput().contains("committed")};
}

/// Kills an action again and again. `isDone` looks at what is left and fails the test for anything but all or none.
void KillOnTheWay(const QString &action, const std::function<bool(Database &data)> &isDone) {
  const QTemporaryDir folder;
  const QString whole = folder.filePath(QStringLiteral("whole.dat"));
  const QString path = folder.filePath(QStringLiteral("tlg.dat"));
  MakeFile(whole);
  QFile::copy(whole, path);
  const Outcome unharmed = Do(folder.path(), action, -1);
  ASSERT_TRUE(unharmed.committed);
  ASSERT_TRUE(isDone(*Database::Open(path)));

  std::mt19937 random(9000);
  int kept = 0;
  int torn = 0;
  for (int kill = 0; kill < kills; ++kill) {
    QFile::remove(path);
    QFile::copy(whole, path);
    const bool committed = Do(folder.path(), action, static_cast<qint64>(random()) % unharmed.microseconds).committed;
    const QFileInfo journal(path + QStringLiteral("-journal"));
    if (journal.exists() && journal.size() > 0) ++torn;
    const auto data = Database::Open(path);
    const bool done = isDone(*data);
    if (testing::Test::HasFailure()) FAIL() << "after kill " << kill;
    ASSERT_FALSE(committed && !done) << "told as committed and not there";
    ASSERT_TRUE(data->IntegrityOk());
    if (!done) ++kept;
  }
  std::printf("%d kills, %d of them while the file was being written; %d times nothing was done\n", kills, torn, kept);
  EXPECT_GT(torn, 0) << "no kill met the transaction, so nothing was tried";
}

TEST(BulkActions, ADeletionTookAllFoodsAndTheirEntriesOrNone) {
  KillOnTheWay(QStringLiteral("delete"), [](Database &data) {
    const int left = OwnFoods(data);
    EXPECT_TRUE(left == 0 || left == foods) << left << " foods are left";
    EXPECT_EQ(Entries(data), left) << "entries and foods go together";
    return left == 0;
  });
}

TEST(BulkActions, APastedDayIsThereWholeOrNotAtAll) {
  KillOnTheWay(QStringLiteral("paste"), [](Database &data) {
    const int there = Count(data, QStringLiteral("meals WHERE (ThisDate = #3/2/2026#)"));
    EXPECT_TRUE(there == 0 || there == pasted) << there << " entries were pasted";
    return there > 0;
  });
}

}  // namespace
}  // namespace trimlog
