#pragma once

#include <QLineEdit>
#include <QLocale>
#include <memory>
#include <optional>

#include "platform/grid/grid_lookup.h"

class QFrame;

namespace trimlog {

class BoundGrid;

/// A field in which a row of a long list is chosen by typing: the list hangs below it as a grid of its own, at the
/// first row that begins with what is typed. Down, Up and the page keys move in the list, F4 and Alt+Down open and
/// close it, a click or Enter takes the row. Nothing of the list is copied: the grid reads what is seen.
class LookupField : public QLineEdit {
  Q_OBJECT
 public:
  LookupField(Database &database, const GridLookup &lookup, const QLocale &locale, QWidget *parent);
  ~LookupField() override;

  void SetShown(const QVariant &key);  ///< the row that the list opens at
  /// The row that was chosen or whose beginning was typed; nothing when no row begins so, or nothing was changed.
  std::optional<qint64> ChosenKey() const { return chosen_; }
  void ShowList();
  void HideList();

 Q_SIGNALS:
  void Chosen();  ///< with the mouse: the field has done its work

 protected:
  void keyPressEvent(QKeyEvent *event) override;
  void focusOutEvent(QFocusEvent *event) override;
  void hideEvent(QHideEvent *event) override;

 private:
  void MakeList();
  void LookFor(const QString &typed);
  void TakeCurrent();
  bool MoveInList(QKeyEvent *event);

  Database &database_;
  const GridLookup &lookup_;
  QLocale locale_;
  std::unique_ptr<QFrame> list_;
  BoundGrid *grid_ = nullptr;  ///< in the list
  std::optional<qint64> shown_;
  std::optional<qint64> chosen_;
};

}  // namespace trimlog
