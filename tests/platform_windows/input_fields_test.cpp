#include "platform/windows/fields/date_field.h"
#include "platform/windows/fields/number_field.h"
#include "platform/windows/fields/text_field.h"
#include "support/locales.h"
#include "support/windows/controls.h"

namespace trimlog {
namespace {

TEST(NumberFieldTest, ReadsWhatAPersonTypes) {
  struct Row {
    const QLocale *locale;
    const char *typed;
    double number;  // -1: no number
    bool complains;
  };
  for (const Row &row :
       {Row{&us, "93.5", 93.5, false}, Row{&german, "93,5", 93.5, false}, Row{&german, "93.5", 93.5, false},
        Row{&us, " 12 ", 12, false}, Row{&us, "12.3.4", -1, true}, Row{&us, "1e309", -1, true}, Row{&us, "", -1, false},
        Row{&us, "abc", -1, true}, Row{&us, "501", 501, true}}) {
    NumberField field("txtWeight", "Weight", *row.locale);
    field.SetRange(0, 500);
    QTest::keyClicks(&field, row.typed);
    EXPECT_EQ(field.Number().value_or(-1), row.number) << row.typed;
    EXPECT_EQ(!field.Complaint().isEmpty(), row.complains) << row.typed;
  }
}

TEST(NumberFieldTest, TheKeypadTypesTheDecimalSignOfTheLocale) {
  for (const auto &[locale, typed] : {std::pair{us, "1.5"}, std::pair{german, "1,5"}}) {
    NumberField field("txtWeight", "Weight", locale);
    QTest::keyClick(&field, '1');
    QKeyEvent decimal(QEvent::KeyPress, Qt::Key_Period, Qt::KeypadModifier, ".");
    QApplication::sendEvent(&field, &decimal);
    QTest::keyClick(&field, '5');
    EXPECT_EQ(field.text().toStdString(), typed);
    EXPECT_EQ(field.Number(), 1.5);
  }
}

TEST(DateFieldTest, ReadsTheLocalesShortFormAndAsksForTheCalendar) {
  DateField field("txtBirthDate", "Birth date", german);
  field.setText("3.2.1990");
  EXPECT_EQ(field.Date(), QDate(1990, 2, 3));
  field.SetDate(QDate(2026, 3, 1));
  EXPECT_EQ(field.text(), "01.03.2026");
  field.setText("31.2.1990");
  EXPECT_FALSE(field.Date().isValid());
  int wanted = 0;
  QObject::connect(&field, &DateField::CalendarWanted, &field, [&] { ++wanted; });
  QTest::keyClick(&field, Qt::Key_F4);
  QTest::keyClick(&field, Qt::Key_Down, Qt::AltModifier);
  EXPECT_EQ(wanted, 2);
}

TEST(TextFieldTest, PastedLineBreaksBecomeBlanksAndTheLimitHolds) {
  TextField field("txtName", "Name", 12);
  QApplication::clipboard()->setText("Two\nlines of it");
  field.paste();
  EXPECT_EQ(field.text(), "Two lines of");
}

}  // namespace
}  // namespace trimlog
