#include "journal/windows/journal_page.h"

namespace trimlog {

JournalPage::JournalPage(const JournalParts &parts, const QString &objectName, QWidget *parent)
    : QWidget(parent), session_(parts.session), navigator_(parts.navigator), doors_(parts.doors), day_(parts.day) {
  setObjectName(objectName);
  connect(&day_, &JournalDay::ScopeChanged, this, &JournalPage::Reload);
}

void JournalPage::Reload() {
  waits_ = !isVisible();
  if (waits_) return;
  if (view_ != day_.View()) {
    view_ = day_.View();
    ShowView(*view_);
  }
  ShowRows();
}

void JournalPage::showEvent(QShowEvent *event) {
  QWidget::showEvent(event);
  if (waits_) Reload();
}

}  // namespace trimlog
