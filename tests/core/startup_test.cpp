#include "core/start/startup.h"

#include <SQLiteCpp/Database.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include "core/data/data_access.h"
#include "core/start/session_start.h"
#include "core/start_bench.h"
#include "platform/error.h"
#include "platform/text/text_format.h"

namespace trimlog {
namespace {

using Outcome = Application::Outcome;

/// A process of its own that holds the data file as a running program does.
class OtherProgram {
 public:
  explicit OtherProgram(const QString &path) {
    int ready[2];
    if (pipe(ready) != 0) return;
    child_ = fork();
    if (child_ == 0) {
      const auto database = Database::Open(path);
      if (write(ready[1], "y", 1) == 1) pause();
      _exit(0);
    }
    char answer = 0;
    EXPECT_EQ(read(ready[0], &answer, 1), 1);
    close(ready[0]);
    close(ready[1]);
  }
  ~OtherProgram() {
    kill(child_, SIGKILL);
    waitpid(child_, nullptr, 0);
  }

 private:
  pid_t child_ = -1;
};

class Start : public ::testing::Test {
 protected:
  QByteArray Bytes() const {
    QFile file(bench.DataPath());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }
  void Write(const QByteArray &bytes) const {
    QFile file(bench.DataPath());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(bytes);
  }
  QString Quoted() const { return u'"' + bench.DataPath() + u'"'; }

