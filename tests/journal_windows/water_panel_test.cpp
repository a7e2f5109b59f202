#include "journal/windows/water_panel.h"

#include <QLabel>
#include <QLineEdit>

#include "journal/day/journal_day.h"
#include "journal/windows/step_bar.h"
#include "page_window.h"
#include "support/locales.h"

namespace trimlog {
namespace {

/// The water of a window as a journal has it.
struct WaterWindow : QWidget {
  WaterWindow(Session &session, JournalDay &day) : water(new WaterPanel(session, day, this)) {
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(water);
    layout->addWidget(elsewhere);
    water->Follow();
    show();
    QApplication::setActiveWindow(this);
  }
  QLineEdit &Box() { return Find<QLineEdit>(*this, QStringLiteral("txtWater")); }
  std::string Text() { return Box().text().toStdString(); }
  std::string Caption() { return Find<QLabel>(*this, QStringLiteral("lblWater1")).text().toStdString(); }
  StepBar &Spinner() { return Find<StepBar>(*this, QStringLiteral("sclWater")); }
  void Type(const QString &text) {
    Box().setFocus();
    Box().selectAll();
    QTest::keyClick(&Box(), Qt::Key_Delete);
    QTest::keyClicks(&Box(), text);
  }
  void Leave() {
    elsewhere->setFocus();
    QApplication::processEvents();
  }
  WaterPanel *water;
  QPushButton *elsewhere = new QPushButton(QStringLiteral("elsewhere"), this);
};

std::string Glasses(TestSession &session, const QDate &date = today) {
  return session
      .ValueOf(QStringLiteral("WaterConsumed"), QStringLiteral("other_daily_data"),
               QStringLiteral("PersonID=1 AND ThisDate=") + date.toString(QStringLiteral("#M/d/yyyy#")))
      .toStdString();
}

int Rows(TestSession &session) {
  return session
      .ValueOf(QStringLiteral("Count(*) AS Days"), QStringLiteral("other_daily_data"), QStringLiteral("PersonID=1"))
      .toInt();
}

TEST(Water, EachStepIsOneGlassAndOneCommitAndNeverBelowNone) {
  TestSession session;
  JournalDay day(*session, JournalKind::Diary(), today);
  WaterWindow window(*session, day);
  StepBar &spinner = window.Spinner();
  const QPoint more(spinner.width() / 2, 3);
  const QPoint less(spinner.width() / 2, spinner.height() - 3);
  struct Step {
    const char *name;
    std::function<void()> act;
    const char *glasses;
    int commits;
  };
  for (const Step &step : {Step{"click -", [&] { QTest::mouseClick(&spinner, Qt::LeftButton, {}, less); }, "0", 0},
                           Step{"click +", [&] { QTest::mouseClick(&spinner, Qt::LeftButton, {}, more); }, "1", 1},
                           Step{"key +", [&] { QTest::keyClick(&spinner, Qt::Key_Plus); }, "2", 1},
                           Step{"key -", [&] { QTest::keyClick(&spinner, Qt::Key_Minus); }, "1", 1},
                           Step{"up", [&] { QTest::keyClick(&window.Box(), Qt::Key_Up); }, "2", 1},
                           Step{"down", [&] { QTest::keyClick(&window.Box(), Qt::Key_Down); }, "1", 1},
                           Step{"over a typed one",
                                [&] {
                                  window.Type(QStringLiteral("4"));
                                  QTest::keyClick(&window.Box(), Qt::Key_Up);
                                },
                                "5", 1},
                           Step{"over nonsense",
                                [&] {
                                  window.Type(QStringLiteral("x"));
                                  QTest::keyClick(&window.Box(), Qt::Key_Down);
                                },
                                "0", 1}}) {
    const qint64 before = session.Data().Counts().commits;
    step.act();
    EXPECT_EQ(window.Text(), step.glasses) << step.name;
    EXPECT_EQ(Glasses(session), step.glasses) << step.name;
    EXPECT_EQ(session.Data().Counts().commits, before + step.commits) << step.name;
  }
}

TEST(Water, WhatIsTypedBecomesGlassesWhenItIsLeft) {
  struct Row {
    const char *typed;
    const char *point;
    const char *comma;
  };
  for (const Row &row : {Row{"3", "3", "3"}, Row{"1.5", "1.5", "1.5"}, Row{"1,5", "0", "1.5"}, Row{"", "0", "0"},
                         Row{"1/2", "0", "0"}, Row{"-1", "0", "0"}, Row{"1e9", "9999", "9999"}}) {
    for (const QLocale &locale : {us, german}) {
      TestSession session(locale);
      JournalDay day(*session, JournalKind::Diary(), today);
      WaterWindow window(*session, day);
      window.Type(QStringLiteral("2"));
      window.Leave();
      window.Type(QString::fromLatin1(row.typed));
      window.Leave();
      EXPECT_EQ(Glasses(session), locale == us ? row.point : row.comma) << row.typed;
      EXPECT_EQ(window.Text(),
                QString::fromStdString(Glasses(session)).replace(u'.', locale.decimalPoint()).toStdString());
    }
  }
}

TEST(Water, EveryDayVisitedHasItsOwn) {
  TestSession session;
  JournalDay day(*session, JournalKind::Diary(), today);
  WaterWindow window(*session, day);
  JournalDay quickDay(*session, JournalKind::Quick(), today);
  WaterWindow quick(*session, quickDay);
  for (int i = 1; i < 30; ++i) {
    window.Type(QString::number(i));
    EXPECT_TRUE(day.Step(1));
  }
  EXPECT_EQ(Rows(session), 30);
  EXPECT_EQ(Glasses(session, today.addDays(4)), "5");
  EXPECT_EQ(window.Text(), "0");
  EXPECT_EQ(quick.Text(), "1") << "two windows on one day";
  quick.Type(QStringLiteral("7"));
  day.GoToDate(today);
  QTest::keyClick(&window.Box(), Qt::Key_Up);
  EXPECT_EQ(quick.Text(), "7") << "what is being typed stays";
  quick.Leave();
  EXPECT_EQ(window.Text(), "7");
}

TEST(Water, AmongAllDatesItIsThatOfTheCurrentRow) {
  TestSession session;
  session->settings.LastDiaryView = 1;
  JournalDay day(*session, JournalKind::Diary(), today);
  WaterWindow window(*session, day);
  QDate row;
  window.water->rowDate = [&] { return row; };
  const auto goTo = [&](const QDate &date, const QDate &meant) {
    row = date;
    day.FollowRow(meant);
    window.water->Follow();
    return window.Text() + " " + window.Caption();
  };
  EXPECT_EQ(goTo(today.addDays(-1), today.addDays(-1)), "0 Water on 2/28/2026:");
  QTest::keyClick(&window.Spinner(), Qt::Key_Plus);
  EXPECT_EQ(Glasses(session, today.addDays(-1)), "1");
  EXPECT_EQ(goTo(today.addDays(-2), today.addDays(-2)), "0 Water on 2/27/2026:");
  EXPECT_EQ(goTo({}, today.addDays(-1)), "0 Water on 2/27/2026:") << "no row, no other day";
  // A row's day without a record: the new one stands on the day meant, once.
  const int before = Rows(session);
  EXPECT_EQ(goTo(today.addDays(-40), today.addDays(-60)), "0 Water on 12/31/2025:");
  EXPECT_EQ(goTo(today.addDays(-40), today.addDays(-60)), "0 Water on 12/31/2025:");
  EXPECT_EQ(Rows(session), before + 1);
}

}  // namespace
}  // namespace trimlog
