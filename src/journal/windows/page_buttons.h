#pragma once

#include <QWidget>

class QBoxLayout;
class QPushButton;
class QVBoxLayout;

namespace trimlog {

/// A button of a journal page.
struct PageButton {
  QString name;      ///< of the control, "cmdNewMeal"
  QString caption;   ///< with its access key, "&New..."
  QString tip;       ///< what it does, as a sentence
  QString art = {};  ///< its picture; a small window shows only that, so there it must have one
};

/// The buttons of a journal page: a row with captions above what the page shows, or, in a small window, a column of
/// pictures beside it. Access keys taken by all pages: N, D, R. The menu bar has E, F, H, M, P, S, T and V.
class PageButtons : public QWidget {
  Q_OBJECT
 public:
  /// `small`: as JournalKind::isSmall.
  PageButtons(bool small, QWidget *page);

  QPushButton *Add(const PageButton &button);
  /// What every page has: "New...", "Delete" and "Print...", e.g. AddNew("cmdNewMeal", "Adds a food to this day.").
  QPushButton *AddNew(const QString &name, const QString &tip);
  QPushButton *AddDelete(const QString &name, const QString &tip);
  QPushButton *AddPrint(const QString &name, const QString &tip);
  /// What comes now stands at the far end.
  void AddStretch();
  /// Something else in the row, e.g. a choice.
  void AddControl(QWidget *control);

  /// Puts the buttons into their page; returns the layout that takes what the page shows.
  QVBoxLayout *LayOutPage();

 private:
  const bool small_;
  QBoxLayout *layout_;
};

}  // namespace trimlog
