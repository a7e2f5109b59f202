#include "platform/windows/grid/grid_keyboard.h"

#include <QApplication>
#include <QDateTime>
#include <QKeyEvent>
#include <algorithm>

#include "platform/grid/grid_guard.h"
#include "platform/windows/grid/bound_grid.h"

namespace trimlog {

bool GridKeyboard::Press(QKeyEvent &event) {
  const Qt::KeyboardModifiers held = event.modifiers();
  if (event.key() == Qt::Key_F10 && held == Qt::ShiftModifier) {
    grid_.OpenMenuByKey();
    return true;
  }
  if (grid_.OpenEditor()) return false;
  static constexpr int onCell[] = {Qt::Key_Escape,  Qt::Key_Return, Qt::Key_Enter, Qt::Key_Tab,
                                   Qt::Key_Backtab, Qt::Key_Delete, Qt::Key_F4,    Qt::Key_Backspace};
  if (std::find(std::begin(onCell), std::end(onCell), event.key()) != std::end(onCell)) {
    event.setAccepted(OnCell(event));
  } else if (event.key() == Qt::Key_Down && held.testFlag(Qt::AltModifier)) {
    grid_.Choice().Open();
  } else if (event.key() == Qt::Key_Space && held == Qt::ShiftModifier) {
    grid_.ChooseCurrentRow();
  } else if (IsLooking() && !event.text().isEmpty() && event.text().front().isPrint()) {
    LookFor(event.text());  // a search that came to a row that can be changed goes on
  } else if (event.matches(QKeySequence::Copy)) {
    grid_.MarkedKeys().size() > 1 ? grid_.CopyRowsExternal() : grid_.Copy();
  } else if (event.matches(QKeySequence::Paste)) {
    grid_.Paste();
  } else if (event.matches(QKeySequence::Cut)) {
    grid_.Cut();
  } else {
    return false;
  }
  return true;
}

bool GridKeyboard::OnCell(const QKeyEvent &event) {
  const bool plain = (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
  switch (event.key()) {
    case Qt::Key_Escape:
      return TakeBack();
    case Qt::Key_Delete:
      return plain && Delete();
    case Qt::Key_Backspace:
      return plain && grid_.ClearCell();
    case Qt::Key_F4:
      return plain && grid_.Choice().Open();
    default:
      return Leave(event);
  }
}

bool GridKeyboard::TakeBack() {
  if (!grid_.Model().IsChanging()) return false;
  if (grid_.Model().IsFieldChanged(grid_.currentIndex())) {
    grid_.UndoField();
  } else {
    grid_.UndoRow();
  }
  return true;
}

bool GridKeyboard::Delete() {
  if (!grid_.RowsMarked() && grid_.ClearCell()) return true;
  if (!grid_.canDelete) return false;
  grid_.DeleteSelected();
  return true;
}

bool GridKeyboard::Leave(const QKeyEvent &event) {
  const bool tab = event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab;
  if (tab && event.modifiers().testFlag(Qt::ControlModifier)) return false;  // turns the pages of a window
  if (!tab && !CanChange(grid_.currentIndex())) return grid_.ActivateRow();
  const QModelIndex next = grid_.LeaveRowFor(NextEditable(event.key() != Qt::Key_Backtab));
  if (!next.isValid()) return !tab && grid_.CommitRow();
  grid_.Selection().GoTo(next);
  return true;
}

QModelIndex GridKeyboard::NextEditable(bool forward) const {
  const GridModel &model = grid_.Model();
  const int columns = model.columnCount();
  const int step = forward ? 1 : -1;
  int row = grid_.currentIndex().row();
  int column = grid_.currentIndex().column();
  // Beyond the neighbouring rows nothing is looked for: a long list of rows that cannot be changed is not walked.
  for (int rowsSeen = 0; rowsSeen < 3 && row >= 0;) {
    column += step;
    if (column < 0 || column >= columns) {
      row += step;
      column = forward ? 0 : columns - 1;
      ++rowsSeen;
      if (row < 0 || row >= model.rowCount()) return {};
    }
    const QModelIndex cell = model.index(row, column);
    if (!grid_.isColumnHidden(column) && CanChange(cell)) return cell;
  }
  return {};
}

bool GridKeyboard::IsLooking() const {
  return !typedAhead_.isEmpty() &&
         QDateTime::currentMSecsSinceEpoch() - typedAheadAt_ <= QApplication::keyboardInputInterval();
}

// Rows may first stand by a kind that no column shows: within it the first that is seen orders them.
QString GridKeyboard::SortedField() const {
  const QList<GridOrder> &order = grid_.Model().Source().order;
  for (const GridOrder &term : order) {
    for (const GridColumn &column : grid_.Model().Columns()) {
      if (column.visible && ShownField(column) == term.field) return term.field;
    }
  }
  return order.isEmpty() ? QString() : order.first().field;
}

void GridKeyboard::LookFor(const QString &letters) {
  if (!IsLooking()) typedAhead_.clear();
  typedAheadAt_ = QDateTime::currentMSecsSinceEpoch();
  typedAhead_ += letters;
  const QString sorted = grid_.Model().IsOpen() ? SortedField() : QString();
  if (sorted.isEmpty()) return;
  RunGuarded(grid_.Model(), GridAction::Load, [&] {
    const int row = grid_.Model().FindPrefix(sorted, typedAhead_);
    if (const std::optional<qint64> key = grid_.Model().KeyOfRow(row)) grid_.GoToKey(*key);
  });
}

}  // namespace trimlog
