#include "core/session/change.h"
#include "exercises_fixture.h"

namespace trimlog {
namespace {

TEST_F(ExercisesPageTest, AnExerciseChosenByItsFirstLettersBringsItsValuesAndIsSavedAtOnce) {
  struct Case {
    const char *about;
    const char *calories;
    bool recalc = true;
    const JournalKind *kind = &JournalKind::Diary();
  };
  Weigh(180);
  for (const Case &c : {Case{"for the body", "240"}, Case{"not wanted", "200", false},
                        Case{"planned", "200", true, &JournalKind::Planner()}}) {
    SCOPED_TRACE(c.about);
    page.reset();
    session.Data().Execute("DELETE activities.* FROM activities WHERE PersonID = 1;");
    session->settings.RecalcCalories = c.recalc;
    AddActivity(*session, c.kind->entries, {exerciseDay, 9002, "7", "", 5, "", {}, {}});
    Open(*c.kind);
    GoTo(1, "ActivityID");
    const qint64 commits = session.Data().Counts().commits;
    Type("zebra w");
    Press(Qt::Key_Tab);
    EXPECT_EQ(Grid().CurrentColumn(), "Duration");
    EXPECT_EQ(session.Data().Counts().commits, commits + 1);
    EXPECT_EQ(Stored("ActivityID", 1), "9001");
    EXPECT_EQ(Stored("Duration", 1), "30");
    EXPECT_EQ(Stored("Calories", 1), c.calories);
    EXPECT_EQ(Stored("Pace", 1) + Stored("Amount", 1) + Stored("Sets", 1) + Stored("Reps", 1), "brisk2 miles2");
  }
}

TEST_F(ExercisesPageTest, AClickInTheListGoesOnWithTheMinutes) {
  AddEntry("7", 5);
  Open();
  GoTo(1, "ActivityID");
  Press(Qt::Key_F4);
  auto *list = Grid().OpenEditor()->findChild<BoundGrid *>();
  ASSERT_TRUE(list);
  list->GoToKey(9002, true);
  QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(list->currentIndex()).center());
  ASSERT_TRUE(QTest::qWaitFor([this] { return Grid().CurrentColumn() == "Duration"; }, patience));
  EXPECT_EQ(Stored("ActivityID", 1), "9002");
}

struct TypedMinutes {
  const char *stored, *typed, *duration, *calories;
  const QLocale *locale = &us;
};
void PrintTo(const TypedMinutes &minutes, std::ostream *out) {
  *out << minutes.typed << " over " << minutes.stored << " in " << qPrintable(minutes.locale->name());
}

class MinutesTyped : public ExercisesPageTest, public testing::WithParamInterface<TypedMinutes> {
 protected:
  MinutesTyped() : ExercisesPageTest(*GetParam().locale) {}
};

TEST_P(MinutesTyped, CaloriesFollowThem) {
  const TypedMinutes &c = GetParam();
  AddEntry(c.stored, 200);
  Open();
  GoTo(1, "Duration");
  TypeOver(QString::fromUtf8(c.typed));
  EXPECT_EQ(Stored("Duration", 1), c.duration);
  EXPECT_EQ(Stored("Calories", 1), c.calories);
  EXPECT_EQ(Grid().CurrentColumn(), "Pace") << "the key goes on from the minutes";
}

INSTANTIATE_TEST_SUITE_P(InBothDecimalForms, MinutesTyped,
                         testing::ValuesIn(std::vector<TypedMinutes>{{"30", "45", "45", "300"},
                                                                     {"30", "10", "10", "66.66666666666666"},
                                                                     {"30", "0", "0", "0"},
                                                                     {"0", "30", "30", "200"},
                                                                     {"", "30", "30", "200"},
                                                                     {"30", "", "30", "200"},
                                                                     {"30", "abc", "30", "200"},
                                                                     {"30", "1/2", "30", "200"},
                                                                     {"30", "-1", "30", "200"},
                                                                     {"30", "1e3", "1000", "6666.666666666667"},
                                                                     {"30", "1,5", "30", "200"},
                                                                     {"30", "1.5", "1.5", "10"},
                                                                     {"30", "1,5", "1.5", "10", &german},
                                                                     {"30", "1.5", "1.5", "10", &german},
                                                                     {"30", "1/2", "30", "200", &german}}));

TEST_F(ExercisesPageTest, WhetherCaloriesFollowIsAskedOrSet) {
  struct Case {
    int confirm;
    std::optional<BoxButton> answer;
    const char *calories;
  };
  int key = 0;
  for (const Case &c :
       {Case{0, {}, "200"}, Case{1, {}, "300"}, Case{2, BoxButton::Yes, "300"}, Case{2, BoxButton::No, "200"}}) {
    session->settings.ConfirmExerciseUpdates = c.confirm;
    AddEntry("30", 200);
    Open();
    GoTo(++key, "Duration");
    if (c.answer) {
      session.boxes.Expect("Adjust Calories Burned",
                           "Adjust the Calories Burned for this exercise to reflect the new minutes of activity?",
                           *c.answer);
    }
    TypeOver("45");
    EXPECT_EQ(Stored("Duration", key), "45");
    EXPECT_EQ(Stored("Calories", key), c.calories);
  }
}

TEST_F(ExercisesPageTest, CaloriesBeyondAllNumbersLeaveTheRowAsItWas) {
  ListExercise(9003, "Zebra flight", "30", 1e9, 0);
  Weigh(180);
  AddEntry("30", 200);
  Open();
  for (const auto &[column, typed] : {std::pair("ActivityID", "zebra f"), std::pair("Duration", "1e308")}) {
    GoTo(1, column);
    session.boxes.Expect("Error Adjusting Calories", "The calories of this exercise could not be adjusted.");
    TypeOver(typed);
    EXPECT_TRUE(Grid().CommitRow());
    EXPECT_EQ(Stored("ActivityID", 1) + " " + Stored("Duration", 1) + " " + Stored("Calories", 1), "9001 30 200");
  }
}

TEST_F(ExercisesPageTest, CaloriesSetsAndRepetitionsAreMendedOrRefused) {
  AddEntry("30", 200);
  Open();
  for (const char *column : {"Calories", "Sets", "Reps"}) {
    for (const auto &[typed, kept] : {std::pair("7", "7"), std::pair("", "0"), std::pair("x", "0")}) {
      GoTo(1, column);
      TypeOver(typed);
      EXPECT_TRUE(Grid().CommitRow());
      EXPECT_EQ(Stored(column, 1), kept) << column << " " << typed;
    }
  }
  GoTo(1, "Sets");
  TypeOver("40000");
  EXPECT_EQ(page->SaveOpenEdit(), EditOutcome::Refused);
  EXPECT_EQ(Grid().Model().RefusalOfRow(), "Sets cannot be more than 32,767.");
  page->DropOpenEdit();
  EXPECT_EQ(page->SaveOpenEdit(), EditOutcome::Saved);
  EXPECT_EQ(Stored("Sets", 1), "0");
}

TEST_F(ExercisesPageTest, TotalsAreTheDaysAndCountWhatIsNotSavedYet) {
  AddEntry("30", 200.5);
  AddEntry("10", 100);
  AddEntry("99", 999, exerciseDay.addDays(-1));
  AddActivity(*session, EntryKind::Planned, {exerciseDay, 9001, "99", "", 999, "", {}, {}});
  session.Data().Execute(
      "INSERT INTO meals ( PersonID, RecordID, ThisDate, MealTypeID, MealID, Amount, Calories, IsPlanned ) "
      "VALUES ( 1, 1, ?, 1, 1, '1', 500, False );",
      {exerciseDay});
  Open();
  EXPECT_EQ(Label("lblTotalsActivities"), "Daily Totals  ");
  EXPECT_EQ(Figure("lblMinutes"), "40");
  EXPECT_EQ(Figure("lblCaloriesActivities"), "300.5 ");
  EXPECT_EQ(Label("lblTotalsActivities2"), "199.5 Net Calories       Net Cal = 500 (Consumed) - 300.5 (Burned)");
  GoTo(1, "Calories");
  TypeOver("400");
  EXPECT_EQ(Stored("Calories", 1), "200.5");
  EXPECT_EQ(Label("lblTotalsActivities2"), "0 Net Calories       Net Cal = 500 (Consumed) - 500 (Burned)");
  Press(Qt::Key_Escape);  // the editor that Tab opened
  Press(Qt::Key_Escape);
  EXPECT_EQ(Figure("lblCaloriesActivities"), "300.5 ");
  session->settings.NetCaloriesBMR = true;
  session->changes.AnnounceSettings();
  EXPECT_TRUE(QString::fromStdString(Label("lblTotalsActivities2")).endsWith("(BMR)"));
  session.boxes.Expect("About Net Calories", "Net Calories are the difference");
  Click("pnlLearnMore");

  day->ShowView(JournalView::AllDates);
  EXPECT_EQ(Label("lblTotalsActivities"), "Daily Totals (2/10/2026)  ");
  EXPECT_EQ(Grid().CurrentColumn(), "Duration");
  GoTo(3, "Duration");
  EXPECT_EQ(Label("lblTotalsActivities"), "Daily Totals (2/9/2026)  ");
  EXPECT_EQ(Figure("lblMinutes"), "99");
  EXPECT_EQ(day->Date(), exerciseDay.addDays(-1));

  for (SelectedNutrient &shown : session->nutrients.SelectedNutrients) {
    if (shown.NutrientID == nutrient_id::calories) shown.NutrientID = nutrient_id::iron;
  }
  session.Announce({.table = Table::SelectedNutrients});
  EXPECT_FALSE(Find<QLabel>(*page, "lblTotalsActivities2").isVisible());
}

TEST_F(ExercisesPageTest, ADateChangedAmongAllDatesTakesTheRowToItsDay) {
  AddEntry("30", 200);
  AddEntry("10", 100, exerciseDay.addDays(-1));
  AddEntry("5", 50, exerciseDay.addDays(-2));
  Open(JournalKind::Diary(), JournalView::AllDates);
  GoTo(3, "ThisDate");
  TypeOver("2/9/2026");
  EXPECT_TRUE(Grid().CommitRow());
  ASSERT_TRUE(QTest::qWaitFor([this] { return Figure("lblMinutes") == "15"; }, patience)) << Figure("lblMinutes");
  GoTo(3, "ThisDate");
  TypeOver("no date");
  EXPECT_EQ(Cell(3, "ThisDate").data().toString(), "2/9/2026");
}

TEST_F(ExercisesPageTest, EachWindowShowsItsOwnEntries) {
  AddEntry("30", 200);
  AddActivity(*session, EntryKind::Planned, {exerciseDay, 9002, "12", "", 99, "", {}, {}});
  Open(JournalKind::Planner());
  EXPECT_EQ(Grid().Model().RecordCount(), 1);
  EXPECT_EQ(Figure("lblMinutes"), "12");
  EXPECT_FALSE(page->findChild<QWidget *>("lblTotalsActivities2"));
  Open(JournalKind::Quick());
  EXPECT_EQ(Figure("lblMinutes"), "30");
  EXPECT_EQ(Label("lblTotalsActivities"), "Daily Totals: ");
  EXPECT_FALSE(page->findChild<QWidget *>("lblTotalsActivities2"));
  page->resize(549, 158);
  QApplication::processEvents();
  EXPECT_EQ(page->size(), QSize(549, 158)) << "it fits where the quick journal is smallest";
  EXPECT_GE(Grid().viewport()->height(), 3 * Grid().rowHeight(0));
}

TEST_F(ExercisesPageTest, EachViewHasItsLayoutFile) {
  for (const char *file : {"view_single_activities.grd", "view_all_activities.grd"}) {
    QFile layout(session.directory.filePath(QLatin1String(file)));
    ASSERT_TRUE(layout.open(QIODevice::WriteOnly));
    layout.write(file[5] == 's' ? "Pace hidden\n" : "Sets hidden\n");
  }
  const auto hidden = [this](const char *column) {
    return Grid().isColumnHidden(Grid().Model().ColumnByName(QLatin1String(column)));
  };
  Open();
  EXPECT_TRUE(hidden("Pace") && !hidden("Sets") && hidden("ThisDate"));
  day->ShowView(JournalView::AllDates);
  EXPECT_TRUE(!hidden("Pace") && hidden("Sets") && !hidden("ThisDate"));
}

TEST_F(ExercisesPageTest, RowsArePastedToTheDayShownAndDeleted) {
  AddEntry("30", 200.25);
  Open();
  GridClipboard copied;
  ASSERT_TRUE(Grid().CopyRows(copied));
  day->GoToDate(QDate(2026, 2, 20));
  ASSERT_TRUE(Grid().PasteRows(copied));
  EXPECT_EQ(Stored("ThisDate", 2) + " " + Stored("Calories", 2), "2026-02-20 200.25");
  EXPECT_EQ(Figure("lblMinutes"), "30");
  session.boxes.Expect("Delete Rows?", "Delete the selected row?", BoxButton::Yes);
  Click("cmdDeleteActivity");
  EXPECT_TRUE(Grid().hasFocus()) << "the keys go on in the list";
  EXPECT_EQ(Figure("lblMinutes"), "0");
  EXPECT_FALSE(Find<QPushButton>(*page, "cmdDeleteActivity").isEnabled());
  EXPECT_EQ(Stored("Duration", 1), "30");
}

TEST_F(ExercisesPageTest, FollowsWhatOthersDoToTheListAndToTheDay) {
  AddEntry("30", 200);
  AddEntry("10", 100, exerciseDay, 9002);
  Open();
  session.Data().Execute("UPDATE activities_list SET ActivityDesc = 'Okapi walk' WHERE ActivityID = 9001;");
  session.Announce({.table = Table::ActivitiesList, .keys = {9001}});
  EXPECT_EQ(Cell(1, "ActivityID").data().toString(), "Okapi walk");
  GoTo(2, "Pace");
  TypeOver("slow");
  session.Data().Execute("DELETE activities_list.* FROM activities_list WHERE ActivityID = 9002;");
  session.Announce({.table = Table::ActivitiesList});
  EXPECT_EQ(Grid().Model().RecordCount(), 1) << "its entries went with it";
  EXPECT_TRUE(QTest::qWaitFor([this] { return Figure("lblMinutes") == "30"; }, patience));
  EXPECT_TRUE(Grid().CommitRow()) << "nothing is left to be saved";
}

TEST_F(ExercisesPageTest, NewOpensTheDialogForTheDayAndGoesToWhatItStored) {
  Open();
  QDate proposed;
  onAdd = [&](const EntryOpening &opening) {
    proposed = opening.date;
    opening.stored(AddEntry("5", 50, QDate(2026, 2, 12)), QDate(2026, 2, 12));
  };
  Click("cmdNewActivity");
  EXPECT_EQ(proposed, exerciseDay);
  EXPECT_EQ(day->Date(), QDate(2026, 2, 12)) << "the view follows the new entry to its day";
  EXPECT_EQ(Grid().CurrentKey(), 1);
  EXPECT_EQ(Grid().CurrentColumn(), "ActivityID");
  EXPECT_TRUE(Grid().hasFocus());

  session.Data().Execute("DELETE activities.* FROM activities WHERE PersonID = 1;");
  onAdd = [&](const EntryOpening &opening) { proposed = opening.date; };
  Open(JournalKind::Diary(), JournalView::AllDates);
  Click("cmdNewActivity");
  EXPECT_EQ(proposed, session->Today()) << "no row says which day is meant";

  onAdd = [](const EntryOpening &opening) { opening.stored(77, exerciseDay); };
  Click("cmdNewActivity");
  EXPECT_TRUE(session.LogLines().last().endsWith("basMain, AddRec, Unable to find a match for criteria: RecordID=77"));
  doors.AddActivity = nullptr;
  Open();
  for (const char *button : {"cmdNewActivity", "cmdExerciseSetup"}) {
    EXPECT_FALSE(Find<QPushButton>(*page, button).isEnabled());
    EXPECT_EQ(Find<QPushButton>(*page, button).toolTip(), leadsNowhere);
  }
}

TEST_F(ExercisesPageTest, PrintsTheRowsAndWhatStandsBelowThem) {
  session->settings.LastDiaryView = 2;
  Open();
  session.boxes.Expect("No Data to Print", JournalKind::Diary().noDataToPrint);
  Click("cmdPrintActivity");
  EXPECT_TRUE(session.printing.lists.empty());
  AddEntry("30", 200);
  AddEntry("10", 100.5);
  Click("cmdPrintActivity");
  ASSERT_EQ(session.printing.lists.size(), 1U);
  const PrintedList &list = session.printing.lists.front();
  EXPECT_EQ(list.heading, "Test Person: Exercises Completed on 2/10/2026");
  EXPECT_EQ(list.rows, 2);
  ASSERT_EQ(list.closing.size(), 4U);
  EXPECT_EQ(list.closing[1].join('|'), "Daily Totals (2/10/2026):|40||300.5|||");
  EXPECT_EQ(list.closing[2].first(), "-300.5 Net Calories");
  EXPECT_EQ(list.closing[3].first(), "Net Cal = 0 (Consumed) - 300.5 (Burned)");

  AddActivity(*session, EntryKind::Planned, {exerciseDay, 9001, "12", "", 99, "", {}, {}});
  Open(JournalKind::Planner());
  page->Print();
  EXPECT_EQ(session.printing.lists.back().heading, "Test Person: Planned Exercises for 2/10/2026");
  ASSERT_EQ(session.printing.lists.back().closing.size(), 2U);
  EXPECT_EQ(session.printing.lists.back().closing[1].first(), "Totals for 2/10/2026:");
}

}  // namespace
}  // namespace trimlog
