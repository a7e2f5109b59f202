#include "tools/windows/tool_colours.h"

#include "core/windows/controls/theme.h"
#include "support/test_session.h"
#include "support/windows/controls.h"

namespace trimlog {
namespace {

TEST(ToolColours, DoNotGlareOnDarkDesktopsAndKeepTheirTextReadable) {
  TestSession session;
  const QPalette before = QApplication::palette();
  for (const QColor &desktop : {QColor(0xEF, 0xEF, 0xEF), QColor(0x2A, 0x2E, 0x32)}) {
    QApplication::setPalette(QPalette(desktop));
    const bool dark = IsDark(QApplication::palette());
    for (const QColor &colour : ToolColours(*session)) {
      EXPECT_GE(ContrastRatio(Qt::black, colour.darker(108)), 4.5) << colour.name().toStdString();
      EXPECT_EQ(RelativeLuminance(colour) <= 0.4, dark) << colour.name().toStdString();
    }
  }
  QApplication::setPalette(before);
}

}  // namespace
}  // namespace trimlog
