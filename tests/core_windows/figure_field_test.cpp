#include "core/windows/controls/figure_field.h"

#include <gtest/gtest.h>

namespace trimlog {
namespace {

TEST(FigureFieldTest, DrawsSmallerWhatHasNoRoomOnceItIsSeen) {
  FigureField field(QStringLiteral("txtFigure"), Qt::AlignCenter, nullptr);
  const double roomy = QFontInfo(field.font()).pointSizeF();
  const auto size = [&field] { return QFontInfo(field.font()).pointSizeF(); };
  field.ShowText(QStringLiteral("A long name of a person"));
  field.resize(field.fontMetrics().horizontalAdvance(field.text()) * 9 / 10, field.height());
  EXPECT_EQ(size(), roomy) << "before it is shown it may still get more room";
  field.show();
  EXPECT_LT(size(), roomy);
  field.ShowText(QStringLiteral("Ann"));
  EXPECT_EQ(size(), roomy);
  field.hide();
  field.ShowText(QStringLiteral("A long name of a person"));
  field.show();
  EXPECT_LT(size(), roomy);
  field.resize(field.width() * 2, field.height());
  EXPECT_EQ(size(), roomy);
}

TEST(FigureFieldTest, ShowsTheBeginningOfWhatIsTooLongAlsoAfterAVisit) {
  QWidget window;
  FigureField field(QStringLiteral("txtFigure"), Qt::AlignCenter, &window);
  QLineEdit next(&window);
  field.ShowText(QStringLiteral("A long name of a person"));
  window.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  next.setFocus();
  field.setFocus(Qt::TabFocusReason);
  ASSERT_TRUE(field.hasFocus());
  EXPECT_EQ(field.selectedText(), field.text());
  EXPECT_EQ(field.cursorPosition(), 0);
  QTest::keyClick(&field, Qt::Key_Tab);
  ASSERT_TRUE(next.hasFocus());
  EXPECT_EQ(field.cursorPosition(), 0);
}

}  // namespace
}  // namespace trimlog
