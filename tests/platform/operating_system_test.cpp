#include "platform/operating_system.h"

#include <gtest/gtest.h>

#include "platform/decimal_key.h"

namespace trimlog {
namespace {

TEST(WindowsVersion, NamesEverySystem) {
  struct Case {
    SystemVersion system;
    int code;
    const char *name;
  };
  const Case cases[] = {
      {{0, 3, 11, 0, {}}, 2, "Windows 32s"},
      {{1, 4, 0, 0, {}}, 3, "Windows 95"},
      {{1, 4, 10, 0, {}}, 4, "Windows 98"},
      {{1, 4, 90, 0, {}}, 5, "Windows ME"},
      {{2, 3, 51, 0, {}}, 32, "Windows NT3"},
      {{2, 4, 0, 0, {}}, 33, "Windows NT4"},
      {{2, 5, 0, 0, {}}, 34, "Windows 2000"},
      {{2, 5, 1, 0, {}}, 35, "Whistler"},
      {{2, 10, 0, 0, {}}, 0, "Unknown"},
      {{1, 4, 11, 0, {}}, 0, "Unknown"},
      {{}, 0, "Unknown"},
  };
  for (const Case &c : cases) {
    const WindowsVersion version = NameWindowsVersion(c.system);
    EXPECT_EQ(version.code, c.code) << c.name;
    EXPECT_EQ(version.name.toStdString(), c.name);
  }
}

TEST(WindowsVersion, BuildAndServicePack) {
  const QString pack = QStringLiteral(" Service Pack 1 ") + QChar(0) + QStringLiteral("rest");
  EXPECT_EQ(NameWindowsVersion({1, 4, 10, 0x040A08AE, pack}).build, 0x08AE);
  EXPECT_EQ(NameWindowsVersion({2, 5, 0, 0x00010893, pack}).build, 0x00010893);
  EXPECT_EQ(NameWindowsVersion({2, 5, 0, 2195, pack}).servicePack, QStringLiteral("Service Pack 1"));
}

class OneKey final : public OperatingSystem {
 public:
  explicit OneKey(const QVariant &value) : value_(value) {}
  WindowsVersion Version() const override { return {}; }
  std::optional<QVariant> ReadKey(KeyRoot, const QString &, const QString &valueName) const override {
    return valueName == QLatin1String("there") ? std::optional(value_) : std::nullopt;
  }

 private:
  QVariant value_;
};

TEST(GetKeyValue, TextNumberAndNothing) {
  const auto read = [](const QVariant &value, const char *name, QString &result) {
    return GetKeyValue(OneKey(value), KeyRoot::LocalMachine, QStringLiteral("key"), QLatin1String(name), result);
  };
  QString result;
  EXPECT_TRUE(read(QStringLiteral("text") + QChar(0) + QStringLiteral("junk"), "there", result));
  EXPECT_EQ(result, QStringLiteral("text"));
  EXPECT_TRUE(read(QVariant(quint32{0xC0FFEE}), "there", result));
  EXPECT_EQ(result, QStringLiteral("&hC0FFEE"));
  EXPECT_FALSE(read(QStringLiteral("text"), "missing", result));
  EXPECT_EQ(result, QString());
  result = QStringLiteral("old");
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

}  // namespace
}  // namespace trimlog
