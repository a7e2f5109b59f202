#include <gtest/gtest.h>

#include <QProcess>
#include <QTemporaryDir>
#include <QThread>
#include <map>
#include <random>

#include "platform/store/column_types.h"
#include "platform/store/database.h"
#include "platform/store/recordset.h"

namespace trimlog {

namespace {

constexpr int kills = 220;

void MakeFile(const QString &path) {
  const auto data = Database::Create(path);
  data->Execute(
      QStringLiteral("CREATE TABLE weight_loss (PersonID LONG, ThisDate DATE, ThisWeight DECIMAL2, ThisLoss DECIMAL2, "
                     "PRIMARY KEY (PersonID, ThisDate))"));
  data->Execute(QStringLiteral("CREATE TABLE last_action (ActionNumber LONG, NextDate DATE)"));
  data->Execute(QStringLiteral("INSERT INTO last_action (ActionNumber) SELECT 0"));
}

struct Action {
  int number = 0;
  QDate date;
  double weight = 0;
};

Action ParseAction(const QByteArray &line) {
  const QList<QByteArray> fields = line.split(' ');
  return {fields[0].toInt(), QDate(2024, 1, 1).addDays(fields[1].toInt()), fields[2].toDouble()};
}

// What the file must hold after the reported actions.
class Expected {
 public:
  void Take(const Action &action) {
    const double loss = action.number % 100;
    const auto next = rows_.find(action.date.addDays(1));
    if (next != rows_.end()) next->second.second = loss;
    rows_[action.date] = {action.weight, loss};
    number_ = action.number;
  }
  int Number() const { return number_; }

  // The action that was under way may be there too, whole; its weight is then only known from the file.
  void Settle(Database &data) {
    const Recordset last = data.OpenRecordset(QStringLiteral("SELECT last_action.* FROM last_action"));
    const int number = last.Integer(QStringLiteral("ActionNumber"));
    ASSERT_TRUE(number == number_ || number == number_ + 1) << number << " in the file, " << number_ << " reported";
    if (number == number_) return;
    const QDate date = last.Field(QStringLiteral("NextDate")).toDate().addDays(-1);
    const Recordset row =
        data.OpenRecordset(QStringLiteral("SELECT ThisWeight FROM weight_loss WHERE ThisDate = ?"), {date});
    ASSERT_FALSE(row.Eof()) << "the number was saved without its weight";
    Take({number, date, row.Number(QStringLiteral("ThisWeight"))});
  }

  void Compare(Database &data) const {
    Recordset rows = data.OpenRecordset(QStringLiteral("SELECT weight_loss.* FROM weight_loss ORDER BY ThisDate"));
    ASSERT_EQ(rows.RecordCount(), static_cast<int>(rows_.size()));
    for (const auto &[date, values] : rows_) {
      ASSERT_EQ(rows.Field(QStringLiteral("ThisDate")).toDate(), date);
      ASSERT_DOUBLE_EQ(rows.Number(QStringLiteral("ThisWeight")), values.first) << date.toString().toStdString();
      ASSERT_DOUBLE_EQ(rows.Number(QStringLiteral("ThisLoss")), values.second) << date.toString().toStdString();
      rows.MoveNext();
    }
  }

 private:
  std::map<QDate, std::pair<double, double>> rows_;
  int number_ = 0;
};

}  // namespace

TEST(CrashTest, EveryReportedWeightIsThereAndNoHalfOneEver) {
  const QTemporaryDir directory;
  const QString path = directory.filePath(QStringLiteral("tlg.dat"));
  MakeFile(path);
  std::mt19937 random(20261122);
  Expected expected;
  int reported = 0;
  int interrupted = 0;
  for (int kill = 0; kill < kills; ++kill) {
    QProcess writer;
    writer.start(QStringLiteral(TRIMLOG_CRASH_WRITER), {path, QString::number(expected.Number() + 1)});
    ASSERT_TRUE(writer.waitForReadyRead(20000)) << writer.readAllStandardError().toStdString();
    QThread::usleep(random() % 25000);
    writer.kill();
    writer.waitForFinished();
    for (const QByteArray &line : writer.readAllStandardOutput().split('\n')) {
      if (line.isEmpty()) continue;
      expected.Take(ParseAction(line));
      ++reported;
    }
    const QByteArray journal = [&path] {
      QFile file(path + QStringLiteral("-journal"));
      return file.open(QIODevice::ReadOnly) ? file.read(8) : QByteArray();
    }();
    if (!journal.isEmpty() && journal != QByteArray(8, '\0')) ++interrupted;
    const auto data = Database::Open(path);
    expected.Settle(*data);
    expected.Compare(*data);
    ASSERT_TRUE(data->IntegrityOk());
    if (HasFatalFailure()) FAIL() << "after kill " << kill;
  }
  std::printf("%d kills, %d of them within a transaction, %d weights reported\n", kills, interrupted, reported);
  EXPECT_GT(reported, kills);
  EXPECT_GT(interrupted, 0) << "no kill met a transaction, so nothing was tried";
}

// As a program does that synchronises files: the one in use is moved away, another one takes its place.
TEST(CrashTest, AFileReplacedUnderTheWriterTakesNoWeightAndLosesNone) {
  const QTemporaryDir directory;
  const QString path = directory.filePath(QStringLiteral("tlg.dat"));
  const QString away = directory.filePath(QStringLiteral("away.dat"));
  const QString newcomer = directory.filePath(QStringLiteral("newcomer.dat"));
  MakeFile(path);
  MakeFile(newcomer);
  Expected expected;
  std::mt19937 random(20261123);
  for (int round = 0; round < 12; ++round) {
    QProcess writer;
    writer.start(QStringLiteral(TRIMLOG_CRASH_WRITER), {path, QString::number(expected.Number() + 1)});
    ASSERT_TRUE(writer.waitForReadyRead(20000)) << writer.readAllStandardError().toStdString();
    QThread::usleep(random() % 25000);
    ASSERT_TRUE(QFile::rename(path, away));
    ASSERT_TRUE(QFile::copy(newcomer, path));
    ASSERT_TRUE(writer.waitForFinished(20000)) << "it went on writing";
    EXPECT_EQ(writer.exitCode(), 3);
    EXPECT_EQ(writer.readAllStandardError(), QByteArray::number(error_number::fileMoved));
    QFile untouched(path);
    QFile former(newcomer);
    ASSERT_TRUE(untouched.open(QIODevice::ReadOnly) && former.open(QIODevice::ReadOnly));
    EXPECT_EQ(untouched.readAll(), former.readAll());
    for (const QByteArray &line : writer.readAllStandardOutput().split('\n')) {
      if (!line.isEmpty()) expected.Take(ParseAction(line));
    }
    ASSERT_TRUE(QFile::remove(path) && QFile::rename(away, path));
    const auto data = Database::Open(path);
    expected.Settle(*data);
    expected.Compare(*data);
    if (HasFatalFailure()) FAIL() << "in round " << round;
  }
}

}  // namespace trimlog
