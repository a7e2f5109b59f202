// Every file that the program writes by itself, on a disk that takes no more.
#include "support/full_disk.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QFileInfo>

#include "core/session/change.h"
#include "core/session/failure_guard.h"
#include "support/heard_changes.h"
#include "support/test_session.h"

namespace trimlog {
namespace {

QByteArray Content(const QString &path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

TEST(FullDiskTest, TheDataFileKeepsWhatItHadAndGoesOnLater) {
  TestSession session;
  HeardChanges heard(*session);
  const auto write = [&session] {
    Change change(*session);
    session.AddProfile(2, "Ann");
    session.Data().Execute("INSERT INTO notes ( PersonID, RecordID, ThisDate, Notes ) VALUES ( 2, 1, #3/1/2026#, ? );",
                           {QString(4000000, QLatin1Char('x'))});
    change.Announce({.table = Table::People, .keys = {2}});
    change.Commit();
  };
  const FailureExit exit{"m", "p", "Error Saving", "Not saved."};
  {
    const FullDisk full(static_cast<rlim_t>(QFileInfo(session->DataFilePath()).size()));
    session.boxes.Expect("Error Saving", "Not saved.");
    EXPECT_FALSE(Guarded(*session, exit, write));
    EXPECT_EQ(session.ValueOf("PersonName", "people", "PersonID=2"), "");
  }
  EXPECT_EQ(heard.Take(), "");
  EXPECT_EQ(session.LogLines().size(), 1);
  EXPECT_TRUE(session.Data().IntegrityOk());
  EXPECT_TRUE(Guarded(*session, exit, write));
  EXPECT_EQ(heard.Take(), "people 2");
}

TEST(FullDiskTest, SettingsAndLogKeepWhatTheyHad) {
  TestSession session;
  const QString path = session.directory.filePath("Trimlog.ini");
  const auto settings = OpenSettingsFile(path);
  ASSERT_TRUE(settings->SaveSettingString(settingsRoot, "UomID", "2"));
  const QByteArray before = Content(path);
  LogError(*session, "m", "p", "first");
  const QStringList lines = session.LogLines();
  {
    const FullDisk full(10);
    EXPECT_FALSE(settings->SaveSettingString(settingsRoot, "UserName", "Ann"));
    LogError(*session, "m", "p", "second");
  }
  EXPECT_EQ(Content(path), before);
  EXPECT_EQ(session.LogLines(), lines);
  EXPECT_TRUE(settings->SaveSettingString(settingsRoot, "UomID", "1"));
  EXPECT_TRUE(Content(path).contains("UserName=Ann")) << "written with the next that the disk takes";
}

}  // namespace
}  // namespace trimlog
