#include "platform/windows/grid/frozen_column.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QMouseEvent>
#include <QScrollBar>

#include "platform/windows/grid/bound_grid.h"
#include "platform/windows/grid/grid_delegate.h"

namespace trimlog {

FrozenColumn::FrozenColumn(BoundGrid &grid, int column) : QTableView(&grid), grid_(grid), column_(column) {
  setModel(&grid.Model());
  QItemSelectionModel *const own = selectionModel();
  setSelectionModel(&grid.Selection());
  delete own;
  setItemDelegate(new GridDelegate(&grid));  // its own: editors are asked for and closed by one view only
  setFocusPolicy(Qt::NoFocus);
  setAutoScroll(false);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setAlternatingRowColors(grid.alternatingRowColors());
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setFrameShape(QFrame::NoFrame);
  setWordWrap(grid.wordWrap());
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  horizontalHeader()->setHighlightSections(false);
  connect(grid.verticalScrollBar(), &QScrollBar::valueChanged, verticalScrollBar(), &QScrollBar::setValue);
  connect(horizontalHeader(), &QHeaderView::sectionClicked, &grid,
          [&grid](int section) { grid.Sorting().ByClick(section); });
  hide();
}

void FrozenColumn::Follow() {
  const int left = grid_.columnViewportPosition(column_);
  const int room = grid_.viewport()->width();
  const int wide = grid_.columnWidth(column_);
  if (grid_.isColumnHidden(column_) || left >= 0 || wide * 2 > room) return hide();
  for (int column = 0; column < grid_.Model().columnCount(); ++column) setColumnHidden(column, column != column_);
  const QHeaderView *const captions = grid_.horizontalHeader();
  const QRect view = grid_.viewport()->geometry();
  verticalHeader()->setDefaultSectionSize(grid_.verticalHeader()->defaultSectionSize());
  horizontalHeader()->setFixedHeight(captions->height());
  horizontalHeader()->setSectionsClickable(true);
  horizontalHeader()->setSortIndicator(captions->sortIndicatorSection(), captions->sortIndicatorOrder());
  horizontalHeader()->setSortIndicatorShown(captions->isSortIndicatorShown());
  setColumnWidth(column_, wide);
  setGeometry(view.left(), captions->geometry().top(), wide, captions->height() + view.height());
  verticalScrollBar()->setRange(grid_.verticalScrollBar()->minimum(), grid_.verticalScrollBar()->maximum());
  verticalScrollBar()->setValue(grid_.verticalScrollBar()->value());
  show();
  raise();
}

// Rows stand at the same height here and there, and the column alone says which cell is meant.
bool FrozenColumn::viewportEvent(QEvent *event) {
  switch (event->type()) {
    case QEvent::MouseButtonPress: {
      const auto *press = static_cast<QMouseEvent *>(event);
      const QModelIndex here = indexAt(press->position().toPoint());
      if (here.isValid()) grid_.PressCell(here, *press);
      return true;
    }
    case QEvent::MouseButtonDblClick: {
      const QModelIndex cell = grid_.currentIndex();
      if (cell.column() == column_) CanChange(cell) ? grid_.EditCell(cell) : static_cast<void>(grid_.ActivateRow());
      return true;
    }
    case QEvent::ContextMenu:
      grid_.OpenMenuAt(static_cast<QContextMenuEvent *>(event)->globalPos());
      return true;
    case QEvent::Wheel:
      QCoreApplication::sendEvent(grid_.viewport(), event);
      return true;
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
      return true;
    default:
      return QTableView::viewportEvent(event);
  }
}

}  // namespace trimlog
