#include "platform/machine/settings_store.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

namespace trimlog {
namespace {

class SettingsFile : public ::testing::Test {
 protected:
  QString Path() const { return folder_.filePath("conf/Trimlog.ini"); }
  std::unique_ptr<SettingsStore> Open() const { return OpenSettingsFile(Path()); }
  QString Content() const {
    QFile file(Path());
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return QString::fromUtf8(file.readAll());
  }
  void Replace(const QByteArray &content) const {
    QFile file(Path());
    EXPECT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(content);
  }

  QTemporaryDir folder_;
  const QString name_ = "UserName";
};

TEST_F(SettingsFile, KeepsTextToTheLetter) {
  const QString texts[] = {"-1",
                           "plain",
                           "Smith, John; \"Johnny\"",
                           "  leading and trailing  ",
                           "C:\\Program Files\\Trimlog\\",
                           "line\nbreak\ttab",
                           "@Variant(1)",
                           "%41 a/b = [c] #d",
                           "Zoë Müller 🍎 日本",
                           QString(10000, u'x')};
  for (const QString &text : texts) {
    ASSERT_TRUE(Open()->SaveSettingString(settingsRoot, name_, text));
    EXPECT_EQ(Open()->GetSettingString(settingsRoot, name_), text);
  }
}

TEST_F(SettingsFile, IsOnTheDiskWhenTheCallReturns) {
  const auto store = Open();
  ASSERT_TRUE(store->SaveSettingString(settingsRoot, "UomID", "2"));
  EXPECT_TRUE(Content().contains("UomID=2"));
  EXPECT_EQ(Content().count(u'['), 1) << "one group for the whole key path";
}

TEST_F(SettingsFile, ABatchIsOnTheDiskWhenItEnds) {
  const auto store = Open();
  {
    const SettingsBatch batch(*store);
    EXPECT_TRUE(store->SaveSettingString(settingsRoot, "A", "1"));
    EXPECT_EQ(store->GetSettingString(settingsRoot, "A"), "1");
    EXPECT_FALSE(QFile::exists(Path()));
  }
  EXPECT_TRUE(Content().contains("A=1"));
}

TEST_F(SettingsFile, TextEndsAtTheFirstNul) {
  Open()->SaveSettingString(settingsRoot, name_, QStringLiteral("abc") + QChar(0) + "def");
  EXPECT_EQ(Open()->GetSettingString(settingsRoot, name_), "abc");
}

TEST_F(SettingsFile, MissingIsNotEmpty) {
  Open()->SaveSettingString(settingsRoot, name_, QString());
  EXPECT_EQ(Open()->GetSettingString(settingsRoot, name_, "x"), QString());
  EXPECT_EQ(Open()->GetSettingString(settingsRoot, "Other", "x"), "x");
  EXPECT_EQ(Open()->GetSettingString("Software\\Other", name_, "x"), "x");
}

TEST_F(SettingsFile, NumbersThatDoNotFitCountAsMissing) {
  const auto store = Open();
  struct Case {
    const char *text;
    int asLong, asByte;
  };
  for (const Case &c :
       {Case{"255", 255, 255}, Case{"256", 256, 7}, Case{"-1", -1, 7}, Case{"2147483647", 2147483647, 7},
        Case{"2147483648", 7, 7}, Case{"1.5", 7, 7}, Case{"abc", 7, 7}, Case{"", 7, 7}}) {
    store->SaveSettingString(settingsRoot, name_, c.text);
    EXPECT_EQ(store->GetSettingLong(settingsRoot, name_, 7), c.asLong) << c.text;
    EXPECT_EQ(store->GetSettingByte(settingsRoot, name_, 7), c.asByte) << c.text;
  }
  store->SaveSettingLong(settingsRoot, name_, -42);
  EXPECT_EQ(Open()->GetSettingString(settingsRoot, name_), "-42");
}

TEST_F(SettingsFile, DeletingAKeyTakesItsSubkeysAndNoOthers) {
  const auto store = Open();
  const QString subkey = settingsRoot + "\\PPC";
  const QString sibling = settingsRoot + "1";
  for (const QString &key : {settingsRoot, subkey, sibling}) store->SaveSettingString(key, name_, "v");

  EXPECT_TRUE(store->DeleteValue(subkey, name_));
  EXPECT_FALSE(store->DeleteValue(subkey, name_));
  EXPECT_EQ(store->GetSettingString(settingsRoot, name_), "v");

  store->SaveSettingString(subkey, name_, "v");
  EXPECT_TRUE(store->DeleteKey(settingsRoot));
  EXPECT_FALSE(store->DeleteKey(settingsRoot));
  EXPECT_EQ(Open()->GetSettingString(settingsRoot, name_), QString());
  EXPECT_EQ(Open()->GetSettingString(subkey, name_), QString());
  EXPECT_EQ(Open()->GetSettingString(sibling, name_), "v");
}

TEST_F(SettingsFile, AnUnreadableFileIsAnEmptyStore) {
  Open()->SaveSettingString(settingsRoot, name_, "v");
  Replace(QByteArray("\x00\xff\xfe[[[===\n\x01", 12));
  EXPECT_EQ(Open()->GetSettingString(settingsRoot, name_, "x"), "x");
  EXPECT_FALSE(OpenSettingsFile(folder_.path())->SaveSettingString(settingsRoot, name_, "v"))
      << "a folder stands where the file belongs";
}

TEST_F(SettingsFile, IsItsOwnersAlone) {
  const auto others = [this] { return QFile::permissions(Path()) & (QFile::ReadGroup | QFile::ReadOther); };
  Open()->SaveSettingString(settingsRoot, name_, "Ann");
  EXPECT_EQ(others(), QFile::Permissions());
  QFile::setPermissions(Path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther);
  Open();
  EXPECT_EQ(others(), QFile::Permissions()) << "found wider";
}

TEST_F(SettingsFile, TwoProgramsKeepEachOthersValues) {
  const auto first = Open();
  const auto second = Open();
  first->SaveSettingString(settingsRoot, "A", "1");
  second->SaveSettingString(settingsRoot, "B", "2");
  EXPECT_EQ(Open()->GetSettingString(settingsRoot, "A"), "1");
  EXPECT_EQ(Open()->GetSettingString(settingsRoot, "B"), "2");
}

}  // namespace
}  // namespace trimlog
