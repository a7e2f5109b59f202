#include "platform/machine/safe_file.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "platform/error.h"
#include "platform/machine/private_file.h"
#include "support/full_disk.h"

namespace trimlog {
namespace {

class SafeFileTest : public ::testing::Test {
 protected:
  QByteArray Content() const {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }
  QStringList Names() const { return QDir(directory.path()).entryList(QDir::Files | QDir::Hidden); }
  QTemporaryDir directory;
  QString path = directory.filePath("report.pdf");
};

TEST_F(SafeFileTest, ReplacesTheWholeFileAndKeepsItsRights) {
  WriteSafely(path, "first");
  EXPECT_EQ(Content(), "first");
  QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner);
  WriteSafely(path, "second");
  EXPECT_EQ(Content(), "second");
  EXPECT_EQ(QFile::permissions(path) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
  EXPECT_EQ(Names(), QStringList{"report.pdf"});
}

TEST_F(SafeFileTest, WhatFailsLeavesTheFormerFileAndNothingBeside) {
  WriteSafely(path, "good");
  const auto tear = [](const QString &beside) {
    QFile file(beside);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("to");
  };
  const auto refuse = [](const QString &) -> bool { return false; };
  const std::pair<const char *, std::function<void()>> ways[] = {
      {"full disk",
       [this] {
         const FullDisk full(100);
         WriteSafely(path, QByteArray(5000, 'x'));
       }},
      {"not whole", [&] { WriteSafely(path, tear, refuse); }},
      {"empty", [this] { WriteSafely(path, [](const QString &) {}); }},
      {"the writer gives up",
       [this] { WriteSafely(path, [](const QString &) { throw Error(error_number::diskFull, {}); }); }}};
  for (const auto &[what, way] : ways) {
    int number = 0;
    try {
      way();
    } catch (const Error &error) {
      number = error.Number();
    }
    EXPECT_EQ(number, error_number::diskFull) << what;
    EXPECT_EQ(Content(), "good") << what;
    EXPECT_EQ(Names(), QStringList{"report.pdf"}) << what;
  }
  EXPECT_THROW(WriteSafely(directory.filePath("none/report.pdf"), "x"), Error);
}

TEST_F(SafeFileTest, APrivateFileIsItsOwnersAlone) {
  const QFile::Permissions others = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
  EXPECT_TRUE(CreatePrivate(path));
  EXPECT_EQ(QFile::permissions(path) & others, QFile::Permissions());
  EXPECT_FALSE(CreatePrivate(path)) << "what stands there stays";
  QFile::setPermissions(path, QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther);
  MakePrivate(path);
  EXPECT_EQ(QFile::permissions(path) & (others | QFile::WriteOwner | QFile::ReadOwner), QFile::ReadOwner)
      << "a file marked read-only stays so";
}

}  // namespace
}  // namespace trimlog
