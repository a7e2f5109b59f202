// The bar of days: typing, stepping, the calendar, the two views, and what is no date.
#include "journal/windows/day_bar.h"

#include <QLabel>
#include <QRadioButton>
#include <QToolButton>
#include <QVBoxLayout>

#include "journal/day/journal_day.h"
#include "platform/windows/fields/date_field.h"
#include "support/test_session.h"
#include "support/windows/controls.h"

namespace trimlog {
namespace {

class Bar : public testing::Test {
 protected:
  Bar() {
    auto *layout = new QVBoxLayout(&window);
    bar = new DayBar(*session, day, &window);
    layout->addWidget(bar);
    layout->addWidget(elsewhere = new QLineEdit(&window));
    QObject::connect(bar, &DayBar::DayChosen, &window, [this] { ++chosen; });
    QObject::connect(&day, &JournalDay::ScopeChanged, &window, [this] { ++loaded; });
    day.mayLeave = [this] { return mayLeave; };
    window.resize(700, 100);
    window.show();
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
  }
  DateField &Box() { return Find<DateField>(window, QStringLiteral("txtDate")); }
  void Type(const QString &text, Qt::Key leave = Qt::Key_Tab) {
    Box().setFocus();
    Box().selectAll();
    QTest::keyClicks(&Box(), text);
    QTest::keyClick(&Box(), leave);
  }
  void Click(const char *name) {
    QTest::mouseClick(&Find<QAbstractButton>(window, QString::fromLatin1(name)), Qt::LeftButton);
  }

  TestSession session;
  JournalDay day{*session, JournalKind::Diary(), QDate(2026, 3, 1)};
  QWidget window;
  DayBar *bar = nullptr;
  QLineEdit *elsewhere = nullptr;
  bool mayLeave = true;
  int chosen = 0;
  int loaded = 0;
};

TEST_F(Bar, ATypedDateIsAppliedWhenItsBoxIsLeft) {
  struct Case {
    const char *typed;
    QDate date;
    const char *shown;
  };
  for (const Case &c :
       {Case{"2/28/2026", {2026, 2, 28}, "2/28/2026"}, Case{"3-5-26", {2026, 3, 5}, "3/5/2026"},
        Case{"12/31/1899", {1899, 12, 31}, "12/31/1899"}, Case{"12/31/9999", {9999, 12, 31}, "12/31/9999"}}) {
    chosen = loaded = 0;
    Type(QString::fromLatin1(c.typed));
    EXPECT_EQ(day.Date(), c.date) << c.typed;
    EXPECT_EQ(Box().text(), QString::fromLatin1(c.shown));
    EXPECT_EQ(chosen, 1) << "the focus goes to the page";
    EXPECT_EQ(loaded, 1);
  }
  Click("cmdNext");
  EXPECT_EQ(day.Date(), QDate(9999, 12, 31)) << "the last day that there is";
}

TEST_F(Bar, WhatIsNoDateStaysInTheBoxAndLoadsNothing) {
  for (const char *typed : {"2/30/2026", "soon", "1/1/99999", ""}) {
    Type(QString::fromLatin1(typed), Qt::Key_Return);
    if (!*typed) Box().clear();
    const QString kept = Box().text();
    for (const char *button : {"cmdNext", "cmdPrev"}) Click(button);
    QTest::keyClick(&Box(), Qt::Key_PageDown);
    QTest::keyClick(elsewhere, Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(Box().text(), kept);
    EXPECT_EQ(day.Date(), QDate(2026, 3, 1)) << typed;
  }
  EXPECT_EQ(loaded, 0);
  EXPECT_EQ(chosen, 0);
  Type(QStringLiteral("3/2/2026"));
  EXPECT_EQ(day.Date(), QDate(2026, 3, 2));
}

TEST_F(Bar, StepsByButtonsAndKeysWhereverTheFocusIs) {
  Click("cmdNext");
  EXPECT_EQ(day.Date(), QDate(2026, 3, 2));
  Click("cmdPrev");
  Click("cmdPrev");
  EXPECT_EQ(day.Date(), QDate(2026, 2, 28));
  elsewhere->setFocus();
  QTest::keyClick(elsewhere, Qt::Key_Right, Qt::AltModifier);
  EXPECT_EQ(day.Date(), QDate(2026, 3, 1));
  QTest::keyClick(elsewhere, Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(day.Date(), QDate(2026, 2, 28));
  EXPECT_EQ(chosen, 5);
  Box().setFocus();
  QTest::keyClick(&Box(), Qt::Key_PageDown);
  QTest::keyClick(&Box(), Qt::Key_PageDown);
  EXPECT_EQ(day.Date(), QDate(2026, 3, 2));
  EXPECT_EQ(chosen, 5) << "the keys of the box leave the focus in it";
}

TEST_F(Bar, ADateLeavesTheViewOfAllDatesAndPassingThroughItDoesNot) {
  Click("optViewAll");
  EXPECT_EQ(session->settings.LastDiaryView, 1);
  EXPECT_EQ(session->store.GetSettingString(settingsRoot, QStringLiteral("LastDiaryView")), QStringLiteral("1"));
  Box().setFocus();
  QTest::keyClick(&Box(), Qt::Key_Tab);
  EXPECT_FALSE(day.IsSingleDate());
  day.FollowRow({2026, 2, 1});
  EXPECT_EQ(Box().text(), QStringLiteral("2/1/2026"));
  Click("cmdNext");
  EXPECT_TRUE(Find<QRadioButton>(window, QStringLiteral("optViewSingle")).isChecked());
  EXPECT_EQ(day.Date(), QDate(2026, 2, 2));
  EXPECT_EQ(session->settings.LastDiaryView, 2);
}

TEST_F(Bar, WhatCannotBeLeftKeepsItsDayAndItsView) {
  mayLeave = false;
  Type(QStringLiteral("3/5/2026"));
  EXPECT_EQ(Box().text(), QStringLiteral("3/1/2026"));
  Click("optViewAll");
  EXPECT_TRUE(Find<QRadioButton>(window, QStringLiteral("optViewSingle")).isChecked());
  Click("cmdNext");
  EXPECT_EQ(day.Date(), QDate(2026, 3, 1));
  EXPECT_EQ(chosen, 0);
}

TEST_F(Bar, TheCalendarEditsTheDate) {
  const auto choose = [](QWidget &calendar) {
    QTest::keyClick(calendar.focusWidget(), Qt::Key_Right);
    Find<QAbstractButton>(calendar, QStringLiteral("cmdOK")).click();
  };
  Click("optViewAll");
  WhenModal(choose);
  Click("cmdDate");
  EXPECT_EQ(day.Date(), QDate(2026, 3, 2));
  EXPECT_TRUE(day.IsSingleDate());
}

TEST_F(Bar, NamesTheDayAsFarAsThereIsRoomAndAcrossMidnight) {
  const auto &name = Find<QLabel>(window, QStringLiteral("lblDate"));
  EXPECT_EQ(name.text(), QStringLiteral("Sunday, today"));
  session.clock.now = session.clock.now.addDays(1);
  QApplication::postEvent(bar, new QEvent(QEvent::WindowActivate));
  QApplication::processEvents();
  EXPECT_EQ(name.text(), QStringLiteral("Sunday, yesterday"));
  window.resize(window.minimumSizeHint());
  QApplication::processEvents();
  EXPECT_LE(name.fontMetrics().horizontalAdvance(name.text()), name.width());
  EXPECT_EQ(name.toolTip(), QStringLiteral("Sunday, yesterday")) << "the whole name is there for who points at it";
}

}  // namespace
}  // namespace trimlog
