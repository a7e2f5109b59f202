#include "journal/windows/meals_page.h"

namespace trimlog {

MealsPage::MealsPage(const JournalParts &parts, QWidget *parent)
    : JournalPage(parts, QStringLiteral("MealsPage"), parent) {}

void MealsPage::TakeFocus() { setFocus(); }

void MealsPage::Print() {}

void MealsPage::ShowView(JournalView /*view*/) {}

void MealsPage::ShowRows() {}

}  // namespace trimlog
