#include "core/session/error_log.h"

#include <gtest/gtest.h>

#include "core/bare_session.h"
#include "core/session/failure_guard.h"
#include "core/session/system_services.h"
#include "platform/error.h"

namespace trimlog {
namespace {

class Services : public ::testing::Test, public BareSession {};

TEST_F(Services, EachErrorIsOneLineInCallingOrder) {
  LogError(session, "frmData", "Form_Load", "first, with a comma");
  LogError(session, "basMain", "Main", "second\r\nof two lines, ü");
  const QStringList expected = {"2026-03-01 12:00:00 - frmData, Form_Load, first, with a comma",
                                "2026-03-01 12:00:00 - basMain, Main, second of two lines, ü"};
  EXPECT_EQ(LogLines(), expected);
}

TEST_F(Services, AnyLogFileHasTheSameForm) {
  const QString path = directory.filePath("import_log.txt");
  AppendLogLine(session, path, "Import started");
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_EQ(file.readAll().trimmed(), QByteArray("2026-03-01 12:00:00 - Import started"));
}

TEST_F(Services, TheLogIsItsOwnersAlone) {
  const QString path = directory.filePath("errorlog.txt");
  for (const QFile::Permissions found :
       {QFile::Permissions(), QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther}) {
    if (found) QFile::setPermissions(path, found);
    LogError(session, "m", "p", "text");
    EXPECT_EQ(QFile::permissions(path) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
  }
  EXPECT_EQ(LogLines().size(), 2);
}

TEST_F(Services, ASettingThatCannotBeWrittenLeavesALine) {
  QFile inTheWay(directory.filePath("folder"));
  ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
  const auto broken = OpenSettingsFile(directory.filePath("folder/Trimlog.ini"));
  {
    const Session ofBroken({directory.path(), *broken, clock, machine, boxes, printing, QLocale::c()});
    EXPECT_FALSE(broken->SaveSettingString(settingsRoot, "UomID", "2"));
  }
  ASSERT_EQ(LogLines().size(), 1);
  EXPECT_TRUE(LogLines().front().contains("SaveSettingString, The settings could not be written: "));
  broken->SaveSettingString(settingsRoot, "UomID", "1");
  EXPECT_EQ(LogLines().size(), 1) << "the session is gone";
}

TEST_F(Services, ALogThatCannotBeWrittenLosesTheLineSilently) {
  ASSERT_TRUE(QDir(directory.path()).mkdir("errorlog.txt"));
  LogError(session, "m", "p", "text");
  AppendLogLine(session, directory.filePath("none/log.txt"), "text");
  EXPECT_FALSE(QFile::exists(directory.filePath("none")));
}

TEST_F(Services, AFailureShowsItsBoxAndIsLogged) {
  const FailureExit exit{"frmData", "Save", "Error", "It failed."};
  const auto fail = [] { throw Error(error_number::duplicateKey, "twice the same key"); };

  boxes.Expect("Error", "It failed.");
  EXPECT_FALSE(Guarded(session, exit, fail));
  EXPECT_EQ(boxes.Shown().back().icon, BoxIcon::Critical);
  EXPECT_TRUE(LogLines().last().endsWith(" - frmData, Save, twice the same key"));

  FailureExit withDescription = exit;
  withDescription.appendDescription = true;
  boxes.Expect("Error", "It failed.twice the same key");
  EXPECT_FALSE(Guarded(session, withDescription, fail));

  boxes.Expect("Error", "It failed.\n\nPut it back.");
  EXPECT_FALSE(Guarded(session, exit, [] { throw Error(error_number::fileMoved, "Put it back."); }));

  FailureExit silent = exit;
  silent.text.clear();
  EXPECT_FALSE(Guarded(session, silent, [] { throw std::runtime_error("from outside"); }));
  EXPECT_TRUE(LogLines().last().endsWith("from outside"));

  const qsizetype lines = LogLines().size();
  EXPECT_FALSE(GuardedQuietly(fail));
  EXPECT_TRUE(Guarded(session, exit, [] {}));
  EXPECT_EQ(LogLines().size(), lines);
}

TEST_F(Services, Web) {
  GotoWebAddress(session, "https://example.org/a");
  EXPECT_EQ(machine.opened, QStringList("https://example.org/a"));
  machine.browserWorks = false;
  boxes.Expect(QString(),
               "An error occurred while trying to open your default web browser.  The web page "
               "cannot be displayed.");
  GotoWebAddress(session, "https://example.org/b");
  EXPECT_EQ(boxes.Shown().back().icon, BoxIcon::Critical);
}

TEST_F(Services, SystemInformation) {
  TestSystem registry;
  boxes.Expect(QString(), "System Information Is Unavailable At This Time");
  StartSysInfo(session, registry);
  EXPECT_TRUE(machine.started.isEmpty());

  registry.values["SOFTWARE\\Microsoft\\Shared Tools Location|MSINFO"] = directory.path();
  boxes.Expect(QString(), "System Information Is Unavailable At This Time");
  StartSysInfo(session, registry);
  EXPECT_TRUE(machine.started.isEmpty()) << "the tool is not in that folder";

  QFile tool(directory.filePath("MSINFO32.EXE"));
  ASSERT_TRUE(tool.open(QIODevice::WriteOnly));
  StartSysInfo(session, registry);
  EXPECT_EQ(machine.started.size(), 1);

  registry.values["SOFTWARE\\Microsoft\\Shared Tools\\MSINFO|PATH"] = "C:\\msinfo.exe";
  StartSysInfo(session, registry);
  EXPECT_EQ(machine.started.last().trimmed(), "C:\\msinfo.exe");
}

TEST_F(Services, LocaleAndPaths) {
  EXPECT_EQ(GetLocaleValue(QLocale(QLocale::German, QLocale::Germany), localeDecimalSign), ",");
  EXPECT_EQ(GetLocaleValue(QLocale(QLocale::German, QLocale::Switzerland), localeDecimalSign), ".");
  EXPECT_EQ(GetLocaleValue(QLocale(QLocale::English, QLocale::UnitedStates), localeShortDate), "M/d/yy");
  EXPECT_EQ(GetLocaleValue(QLocale::c(), 9999), QString());

  for (const auto &[path, trimmed] :
       {std::pair{"C:\\Backup\\", "C:\\Backup"}, {"/home/ann/", "/home/ann"}, {"a", "a"}, {"a\\\\", "a\\"}, {"", ""}}) {
    EXPECT_EQ(TrimTrailingSlash(path), trimmed);
  }
}

}  // namespace
}  // namespace trimlog
