// The journal as a window: what it opens with, which page and day it goes to, what its lists of other windows do.
#include "journal/windows/frmDiary.h"

#include <QCheckBox>
#include <QComboBox>
#include <QMenu>
#include <QRadioButton>
#include <QTabWidget>

#include "journal/day/day_records.h"
#include "journal/day/water.h"
#include "platform/windows/fields/date_field.h"
#include "support/full_disk.h"
#include "support/test_session.h"
#include "support/windows/controls.h"

namespace trimlog {
namespace {

class Diary : public testing::Test {
 protected:
  Diary() {
    FillNutrientDefinitions(session->nutrients, session.Data());
    FillSelectedNutrientsArray(session->nutrients, session.Data());
    const auto note = [this](const QString &what) { opened.append(what); };
    navigator.OpenFoodSetup = [note](QWidget *) { note(QStringLiteral("foods")); };
    navigator.OpenNutrientSelection = [note](QWidget *) { note(QStringLiteral("nutrients")); };
    navigator.OpenSetup = [note](SetupTab tab) {
      note(tab == SetupTab::Journal ? QStringLiteral("journal options") : QStringLiteral("options"));
    };
    navigator.ShowHelp = note;
  }

  frmDiary &Open(const QDate &date = {}) {
    window = std::make_unique<frmDiary>(*session, navigator, doors, nullptr);
    if (date.isValid()) window->GotoDate(date);
    window->resize(700, 500);
    window->show();
    window->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
    window->Activated();
    return *window;
  }
  template <typename Control>
  Control &The(const char *name) {
    return Find<Control>(*window, QString::fromLatin1(name));
  }
  QString DateShown() { return The<DateField>("txtDate").text(); }
  bool IsSingle() { return The<QRadioButton>("optViewSingle").isChecked(); }
  int Tab() { return The<QTabWidget>("SSTab1").currentIndex(); }

  TestSession session;
  Navigator navigator;
  JournalDoors doors;
  QStringList opened;
  std::unique_ptr<frmDiary> window;
};

TEST_F(Diary, OpensOnTheHandedDayTheKeptViewAndTheDefaultPage) {
  session->settings.DefaultDiaryTab = 2;
  Open();
  EXPECT_EQ(DateShown(), QStringLiteral("3/1/2026"));
  EXPECT_TRUE(IsSingle());
  EXPECT_EQ(Tab(), 2);

  QTest::mouseClick(&The<QRadioButton>("optViewAll"), Qt::LeftButton);
  QTest::keyClick(window.get(), Qt::Key_1, Qt::AltModifier);
  EXPECT_EQ(Tab(), 0);
  Open(QDate(2026, 2, 14));
  EXPECT_FALSE(IsSingle()) << "a day handed over leaves the view as it was";
  EXPECT_EQ(Tab(), 2);
  EXPECT_EQ(DateShown(), QStringLiteral("2/14/2026"));
  window->GotoDate(QDate(2026, 2, 15));
  EXPECT_TRUE(IsSingle()) << "a day asked for later is shown alone";
}

TEST_F(Diary, ShowsTheWaterOfItsDayFromTheBeginning) {
  const WaterRecord today = LoadWaterRecord(*session, {2026, 3, 1}, {2026, 3, 1});
  SaveWater(*session, {today.RecordID, 3, today.ThisDate}, {2026, 3, 1});
  Open();
  EXPECT_EQ(The<QLineEdit>("txtWater").text(), QStringLiteral("3"));
  QTest::keyClick(window.get(), Qt::Key_5, Qt::AltModifier);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Up);
  QTest::keyClick(window.get(), Qt::Key_Right, Qt::AltModifier);
  EXPECT_EQ(The<QLineEdit>("txtWater").text(), QStringLiteral("0"));
  EXPECT_EQ(LoadWaterRecord(*session, {2026, 3, 1}, {2026, 3, 1}).WaterConsumed, 4);
}

TEST_F(Diary, TheDefaultPageIsOneChoice) {
  Open();
  EXPECT_TRUE(The<QCheckBox>("chkDefaultDiaryTab1").isChecked());
  QTest::keyClick(window.get(), Qt::Key_4, Qt::AltModifier);
  EXPECT_FALSE(The<QCheckBox>("chkDefaultDiaryTab1").isVisible());
  QTest::mouseClick(&The<QCheckBox>("chkDefaultDiaryTab3"), Qt::LeftButton);
  EXPECT_FALSE(The<QCheckBox>("chkDefaultDiaryTab1").isChecked());
  EXPECT_EQ(session->settings.DefaultDiaryTab, 3);
  EXPECT_EQ(session->store.GetSettingString(settingsRoot, QStringLiteral("DefaultDiaryTab")), QStringLiteral("3"));
  QTest::mouseClick(&The<QCheckBox>("chkDefaultDiaryTab3"), Qt::LeftButton);
  EXPECT_TRUE(The<QCheckBox>("chkDefaultDiaryTab3").isChecked()) << "one page is always the default";
}

TEST_F(Diary, APageIsLeftOnlyWithWhatIsTypedInItSaved) {
  session->settings.DefaultDiaryTab = 0;
  const int record = AddNote(*session, {2026, 3, 1}, QStringLiteral("old"));
  Open();
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_A, Qt::ControlModifier);
  QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("new"));
  {
    const FullDisk full(0);
    session.boxes.Expect(QStringLiteral("Error Saving Journal"), QStringLiteral("An error occurred"));
    QTest::keyClick(window.get(), Qt::Key_2, Qt::AltModifier);
  }
  EXPECT_EQ(Tab(), 0);
  EXPECT_EQ(QApplication::focusWidget(), &The<QWidget>("txtNotes"));
  QTest::keyClick(window.get(), Qt::Key_2, Qt::AltModifier);
  EXPECT_EQ(Tab(), 1);
  EXPECT_EQ(QApplication::focusWidget(), &The<QWidget>("grdMeals"));
  EXPECT_EQ(NoteText(*session, record), QStringLiteral("new"));
}

