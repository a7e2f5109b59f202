#include <SQLiteCpp/Database.h>
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>

#include "platform/error.h"
#include "platform/store_fixture.h"

namespace trimlog {

class StoreFileTest : public StoreTest {
 protected:
  static QByteArray Bytes(const QString &file) {
    QFile source(file);
    return source.open(QIODevice::ReadOnly) ? source.readAll() : QByteArray();
  }
  static void Write(const QString &file, const QByteArray &bytes) {
    QFile target(file);
    ASSERT_TRUE(target.open(QIODevice::WriteOnly | QIODevice::Truncate));
    target.write(bytes);
  }
  QString Beside(const char *name) const { return directory.filePath(name); }
  int OpenError(const QString &file) {
    try {
      Database::Open(file);
    } catch (const Error &error) {
      description = error.Description();
      return error.Number();
    }
    return 0;
  }
  static QStringList Names(const QString &folder) {
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
  }
};

TEST_F(StoreFileTest, WhatCannotBeOpenedStaysAsItIs) {
  data.reset();
  const QByteArray good = Bytes(path);
  ASSERT_GT(good.size(), 8192);
  QByteArray foreign;
  {
    const QString other = Beside("other.sqlite");
    SQLite::Database(other.toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE)
        .exec("CREATE TABLE people (PersonID)");
    foreign = Bytes(other);
    QFile::remove(other);
  }
  QByteArray newer = good;
  newer[63] = 99;
  QByteArray torn = good;
  torn.replace(100, 600, QByteArray(600, '\xfe'));
  const struct {
    const char *what;
    QByteArray bytes;
  } cases[] = {{"empty", {}},
               {"text", "Dear diary, today I weighed 182.5"},
               {"noise", QByteArray(5000, '\xa7')},
               {"another program's", foreign},
               {"newer", newer},
               {"cut in the header", good.left(60)},
               {"cut after the header", good.left(100)},
               {"cut in the middle", good.left(good.size() / 2)},
               {"last page missing", good.left(good.size() - 4096)},
               {"first page overwritten", torn}};
  const QString place = Beside("case");
  for (const auto &row : cases) {
    QDir().mkdir(place);
    const QString file = place + "/tlg.dat";
    Write(file, row.bytes);
    EXPECT_EQ(OpenError(file), error_number::fileDamaged) << row.what << ": " << description.toStdString();
    EXPECT_EQ(Bytes(file), row.bytes) << row.what;
    EXPECT_EQ(Names(place), QStringList{"tlg.dat"}) << row.what;
    QDir(place).removeRecursively();
  }
  EXPECT_EQ(OpenError(path), 0) << description.toStdString();
}

TEST_F(StoreFileTest, TellsMissingDirectoryReadOnlyAndHeldApart) {
  const QString missing = Beside("missing.dat");
  EXPECT_EQ(OpenError(missing), error_number::fileMissing);
  EXPECT_FALSE(QFile::exists(missing));
  const QString folder = Beside("folder.dat");
  QDir().mkdir(folder);
  EXPECT_EQ(OpenError(folder), error_number::cannotOpen);
  EXPECT_TRUE(Names(folder).isEmpty());

  EXPECT_EQ(OpenError(path), error_number::fileLocked);  // this test holds it
  EXPECT_EQ(Rows("SELECT Count(*) FROM people"), "2");
  data.reset();
  const QByteArray before = Bytes(path);
  QFile::setPermissions(path, QFile::ReadOwner | QFile::ReadUser);
  EXPECT_EQ(OpenError(path), error_number::readOnly);
  EXPECT_TRUE(description.contains("read-only"));
  EXPECT_EQ(RowsOf(*Database::OpenReadOnly(path), "SELECT Count(*) FROM people"), "2");
  EXPECT_EQ(Bytes(path), before);
  QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser);
  EXPECT_EQ(OpenError(path), 0);
  EXPECT_EQ(Bytes(path), before) << "opening and reading writes nothing";

  EXPECT_THROW(Database::Create(path), Error);
}

TEST_F(StoreFileTest, AnotherProcessThatHoldsTheFileIsRespected) {
  data.reset();
  QProcess holder;
  holder.start("python3", {"-c",
                           "import sqlite3,sys;c=sqlite3.connect(sys.argv[1],isolation_level=None);"
                           "c.execute('BEGIN EXCLUSIVE');print('held',flush=True);sys.stdin.read()",
                           path});
  if (!holder.waitForStarted() || !holder.waitForReadyRead()) GTEST_SKIP() << "no python3 to hold the file";
  const QByteArray before = Bytes(path);
  EXPECT_EQ(OpenError(path), error_number::fileLocked);
  EXPECT_EQ(Bytes(path), before);
  holder.kill();
  holder.waitForFinished();
  EXPECT_EQ(OpenError(path), 0);
}

