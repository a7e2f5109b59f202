#include "core/windows/controls/refused_row.h"

#include "platform/windows/grid/bound_grid.h"

namespace trimlog {

namespace {

QString SentenceOfCurrentRow(const BoundGrid &grid) {
  const QModelIndex current = grid.currentIndex();
  const QString own = current.data(GridModel::SentenceRole).toString();
  if (!own.isEmpty()) return own;
  for (int column = 0; column < grid.model()->columnCount(); ++column) {
    const QString sentence = current.siblingAtColumn(column).data(GridModel::SentenceRole).toString();
    if (!sentence.isEmpty()) return sentence;
  }
  return {};
}

}  // namespace

void ShowRefusedRow(Session &session, const QString &title, BoundGrid &grid) {
  const QString sentence = SentenceOfCurrentRow(grid);
  if (!sentence.isEmpty()) session.boxes.Critical(title, sentence);  // a failure has shown its own box
  grid.setFocus();
}

}  // namespace trimlog