TEST_F(Diary, PrintsThePageInFront) {
  session->settings.DefaultDiaryTab = 0;
  AddNote(*session, {2026, 3, 1}, QStringLiteral("a walk"));
  Open();
  session.boxes.Expect(QStringLiteral("Print Notes?"), QStringLiteral("Continue?"), BoxButton::Yes);
  window->Commands().value(QStringLiteral("mnuFilePrint"))();
  EXPECT_EQ(session.printing.texts.size(), 1U);
}

TEST_F(Diary, OtherActionsLeadToTheCatalogsAndTheHelp) {
  Open();
  auto &list = The<QComboBox>("cboActions1");
  ASSERT_EQ(list.count(), 6);
  const auto enabled = [&list](int i) { return list.model()->index(i, 0).flags().testFlag(Qt::ItemIsEnabled); };
  EXPECT_FALSE(enabled(1));
  EXPECT_EQ(list.itemData(2, Qt::ToolTipRole).toString(), leadsNowhere);
  const QStringList wanted = {QStringLiteral("foods"), QStringLiteral("nutrients"), QStringLiteral("nutrition"),
                              QStringLiteral("journal#meals")};
  for (int i = 0; i < list.count(); ++i) {
    if (!enabled(i)) continue;
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_Down);
    QAbstractItemView *rows = list.view();
    ASSERT_TRUE(rows->isVisible()) << "an arrow opens the list and does nothing yet";
    rows->setCurrentIndex(list.model()->index(i, 0));
    QTest::keyClick(rows, Qt::Key_Return);
    QApplication::processEvents();
    EXPECT_EQ(list.currentIndex(), -1);
  }
  EXPECT_EQ(opened, wanted);
}

TEST_F(Diary, TheMenuOfTheJournalSaysWhatIsNotThere) {
  Open();
  struct Entry {
    const char *caption;
    const char *opens;  ///< or why not
    bool enabled = true;
  };
  static constexpr Entry entries[] = {
      {"View/Edit the &Foods Database", "foods"},
      {"View/Edit My &Recipes", "This is not part of this version.", false},
      {"Change My Daily &Targets", "This is not part of this version.", false},
      {"Show Different &Nutrients", "nutrients"},
      {"View Journal &Options", "journal options"},
      {"Get &Help for the Meals Journal", "journal#meals"},
      {"&Learn About Foods and Nutrients", "nutrition"},
      {"Take a &Quick Tutorial", "The tutorials are not installed.", false},
  };
  QContextMenuEvent rightClick(QContextMenuEvent::Mouse, {5, 5}, window->mapToGlobal(QPoint(5, 5)));
  QApplication::sendEvent(window.get(), &rightClick);
  auto &menu = The<QMenu>("mnuPM3");
  ASSERT_TRUE(menu.isVisible());
  QList<QAction *> actions = menu.actions();
  erase_if(actions, [](const QAction *action) { return action->isSeparator(); });
  ASSERT_EQ(actions.size(), std::size(entries));
  for (std::size_t i = 0; i < std::size(entries); ++i) {
    const Entry &entry = entries[i];
    EXPECT_EQ(actions[i]->text(), QString::fromLatin1(entry.caption));
    EXPECT_EQ(actions[i]->isEnabled(), entry.enabled) << entry.caption;
    opened.clear();
    actions[i]->trigger();
    if (!entry.enabled) opened.append(actions[i]->toolTip());
    EXPECT_EQ(opened, QStringList(QString::fromLatin1(entry.opens)));
  }
  menu.hide();
}

}  // namespace
}  // namespace trimlog
