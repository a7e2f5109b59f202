#include "journal/windows/journal_tabs.h"

#include <QShortcut>
#include <QSignalBlocker>
#include <QTabBar>

#include "journal/windows/exercises_page.h"
#include "journal/windows/meals_page.h"
#include "journal/windows/measurements_page.h"
#include "journal/windows/notes_page.h"

namespace trimlog {

JournalTabs::JournalTabs(const JournalParts &parts, QWidget *parent)
    : QTabWidget(parent), meals_(new MealsPage(parts, this)) {
  setObjectName(QStringLiteral("SSTab1"));
  tabBar()->setAccessibleName(tr("Pages"));
  setDocumentMode(true);
  const JournalKind &kind = parts.day.Kind();
  if (kind.hasDayRecords) Add(new NotesPage(parts, this), tr(" Notes "));
  Add(meals_, kind.mealsTab);
  Add(new ExercisesPage(parts, this), kind.activitiesTab);
  if (kind.hasDayRecords) Add(new MeasurementsPage(parts, this), tr(" Body Measurements "));
  connect(this, &QTabWidget::currentChanged, this, &JournalTabs::LeaveFor);
}

void JournalTabs::Add(JournalPage *page, const QString &caption) {
  pages_.push_back(page);
  const int index = addTab(page, caption);
  const QKeySequence keys(Qt::ALT | static_cast<Qt::Key>(Qt::Key_1 + index));
  setTabToolTip(index, keys.toString(QKeySequence::NativeText));
  auto *shortcut = new QShortcut(keys, this);
  connect(shortcut, &QShortcut::activated, this, [this, index] { setCurrentIndex(index); });
}

EditOutcome JournalTabs::SaveOpenEdit() {
  for (std::size_t i = 0; i < pages_.size(); ++i) {
    const EditOutcome outcome = pages_[i]->SaveOpenEdit();
    if (outcome == EditOutcome::Saved) continue;
    OpenOn(static_cast<int>(i));
    return outcome;
  }
  return EditOutcome::Saved;
}

void JournalTabs::DropOpenEdit() {
  for (JournalPage *page : pages_) page->DropOpenEdit();
}

void JournalTabs::OpenOn(int index) {
  if (index < 0 || index >= count()) return;
  const QSignalBlocker blocked(this);
  setCurrentIndex(index);
  shown_ = index;
}

void JournalTabs::LeaveFor(int index) {
  const int wanted = index;
  if (wanted == shown_) return;
  // What is refused must be seen while its box says why.
  OpenOn(shown_);
  if (CurrentPage().SaveOpenEdit() == EditOutcome::Saved) OpenOn(wanted);
  Q_EMIT PageShown(currentIndex());
  if (isVisible()) CurrentPage().TakeFocus();
}

}  // namespace trimlog
