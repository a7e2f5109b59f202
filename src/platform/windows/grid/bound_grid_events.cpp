// What comes to a BoundGrid from outside: keys and mouse, scrolling, painting; and its cells' editors.
#include <QAccessible>
#include <QApplication>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QMetaMethod>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <algorithm>

#include "platform/windows/grid/bound_grid.h"
#include "platform/windows/grid/cell_editors.h"
#include "platform/windows/grid/frozen_column.h"

namespace trimlog {

// ---- Editors of cells

QWidget *BoundGrid::OpenEditor() const {
  return state() == QAbstractItemView::EditingState ? indexWidget(currentIndex()) : nullptr;
}

bool BoundGrid::IsTyping() const {
  const QWidget *const editor = OpenEditor();
  if (!editor) return false;
  const QString typed = TypedInEditor(*editor);
  return !typed.isNull() && typed != currentIndex().data(Qt::EditRole).toString();
}

void BoundGrid::CloseOpenEditor(bool keep) {
  QWidget *const editor = OpenEditor();
  if (!editor) return;
  if (keep) commitData(editor);
  QTableView::closeEditor(editor, keep ? QAbstractItemDelegate::NoHint : QAbstractItemDelegate::RevertModelCache);
}

void BoundGrid::KeepEditor(QWidget *editor, bool andClose) {
  commitData(editor);
  if (andClose) closeEditor(editor, QAbstractItemDelegate::NoHint);
}

bool BoundGrid::edit(const QModelIndex &index, EditTrigger trigger, QEvent *event) {
  const auto *key = event && event->type() == QEvent::KeyPress ? static_cast<QKeyEvent *>(event) : nullptr;
  const bool begins = trigger == AnyKeyPressed ? key && !key->text().isEmpty() && key->text().front().isPrint()
                                               : trigger == EditKeyPressed || trigger == AllEditTriggers;
  const bool covered = frozen_ && frozen_->isVisible() && index.column() == frozen_->Column();
  if (covered && begins && CanChange(index)) horizontalScrollBar()->setValue(0);
  // A click on the chosen row waits whether a second one follows, and Qt would let no key begin meanwhile.
  if (begins) QTableView::edit(index, CurrentChanged, nullptr);
  return QTableView::edit(index, trigger, event);
}

void BoundGrid::ChooseCurrentRow() {
  if (!currentIndex().isValid()) return;
  selection_->GoTo(currentIndex());
  selection_->chosenByHand = true;
  viewport()->update();
}

void BoundGrid::closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint) {
  QTableView::closeEditor(editor, hint);
  const QWidget *const focus = QApplication::focusWidget();
  if (focus && focus != this && !isAncestorOf(focus) && focus->window() == window()) CommitRow();
}

void BoundGrid::focusInEvent(QFocusEvent *event) {
  QTableView::focusInEvent(event);
  // Behind the view's own word, which is the name of the list.
  if (QAccessible::isActive()) QMetaObject::invokeMethod(this, &BoundGrid::SayCurrentCell, Qt::QueuedConnection);
}

// Who comes into the grid by ear hears the cell that the keys act on.
void BoundGrid::SayCurrentCell() {
  if (!hasFocus() || !currentIndex().isValid()) return;
  QAccessibleInterface *const table = QAccessible::queryAccessibleInterface(this);
  const QModelIndex cell = currentIndex();
  QAccessibleEvent told(this, QAccessible::Focus);
  told.setChild(table->indexOfChild(table->tableInterface()->cellAt(cell.row(), cell.column())));
  QAccessible::updateAccessibility(&told);
}

void BoundGrid::focusOutEvent(QFocusEvent *event) {
  QTableView::focusOutEvent(event);
  const QWidget *const focus = QApplication::focusWidget();
  if (focus && !isAncestorOf(focus) && focus->window() == window()) CommitRow();
}

// ---- Keys

