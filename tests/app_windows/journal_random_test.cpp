// Hundreds of random actions in the journal, the Quick Journal and the calendar, beside a journal kept by hand.
#include <QRadioButton>
#include <map>
#include <random>

#include "core/windows/controls/grid_menu.h"
#include "journal/windows/frmDiary.h"
#include "journal/windows/frmQuickDiary.h"
#include "journal_house.h"
#include "platform/windows/fields/date_field.h"
#include "weightlog/windows/frmData.h"

namespace trimlog {
namespace {

constexpr int days = 12;  ///< of March 2026
QDate March(int day) { return {2026, 3, day}; }

/// What a person would have on paper.
struct PaperEntry {
  QDate date;
  int food = 1;
  QString servings;
  double calories = 0;
};

class RandomJournal : public JournalHouse {
 protected:
  RandomJournal() {
    session->windows.quickJournalPlace = {300, 450, 9000, 4500};
    diary.resize(900, 600);
    for (QWidget *window : std::initializer_list<QWidget *>{&calendar, &diary}) window->show();
    diary.Activated();
    OpenQuickJournal(*session, navigator, doors, &calendar);
    quick = calendar.findChild<frmQuickDiary *>();
    add = [this](const EntryOpening &opening) {
      for (int n = Any(1, 2); n > 0; --n) {
        const int food = Any(1, foods);
        const QDate date = opening.kind.hasFixedDate ? opening.date : March(Any(1, days));
        const int key = Eat(date, food, 1, Any(1, 6));
        opening.stored(key, date);
        EXPECT_EQ(key, NextKey());
        paper[key] = {date, food, QStringLiteral("1"), 100.0 * food};
      }
    };
  }

  int Any(int first, int last) { return std::uniform_int_distribution<int>(first, last)(chance); }
  int NextKey() const { return paper.empty() ? 1 : paper.rbegin()->first + 1; }
  bool IsSingle() { return Find<QRadioButton>(diary, QStringLiteral("optViewSingle")).isChecked(); }
  QDate DayIn(QWidget &window) { return Find<DateField>(window, QStringLiteral("txtDate")).Date(); }
  QList<int> KeysOf(const QDate &date) const {
    QList<int> keys;
    for (const auto &[key, entry] : paper) {
      if (!date.isValid() || entry.date == date) keys.append(key);
    }
    return keys;
  }
  double CaloriesOf(const QDate &date) const {
    double sum = 0;
    for (const int key : KeysOf(date)) sum += paper.at(key).calories;
    return sum;
  }
  QList<int> Shown(QWidget &window) { return KeysOf(&window == quick || IsSingle() ? DayIn(window) : QDate()); }

