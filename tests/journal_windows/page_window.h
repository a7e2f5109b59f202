#pragma once

#include <QApplication>
#include <QPushButton>
#include <QVBoxLayout>
#include <memory>

#include "journal/day/day_records.h"
#include "journal/windows/journal_page.h"
#include "support/test_session.h"
#include "support/windows/controls.h"

namespace trimlog {

inline const QDate today(2026, 3, 1);  ///< of the test session

/// A window around one page of a journal, on a day of the test session's profile.
template <typename Page>
class PageWindow : public QWidget {
 public:
  explicit PageWindow(Session &session, const JournalKind &kind = JournalKind::Diary(), const QDate &date = {})
      : day(session, kind, date), page(new Page({session, navigator, doors, day}, this)) {
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(page);
    layout->addWidget(elsewhere);
    day.mayLeave = [this] { return page->SaveOpenEdit() == EditOutcome::Saved; };
    resize(760, 440);
    show();
    QApplication::setActiveWindow(this);
  }
  template <typename Control>
  Control &Get(const char *name) {
    return Find<Control>(*this, QString::fromLatin1(name));
  }

  void Click(const char *name) { QTest::mouseClick(&Get<QWidget>(name), Qt::LeftButton); }
  /// The focus leaves what has it, as with Tab to a button elsewhere.
  void Leave() {
    elsewhere->setFocus(Qt::TabFocusReason);
    QApplication::processEvents();
  }

  Navigator navigator;
  JournalDoors doors;
  JournalDay day;
  Page *page;
  QPushButton *elsewhere = new QPushButton(QStringLiteral("elsewhere"), this);
};

}  // namespace trimlog
