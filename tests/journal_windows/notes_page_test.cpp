#include "journal/windows/notes_page.h"

#include <QCalendarWidget>
#include <QComboBox>
#include <QElapsedTimer>
#include <QPlainTextEdit>

#include "journal/windows/day_grid.h"
#include "page_window.h"
#include "platform/windows/fields/date_field.h"
#include "platform/windows/grid/bound_grid.h"
#include "support/full_disk.h"

namespace trimlog {
namespace {

class NotesTest : public ::testing::Test {
 protected:
  using Window = PageWindow<NotesPage>;
  QPlainTextEdit &Box(Window &window) { return window.Get<QPlainTextEdit>("txtNotes"); }
  BoundGrid &Grid(Window &window) { return window.Get<BoundGrid>("grdNotes"); }
  std::string Stored(const QDate &date) {
    const auto note = NoteOn(*session, date);
    return note ? NoteText(*session, *note).toStdString() : "(none)";
  }
  qint64 Commits() { return session.Data().Counts().commits; }
  /// Types on: the cursor stands at the end.
  void Type(Window &window, const QString &text) {
    Box(window).setFocus();
    QTest::keyClicks(&Box(window), text);
  }
  /// Adds a note through the dialog: the date as typed, where it is not the proposed one, and the text.
  void Add(Window &window, const QString &date, const QString &text, const char *button = "cmdOK") {
    WhenModal([&](QWidget &dialog) {
      EXPECT_EQ(dialog.windowTitle().toStdString(), "Add a New Note");
      if (!date.isNull()) Find<DateField>(dialog, QStringLiteral("txtAddRecDate3")).setText(date);
      QTest::keyClicks(&Find<QPlainTextEdit>(dialog, QStringLiteral("txtAddRecNotes")), text);
      Find<QPushButton>(dialog, QString::fromLatin1(button)).click();
    });
    window.page->AddNew();
  }

