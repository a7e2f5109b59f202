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

}  // namespace
}  // namespace trimlog
