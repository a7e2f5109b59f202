#include "core/windows/controls/frmCalendar.h"
#include "platform/windows/fields/date_field.h"
#include "support/test_session.h"
#include "support/windows/controls.h"

namespace trimlog {
namespace {

class CalendarPicker : public ::testing::Test {
 protected:
  CalendarPicker() {
    auto *layout = new QVBoxLayout(&window);
    layout->addWidget(field);
    layout->addWidget(AttachCalendar(*session, *field, "cmdDate"));
    window.show();
    QApplication::setActiveWindow(&window);
  }
  /// Opens the picker with F4 and acts in it; closes it when the action left it open.
  template <typename Act>
  void Pick(Act act) {
    window.findChild<QAbstractButton *>("cmdDate")->setFocus();
    bool came = false;
    QTimer::singleShot(0, &window, [&] {
      auto *picker = qobject_cast<frmCalendar *>(QApplication::activeModalWidget());
      ASSERT_TRUE(picker);
      came = true;
      EXPECT_TRUE(picker->windowFlags() & Qt::WindowStaysOnTopHint);
      act(*picker);
      if (picker->isVisible()) picker->reject();
    });
    QTest::keyClick(field, Qt::Key_F4);
    EXPECT_TRUE(came);
  }
  static void Click(frmCalendar &picker, const char *name) { picker.findChild<QPushButton *>(name)->click(); }

  TestSession session;
  QWidget window;
  DateField *field = new DateField("txtDate", "Date", QLocale(QLocale::English, QLocale::UnitedStates), &window);
};

TEST_F(CalendarPicker, WritesTheChosenDateAndReturnsTheFocus) {
  struct Row {
    const char *before;
    std::vector<const char *> clicks;
    const char *after;
  };
  for (const Row &row :
       {Row{"", {"cmdOK"}, "3/1/2026"}, Row{"1/31/2026", {"cmdNextMonth", "cmdOK"}, "2/28/2026"},
        Row{"1/31/2026", {"cmdPrevMonth", "cmdOK"}, "12/31/2025"}, Row{"5/5/1850", {"cmdOK"}, "5/5/1850"},
        Row{"5/5/1850", {"cmdToday", "cmdOK"}, "3/1/2026"}, Row{"nonsense", {"cmdCancel"}, "nonsense"}}) {
    field->setText(row.before);
    Pick([&](frmCalendar &picker) {
      for (const char *name : row.clicks) Click(picker, name);
    });
    EXPECT_EQ(field->text().toStdString(), row.after) << row.before;
    EXPECT_EQ(window.focusWidget(), field);
  }
}

TEST_F(CalendarPicker, ListsMoveTheMonthAndEnterChooses) {
  field->setText("3/31/2026");
  Pick([](frmCalendar &picker) {
    auto *month = picker.findChild<QComboBox *>("cboMonth");
    auto *year = picker.findChild<QComboBox *>("cboYear");
    EXPECT_EQ(month->currentText(), "March");
    month->setCurrentIndex(1);
    Q_EMIT month->activated(1);
    year->setCurrentIndex(year->findData(2024));
    Q_EMIT year->activated(year->currentIndex());
    EXPECT_EQ(picker.Chosen(), QDate(2024, 2, 28));
    auto *days = picker.findChild<QCalendarWidget *>("calDate");
    QWidget *const cells = days->findChild<QWidget *>("qt_calendar_calendarview");
    QTest::keyClick(cells, Qt::Key_Right);
    EXPECT_EQ(picker.findChild<QLabel *>("lblChosen")->text(), "Thursday, February 29, 2024");
    EXPECT_EQ(cells->accessibleName(), "Thursday, February 29, 2024");
    for (const Qt::DayOfWeek day : {Qt::Friday, Qt::Saturday, Qt::Sunday})
      EXPECT_EQ(days->weekdayTextFormat(day).foreground(), QBrush()) << day;
    QTest::keyClick(cells, Qt::Key_Return);
    EXPECT_FALSE(picker.isVisible());
  });
  EXPECT_EQ(field->text(), "2/29/2024");
}

}  // namespace
}  // namespace trimlog