  QStringList Files() const {
    QStringList files = QDir(bench.directory.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    files.removeAll("errorlog.txt");
    return files;
  }

  /// Starts on a file that cannot be used, and looks at everything that must follow.
  void ExpectRefusal(int number, const QString &title, const QString &text) {
    const QByteArray before = Bytes();
    const QStringList filesBefore = Files();
    bench.boxes.Expect(title, text);
    EXPECT_EQ(bench.application.Main(), Outcome::Ended);
    const Box &box = bench.boxes.Shown().back();
    EXPECT_EQ(box.icon, BoxIcon::Critical);
    EXPECT_EQ(box.buttons, QList<BoxButton>{BoxButton::Ok});
    EXPECT_EQ(bench.calls, QStringList{"splash closed"});
    EXPECT_TRUE(bench.Log().startsWith(
        QStringLiteral("2026-03-01 12:00:00 - basMain, Main, Error opening database.  ErrNum=%1 ErrDesc=").arg(number)))
        << bench.Log();
    EXPECT_EQ(Bytes(), before);
    EXPECT_EQ(Files(), filesBefore) << "no journal, no new file is left behind";
  }
  void ExpectOther(int number) {
    ExpectRefusal(
        number, "Could Not Open Database",
        QStringLiteral("There was an error opening the database.  Please contact Corvane Software at "
                       "support@corvane.example and give them the following details:\n\nError Number: %1\nError "
                       "Description: ")
            .arg(number));
    EXPECT_FALSE(bench.boxes.Shown().back().text.section("Description: ", 1).isEmpty());
  }

  StartBench bench;
};

TEST_F(Start, AMissingFileAndAFolderInItsPlaceAreToldApart) {
  QFile::remove(bench.DataPath());
  ExpectRefusal(3024, "Database File Missing",
                QStringLiteral("The database (%1) could not be opened because it was not found in the program "
                               "directory.\n\nOne possible solution would be to re-install Trimlog Pro.  If that does "
                               "not work, please contact Corvane Software to resolve the problem.")
                    .arg(Quoted()));
  QFile::remove(bench.directory.filePath("errorlog.txt"));
  bench.calls.clear();
  QDir().mkdir(bench.DataPath());
  ExpectOther(error_number::cannotOpen);
}

TEST_F(Start, AFileThatIsNoneOfOursIsToldAndLeftAsItIs) {
  const QByteArray good = Bytes();
  QByteArray header = good;
  header.replace(0, 16, QByteArray(16, '\x5a'));
  const QString other = bench.directory.filePath("other.dat");
  // A sound file without this program's mark.
  SQLite::Database(other.toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE)
      .exec("CREATE TABLE people (PersonID INTEGER); INSERT INTO people VALUES (1);");
  QFile foreign(other);
  ASSERT_TRUE(foreign.open(QIODevice::ReadOnly));
  for (const QByteArray &bytes :
       {QByteArray(), QByteArray("This is a letter to my aunt.\n").repeated(500), header, foreign.readAll(),
        good.left(60), good.left(5000), good.left(good.size() / 2), good.left(good.size() - 1)}) {
    SCOPED_TRACE(bytes.size());
    Write(bytes);
    QFile::remove(bench.directory.filePath("errorlog.txt"));
    bench.calls.clear();
    ExpectRefusal(
        3343, "Database File Corrupt",
        QStringLiteral("The database (%1) could not be opened because it is corrupt.\n\nThis can happen if your "
                       "computer crashes while the program is open, and most of the time the file can be "
                       "repaired completely.  Please contact Corvane Software to resolve the problem.")
            .arg(Quoted()));
  }
}

TEST_F(Start, ReadOnlyFile) {
  const QFile::Permissions all =
      QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
  ASSERT_TRUE(QFile::setPermissions(bench.directory.path(), all));
  ASSERT_TRUE(QFile::setPermissions(bench.DataPath(), QFile::ReadOwner | QFile::ReadOther));
  // Permissions do not stop the superuser; an ordinary account, in a process of its own, meets them.
  const pid_t child = fork();
  if (child == 0) {
    constexpr uid_t nobody = 65534;
    EXPECT_TRUE(geteuid() != 0 || (setgid(nobody) == 0 && setuid(nobody) == 0));
    ExpectOther(error_number::readOnly);
    _exit(HasFailure() ? 1 : 0);
  }
  int status = -1;
  EXPECT_EQ(waitpid(child, &status, 0), child);
  EXPECT_EQ(status, 0);
}

TEST_F(Start, FileHeldByAnotherProgram) {
  const OtherProgram other(bench.DataPath());
  ExpectOther(error_number::fileLocked);
}

TEST_F(Start, TheStepsComeInOrder) {
  bench.Put("Serava", "1");
  bench.Put("WindowState", "2");
  bench.store->SaveSettingString(settingsRoot + "\\PPC", "DaysHistory", "7");
  EXPECT_EQ(bench.application.Main(), Outcome::Running);
  const QStringList expected = {"handheld 0", "upgrade", "serava", "rewards", "frame", "events", "maximised"};
  EXPECT_EQ(bench.calls, expected);
  EXPECT_EQ(bench.session.UomDisplay, "Lbs");
  EXPECT_FALSE(bench.session.nutrients.NutrientDefs[0].fieldName.isEmpty());
  EXPECT_EQ(bench.Setting("ShowSplash"), "-1") << "the first start writes the defaults";
  EXPECT_EQ(bench.Log(), QString());
}

TEST_F(Start, ACopyThatRunsAlreadyIsRaisedAndNothingElseHappens) {
  const QByteArray before = Bytes();
  bench.doors.ActivatePrevInstance = [] { return true; };
  EXPECT_EQ(bench.application.Main(), Outcome::Ended);
  EXPECT_FALSE(bench.session.database);
  EXPECT_EQ(bench.Setting("CheckForConflicts1"), "none");
  EXPECT_EQ(Bytes(), before);
  EXPECT_TRUE(bench.calls.isEmpty());
}

TEST_F(Start, ProfileThatIsChosen) {
  struct Case {
    const char *saved;
    const char *people;  // PersonIDs above 0
    const char *chosen;
  };
  const Case cases[] = {{"3", "2,3,11", "3"}, {"7", "3,2,11", "2"}, {"-1", "2,3", "2"}, {"0", "4", "4"},
                        {"", "", "1"},        {"5", "", "1"},       {"-2", "", "1"},    {"03", "2,3", "2"}};
  for (const Case &c : cases) {
    SCOPED_TRACE(c.saved);
    StartBench fresh;
    for (const QString &person : QString::fromLatin1(c.people).split(u',', Qt::SkipEmptyParts)) {
      fresh.Prepare(QStringLiteral("INSERT INTO people ( PersonID, PersonName ) SELECT %1 AS Expr1, \"P\" AS Expr2;")
                        .arg(person));
    }
    fresh.Put("PersonID", c.saved);
    EXPECT_EQ(fresh.application.Main(), Outcome::Running);
    EXPECT_EQ(fresh.session.profile.CurrentPersonID, c.chosen);
    EXPECT_EQ(fresh.session.profile.LastRealPersonID, c.chosen);
  }
}

TEST_F(Start, ColourAndTargetsOfTheProfile) {
  struct Case {
    const char *backColor, *target;
    double screenColours;
    quint32 expectedColour;
    int expectedTarget;
  };
  for (const Case &c : {Case{"Null", "Null", 16777216, 0xFFE0C0, 30}, Case{"Null", "0", 256, 0xC0FFFF, 0},
                        Case{"Null", "101", 257, 0xFFE0C0, 101}, Case{"65280", "30", 256, 65280, 30}}) {
    StartBench fresh;
    fresh.machine.colors = c.screenColours;
    fresh.Prepare("INSERT INTO people ( PersonID, PersonName ) SELECT 1 AS Expr1, \"P\" AS Expr2;");
    fresh.Prepare(
        QStringLiteral("UPDATE people SET people.BackColor = %1, people.NutTargetID = %2 WHERE people.PersonID=1;")
            .arg(c.backColor, c.target));
    EXPECT_EQ(fresh.application.Main(), Outcome::Running);
    EXPECT_EQ(fresh.session.profile.BackColor, c.expectedColour);
    EXPECT_EQ(fresh.session.profile.NutTargetID, c.expectedTarget);
  }
}

TEST_F(Start, TheDateTableHoldsTodayAlone) {
  bench.Prepare("DROP TABLE temp_alldates;");
  for (int start = 0; start < 2; ++start) {
    EXPECT_EQ(bench.application.Main(), Outcome::Running);
    const auto value = [this](const char *field) {
      return GetDataValue(bench.session.Data(), field, "temp_alldates").toStdString();
    };
    EXPECT_EQ(value("ThisDate"), "2026-03-01");
    EXPECT_EQ(value("PersonID"), "1");
    EXPECT_EQ(value("ThisIndex"), "1");
    EXPECT_EQ(GetDataValue(bench.session.Data(), "Count(*) AS Rows", "temp_alldates", {}, "Rows"), "1");
    bench.session.Data().Execute("UPDATE temp_alldates SET temp_alldates.ThisDate = #1/1/1999#;");
  }
}

TEST_F(Start, ASecondStartOfTheDayWritesNothing) {
  EXPECT_EQ(bench.application.Main(), Outcome::Running);
  const qint64 before = bench.session.Data().Counts().commits;
  RecreateDateTable(bench.session);
  EXPECT_EQ(bench.session.Data().Counts().commits, before);
  bench.session.Data().Execute("DROP TABLE temp_alldates;");
  bench.session.Data().Execute(
      QStringLiteral("SELECT %1 AS ThisDate, 1 As PersonID INTO temp_alldates;").arg(SQLDate(bench.session.Today())));
  RecreateDateTable(bench.session);
  EXPECT_EQ(GetDataValue(bench.session.Data(), "ThisIndex", "temp_alldates"), "1")
      << "a table of another shape is made anew";
}

TEST_F(Start, TheDecimalSignOfTheLocale) {
  for (const auto &[locale, comma] : {std::pair{QLocale(QLocale::German, QLocale::Germany), true},
                                      {QLocale(QLocale::German, QLocale::Switzerland), false},
                                      {QLocale(QLocale::French, QLocale::France), true}}) {
    bench.session.locale = locale;
    EXPECT_EQ(bench.application.Main(), Outcome::Running);
    EXPECT_EQ(bench.session.DecimalComma, comma) << locale.name().toStdString();
  }
}

TEST_F(Start, NoStartEndsWithoutAWord) {
  struct Case {
    int number;
    std::function<void(StartBench &)> fault;
    const char *title;
  };
  const Case cases[] = {{error_number::unknownTable, [](StartBench &b) { b.Prepare("DROP TABLE selected_nutrients;"); },
                         "Could Not Open Database"},
                        {error_number::diskFull,
                         [](StartBench &b) {
                           b.hooks.LoadRewardSettings = [] { throw Error(error_number::diskFull, "The disk is full"); };
                         },
                         "Could Not Open Database"},
                        {error_number::fileDamaged,
                         [](StartBench &b) {
                           b.hooks.LoadRewardSettings = [] { throw Error(error_number::fileDamaged, "a torn page"); };
                         },
                         "Database File Corrupt"}};
  for (const Case &row : cases) {
    SCOPED_TRACE(row.number);
    StartBench fresh;
    row.fault(fresh);
    const bool corrupt = row.number == error_number::fileDamaged;
    fresh.boxes.Expect(row.title,
                       corrupt ? "because it is corrupt" : QStringLiteral("Error Number: %1").arg(row.number));
    EXPECT_EQ(fresh.application.Main(), Outcome::Ended);
    EXPECT_EQ(fresh.calls, (QStringList{"upgrade", "splash closed"}))
        << "what stands behind the failing step is left out";
    EXPECT_TRUE(fresh.Log().startsWith(
        QStringLiteral("2026-03-01 12:00:00 - basMain, Main, Error %1 in basMain.Main").arg(row.number)))
        << fresh.Log().toStdString();
  }
}

TEST_F(Start, AProfileNumberedZeroGetsTheNextFreeNumberWithItsData) {
  bench.Prepare("INSERT INTO people ( PersonID, PersonName ) VALUES ( 4, \"Ann\" );");
  bench.Prepare("INSERT INTO people ( PersonID, PersonName ) VALUES ( 0, \"Zoe\" );");
  bench.Prepare("INSERT INTO weight_loss ( PersonID, ThisDate, ThisWeight ) VALUES ( 0, #1/1/2026#, 180 );");
  EXPECT_EQ(bench.application.Main(), Outcome::Running);
  const auto value = [this](const char *field, const char *table, const char *where) {
    return GetDataValue(bench.session.Data(), field, table, where);
  };
  EXPECT_EQ(value("PersonName", "people", "PersonID=5"), "Zoe");
  EXPECT_EQ(value("ThisWeight", "weight_loss", "PersonID=5"), "180");
  EXPECT_EQ(value("PersonID", "people", "PersonID=0"), QString());
  EXPECT_EQ(bench.session.profile.CurrentPersonID, "4");
}

TEST_F(Start, AFailureBehindTheFrameLeavesItStanding) {
  bench.doors.LetEventsRun = [] { throw Error(error_number::other, "a late fault"); };
  EXPECT_EQ(bench.application.Main(), Outcome::Running);
  EXPECT_TRUE(bench.Log().contains("a late fault"));
}

TEST_F(Start, AFrameThatCannotRunEndsTheProgram) {
  bench.frameLoads = false;
  EXPECT_EQ(bench.application.Main(), Outcome::Ended);
  EXPECT_FALSE(bench.calls.contains("events"));
}

TEST_F(Start, NoticesAfterAnUpgrade) {
  const auto upgrade = [this](const char *version) {
    bench.calls.clear();
    bench.oldVersion = version;
    EXPECT_EQ(bench.application.Main(), Outcome::Running);
  };
  for (const char *version : {"", "2.7", "2.75", "3"}) upgrade(version);
  EXPECT_TRUE(bench.boxes.Shown().empty());

  const auto expectNews = [this] {
    bench.boxes.Expect(
        "New Meal Types Added",
        "This latest version of Trimlog Pro has added new Meal Types for your Journal.  You now have the following "
        "Meal Types:\n\nBreakfast, Morning Snack, Lunch, Afternoon Snack, Dinner, Dessert, Late Snack, Drink, "
        "Supplement\n\nSince the Meal Type of 'Snack' no longer exists, the program has updated your old 'Snack' meal "
        "entries to 'Afternoon Snack'.  If you need to, you can easily change your old meal entries to something more "
        "appropriate, such as Morning Snack, Dessert, or Late Snack.");
    bench.boxes.Expect(
        "Important Notice About Backup and Restore",
        "The Backup and Restore features have been completely revamped in this update.  Your backups will now be "
        "compressed so that they take less space and can fit onto a single floppy diskette.  This is a dramatic change "
        "to the backup process, however, and your previous backups are no longer compatible with this version of the "
        "program.\n\nIf you have any old backups, it is highly recommended that you discard them and do another backup "
        "soon.");
  };
  expectNews();
  upgrade("2.5");
  for (const BoxButton answer : {BoxButton::Yes, BoxButton::No}) {
    bench.boxes.Expect("Gender and Birth Date Required",
                       "Some of the new features require that you have entered your Gender and Birth Date into your "
                       "Profile setup.  Would you like to do this now?",
                       answer);
    if (answer == BoxButton::No) {
      bench.boxes.Expect("Entering Your Gender and Birth Date",
                         "When you're ready to enter your Birth Date and Gender, just click the <Setup> button and "
                         "edit the profiles list.");
    }
    expectNews();
    upgrade("2.4");
    EXPECT_EQ(bench.calls.contains("setup"), answer == BoxButton::Yes);
  }
}
}  // namespace
}  // namespace trimlog
