#include "catalogs/windows/row_button.h"

#include <QEvent>
#include <QScrollBar>

#include "platform/windows/grid/bound_grid.h"

namespace trimlog {

RowButton::RowButton(const QString &name, const QString &caption, QWidget *parent) : QPushButton(caption, parent) {
  setObjectName(name);
  setAutoDefault(false);
  hide();
}

QWidget *RowButton::MakeStrip(QWidget *parent) const {
  auto *strip = new QWidget(parent);
  strip->setFixedWidth(sizeHint().width());
  return strip;
}

void RowButton::StandBeside(BoundGrid &grid, QWidget &strip) {
  if (grid_) {
    disconnect(grid_, nullptr, this, nullptr);
    disconnect(grid_->verticalScrollBar(), nullptr, this, nullptr);
    disconnect(grid_->model(), nullptr, this, nullptr);
    grid_->viewport()->removeEventFilter(this);
  }
  grid_ = &grid;
  setParent(&strip);
  setTabOrder(&grid, this);
  Follow(grid);
  Place();
}

void RowButton::Follow(BoundGrid &grid) {
  connect(&grid, &BoundGrid::CurrentRowChanged, this, &RowButton::Place);
  connect(grid.verticalScrollBar(), &QScrollBar::valueChanged, this, &RowButton::Place);
  // Behind the grid's own answer to the same news, which moves its rows.
  connect(grid.model(), &QAbstractItemModel::modelReset, this, &RowButton::Place, Qt::QueuedConnection);
  connect(grid.model(), &QAbstractItemModel::layoutChanged, this, &RowButton::Place, Qt::QueuedConnection);
  grid.viewport()->installEventFilter(this);
}

bool RowButton::eventFilter(QObject *watched, QEvent *event) {
  if (event->type() == QEvent::Resize || event->type() == QEvent::Show || event->type() == QEvent::FontChange) Place();
  return QPushButton::eventFilter(watched, event);
}

void RowButton::Place() {
  const QModelIndex current = grid_->currentIndex();
  const QWidget *rows = grid_->viewport();
  const int top = current.isValid() ? grid_->rowViewportPosition(current.row()) : -1;
  const int middle = top + (current.isValid() ? grid_->rowHeight(current.row()) / 2 : 0);
  const bool seen = top >= 0 && middle < rows->height();
  if (seen) {
    resize(sizeHint());
    const QPoint place = parentWidget()->mapFromGlobal(rows->mapToGlobal(QPoint(0, middle)));
    move((parentWidget()->width() - width()) / 2, place.y() - height() / 2);
  }
  setVisible(seen);
}

}  // namespace trimlog
