#include "platform/machine/operating_system.h"

#include <gtest/gtest.h>

#include "platform/store/file_version.h"
#include "platform/text/decimal_key.h"

namespace trimlog {
namespace {

TEST(WindowsVersion, NamesEverySystem) {
  struct Case {
    SystemVersion system;
    int code;
    const char *name;
  };
  const Case cases[] = {{{0, 3, 11, 0, {}}, 2, "Windows 32s"},
                        {{1, 4, 0, 0, {}}, 3, "Windows 95"},
                        {{1, 4, 10, 0, {}}, 4, "Windows 98"},
                        {{1, 4, 90, 0, {}}, 5, "Windows ME"},
                        {{2, 3, 51, 0, {}}, 32, "Windows NT3"},
                        {{2, 4, 0, 0, {}}, 33, "Windows NT4"},
                        {{2, 5, 0, 0, {}}, 34, "Windows 2000"},
                        {{2, 5, 1, 0, {}}, 35, "Whistler"},
                        {{2, 10, 0, 0, {}}, 0, "Unknown"},
                        {{1, 4, 11, 0, {}}, 0, "Unknown"},
                        {{}, 0, "Unknown"}};
  for (const Case &c : cases) {
    const WindowsVersion version = NameWindowsVersion(c.system);
    EXPECT_EQ(version.code, c.code) << c.name;
    EXPECT_EQ(version.name, c.name);
  }
}

TEST(WindowsVersion, BuildAndServicePack) {
  const QString pack = QStringLiteral(" Service Pack 1 ") + QChar(0) + "rest";
  EXPECT_EQ(NameWindowsVersion({1, 4, 10, 0x040A08AE, pack}).build, 0x08AE);
  EXPECT_EQ(NameWindowsVersion({2, 5, 0, 0x00010893, pack}).build, 0x00010893);
  EXPECT_EQ(NameWindowsVersion({2, 5, 0, 2195, pack}).servicePack, "Service Pack 1");
}

class OneKey final : public OperatingSystem {
 public:
  explicit OneKey(const QVariant &value) : value_(value) {}
  WindowsVersion Version() const override { return {}; }
  std::optional<QVariant> ReadKey(KeyRoot, const QString &, const QString &valueName) const override {
    return valueName == "there" ? std::optional(value_) : std::nullopt;
  }

 private:
  QVariant value_;
};

TEST(GetKeyValue, TextNumberAndNothing) {
  const auto read = [](const QVariant &value, const char *name, QString &result) {
    return GetKeyValue(OneKey(value), KeyRoot::LocalMachine, "key", name, result);
  };
  QString result;
  EXPECT_TRUE(read(QStringLiteral("text") + QChar(0) + "junk", "there", result));
  EXPECT_EQ(result, "text");
  EXPECT_TRUE(read(QVariant(quint32{0xC0FFEE}), "there", result));
  EXPECT_EQ(result, "&hC0FFEE");
  EXPECT_FALSE(read("text", "missing", result));
  EXPECT_EQ(result, QString());
  result = "old";
  EXPECT_FALSE(read(QByteArray("binary"), "there", result));
  EXPECT_EQ(result, QString());
}

TEST(DecimalKey, OnlyTheKeypadKeyAndOnlyInACommaLocale) {
  DecimalKey comma(true);
  comma.KeyDown(DecimalKey::keypadDecimal);
  EXPECT_EQ(comma.KeyPress('.'), ',');
  EXPECT_EQ(comma.KeyPress('.'), '.') << "once for each key down";
  comma.KeyDown(DecimalKey::keypadDecimal);
  comma.KeyDown('5');
  EXPECT_EQ(comma.KeyPress('5'), '5') << "another key clears it";

  DecimalKey point(false);
  point.KeyDown(DecimalKey::keypadDecimal);
  EXPECT_EQ(point.KeyPress('.'), '.');
}

/// A node of a version block as a resource compiler writes it.
QByteArray VersionNode(const QString &name, const QByteArray &value, int valueLength,
                       const QList<QByteArray> &below = {}) {
  const auto aligned = [](QByteArray bytes) { return bytes.append(QByteArray((4 - bytes.size() % 4) % 4, 0)); };
  const auto word = [](qsizetype number) {
    return QByteArray().append(static_cast<char>(number & 0xFF)).append(static_cast<char>(number >> 8));
  };
  QByteArray rest = word(valueLength) + word(1);
  rest.append(reinterpret_cast<const char *>(name.utf16()), name.size() * 2 + 2);
  QByteArray node = aligned(QByteArray(2, 0) + rest) + value;
  for (const QByteArray &child : below) node = aligned(node) + child;
  return node.replace(0, 2, word(node.size()));
}
QByteArray VersionString(const QString &name, const QString &value) {
  const QByteArray bytes(reinterpret_cast<const char *>(value.utf16()), value.size() * 2 + 2);
  return VersionNode(name, bytes, static_cast<int>(value.size()) + 1);
}

TEST(FileVersion, ReadsTheBlockOfAProgramFile) {
  const QByteArray table = VersionNode("040904b0", {}, 0,
                                       {VersionString("CompanyName", "Corvane"), VersionString("FileVersion", "2.7 ü"),
                                        VersionString("ProductName", "Odd")});
  const QByteArray block =
      VersionNode("VS_VERSION_INFO", QByteArray(52, '\x11'), 52,
                  {VersionNode("VarFileInfo", {}, 0), VersionNode("StringFileInfo", {}, 0, {table})});
  const QString text = VersionTextOf(QByteArray("MZ junk.") + block + "tail");
  EXPECT_EQ(text,
            "Company Name: Corvane\nFile Description:\nFile Version:2.7 ü\nInternal Name: \n"
            "Legal Copyright: \nOriginal FileName:\nProduct Name:Odd\nProduct Version: ");
  for (qsizetype kept = 0; kept < block.size(); ++kept)
    VersionTextOf(block.left(kept));  // a cut-off block harms nothing
}

TEST(FileVersion, AFileWithoutOneSaysSo) {
  const QString none = "No version available for this file";
  EXPECT_EQ(VersionTextOf("plain text"), none);
  EXPECT_EQ(FileVersionText("/no/such/file"), none);
}

}  // namespace
}  // namespace trimlog