  void ChangeServings(QWidget &window, int key) {
    static constexpr std::pair<const char *, const char *> typed[] = {
        {"2", "2"}, {"0.5", "0.5"}, {"3", "3"}, {"", "1"}, {"-1", "1"}, {"abc", "1"}, {"0", "0"}};
    const auto &[text, servings] = typed[Any(0, std::size(typed) - 1)];
    PaperEntry &entry = paper[key];
    if (entry.servings == QString::fromLatin1(servings)) return;
    Type(window, key, "Amount", QString::fromLatin1(text));
    entry.servings = QString::fromLatin1(servings);
    entry.calories = 100 * entry.food * entry.servings.toDouble();
  }
  void ChangeCalories(QWidget &window, int key) {
    const int calories = Any(0, 900);
    Type(window, key, "Nut1", QString::number(calories));
    EXPECT_TRUE(Meals(window).CommitRow()) << "calories are written when their row is left";
    paper[key].calories = calories;
  }
  void Delete(QWidget &window, const QList<int> &shown) {
    std::vector<qint64> keys;
    for (int n = Any(1, 2); n > 0; --n) keys.push_back(shown[Any(0, static_cast<int>(shown.size()) - 1)]);
    Meals(window).GoToKey(keys.front());
    Meals(window).MarkRows(keys);
    Click(window, "cmdDeleteMeal");
    for (const qint64 key : keys) paper.erase(static_cast<int>(key));
  }
  void CopyTo(const QList<int> &shown) {
    const int key = shown[Any(0, static_cast<int>(shown.size()) - 1)];
    Meals(diary).MarkRows({key});
    Meals(diary).CopyRows(session->windows.rowClipboard);
    const PaperEntry copied = paper[key];
    GoSomewhere();
    ASSERT_TRUE(PasteGridRow(*session, Meals(diary)));
    const int added = NextKey();
    paper[added] = copied;
    if (IsSingle()) paper[added].date = DayIn(diary);
  }
  void GoSomewhere() {
    switch (Any(0, 3)) {
      case 0:
        return Click(diary, "optViewAll");
      case 1:
        return Click(diary, DayIn(diary) >= March(days) ? "cmdPrev" : "cmdNext");
      case 2: {
        auto &box = Find<DateField>(diary, QStringLiteral("txtDate"));
        Activate(diary);
        box.setFocus();
        box.selectAll();
        QTest::keyClicks(&box, QStringLiteral("3/%1/2026").arg(Any(1, days)));
        QTest::keyClick(&box, Qt::Key_Return);
        return;
      }
      default:
        calendar.GotoDate(March(Any(1, days)));
        QApplication::processEvents();  // the Quick Journal goes along
    }
  }
  /// An action in one of the windows; what it was.
  std::string Act() {
    QWidget &window = Any(0, 2) == 0 ? static_cast<QWidget &>(*quick) : diary;
    const QList<int> shown = Shown(window);
    const int action = Any(0, 9);
    const std::string where = window.objectName().toStdString();
    if (action == 9 || (shown.isEmpty() && action >= 2)) return GoSomewhere(), "go";
    if (action < 2) return Click(window, "cmdNewMeal"), where + " add";
    const int key = shown[Any(0, static_cast<int>(shown.size()) - 1)];
    if (action < 4) return ChangeServings(window, key), where + " servings";
    if (action < 5) return ChangeCalories(window, key), where + " calories";
    if (action < 8) return Delete(window, shown), where + " delete";
    const QList<int> inJournal = Shown(diary);
    if (inJournal.isEmpty()) return Click(window, "cmdNewMeal"), where + " add";
    return CopyTo(inJournal), "copy";
  }

  void CheckRows(QWidget &window) {
    GridModel &model = Meals(window).Model();
    QList<int> rows;
    for (int row = 0; row < model.RecordCount(); ++row) rows.append(static_cast<int>(*model.KeyOfRow(row)));
    std::sort(rows.begin(), rows.end());
    ASSERT_EQ(rows, Shown(window)) << qPrintable(window.objectName());
    for (const int key : rows) {
      const PaperEntry &entry = paper[key];
      EXPECT_EQ(Cell(window, key, "Amount").data().toString(), entry.servings) << key;
      EXPECT_EQ(Cell(window, key, "Nut1").data().toString(), QString::number(entry.calories)) << key;
    }
    if (rows.isEmpty()) return;
    const QDate current = Meals(window).CurrentField(QStringLiteral("ThisDate")).toDate();
    EXPECT_EQ(Total(window), QString::number(CaloriesOf(current))) << qPrintable(window.objectName());
  }
  void CheckEverything() {
    CheckRows(diary);
    CheckRows(*quick);
    EXPECT_EQ(DayIn(*quick), session->windows.RememberedDate);
    for (int day = 1; day <= days; ++day) {
      const QString wanted = KeysOf(March(day)).isEmpty() ? QString() : FigureOf(CaloriesOf(March(day)));
      EXPECT_EQ(Figure(calendar, day), wanted) << day;
    }
  }

  std::mt19937 chance{20260301};
  std::map<int, PaperEntry> paper;
  frmData calendar{*session, navigator};
  frmDiary diary{*session, navigator, doors};
  frmQuickDiary *quick = nullptr;
};

TEST_F(RandomJournal, AgreesWithTheJournalKeptByHand) {
  for (int step = 0; step < 200; ++step) {
    const std::string action = Act();
    CheckEverything();
    if (HasFailure()) FAIL() << "after step " << step << ", " << action;
  }
  EXPECT_GT(paper.size(), 5U);
  const Recordset rows = session.Data().OpenRecordset(
      QStringLiteral("SELECT RecordID, ThisDate, Amount, Calories FROM meals WHERE PersonID=1 ORDER BY RecordID;"), {});
  ASSERT_EQ(static_cast<std::size_t>(rows.RecordCount()), paper.size());
}

}  // namespace
}  // namespace trimlog
