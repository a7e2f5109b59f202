#include "core/session/error_log.h"

#include <gtest/gtest.h>

#include <QFile>

#include "core/session/failure_guard.h"
#include "core/session/system_services.h"
#include "platform/error.h"
#include "support/test_session.h"

namespace trimlog {
namespace {

class Services : public ::testing::Test {
 protected:
  Services() : session({folder.path(), *store, clock, machine, boxes, printing, QLocale::c()}) {}
  QStringList LogLines() const {
    QFile file(folder.filePath(QStringLiteral("errorlog.txt")));
    if (!file.open(QIODevice::ReadOnly)) return {};
    return QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
  }

  QTemporaryDir folder;
  std::unique_ptr<SettingsStore> store = MemorySettings();
  FixedClock clock{QDateTime(QDate(2026, 3, 1), QTime(9, 5, 7))};
  RecordingMachine machine;
  QueuedBoxes boxes;
  RecordingPrinting printing;
  Session session;
};

TEST_F(Services, EachErrorIsOneLineInCallingOrder) {
  LogError(session, QStringLiteral("frmData"), QStringLiteral("Form_Load"), QStringLiteral("first, with a comma"));
  LogError(session, QStringLiteral("basMain"), QStringLiteral("Main"), QString::fromUtf8("second\r\nof two lines, ü"));
  const QStringList expected = {QStringLiteral("2026-03-01 09:05:07 - frmData, Form_Load, first, with a comma"),
                                QString::fromUtf8("2026-03-01 09:05:07 - basMain, Main, second of two lines, ü")};
  EXPECT_EQ(LogLines(), expected);
}

TEST_F(Services, AnyLogFileHasTheSameForm) {
  const QString path = folder.filePath(QStringLiteral("import_log.txt"));
  AppendLogLine(session, path, QStringLiteral("Import started"));
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_EQ(file.readAll().trimmed(), QByteArray("2026-03-01 09:05:07 - Import started"));
}

TEST_F(Services, TheLogIsItsOwnersAlone) {
  const QString path = folder.filePath(QStringLiteral("errorlog.txt"));
  for (const QFile::Permissions found :
       {QFile::Permissions(), QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther}) {
    if (found) QFile::setPermissions(path, found);
    LogError(session, QStringLiteral("m"), QStringLiteral("p"), QStringLiteral("text"));
    EXPECT_EQ(QFile::permissions(path) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
  }
  EXPECT_EQ(LogLines().size(), 2);
}

TEST_F(Services, ASettingThatCannotBeWrittenLeavesALine) {
  QFile inTheWay(folder.filePath(QStringLiteral("folder")));
  ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
  const auto broken = OpenSettingsFile(folder.filePath(QStringLiteral("folder/Trimlog.ini")));
  {
    const Session ofBroken({folder.path(), *broken, clock, machine, boxes, printing, QLocale::c()});
    EXPECT_FALSE(broken->SaveSettingString(settingsRoot, QStringLiteral("UomID"), QStringLiteral("2")));
  }
  ASSERT_EQ(LogLines().size(), 1);
  EXPECT_TRUE(LogLines().front().contains(QLatin1String("SaveSettingString, The settings could not be written: ")));
  broken->SaveSettingString(settingsRoot, QStringLiteral("UomID"), QStringLiteral("1"));
  EXPECT_EQ(LogLines().size(), 1) << "the session is gone";
}

TEST_F(Services, ALogThatCannotBeWrittenLosesTheLineSilently) {
  ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("errorlog.txt")));
  LogError(session, QStringLiteral("m"), QStringLiteral("p"), QStringLiteral("text"));
  AppendLogLine(session, folder.filePath(QStringLiteral("none/log.txt")), QStringLiteral("text"));
  EXPECT_FALSE(QFile::exists(folder.filePath(QStringLiteral("none"))));
}

TEST_F(Services, AFailureShowsItsBoxAndIsLogged) {
  const FailureExit exit{QStringLiteral("frmData"), QStringLiteral("Save"), QStringLiteral("Error"),
                         QStringLiteral("It failed.")};
  const auto fail = [] { throw Error(error_number::duplicateKey, QStringLiteral("twice the same key")); };

  boxes.Expect(QStringLiteral("Error"), QStringLiteral("It failed."));
  EXPECT_FALSE(Guarded(session, exit, fail));
  EXPECT_EQ(boxes.Shown().back().icon, BoxIcon::Critical);
  EXPECT_TRUE(LogLines().last().endsWith(QLatin1String(" - frmData, Save, twice the same key")));

  FailureExit withDescription = exit;
  withDescription.appendDescription = true;
  boxes.Expect(QStringLiteral("Error"), QStringLiteral("It failed.twice the same key"));
  EXPECT_FALSE(Guarded(session, withDescription, fail));

  boxes.Expect(QStringLiteral("Error"), QStringLiteral("It failed.\n\nPut it back."));
  EXPECT_FALSE(Guarded(session, exit, [] { throw Error(error_number::fileMoved, QStringLiteral("Put it back.")); }));

  FailureExit silent = exit;
  silent.text.clear();
  EXPECT_FALSE(Guarded(session, silent, [] { throw std::runtime_error("from outside"); }));
  EXPECT_TRUE(LogLines().last().endsWith(QLatin1String("from outside")));

  const qsizetype lines = LogLines().size();
  EXPECT_FALSE(GuardedQuietly(fail));
  EXPECT_TRUE(Guarded(session, exit, [] {}));
  EXPECT_EQ(LogLines().size(), lines);
}

TEST_F(Services, Web) {
  GotoWebAddress(session, QStringLiteral("https://example.org/a"));
  EXPECT_EQ(machine.opened, QStringList(QStringLiteral("https://example.org/a")));
  machine.browserWorks = false;
  boxes.Expect(QString(),
               QStringLiteral("An error occurred while trying to open your default web browser.  The web page "
                              "cannot be displayed."));
  GotoWebAddress(session, QStringLiteral("https://example.org/b"));
  EXPECT_EQ(boxes.Shown().back().icon, BoxIcon::Critical);
}

class Registry final : public OperatingSystem {
 public:
  WindowsVersion Version() const override { return {}; }
  std::optional<QVariant> ReadKey(KeyRoot, const QString &key, const QString &valueName) const override {
    const auto found = values.find(key + u'|' + valueName);
    return found == values.end() ? std::nullopt : std::optional<QVariant>(*found);
  }
  QMap<QString, QString> values;
};

TEST_F(Services, SystemInformation) {
  Registry registry;
  boxes.Expect(QString(), QStringLiteral("System Information Is Unavailable At This Time"));
  StartSysInfo(session, registry);
  EXPECT_TRUE(machine.started.isEmpty());

  registry.values[QStringLiteral("SOFTWARE\\Microsoft\\Shared Tools Location|MSINFO")] = folder.path();
  boxes.Expect(QString(), QStringLiteral("System Information Is Unavailable At This Time"));
  StartSysInfo(session, registry);
  EXPECT_TRUE(machine.started.isEmpty()) << "the tool is not in that folder";

  QFile tool(folder.filePath(QStringLiteral("MSINFO32.EXE")));
  ASSERT_TRUE(tool.open(QIODevice::WriteOnly));
  StartSysInfo(session, registry);
  EXPECT_EQ(machine.started.size(), 1);

  registry.values[QStringLiteral("SOFTWARE\\Microsoft\\Shared Tools\\MSINFO|PATH")] = QStringLiteral("C:\\msinfo.exe");
  StartSysInfo(session, registry);
  EXPECT_EQ(machine.started.last().trimmed(), QStringLiteral("C:\\msinfo.exe"));
}

TEST_F(Services, LocaleAndPaths) {
  EXPECT_EQ(GetLocaleValue(QLocale(QLocale::German, QLocale::Germany), localeDecimalSign), QStringLiteral(","));
  EXPECT_EQ(GetLocaleValue(QLocale(QLocale::German, QLocale::Switzerland), localeDecimalSign), QStringLiteral("."));
  EXPECT_EQ(GetLocaleValue(QLocale(QLocale::English, QLocale::UnitedStates), localeShortDate),
            QStringLiteral("M/d/yy"));
  EXPECT_EQ(GetLocaleValue(QLocale::c(), 9999), QString());

  for (const auto &[path, trimmed] :
       {std::pair{"C:\\Backup\\", "C:\\Backup"}, {"/home/ann/", "/home/ann"}, {"a", "a"}, {"a\\\\", "a\\"}, {"", ""}}) {
    EXPECT_EQ(TrimTrailingSlash(QLatin1String(path)), QLatin1String(trimmed));
  }
}

}  // namespace
}  // namespace trimlog