  TestSession session;
};

TEST_F(NotesTest, AnyTextSurvivesBeingReadAndWrittenOn) {
  const QString megabyte = QStringLiteral("A long day, told in many words.\n").repeated(32768);
  for (const QString &text :
       {QString(), QStringLiteral("\"quoted\" 'single' & %1 ?"), QStringLiteral("one\ntwo\n\n"),
        QStringLiteral("one\r\ntwo\r\n"), QStringLiteral("🙂👩‍👩‍👧 שלום عربي \u200fx"),
        QStringLiteral("5\u00a0kg\tx"), megabyte}) {
    session.Data().Execute(QStringLiteral("DELETE notes.* FROM notes;"));
    AddNote(*session, today, text);
    Window window(*session);
    const qint64 before = Commits();
    Type(window, {});
    window.Leave();
    EXPECT_EQ(Commits(), before) << "only looked at";
    Type(window, QStringLiteral("!"));
    window.Leave();
    EXPECT_EQ(Stored(today), (text + QLatin1Char('!')).toStdString());
    EXPECT_EQ(Commits(), before + 1);
  }
}

TEST_F(NotesTest, AListOfLongNotesIsPaintedAtOnce) {
  for (int i = 0; i < 5; ++i) {
    AddNote(*session, today.addDays(-i), QStringLiteral("A long day, told in many words.\n").repeated(32768));
  }
  session->settings.LastDiaryView = 1;
  QElapsedTimer clock;
  clock.start();
  Window window(*session);
  window.grab();
  EXPECT_LT(clock.elapsed(), 2000) << "laying out whole notes takes some 7 seconds";
}

TEST_F(NotesTest, ATextIsSavedWhereverItIsLeftAndAfterAPause) {
  AddNote(*session, today, QStringLiteral("a"));
  AddNote(*session, today.addDays(1), QStringLiteral("tomorrow"));
  Window window(*session);
  QWidget other;
  struct Way {
    const char *name;
    std::function<void()> leave;
  };
  for (const Way &way : {Way{"the box", [&] { window.Leave(); }},
                         Way{"the day",
                             [&] {
                               EXPECT_TRUE(window.day.Step(1));
                               EXPECT_EQ(Box(window).toPlainText().toStdString(), "tomorrow");
                               EXPECT_TRUE(window.day.Step(-1));
                             }},
                         Way{"the view",
                             [&] {
                               EXPECT_TRUE(window.day.ShowView(JournalView::AllDates));
                               EXPECT_TRUE(window.day.ShowView(JournalView::SingleDate));
                               window.day.GoToDate(today);
                             }},
                         Way{"the window",
                             [&] {
                               other.show();
                               QApplication::setActiveWindow(&other);
                               QApplication::processEvents();
                               QApplication::setActiveWindow(&window);
                             }},
                         Way{"nothing, at midnight", [&] {
                               session.clock.now = session.clock.now.addDays(1);
                               EXPECT_TRUE(QTest::qWaitFor([&] { return Stored(today).size() == 16; }, patience));
                             }}}) {
    const qint64 before = Commits();
    Type(window, QStringLiteral("bcx"));
    way.leave();
    EXPECT_EQ(Stored(today), Box(window).toPlainText().toStdString()) << way.name;
    EXPECT_EQ(Commits(), before + 1) << way.name;
  }
  EXPECT_EQ(Stored(today), "abcxbcxbcxbcxbcx");
  EXPECT_EQ(Stored(today.addDays(1)), "tomorrow");
}

TEST_F(NotesTest, WhatIsTypedIsNeverOverwrittenAndOutlivesItsDeletedNote) {
  const int note = AddNote(*session, today, QStringLiteral("mine"));
  Window journal(*session);
  Window quick(*session, JournalKind::Quick());
  QApplication::setActiveWindow(&journal);
  Type(journal, QStringLiteral(" and more"));
  SaveNote(*session, note, QStringLiteral("theirs"));
  EXPECT_EQ(Box(journal).toPlainText().toStdString(), "mine and more");
  EXPECT_EQ(Box(quick).toPlainText().toStdString(), "theirs");
  journal.Leave();
  EXPECT_EQ(Box(quick).toPlainText().toStdString(), "mine and more") << "both windows show the same";

  QApplication::setActiveWindow(&journal);
  Type(journal, QStringLiteral("!"));
  DeleteDayRecords(*session, Table::Notes, {note});
  EXPECT_FALSE(Box(quick).isEnabled());
  EXPECT_EQ(Box(journal).toPlainText().toStdString(), "mine and more!");
  journal.Leave();
  EXPECT_EQ(Stored(today), "mine and more!");
  EXPECT_TRUE(Box(quick).isEnabled());
}

TEST_F(NotesTest, ATextThatCannotBeSavedStaysAndHoldsTheDay) {
  AddNote(*session, today, QStringLiteral("a"));
  Window window(*session);
  Type(window, QStringLiteral("b"));
  {
    const FullDisk full(0);
    session.boxes.Expect(QStringLiteral("Error Saving Journal"),
                         QStringLiteral("An error occurred while saving your journal.  "));
    EXPECT_FALSE(window.day.Step(1));
  }
  EXPECT_EQ(Box(window).toPlainText().toStdString(), "ab");
  EXPECT_EQ(Stored(today), "a");
  EXPECT_TRUE(window.day.Step(1));
  EXPECT_EQ(Stored(today), "ab");
  EXPECT_TRUE(window.day.Step(-1));
  Type(window, QStringLiteral("c"));
  window.page->DropOpenEdit();
  EXPECT_EQ(Box(window).toPlainText().toStdString(), "ab");
}

TEST_F(NotesTest, TheButtonsFollowWhatTheDayHolds) {
  AddNote(*session, today, QStringLiteral("a"));
  Window window(*session);
  const auto state = [&] {
    std::string on;
    for (const char *name : {"txtNotes", "cmdNewNote", "cmdDeleteNote", "cmdPrintNote"}) {
      on += window.Get<QWidget>(name).isEnabled() ? '1' : '0';
    }
    return on;
  };
  EXPECT_EQ(state(), "1011");
  window.day.Step(1);
  EXPECT_EQ(state(), "0100");
  window.day.ShowView(JournalView::AllDates);
  EXPECT_EQ(state().substr(1), "111");
  DeleteDayRecords(*session, Table::Notes, {1});
  EXPECT_EQ(state().substr(1), "100");
  AddNote(*session, today, QStringLiteral("b"));
  EXPECT_EQ(state().substr(1), "111");
}

TEST_F(NotesTest, ADayTakesOneNoteAndTheViewFollowsTheNewOne) {
  AddNote(*session, today, QStringLiteral("a"));
  Window window(*session);
  const QString exists = QStringLiteral("Unable to add the new note because a note already exists for this date.");
  session.boxes.Expect(QStringLiteral("Note Already Exists"), exists);
  window.page->AddNew();
  EXPECT_EQ(session.boxes.Shown().back().icon, BoxIcon::Warning);

  window.day.Step(1);
  for (const char *none : {"", "soon", "2/30/2026"}) {
    session.boxes.Expect(QStringLiteral("Invalid Date"),
                         QStringLiteral("Please choose or enter a valid date for this note."));
    Add(window, QString::fromLatin1(none), QStringLiteral("x"));
    EXPECT_EQ(session.boxes.Shown().back().icon, BoxIcon::Critical);
  }
  session.boxes.Expect(QStringLiteral("Note Already Exists"), exists);
  Add(window, QStringLiteral("3/1/2026"), QStringLiteral("x"));
  EXPECT_EQ(session.boxes.Shown().back().icon, BoxIcon::Critical);
  Add(window, QString(), QStringLiteral("x"), "cmdCancel");
  EXPECT_EQ(Stored(today.addDays(1)), "(none)");

  for (const QDate &date : {QDate(1899, 1, 1), QDate(9999, 12, 31)}) {
    window.day.GoToDate(today.addDays(1));
    const qint64 before = Commits();
    Add(window, date.toString(QStringLiteral("M/d/yyyy")), QStringLiteral("far"));
    EXPECT_EQ(Commits(), before + 1);
    EXPECT_EQ(window.day.Date(), date);
    EXPECT_EQ(Stored(date), "far");
    EXPECT_EQ(window.focusWidget(), &Box(window));
  }

  window.day.ShowView(JournalView::AllDates);
  Add(window, QStringLiteral("2/1/2026"), QStringLiteral("listed"));
  EXPECT_EQ(Grid(window).CurrentField(QStringLiteral("Notes")).toString().toStdString(), "listed");
  auto *editor = qobject_cast<QPlainTextEdit *>(Grid(window).OpenEditor());
  ASSERT_TRUE(editor);
  EXPECT_EQ(editor->textCursor().selectedText().toStdString(), "listed");
}

TEST_F(NotesTest, TheQuickJournalAddsToItsDayOnly) {
  Window window(*session, JournalKind::Quick(), today.addDays(-3));
  WhenModal([&](QWidget &dialog) {
    EXPECT_FALSE(Find<QWidget>(dialog, QStringLiteral("txtAddRecDate3")).isEnabled());
    EXPECT_FALSE(Find<QWidget>(dialog, QStringLiteral("cmdAddRecDate3")).isEnabled());
    QTest::keyClicks(dialog.focusWidget(), QStringLiteral("quick"));
    Find<QPushButton>(dialog, QStringLiteral("cmdOK")).click();
  });
  window.Click("cmdNewNote");
  EXPECT_EQ(Stored(today.addDays(-3)), "quick");
  EXPECT_FALSE(window.findChild<BoundGrid *>());
}

TEST_F(NotesTest, DeletionAsksWhereItIsWanted) {
  for (int i = 0; i < 4; ++i) AddNote(*session, today.addDays(-i), QString::number(i));
  Window window(*session);
  session.boxes.Expect(QStringLiteral("Delete Notes?"), QStringLiteral("Delete the notes for this day?"),
                       BoxButton::No);
  window.Click("cmdDeleteNote");
  EXPECT_EQ(Stored(today), "0");
  Type(window, QStringLiteral("typed"));
  session.boxes.Expect(QStringLiteral("Delete Notes?"), QStringLiteral("Delete the notes for this day?"),
                       BoxButton::Yes);
  window.Click("cmdDeleteNote");
  EXPECT_EQ(Stored(today), "(none)");
  EXPECT_EQ(Box(window).toPlainText().toStdString(), "");
  EXPECT_EQ(window.focusWidget()->objectName().toStdString(), "cmdNewNote");

  window.day.ShowView(JournalView::AllDates);
  session.boxes.Expect(QStringLiteral("Delete Rows?"), QStringLiteral("Delete the selected row?"), BoxButton::Yes);
  window.Click("cmdDeleteNote");
  EXPECT_EQ(Stored(today.addDays(-1)), "(none)");
  session->settings.ConfirmDeletes = false;
  window.Click("cmdDeleteNote");
  EXPECT_EQ(Stored(today.addDays(-2)), "(none)");
  window.day.GoToDate(today.addDays(-3));
  window.Click("cmdDeleteNote");
  EXPECT_EQ(Stored(today.addDays(-3)), "(none)");
}

TEST_F(NotesTest, TheListIsChangedLikeTheBoxAndKeepsOneNoteADay) {
  for (int i = 0; i < 3; ++i) AddNote(*session, today.addDays(-i), QStringLiteral("line one\r\nof %1").arg(i));
  session->settings.LastDiaryView = 1;
  Window window(*session);
  BoundGrid &grid = Grid(window);
  EXPECT_EQ(window.day.Date(), today);
  window.page->TakeFocus();
  const auto type = [&](const QString &text) {
    QTest::keyClick(&grid, Qt::Key_F2);
    QTest::keyClicks(grid.OpenEditor(), text);
    return EditOutcome::Saved == window.page->SaveOpenEdit();
  };
  const qint64 before = Commits();
  QTest::keyClick(&grid, Qt::Key_F2);
  EXPECT_TRUE(window.page->SaveOpenEdit() == EditOutcome::Saved);
  EXPECT_EQ(Commits(), before) << "only looked at";
  EXPECT_EQ(Stored(today), "line one\r\nof 0");
  EXPECT_TRUE(type(QStringLiteral("new")));
  EXPECT_EQ(Stored(today), "new");

  grid.setCurrentIndex(grid.currentIndex().siblingAtColumn(0));
  for (const char *none : {"", "soon", "12/30/1899"}) {
    EXPECT_TRUE(type(QString::fromLatin1(none)));
    EXPECT_EQ(Stored(today), "new");
  }
  session.boxes.Expect(QStringLiteral("Invalid Entry"), QStringLiteral("A note already exists for this date."));
  EXPECT_FALSE(type(QStringLiteral("2/28/2026")));
  window.page->DropOpenEdit();
  EXPECT_TRUE(type(QStringLiteral("1/1/1899")));
  EXPECT_EQ(Stored(QDate(1899, 1, 1)), "new");
  WhenModal([&](QWidget &picker) {
    EXPECT_EQ(Find<QCalendarWidget>(picker, QStringLiteral("calDate")).selectedDate(), QDate(1899, 1, 1));
    Find<QPushButton>(picker, QStringLiteral("cmdToday")).click();
    Find<QPushButton>(picker, QStringLiteral("cmdOK")).click();
  });
  QTest::keyClick(&grid, Qt::Key_F4);
  EXPECT_TRUE(window.page->SaveOpenEdit() == EditOutcome::Saved);
  EXPECT_EQ(Stored(today), "new");
}

TEST_F(NotesTest, RowsArePastedEvenOntoADayThatHasANoteAndStayToBeChanged) {
  AddNote(*session, today, QStringLiteral("a"));
  AddNote(*session, today.addDays(-1), QStringLiteral("b"));
  session->settings.LastDiaryView = 1;
  Window window(*session);
  BoundGrid &grid = Grid(window);
  grid.setFocus();
  grid.MarkRows({1, 2});
  GridClipboard copied;
  ASSERT_TRUE(grid.CopyRows(copied));
  const qint64 before = Commits();
  EXPECT_TRUE(grid.PasteRows(copied));
  EXPECT_EQ(Commits(), before + 1);
  EXPECT_EQ(grid.Model().RecordCount(), 4);
  ASSERT_TRUE(grid.GoToKey(4));
  grid.setCurrentIndex(grid.currentIndex().siblingAtColumn(1));
  QTest::keyClick(&grid, Qt::Key_F2);
  QTest::keyClicks(grid.OpenEditor(), QStringLiteral("second of its day"));
  EXPECT_TRUE(window.page->SaveOpenEdit() == EditOutcome::Saved);
  EXPECT_EQ(NoteText(*session, 4).toStdString(), "second of its day");
}

TEST_F(NotesTest, TheLinesOfTheListAreRemembered) {
  AddNote(*session, today, QStringLiteral("a"));
  session->settings.LastDiaryView = 1;
  Window window(*session);
  auto &lines = window.Get<QComboBox>("cboNotesLines");
  EXPECT_EQ(lines.currentText().toStdString(), "3");
  const int three = Grid(window).rowHeight(0);
  lines.setFocus();
  QTest::keyClick(&lines, Qt::Key_End);
  EXPECT_EQ(lines.currentText().toStdString(), "10");
  EXPECT_EQ(Grid(window).rowHeight(0), three + 7 * Grid(window).fontMetrics().lineSpacing());
  EXPECT_EQ(session->settings.NotesLines, 10);
  EXPECT_EQ(Window(*session).Get<QComboBox>("cboNotesLines").currentText().toStdString(), "10");
}

TEST_F(NotesTest, ThePrinterIsAskedForAndTakesWhatIsShown) {
  AddNote(*session, today, QStringLiteral("a"));
  AddNote(*session, today.addDays(-1), QStringLiteral("b"));
  Window window(*session);
  const QString question =
      QStringLiteral("This will print the currently displayed notes to your default printer.  Continue?");
  session.boxes.Expect(QStringLiteral("Print Notes?"), question, BoxButton::No);
  window.Click("cmdPrintNote");
  EXPECT_TRUE(session.printing.texts.empty());
  Type(window, QStringLiteral("!"));
  session.boxes.Expect(QStringLiteral("Print Notes?"), question, BoxButton::Yes);
  window.Click("cmdPrintNote");
  window.day.ShowView(JournalView::AllDates);
  session.boxes.Expect(QStringLiteral("Print Notes?"), question, BoxButton::Yes);
  window.Click("cmdPrintNote");
  ASSERT_EQ(session.printing.texts.size(), 2u);
  EXPECT_EQ(session.printing.texts[0].title.toStdString(), "Test Person: Daily Notes For 3/1/2026");
  EXPECT_EQ(session.printing.texts[0].paragraphs, QStringList{QStringLiteral("a!")});
  EXPECT_EQ(session.printing.texts[1].paragraphs,
            (QStringList{QStringLiteral("3/1/2026\na!"), QStringLiteral("2/28/2026\nb")}));
}

}  // namespace
}  // namespace trimlog