void BoundGrid::keyPressEvent(QKeyEvent *event) {
  const QScopedValueRollback<bool> extending(selection_->extending, event->modifiers().testFlag(Qt::ShiftModifier));
  if (!keyboard_.Press(*event)) QTableView::keyPressEvent(event);
}

QModelIndex BoundGrid::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
  QModelIndex target;
  if (action == MoveNext || action == MovePrevious) {
    target = keyboard_.NextEditable(action == MoveNext);
    if (!target.isValid()) target = currentIndex();
  } else {
    target = QTableView::moveCursor(action, modifiers);
    if (action == MoveHome && target.isValid()) target = target.siblingAtColumn(FirstColumn());
    if (action == MoveEnd && target.isValid()) target = target.siblingAtColumn(LastShown(model_->Columns()));
  }
  const QModelIndex left = LeaveRowFor(target);
  return left.isValid() ? left : currentIndex();
}

QItemSelectionModel::SelectionFlags BoundGrid::selectionCommand(const QModelIndex &index, const QEvent *event) const {
  if (event && event->type() == QEvent::KeyPress) {
    const auto *key = static_cast<const QKeyEvent *>(event);
    // Ctrl+Home and Ctrl+End go to a row, with Shift they mark up to it; the view would leave the marks as they are.
    const bool jump = key->key() == Qt::Key_Home || key->key() == Qt::Key_End;
    const Qt::KeyboardModifiers held = key->modifiers() & ~Qt::KeypadModifier;
    if (jump && held == Qt::ControlModifier) return QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows;
    if (jump && held == (Qt::ControlModifier | Qt::ShiftModifier)) {
      return QItemSelectionModel::SelectCurrent | QItemSelectionModel::Rows;
    }
  }
  if (event && event->type() == QEvent::MouseButtonPress && index.isValid()) {
    // A plain click means its row alone; the view would leave a row that is marked with others among them.
    const auto *press = static_cast<const QMouseEvent *>(event);
    const bool marks = (press->modifiers() & (Qt::ShiftModifier | Qt::ControlModifier)) != Qt::NoModifier;
    if (press->button() == Qt::LeftButton && !marks)
      return QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows;
  }
  return QTableView::selectionCommand(index, event);
}

void BoundGrid::setSelection(const QRect &rect, QItemSelectionModel::SelectionFlags command) {
  if (command.testFlag(QItemSelectionModel::Current) && selection_->ExtendMarks()) return;
  QTableView::setSelection(rect, command);
}

bool BoundGrid::ActivateRow() {
  const std::optional<qint64> key = CurrentKey();
  if (!key || !isSignalConnected(QMetaMethod::fromSignal(&BoundGrid::RowActivated))) return false;
  Q_EMIT RowActivated(*key);
  return true;
}

// ---- Mouse

void BoundGrid::mousePressEvent(QMouseEvent *event) {
  if (mouse_.Press(*event)) return event->accept();
  const bool marks = (event->modifiers() & (Qt::ShiftModifier | Qt::ControlModifier)) != Qt::NoModifier;
  const QScopedValueRollback<bool> extending(selection_->extending, event->modifiers().testFlag(Qt::ShiftModifier));
  QTableView::mousePressEvent(event);
  selection_->chosenByHand = marks;
}

void BoundGrid::mouseMoveEvent(QMouseEvent *event) {
  if (!mouse_.PressIsSettled()) QTableView::mouseMoveEvent(event);
}

void BoundGrid::mouseReleaseEvent(QMouseEvent *event) {
  if (!mouse_.PressIsSettled()) QTableView::mouseReleaseEvent(event);
}

void BoundGrid::mouseDoubleClickEvent(QMouseEvent *event) {
  const QModelIndex cell = mouse_.CellOfDoubleClick(*event);
  const bool left = event->button() == Qt::LeftButton;
  if (left && cell == currentIndex() && choice_.PickDate(cell)) return;
  if (!mouse_.DoubleClick(*event)) QTableView::mouseDoubleClickEvent(event);
  if (left && cell.isValid() && currentIndex() == cell && !CanChange(cell)) ActivateRow();
}

