#pragma once

#include <QApplication>
#include <QVBoxLayout>
#include <memory>

#include "journal/day/day_records.h"
#include "journal/windows/journal_page.h"
#include "support/test_session.h"
#include "support/windows/controls.h"

namespace trimlog {

/// A window around one page of a journal, on a day of the test session's profile.
template <typename Page>
class PageWindow : public QWidget {
 public:
  explicit PageWindow(Session &session, const JournalKind &kind = JournalKind::Diary(), const QDate &date = {})
      : day(session, kind, date), page(new Page({session, navigator, doors, day}, this)) {
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(page);
    day.mayLeave = [this] { return page->SaveOpenEdit() == EditOutcome::Saved; };
    resize(760, 440);
    show();
    QApplication::setActiveWindow(this);
  }
  template <typename Control>
  Control &Get(const char *name) {
    return Find<Control>(*this, QString::fromLatin1(name));
  }

  Navigator navigator;
  JournalDoors doors;
  JournalDay day;
  Page *page;
};

}  // namespace trimlog
