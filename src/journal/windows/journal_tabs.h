#pragma once

#include <QTabWidget>
#include <vector>

#include "journal/windows/journal_page.h"

namespace trimlog {

class MealsPage;

/// The pages of a journal window, one tab each; which ones there are is the kind's. A page is only left when what is
/// typed in it could be saved. Alt+1, Alt+2, ... and Ctrl+Tab go to a page.
class JournalTabs : public QTabWidget {
  Q_OBJECT
 public:
  JournalTabs(const JournalParts &parts, QWidget *parent);

  JournalPage &Page(int index) const { return *pages_[static_cast<std::size_t>(index)]; }
  MealsPage &Meals() const { return *meals_; }
  JournalPage &CurrentPage() const { return Page(currentIndex()); }
  /// Of all pages; the first that refuses comes to the front.
  EditOutcome SaveOpenEdit();
  void DropOpenEdit();
  /// Goes to a page without asking the one before, and without taking the focus: for opening.
  void OpenOn(int index);

 Q_SIGNALS:
  void PageShown(int index);  ///< another page is in front

 private:
  void Add(JournalPage *page, const QString &caption);
  void LeaveFor(int index);

  std::vector<JournalPage *> pages_;
  MealsPage *meals_;
  int shown_ = 0;
};

}  // namespace trimlog
