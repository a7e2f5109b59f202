#include "journal/windows/measurements_page.h"

#include <QCheckBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QTabWidget>

#include "journal/windows/body_picture.h"
#include "page_window.h"
#include "platform/text/text_format.h"
#include "platform/windows/grid/bound_grid.h"
#include "support/locales.h"

namespace trimlog {
namespace {

QString Name(const char *prefix, const char *column, int place) {
  return QStringLiteral("%1%2%3").arg(QLatin1String(prefix), QLatin1String(column)).arg(place);
}

class Measured {
 public:
  using Window = PageWindow<MeasurementsPage>;
  explicit Measured(const QLocale &locale = us) : session(locale) {
    session.Data().Execute(QStringLiteral("UPDATE people SET GenderID = 1;"));
    session.Data().Execute(
        QStringLiteral("INSERT INTO weight_loss ( PersonID, ThisDate, ThisWeight ) VALUES ( 1, #2/1/2026#, 200 );"));
  }
  /// One of the eight boxes: "Chest", 1.
  static QLineEdit &Box(Window &window, const char *column, int place = 1) {
    return Find<QLineEdit>(window, Name("txt", column, place));
  }
  static std::string Text(Window &window, const char *column, int place = 1) {
    return Box(window, column, place).text().toStdString();
  }
  static std::string Difference(Window &window, const char *column) {
    return Find<QLineEdit>(window, Name("pnl", column, 2)).text().toStdString();
  }
  std::string Stored(const char *column, int recordID = 1) {
    return session
        .ValueOf(QString::fromLatin1(column), QStringLiteral("measurements"),
                 QStringLiteral("PersonID=1 AND RecordID=%1").arg(recordID))
        .toStdString();
  }
  static void Type(Window &window, const char *column, const QString &text) {
    QLineEdit &box = Box(window, column);
    box.setFocus(Qt::TabFocusReason);
    box.selectAll();
    QTest::keyClick(&box, Qt::Key_Delete);
    QTest::keyClicks(&box, text);
  }
  qint64 Commits() { return session.Data().Counts().commits; }

