#include "journal/windows/exercises_page.h"

namespace trimlog {

ExercisesPage::ExercisesPage(const JournalParts &parts, QWidget *parent)
    : JournalPage(parts, QStringLiteral("ExercisesPage"), parent) {}

void ExercisesPage::TakeFocus() { setFocus(); }

void ExercisesPage::Print() {}

void ExercisesPage::ShowView(JournalView /*view*/) {}

void ExercisesPage::ShowRows() {}

}  // namespace trimlog