TEST_F(StoreFileTest, ClosesWithoutTraceAndKeepsToItsJournal) {
  data->Execute("UPDATE people SET Goal = \"1\"");
  EXPECT_FALSE(QFile::exists(path + "-wal"));
  data.reset();
  EXPECT_EQ(Names(directory.path()), QStringList{"test.dat"});
}

TEST_F(StoreFileTest, ADamagedPageIsToldWhenItIsRead) {
  {
    Transaction transaction(*data);
    for (int i = 0; i < 2000; ++i) {
      data->Execute("INSERT INTO foods (MealID, MealDesc) VALUES (?, ?)", {i, QString(100, u'x')});
    }
    transaction.Commit();
  }
  EXPECT_TRUE(data->IntegrityOk());
  data.reset();
  QByteArray bytes = Bytes(path);
  for (qsizetype page = 15; page < bytes.size() / 4096; ++page)
    bytes.replace(page * 4096, 200, QByteArray(200, '\x5a'));
  Write(path, bytes);
  data = Database::Open(path);
  EXPECT_FALSE(data->IntegrityOk());
  EXPECT_EQ(ErrorOf("SELECT foods.* FROM foods ORDER BY MealDesc"), error_number::fileDamaged);
}

TEST_F(StoreFileTest, TransactionsNestAndTheOutermostDecides) {
  const auto names = [this] { return Rows("SELECT PersonName FROM people ORDER BY PersonID"); };
  const auto rename = [this](int person, const char *name) {
    data->Execute("UPDATE people SET PersonName = ? WHERE PersonID = ?", {name, person});
  };
  const qint64 commits = data->Counts().commits;
  {
    Transaction outer(*data);
    rename(1, "A");
    {
      Transaction inner(*data);
      rename(2, "B");
      inner.Commit();
    }
  }
  EXPECT_EQ(names(), "Ann / Bob");
  EXPECT_EQ(data->Counts().commits, commits);
  {
    Transaction outer(*data);
    rename(1, "A");
    {
      Transaction inner(*data);
      rename(2, "B");
      data->Execute("CREATE TABLE made (a LONG)");
    }
    outer.Commit();
  }
  EXPECT_EQ(names(), "A / Bob");
  EXPECT_FALSE(data->HasTable("made"));
  EXPECT_EQ(data->Counts().commits, commits + 1);
  {
    // A statement that fails takes back itself only.
    Transaction outer(*data);
    rename(1, "C");
    EXPECT_EQ(ErrorOf("UPDATE people SET PersonID = 5"), error_number::duplicateKey);
    outer.Commit();
  }
  EXPECT_EQ(names(), "C / Bob");
}

TEST_F(StoreFileTest, WhatWaitsForTheCommitComesAfterTheOutermostOneOrNever) {
  QString heard;
  const auto say = [&](const char *word) {
    data->AfterCommit([this, &heard, word] { heard += QString(word) + (data->InTransaction() ? "(open) " : " "); });
  };
  say("alone");
  EXPECT_EQ(std::exchange(heard, {}), "alone ");
  {
    Transaction outer(*data);
    say("first");
    {
      Transaction inner(*data);
      say("inner");
      inner.Commit();
    }
    {
      Transaction dropped(*data);
      say("dropped");
    }
    say("last");
    EXPECT_EQ(heard, QString());
    outer.Commit();
    EXPECT_EQ(std::exchange(heard, {}), "first inner last ");
  }
  {
    Transaction takenBack(*data);
    say("never");
  }
  Transaction next(*data);
  data->AfterCommit([] { throw Error(error_number::other, "late"); });
  say("still");
  EXPECT_THROW(next.Commit(), Error);
  EXPECT_EQ(heard, "still ") << "one failure keeps nobody from what follows";
}

TEST_F(StoreFileTest, AFileThatBecomesUnwritableLosesNothingAndWorksAgainLater) {
  data.reset();
  data = Database::Open(path);
  // The journal's name is taken by a folder, so that no change can begin.
  const QString journal = path + "-journal";
  QFile::remove(journal);
  ASSERT_TRUE(QDir().mkdir(journal));
  EXPECT_NE(ErrorOf("UPDATE people SET Goal = \"7\""), 0);
  {
    Transaction transaction(*data);
    EXPECT_NE(ErrorOf("UPDATE people SET Goal = \"8\""), 0);
  }
  EXPECT_EQ(Rows("SELECT Goal FROM people"), "120 / 180.5");
  ASSERT_TRUE(QDir().rmdir(journal));
  EXPECT_EQ(ErrorOf("UPDATE people SET Goal = \"9\""), 0) << description.toStdString();
  EXPECT_EQ(Rows("SELECT Goal FROM people"), "9 / 9");
}

