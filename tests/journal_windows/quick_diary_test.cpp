// The Quick Journal: whose day it shows, its place, how it is left.
#include "journal/windows/frmQuickDiary.h"

#include <QCloseEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>

#include "core/settings/options.h"
#include "journal/day/day_records.h"
#include "platform/windows/fields/date_field.h"
#include "support/full_disk.h"
#include "support/test_session.h"
#include "support/windows/controls.h"

namespace trimlog {
namespace {

class QuickJournal : public testing::Test {
 protected:
  QuickJournal() {
    FillNutrientDefinitions(session->nutrients, session.Data());
    FillSelectedNutrientsArray(session->nutrients, session.Data());
    session->settings.DefaultDiaryTab = 0;
    session->windows.RememberedDate = QDate(2026, 2, 10);
    session->windows.quickJournalPlace = {300, 450, 9000, 4500};
    owner.resize(700, 500);
    owner.show();
  }
  void Open() {
    OpenQuickJournal(*session, navigator, doors, &owner);
    window = owner.findChild<frmQuickDiary *>();
    ASSERT_TRUE(window);
    ASSERT_TRUE(QTest::qWaitForWindowActive(window));
  }
  /// What the calendar does when another day becomes active in it.
  void GoTo(const QDate &date) {
    session->windows.RememberedDate = date;
    session->changes.AnnounceActiveDate();
    QApplication::processEvents();
  }
  void Delete() { QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }
  QString Stored(const char *name) { return session->store.GetSettingString(settingsRoot, QString::fromLatin1(name)); }

  TestSession session;
  Navigator navigator;
  JournalDoors doors;
  QWidget owner;
  QPointer<frmQuickDiary> window;
};

TEST_F(QuickJournal, ShowsTheCalendarsDayAndGoesAlong) {
  AddNote(*session, {2026, 2, 10}, QStringLiteral("the tenth"));
  AddNote(*session, {2026, 2, 11}, QStringLiteral("the eleventh"));
  Open();
  EXPECT_EQ(window->windowTitle(), QStringLiteral("Quick Journal for This Day"));
  EXPECT_TRUE(window->windowFlags().testFlag(Qt::Tool)) << "above its owner, below its dialogs";
  auto &note = Find<QPlainTextEdit>(*window, QStringLiteral("txtNotes"));
  EXPECT_EQ(note.toPlainText(), QStringLiteral("the tenth"));
  EXPECT_EQ(QApplication::focusWidget(), &note);

  QTest::keyClicks(&note, QStringLiteral(", still"));
  GoTo({2026, 2, 11});
  EXPECT_EQ(Find<DateField>(*window, QStringLiteral("txtDate")).text(), QStringLiteral("2/11/2026"));
  EXPECT_EQ(Find<QLabel>(*window, QStringLiteral("lblDate")).text(), QStringLiteral("Wednesday"));
  EXPECT_EQ(note.toPlainText(), QStringLiteral("the eleventh"));
  EXPECT_EQ(NoteText(*session, 1), QStringLiteral("the tenth, still")) << "saved to its own day";
  EXPECT_EQ(
      session.ValueOf(QStringLiteral("Count(*)"), QStringLiteral("other_daily_data"), QStringLiteral("PersonID=1")),
      QStringLiteral("2"))
      << "the days that were visited";
}

TEST_F(QuickJournal, KeepsItsPlaceAndHasALeastSize) {
  Open();
  EXPECT_TRUE(session->windows.QuickJournalOpen);
  EXPECT_EQ(window->pos(), QPoint(20, 30));
  EXPECT_EQ(window->size(), QSize(600, 300));
  window->move(40, 50);
  window->resize(10, 10);
  QApplication::processEvents();
  EXPECT_GE(window->width(), 549);
  EXPECT_GE(window->height(), 184);
  const QSize least = window->size();
  QTest::keyClick(window, Qt::Key_Escape);
  Delete();
  EXPECT_FALSE(window);
  EXPECT_FALSE(session->windows.QuickJournalOpen);
  EXPECT_EQ(Stored("QDLeft"), QStringLiteral("600"));
  EXPECT_EQ(Stored("QDTop"), QStringLiteral("750"));
  EXPECT_EQ(Stored("QDWidth"), QString::number(least.width() * 15));
  EXPECT_EQ(Stored("QDHeight"), QString::number(least.height() * 15));

  Open();
  EXPECT_EQ(QRect(window->pos(), window->size()), QRect(QPoint(40, 50), least));
  session->windows.framePlace = {0, 0, 9525, 7095};
  ResetQuickJournalPlace(*session);
  ResetQuickJournal(&owner);
  EXPECT_EQ(window->pos(), QPoint(86, 289));
}

TEST_F(QuickJournal, IsOneWindowWhoeverOpensIt) {
  Open();
  const frmQuickDiary *first = window;
  Open();
  EXPECT_EQ(window, first);
  EXPECT_EQ(owner.findChildren<frmQuickDiary *>().size(), 1);
}

TEST_F(QuickJournal, ClosesWithWhatIsTypedSavedAndNotWithoutIt) {
  const int record = AddNote(*session, {2026, 2, 10}, QStringLiteral("old"));
  Open();
  auto &note = Find<QPlainTextEdit>(*window, QStringLiteral("txtNotes"));
  note.selectAll();
  QTest::keyClicks(&note, QStringLiteral("new"));
  QTest::mouseClick(&Find<QPushButton>(*window, QStringLiteral("cmdClose")), Qt::LeftButton);
  Delete();
  EXPECT_FALSE(window);
  EXPECT_EQ(NoteText(*session, record), QStringLiteral("new"));

  Open();
  auto &again = Find<QPlainTextEdit>(*window, QStringLiteral("txtNotes"));
  again.selectAll();
  QTest::keyClicks(&again, QStringLiteral("lost?"));
  {
    const FullDisk full(0);
    session.boxes.Expect(QStringLiteral("Error Saving Journal"), QStringLiteral("An error occurred"));
    EXPECT_FALSE(window->close());
  }
  EXPECT_EQ(again.toPlainText(), QStringLiteral("lost?"));
  window->DropOpenEdit();
}

TEST_F(QuickJournal, GoesWithItsPerson) {
  const int record = AddNote(*session, {2026, 2, 10}, QStringLiteral("mine"));
  Open();
  QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("not theirs"));
  session->profile.CurrentPersonID = QStringLiteral("2");
  session->changes.AnnounceProfileLoaded();
  Delete();
  EXPECT_FALSE(window);
  session->profile.CurrentPersonID = QStringLiteral("1");
  EXPECT_EQ(NoteText(*session, record), QStringLiteral("mine"));
}

}  // namespace
}  // namespace trimlog
