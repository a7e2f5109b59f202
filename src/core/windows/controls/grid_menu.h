#pragma once

#include <QMenu>
#include <QPointer>

#include "core/session/navigator.h"
#include "core/session/session.h"

namespace trimlog {

class BoundGrid;

/// Pastes the rows last copied, when they came from a grid of the same kind; tells the person otherwise. False when
/// nothing was pasted.
bool PasteGridRow(Session &session, BoundGrid &grid);

/// The right-click menu that all data grids share. It acts on the grid and the column under the mouse when it was
/// opened; what cannot be done there is disabled.
class GridMenu : public QMenu {
  Q_OBJECT
 public:
  GridMenu(Session &session, const Navigator &navigator, QWidget *parent);
  /// A right click on the grid, or the menu key, opens this menu from now on.
  void Attach(BoundGrid &grid);

 private:
  using Act = std::function<void(BoundGrid &grid)>;
  QAction *Add(QMenu &menu, const char *name, const QString &caption, Act act);
  void Open(BoundGrid &grid, const QPoint &place);
  void UpdateActions(BoundGrid &grid);

  Session &session_;
  const Navigator &navigator_;
  QPointer<BoundGrid> grid_;
  QString column_;
  QAction *cut_ = nullptr;
  QAction *paste_ = nullptr;
  QMenu *copyRow_ = nullptr;
  QAction *pasteRow_ = nullptr;
  QAction *deleteRow_ = nullptr;
  QAction *undoField_ = nullptr;
  QAction *undoRow_ = nullptr;
  QAction *sortAscending_ = nullptr;
  QAction *sortDescending_ = nullptr;
  QAction *targets_ = nullptr;
  QAction *nutrients_ = nullptr;
};

}  // namespace trimlog
