#include "platform/windows/machine/qt_boxes.h"
#include "support/windows/controls.h"
#include "tools/tool_notices.h"

namespace trimlog {
namespace {

TEST(StartingWeightBox, ItsHelpLeavesTheQuestionStanding) {
  int helped = 0;
  QTimer::singleShot(0, qApp, [&helped] {
    auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    QTest::mouseClick(box->button(QMessageBox::Help), Qt::LeftButton);
    EXPECT_EQ(helped, 1);
    EXPECT_TRUE(box->isVisible());
    QTest::keyClick(box, Qt::Key_Escape);
    if (box->isVisible()) box->reject();
  });
  EXPECT_EQ(QtBoxes().Show(StartingWeightQuestion([&helped] { ++helped; })), BoxButton::No);
  EXPECT_EQ(helped, 1);
}

}  // namespace
}  // namespace trimlog