// A press on the copy of a cell that stays in sight while the columns scroll.
void BoundGrid::PressCell(const QModelIndex &cell, const QMouseEvent &press) {
  const QScopedValueRollback<bool> extending(selection_->extending, press.modifiers().testFlag(Qt::ShiftModifier));
  const QModelIndex target = LeaveRowFor(cell);
  if (!target.isValid()) return;
  const QItemSelectionModel::SelectionFlags command = selectionCommand(target, &press);
  const bool extend = command.testFlag(QItemSelectionModel::Current);
  selection_->setCurrentIndex(target, extend ? QItemSelectionModel::NoUpdate : command);
  if (extend) selection_->ExtendMarks();
  setFocus(Qt::MouseFocusReason);
}

void BoundGrid::contextMenuEvent(QContextMenuEvent *event) {
  event->accept();
  if (event->reason() == QContextMenuEvent::Keyboard) return OpenMenuByKey();
  if (mouse_.GoToMenuCell(*event)) Q_EMIT MenuWanted(event->globalPos());
}

void BoundGrid::OpenMenuByKey() {
  scrollTo(currentIndex());
  Q_EMIT MenuWanted(viewport()->mapToGlobal(visualRect(currentIndex()).bottomLeft()));
}

// ---- Layout and painting

// A cell below the column that stays in sight counts as hidden; one in that column is in sight already.
void BoundGrid::scrollTo(const QModelIndex &index, ScrollHint hint) {
  const int across = horizontalScrollBar()->value();
  QTableView::scrollTo(index, hint);
  if (!frozen_) return;
  if (index.column() == frozen_->Column()) return horizontalScrollBar()->setValue(across);
  const int covered = frozen_->CoveredWidth() - columnViewportPosition(index.column());
  if (covered > 0) horizontalScrollBar()->setValue(horizontalScrollBar()->value() - covered);
}

int BoundGrid::StayingColumn() const {
  if (!staying_.isEmpty()) return model_->ColumnByName(staying_);
  const int column = FirstColumn();
  const bool text = column < model_->columnCount() && model_->Columns()[column].type == GridType::Text;
  return text ? column : -1;
}

int BoundGrid::WidthHeldInSight() const { return frozen_ ? frozen_->CoveredWidth() : 0; }

void BoundGrid::FollowScrolling() {
  const int column = StayingColumn();
  if (horizontalScrollBar()->value() > 0 && column >= 0 && (!frozen_ || frozen_->Column() != column)) {
    delete frozen_;
    frozen_ = new FrozenColumn(*this, column);
  }
  if (frozen_) frozen_->Follow();
}

void BoundGrid::scrollContentsBy(int dx, int dy) {
  QTableView::scrollContentsBy(dx, dy);
  if (dy != 0) reading_.Prefetch();
  FollowScrolling();
  leaving_.PlaceSentence();
}

void BoundGrid::resizeEvent(QResizeEvent *event) {
  QTableView::resizeEvent(event);
  reading_.Prefetch();
  if (widths_) widths_->FillSpare();
  FollowScrolling();
  leaving_.PlaceSentence();
}

void BoundGrid::showEvent(QShowEvent *event) {
  QTableView::showEvent(event);
  reading_.Prefetch();
}

void BoundGrid::hideEvent(QHideEvent *event) {
  widths_->SaveNow();
  QTableView::hideEvent(event);
}

void BoundGrid::changeEvent(QEvent *event) {
  QTableView::changeEvent(event);
  if (!widths_ || (event->type() != QEvent::FontChange && event->type() != QEvent::StyleChange)) return;
  ApplyFont();
  widths_->Apply();
}

// The keys behind the first page are read once that page stands on the screen.
void BoundGrid::paintEvent(QPaintEvent *event) {
  QTableView::paintEvent(event);
  reading_.ReadTheRestSoon();
  emptyNote_.Draw();
}

}  // namespace trimlog