  TestSession session;
};

class MeasurementsTest : public ::testing::Test, protected Measured {};

struct TypedSize {
  const char *typed;
  const char *point;  ///< what is stored where a point is the decimal sign; none: refused
  const char *comma;
};

class TypedSizes : public ::testing::TestWithParam<TypedSize> {};
INSTANTIATE_TEST_SUITE_P(InBothDecimalForms, TypedSizes,
                         ::testing::Values(TypedSize{"39.5", "39.5", "39.5"}, TypedSize{"39,5", nullptr, "39.5"},
                                           TypedSize{"1e9", "1000000000", "1000000000"}, TypedSize{"", "", ""},
                                           TypedSize{"0", "0", "0"}, TypedSize{"1/2", nullptr, nullptr},
                                           TypedSize{"-1", nullptr, nullptr}, TypedSize{"40 in", nullptr, nullptr}));

TEST_P(TypedSizes, AreStoredOrHoldTheFocus) {
  for (const QLocale &locale : {us, german}) {
    const char *stored = locale == us ? GetParam().point : GetParam().comma;
    Measured test(locale);
    AddMeasurements(*test.session, today, {40, 35, 41, 13, 11, 22, 15, 20});
    Measured::Window window(*test.session);
    if (!stored) {
      test.session.boxes.Expect(
          QStringLiteral("Invalid Hips Size"),
          QStringLiteral("Please enter a valid Hips Size (a numeric value only, with no special characters)."));
    }
    const qint64 before = test.Commits();
    Measured::Type(window, "Hips", QString::fromLatin1(GetParam().typed));
    window.Leave();
    EXPECT_EQ(test.Commits(), before + (stored ? 1 : 0));
    EXPECT_EQ(test.Stored("Hips"), stored ? stored : "41");
    EXPECT_EQ(window.focusWidget() == &Measured::Box(window, "Hips"), !stored);
    if (stored) continue;
    window.page->hide();
    EXPECT_TRUE(window.page->SaveOpenEdit() == EditOutcome::Refused);
    window.page->show();
    test.session.boxes.Expect(QStringLiteral("Invalid Hips Size"), QStringLiteral("Please enter a valid"));
    EXPECT_FALSE(window.day.Step(1));
    QTest::keyClick(&Measured::Box(window, "Hips"), Qt::Key_Escape);
    EXPECT_EQ(Measured::Text(window, "Hips"), "41");
    EXPECT_TRUE(window.day.Step(1));
  }
}

TEST_F(MeasurementsTest, DifferencesFollowTheTyping) {
  AddMeasurements(*session, today.addDays(-30), {1, 1, 1, 1, 1, 1, 1, 1});
  AddMeasurements(*session, today.addDays(-7), {41, 36, 42, 13, 11, 22, 15, 21.5});
  AddMeasurements(*session, today, {40.5, 35, 42.25, 13, 11, 22, 15, 20});
  AddMeasurements(*session, today.addDays(1), {1, 1, 1, 1, 1, 1, 1, 1});
  Window window(*session);
  EXPECT_EQ(window.Get<QLabel>("lblHeading2").text().toStdString(), "Previous (2/22/2026)");
  EXPECT_EQ(Text(window, "Chest", 2), "41");
  EXPECT_EQ(Difference(window, "Chest"), "0.50");
  EXPECT_EQ(Difference(window, "Hips"), "-0.25");
  EXPECT_EQ(Difference(window, "BodyFat"), "1.50");
  Type(window, "Waist", QStringLiteral("34.2"));
  EXPECT_EQ(Difference(window, "Waist"), "1.80");
  Type(window, "Waist", QStringLiteral("34.2x"));
  EXPECT_EQ(Difference(window, "Chest"), "0.50");
  EXPECT_EQ(Difference(window, "Waist"), "--");
  EXPECT_EQ(Difference(window, "BodyFat"), "--");
  QTest::keyClick(&Box(window, "Waist"), Qt::Key_Escape);
  session->settings.UomID = 2;
  session->changes.AnnounceSettings();
  EXPECT_EQ(window.Get<QLabel>("lblUom").text().toStdString(), "cm.");
  EXPECT_EQ(Difference(window, "Chest"), "0.5");
  EXPECT_EQ(Difference(window, "BodyFat"), "1.50");
  window.day.GoToDate(today.addDays(-31));
  EXPECT_EQ(window.Get<QLabel>("lblHeading2").text().toStdString(), "Previous (none)");
  EXPECT_EQ(Text(window, "Waist", 2), "0");
  EXPECT_EQ(Difference(window, "Chest"), "--");
  EXPECT_FALSE(Box(window, "Chest").isEnabled());
}

TEST_F(MeasurementsTest, BodyFatFollowsTheWaistUnlessItIsTypedOver) {
  AddMeasurements(*session, today, {40, 35, 41, 13, 11, 22, 15, 12});
  Window window(*session);
  auto &follows = window.Get<QCheckBox>("chkBodyFat");
  EXPECT_TRUE(follows.isChecked());
  const qint64 before = Commits();
  Type(window, "Waist", QStringLiteral("36"));
  QTest::keyClick(&Box(window, "Waist"), Qt::Key_Return);
  EXPECT_EQ(Text(window, "BodyFat"), "17.29");
  QApplication::processEvents();
  EXPECT_EQ(Commits(), before + 1) << "waist and body fat are one change";
  EXPECT_EQ(Stored("Waist") + " " + Stored("BodyFat"), "36 17.29");
  EXPECT_EQ(window.focusWidget(), &Box(window, "Hips"));

  Type(window, "BodyFat", QStringLiteral("19.5"));
  Box(window, "Waist").setFocus(Qt::TabFocusReason);
  window.Leave();
  EXPECT_EQ(Text(window, "BodyFat"), "19.5");
  // The day is left by keys, from within the waist.
  Type(window, "Waist", QStringLiteral("35"));
  EXPECT_TRUE(window.day.Step(1));
  EXPECT_EQ(Stored("Waist") + " " + Stored("BodyFat"), "35 15.22");
  EXPECT_TRUE(window.day.Step(-1));
  Type(window, "BodyFat", QStringLiteral("19.5"));
  QTest::keyClick(&Box(window, "BodyFat"), Qt::Key_Return);
  EXPECT_EQ(Stored("BodyFat"), "19.5") << "Enter in the last box";
  Type(window, "Waist", QStringLiteral("-36"));
  session.boxes.Expect(QStringLiteral("Invalid Waist Size"), QStringLiteral("Please enter a valid Waist Size"));
  EXPECT_FALSE(window.day.Step(1));
  QTest::keyClick(&Box(window, "Waist"), Qt::Key_Escape);
  EXPECT_EQ(Text(window, "BodyFat"), "19.5");
  QTest::mouseClick(&follows, Qt::LeftButton, {}, {5, follows.height() / 2});
  EXPECT_FALSE(session->settings.BodyFat);
  Type(window, "Waist", QStringLiteral("40"));
  window.Leave();
  EXPECT_EQ(Stored("Waist") + " " + Stored("BodyFat"), "40 19.5");
}

TEST_F(MeasurementsTest, WhatOthersChangeIsShownExceptInTheBoxBeingTypedIn) {
  AddMeasurements(*session, today, {40, 35, 41, 13, 11, 22, 15, 20});
  Window journal(*session);
  Window quick(*session, JournalKind::Quick());
  QApplication::setActiveWindow(&journal);
  Type(journal, "Chest", QStringLiteral("39"));
  SaveMeasurements(*session, 1, {{0, 44}, {2, 43}});
  EXPECT_EQ(Text(journal, "Chest") + " " + Text(journal, "Hips"), "39 43");
  EXPECT_EQ(Text(quick, "Chest"), "44");
  QApplication::setActiveWindow(&quick);
  QApplication::processEvents();
  EXPECT_EQ(Text(quick, "Chest"), "39") << "saved when its window was left";

  QApplication::setActiveWindow(&journal);
  Type(journal, "Chest", QStringLiteral("38"));
  DeleteDayRecords(*session, Table::Measurements, {1});
  EXPECT_FALSE(Box(quick, "Chest").isEnabled());
  journal.Leave();
  EXPECT_EQ(Text(quick, "Chest"), "38") << "what was typed is never lost";
}

TEST_F(MeasurementsTest, NewOnesAreCheckedFieldByFieldAndTheViewFollows) {
  AddMeasurements(*session, today, {40, 35, 41, 13, 11, 22, 15, 20});
  Window window(*session);
  session.boxes.Expect(
      QStringLiteral("Measurements Already Exist"),
      QStringLiteral("Unable to add the new measurements because a set of measurements already exist for this date."));
  window.page->AddNew();
  EXPECT_EQ(session.boxes.Shown().back().icon, BoxIcon::Warning);

  window.day.Step(1);
  const char *const names[] = {"Chest Size",   "Waist Size", "Hips Size", "Bicep Size",
                               "Forearm Size", "Thigh Size", "Calf Size", "Body Fat Percentage"};
  WhenModal([&](QWidget &dialog) {
    EXPECT_EQ(dialog.windowTitle().toStdString(), "Add New Measurements");
    auto &ok = Find<QPushButton>(dialog, QStringLiteral("cmdOK"));
    auto &date = Find<QLineEdit>(dialog, QStringLiteral("txtAddRecDate4"));
    const auto refused = [&](const QString &title, const QString &text, QWidget &field) {
      session.boxes.Expect(title, text);
      ok.click();
      EXPECT_EQ(session.boxes.Shown().back().text.toStdString(), text.toStdString());
      EXPECT_EQ(session.boxes.Shown().back().icon, BoxIcon::Critical);
      EXPECT_EQ(dialog.focusWidget(), &field);
    };
    QApplication::setActiveWindow(&dialog);
    date.setText(QStringLiteral("2/30/2026"));
    refused(QStringLiteral("Invalid Date"),
            QStringLiteral("Please choose or enter a valid date for this set of measurements."), date);
    date.setText(QStringLiteral("3/1/2026"));
    refused(QStringLiteral("Measurements Already Exist"),
            QStringLiteral("Unable to add the new measurements because a set of measurements already exists for this "
                           "date."),
            date);
    date.setText(QStringLiteral("3/9/2026"));
    for (std::size_t field = 0; field < measurementFields.size(); ++field) {
      auto &size =
          Find<QLineEdit>(dialog, QStringLiteral("txtAddRec") + QLatin1String(measurementFields[field].column));
      for (const char *wrong : {"", "-1", "1/2", "x"}) {
        size.setText(QString::fromLatin1(wrong));
        const QString name = QString::fromLatin1(names[field]);
        refused(QStringLiteral("Invalid ") + name,
                QStringLiteral("Please enter a valid %1 (a numeric value only, with no special characters).").arg(name),
                size);
      }
      size.setText(QString::number(field + 30));
    }
    auto &waist = Find<QLineEdit>(dialog, QStringLiteral("txtAddRecWaist"));
    waist.setFocus(Qt::TabFocusReason);
    waist.selectAll();
    QTest::keyClicks(&waist, QStringLiteral("36"));
    ok.setFocus(Qt::TabFocusReason);
    EXPECT_EQ(Find<QLineEdit>(dialog, QStringLiteral("txtAddRecBodyFat")).text().toStdString(), "17.29");
    ok.click();
  });
  window.page->AddNew();
  EXPECT_EQ(window.day.Date(), QDate(2026, 3, 9));
  EXPECT_EQ(Text(window, "Chest") + " " + Text(window, "Waist") + " " + Text(window, "BodyFat"), "30 36 17.29");
  EXPECT_EQ(window.focusWidget(), &Box(window, "Chest"));
  EXPECT_EQ(Box(window, "Chest").selectedText().toStdString(), "30");
}

TEST_F(MeasurementsTest, TheListTellsTheWholeChangeUnderItsColumns) {
  AddMeasurements(*session, today.addDays(-60), {44, 40, 45, 14, 12, 24, 16, 30});
  AddMeasurements(*session, today.addDays(-7), {41, 36, 42, 13, 11, 22, 15, 21.5});
  AddMeasurements(*session, today, {40.5, 35, 42.25, 13, 11, 22, 15, 20});
  session->settings.LastDiaryView = 1;
  Window window(*session);
  auto &grid = window.Get<BoundGrid>("grdMeasurements");
  const auto total = [&](int field) {
    return Find<QLineEdit>(window, QStringLiteral("lblBodyTotals(%1)").arg(field)).text().toStdString();
  };
  EXPECT_EQ(total(0) + total(2) + total(7), "3.50 2.75 10.00 ");
  const auto &hips = Find<QLineEdit>(window, QStringLiteral("lblBodyTotals(2)"));
  const auto aligned = [&] {
    const int right = grid.viewport()->x() + grid.columnViewportPosition(3) + grid.columnWidth(3);
    EXPECT_EQ(hips.geometry().right() + 1, right);
  };
  aligned();
  grid.setColumnWidth(1, grid.columnWidth(1) + 37);
  aligned();

  grid.setFocus();
  QTest::keyClick(&grid, Qt::Key_Down);
  EXPECT_EQ(window.day.Date(), today.addDays(-7));
  EXPECT_EQ(total(0) + total(7), "3.00 8.50 ");
  grid.setCurrentIndex(grid.currentIndex().siblingAtColumn(2));
  QTest::keyClick(&grid, Qt::Key_F2);
  QTest::keyClicks(grid.OpenEditor(), QStringLiteral("36.5"));
  QTest::keyClick(grid.OpenEditor(), Qt::Key_Return);
  EXPECT_EQ(total(1), "3.50 ") << "an unsaved edit counts";
  EXPECT_EQ(grid.CurrentField(QStringLiteral("BodyFat")).toDouble(), 18.33);
  EXPECT_EQ(Stored("Waist", 2), "36");
  EXPECT_TRUE(window.page->SaveOpenEdit() == EditOutcome::Saved);
  EXPECT_EQ(Stored("Waist", 2) + " " + Stored("BodyFat", 2), "36.5 18.33");

  session.boxes.Expect(QStringLiteral("Invalid Entry"), QStringLiteral("Measurements already exist for this date."));
  grid.setCurrentIndex(grid.currentIndex().siblingAtColumn(0));
  QTest::keyClick(&grid, Qt::Key_F2);
  QTest::keyClicks(grid.OpenEditor(), QStringLiteral("3/1/2026"));
  EXPECT_TRUE(window.page->SaveOpenEdit() == EditOutcome::Refused);
  window.page->DropOpenEdit();
  session->settings.ConfirmDeletes = false;
  window.Click("cmdDeleteMeasurement");
  EXPECT_EQ(grid.Model().RecordCount(), 2);
}

TEST_F(MeasurementsTest, DeletionAsksAndPrintingTellsWhenThereIsNothing) {
  AddMeasurements(*session, today.addDays(-7), {41, 36, 42, 13, 11, 22, 15, 21.5});
  AddMeasurements(*session, today, {40.5, 35, 42.25, 13, 11, 22, 15, 20});
  Window window(*session);
  EXPECT_FALSE(window.Get<QWidget>("cmdNewMeasurement").isEnabled());
  window.Click("cmdPrintMeasurement");
  ASSERT_EQ(session.printing.lists.size(), 1u);
  const PrintedList &list = session.printing.lists.front();
  EXPECT_EQ(list.heading.toStdString(), "Test Person: Body Measurements on 3/1/2026");
  EXPECT_EQ(list.rows, 8);
  EXPECT_EQ((list.cell(1, 0) + list.cell(1, 1) + list.cell(1, 2) + list.cell(1, 3)).toStdString(),
            "Waist Size35361.00");
  for (const BoxButton answer : {BoxButton::No, BoxButton::Yes}) {
    session.boxes.Expect(QStringLiteral("Delete Measurements?"),
                         QStringLiteral("Delete the measurements for this day?"), answer);
    window.Click("cmdDeleteMeasurement");
  }
  EXPECT_EQ(MeasurementsOn(*session, today), std::nullopt);
  EXPECT_FALSE(Box(window, "Chest").isEnabled());
  EXPECT_TRUE(window.Get<QWidget>("cmdNewMeasurement").isEnabled());
  EXPECT_FALSE(window.Get<QWidget>("cmdDeleteMeasurement").isEnabled());
  session.boxes.Expect(QStringLiteral("No Data to Print"),
                       QStringLiteral("There is currently no journal data to print."));
  window.Click("cmdPrintMeasurement");
  window.day.ShowView(JournalView::AllDates);
  window.Click("cmdPrintMeasurement");
  EXPECT_EQ(session.printing.printed.back().toStdString(), "list Test Person: Body Measurements for All Dates");
}

TEST_F(MeasurementsTest, ThePictureShowsTheBodyAndThePlaceOfTheBox) {
  AddMeasurements(*session, today, {40, 35, 41, 13, 11, 22, 15, 20});
  Window window(*session);
  auto &picture = window.Get<BodyPicture>("picBody");
  EXPECT_TRUE(picture.IsMale());
  QImage before = picture.grab().toImage();
  for (std::size_t field = 0; field < measurementFields.size(); ++field) {
    Box(window, measurementFields[field].column).setFocus(Qt::TabFocusReason);
    EXPECT_EQ(picture.Field(), field);
    const QImage now = picture.grab().toImage();
    EXPECT_NE(now, std::exchange(before, now)) << measurementFields[field].name;
  }
  window.day.Step(1);
  EXPECT_EQ(picture.Field(), std::nullopt);
  session.Data().Execute(QStringLiteral("UPDATE people SET GenderID = 2;"));
  session.Announce({.table = Table::People});
  EXPECT_FALSE(picture.IsMale());
}

TEST_F(MeasurementsTest, ASmallWindowHasRoomForTheBoxesAlone) {
  AddMeasurements(*session, today, {40, 35, 41, 13, 11, 22, 15, 20});
  JournalDay day(*session, JournalKind::Quick(), today);
  const Navigator navigator;
  const JournalDoors doors;
  QTabWidget tabs;
  auto *page = new MeasurementsPage({*session, navigator, doors, day}, &tabs);
  tabs.addTab(page, QStringLiteral(" Body Measurements "));
  tabs.resize(549, 184);
  tabs.show();
  EXPECT_EQ(tabs.size(), QSize(549, 184));
  for (const QWidget *control : page->findChildren<QWidget *>()) {
    if (control->isVisibleTo(page)) {
      EXPECT_TRUE(page->rect().contains(QRect(control->mapTo(page, QPoint()), control->size())))
          << control->objectName().toStdString();
    }
  }
  EXPECT_FALSE(page->findChild<QWidget *>(QStringLiteral("txtChest2")));
  EXPECT_FALSE(page->findChild<QWidget *>(QStringLiteral("grdMeasurements")));
}

}  // namespace
}  // namespace trimlog
