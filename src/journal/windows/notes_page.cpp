#include "journal/windows/notes_page.h"

namespace trimlog {

NotesPage::NotesPage(const JournalParts &parts, QWidget *parent)
    : JournalPage(parts, QStringLiteral("NotesPage"), parent) {}

void NotesPage::TakeFocus() { setFocus(); }

void NotesPage::Print() {}

void NotesPage::ShowView(JournalView /*view*/) {}

void NotesPage::ShowRows() {}

}  // namespace trimlog