TEST_F(StoreFileTest, AFileTakenAwayWhileItIsOpenIsWrittenToNoMore) {
  const QString away = Beside("away.dat");
  const QString copy = Beside("copy.dat");
  data->CopyTo(copy);
  const auto takeAway = [&] { ASSERT_TRUE(QFile::rename(path, away)); };
  const auto putBack = [&] {
    QFile::remove(path);
    ASSERT_TRUE(QFile::rename(away, path));
  };
  const std::pair<const char *, std::function<void()>> fates[] = {
      {"removed", [] {}}, {"replaced", [&] { ASSERT_TRUE(QFile::copy(copy, path)); }}};
  for (const auto &[fate, happens] : fates) {
    takeAway();
    happens();
    EXPECT_EQ(ErrorOf("UPDATE people SET Goal = \"1\""), error_number::fileMoved) << fate;
    EXPECT_TRUE(description.contains("put the file back")) << description.toStdString();
    try {
      Transaction transaction(*data);
      ADD_FAILURE() << fate;
    } catch (const Error &error) {
      EXPECT_EQ(error.Number(), error_number::fileMoved) << fate;
    }
    EXPECT_EQ(Rows("SELECT Goal FROM people"), "120 / 180.5") << "still to be read";
    putBack();
  }
  EXPECT_EQ(ErrorOf("UPDATE people SET Goal = \"1\""), 0) << "back in its place it is ours again";

  takeAway();
  ASSERT_TRUE(QFile::copy(copy, path));
  const QByteArray newcomer = Bytes(path);
  const QString journal = path + "-journal";
  QFile::remove(journal);
  Write(journal, "another program's");
  data.reset();
  EXPECT_EQ(Bytes(path), newcomer);
  EXPECT_EQ(Bytes(journal), "another program's") << "what stands beside another file is not ours to remove";
}

TEST_F(StoreFileTest, WhatCouldOnlyFailAtTheFirstWriteIsToldWhenItIsOpened) {
  data.reset();
  const QString journal = path + "-journal";
  const QByteArray good = Bytes(path);
  const std::pair<const char *, std::function<void()>> obstacles[] = {
      {"a header that allows no writing",
       [&] {
         QByteArray bytes = good;
         bytes[18] = 3;
         Write(path, bytes);
       }},
      {"a journal that may not be written",
       [&] {
         Write(journal, "x");
         QFile::setPermissions(journal, QFile::ReadOwner | QFile::ReadUser);
       }},
      {"a folder in the journal's place", [&] { QDir().mkdir(journal); }}};
  for (const auto &[what, obstacle] : obstacles) {
    obstacle();
    EXPECT_EQ(OpenError(path), error_number::readOnly) << what << ": " << description.toStdString();
    QDir().rmdir(journal);
    QFile::remove(journal);
    Write(path, good);
  }
  EXPECT_EQ(OpenError(path), 0) << description.toStdString();
}

TEST_F(StoreFileTest, FileJournalAndCopyAreTheOwnersAlone) {
  const auto others = [](const QString &file) {
    return QFile::permissions(file) & (QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther);
  };
  const QString made = Beside("made.dat");
  const auto fresh = Database::Create(made);
  fresh->Execute("CREATE TABLE t (a LONG)");
  const QString copy = Beside("copy.dat");
  data->CopyTo(copy);
  data.reset();
  QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther);
  data = Database::Open(path);
  data->Execute("UPDATE people SET Goal = \"1\"");
  for (const QString &file : {made, made + "-journal", copy, path, path + "-journal"}) {
    EXPECT_TRUE(QFile::exists(file)) << file.toStdString();
    EXPECT_EQ(others(file), QFile::Permissions()) << file.toStdString();
  }
}

TEST_F(StoreFileTest, LookingAtAFileThatIsHeldLetsNothingGo) {
  const QString other = Beside("other.dat");
  const auto side = Database::Create(other);
  side->Execute("CREATE TABLE t (a LONG)");
  // The file is held by this process already, so the other connection may not have it, before and after the attempt.
  for (int attempt = 0; attempt < 2; ++attempt) {
    EXPECT_EQ(ErrorOf(QStringLiteral("INSERT INTO t IN \"%1\" SELECT 1").arg(other)), error_number::fileLocked);
  }
  QProcess visitor;
  visitor.start("sqlite3", {other, "SELECT 1 FROM t"});
  if (!visitor.waitForFinished() || visitor.error() == QProcess::FailedToStart)
    GTEST_SKIP() << "no sqlite3 program to try it with";
  EXPECT_TRUE(visitor.readAllStandardError().contains("locked"));
}

TEST_F(StoreFileTest, CopiesTheWholeFile) {
  const QString copy = Beside("copy.dat");
  data->CopyTo(copy);
  EXPECT_THROW(data->CopyTo(copy), Error);
  EXPECT_EQ(RowsOf(*Database::Open(copy), "SELECT PersonName FROM people"), "Ann / Bob");
}

}  // namespace trimlog
