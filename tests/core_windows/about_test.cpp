#include "core/windows/frame/frmSplash.h"
#include "support/test_session.h"
#include "support/windows/controls.h"

namespace trimlog {
namespace {

TEST(About, TellsAndCopiesWhatAReportNeeds) {
  TestSession session;
  session.AddProfile(7, "<b>Ann");
  session->profile.CurrentPersonID = "7";
  const std::unique_ptr<OperatingSystem> system = RunningSystem();
  frmSplash about(*session, *system, true, nullptr);
  about.show();
  const auto shown = [&about](const char *label) { return Find<QLabel>(about, label).text(); };
  EXPECT_EQ(shown("lblVersion"), "Version: 2.7");
  EXPECT_EQ(shown("lblUserName"), "Unknown User");
  EXPECT_EQ(shown("lblProfile"), "<b>Ann");
  EXPECT_EQ(Find<QLabel>(about, "lblProfile").textFormat(), Qt::PlainText);
  QTest::mouseClick(&Find<QPushButton>(about, "cmdCopy"), Qt::LeftButton);
  const QString copied = QApplication::clipboard()->text();
  EXPECT_TRUE(copied.startsWith(QStringLiteral("Trimlog Pro 2.7\nProfile: <b>Ann\n") +
                                "License: GNU General Public License, version 3 or later\n"
                                "Data file: " +
                                session->DataFilePath()));
  for (const char *fact : {"System: ", "Qt: ", "Language: en_US"}) EXPECT_TRUE(copied.contains(fact)) << fact;
  EXPECT_TRUE(about.isVisible());
  QTest::keyClick(&about, Qt::Key_Return);
  EXPECT_FALSE(about.isVisible());
  QApplication::clipboard()->clear();
  session->database.reset();  // a file that cannot be read is what people write about
  frmSplash(*session, *system, true, nullptr).show();
}

}  // namespace
}  // namespace trimlog
