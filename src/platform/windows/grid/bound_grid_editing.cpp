// The changing half of BoundGrid: keys, leaving a row, deleting, copy and paste.
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QDateTime>
#include <QLineEdit>
#include <QMetaMethod>
#include <QToolTip>
#include <algorithm>

#include "platform/grid/grid_export.h"
#include "platform/grid/pasted_text.h"
#include "platform/windows/grid/bound_grid.h"

namespace trimlog {

namespace {

bool CanChange(const QModelIndex &cell) {
  return cell.isValid() && (cell.flags() & (Qt::ItemIsEditable | Qt::ItemIsUserCheckable));
}

}  // namespace

QWidget *BoundGrid::OpenEditor() const {
  return state() == QAbstractItemView::EditingState ? indexWidget(currentIndex()) : nullptr;
}

bool BoundGrid::IsTyping() const {
  const auto *field = qobject_cast<QLineEdit *>(OpenEditor());
  return field && field->text() != currentIndex().data(Qt::EditRole).toString();
}

void BoundGrid::CloseOpenEditor(bool keep) {
  QWidget *const editor = OpenEditor();
  if (!editor) return;
  if (keep) commitData(editor);
  QTableView::closeEditor(editor, keep ? QAbstractItemDelegate::NoHint : QAbstractItemDelegate::RevertModelCache);
}

// ---- Leaving a row

bool BoundGrid::CommitRow() {
  if (committing_) return false;
  CloseOpenEditor(true);
  if (!model_->IsChanging()) return true;
  committing_ = true;
  bool saved = false;
  const bool ran = RunGuarded(GridAction::Save, [&] { saved = model_->SaveRow(); });
  committing_ = false;
  if (ran && saved) return true;
  ShowRefusal();
  return false;
}

// Brings the refused cell before the person's eyes, with its sentence.
void BoundGrid::ShowRefusal() {
  const int row = model_->ChangingRow();
  if (row < 0) return;
  QModelIndex cell = model_->index(row, std::max(0, currentIndex().column()));
  for (int column = 0; column < model_->columnCount(); ++column) {
    const QModelIndex candidate = model_->index(row, column);
    if (!candidate.data(GridModel::SentenceRole).toString().isEmpty()) {
      cell = candidate;
      break;
    }
  }
  if (cell != currentIndex()) {
    selectionModel()->setCurrentIndex(cell, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  }
  scrollTo(cell);
  const QString sentence = cell.data(GridModel::SentenceRole).toString();
  if (isVisible() && !sentence.isEmpty()) {
    QToolTip::showText(viewport()->mapToGlobal(visualRect(cell).bottomLeft()), sentence, this);
  }
  Q_EMIT RefusedRow(sentence);
}

// The index to go to after the row being changed was saved (saving may have moved the rows); an invalid one when it may
// not be left.
QModelIndex BoundGrid::LeaveRowFor(const QModelIndex &target) {
  if (target.isValid() && target.row() != currentIndex().row()) CloseOpenEditor(true);
  if (!target.isValid() || !model_->IsChanging() || model_->ChangingRow() == target.row()) return target;
  const std::optional<qint64> key = model_->KeyOfRow(target.row());
  if (!CommitRow()) return {};
  const int row = key ? model_->RowOfKey(*key) : model_->rowCount() - 1;
  return row < 0 ? currentIndex() : model_->index(row, target.column());
}

void BoundGrid::closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint) {
  QTableView::closeEditor(editor, hint);
  const QWidget *const focus = QApplication::focusWidget();
  if (focus && focus != this && !isAncestorOf(focus) && focus->window() == window()) CommitRow();
}

void BoundGrid::focusOutEvent(QFocusEvent *event) {
  QTableView::focusOutEvent(event);
  const QWidget *const focus = QApplication::focusWidget();
  if (focus && !isAncestorOf(focus) && focus->window() == window()) CommitRow();
}

// ---- Keys and mouse

QModelIndex BoundGrid::NextEditable(bool forward) const {
  const int columns = model_->columnCount();
  const int step = forward ? 1 : -1;
  int row = currentIndex().row();
  int column = currentIndex().column();
  // Beyond the neighbouring rows nothing is looked for: a long list of rows that cannot be changed is not walked.
  for (int rowsSeen = 0; rowsSeen < 3 && row >= 0;) {
    column += step;
    if (column < 0 || column >= columns) {
      row += step;
      column = forward ? 0 : columns - 1;
      ++rowsSeen;
      if (row < 0 || row >= model_->rowCount()) return {};
    }
    const QModelIndex cell = model_->index(row, column);
    if (!isColumnHidden(column) && CanChange(cell)) return cell;
  }
  return {};
}

QModelIndex BoundGrid::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
  QModelIndex target;
  if (action == MoveNext || action == MovePrevious) {
    target = NextEditable(action == MoveNext);
    if (!target.isValid()) target = currentIndex();
  } else {
    target = QTableView::moveCursor(action, modifiers);
    if (action == MoveHome && target.isValid()) target = target.siblingAtColumn(FirstColumn());
    if (action == MoveEnd && target.isValid()) target = target.siblingAtColumn(LastColumn());
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
  return QTableView::selectionCommand(index, event);
}

bool BoundGrid::HandleEditingKey(QKeyEvent *event) {
  const QModelIndex cell = currentIndex();
  switch (event->key()) {
    case Qt::Key_Escape:
      if (!model_->IsChanging()) return false;
      if (model_->IsFieldChanged(cell)) {
        UndoField();
      } else {
        UndoRow();
      }
      return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Tab:
    case Qt::Key_Backtab: {
      const bool tab = event->key() == Qt::Key_Tab || event->key() == Qt::Key_Backtab;
      if (tab && event->modifiers().testFlag(Qt::ControlModifier)) return false;  // turns the pages of a window
      if (!tab && !CanChange(cell)) return ActivateRow();
      const QModelIndex next = LeaveRowFor(NextEditable(event->key() != Qt::Key_Backtab));
      if (!next.isValid()) return !tab && CommitRow();
      selectionModel()->setCurrentIndex(next, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
      return true;
    }
    case Qt::Key_Delete:
      if ((event->modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier) return false;
      return (!RowsMarked() && ClearCell()) || (canDelete && (DeleteSelected(), true));
    case Qt::Key_Backspace:
      return event->modifiers() == Qt::NoModifier && ClearCell();
    case Qt::Key_F4:
      return event->modifiers() == Qt::NoModifier && OpenCellList();
    default:
      return false;
  }
}

bool BoundGrid::ActivateRow() {
  const std::optional<qint64> key = CurrentKey();
  if (!key || !isSignalConnected(QMetaMethod::fromSignal(&BoundGrid::RowActivated))) return false;
  Q_EMIT RowActivated(*key);
  return true;
}

// Marking with Shift reaches from the row that was last gone to, by whatever road, to the current one.
void BoundGrid::setSelection(const QRect &rect, QItemSelectionModel::SelectionFlags command) {
  const int anchor = extending_ && anchorKey_ ? model_->RowOfKey(*anchorKey_) : -1;
  if (anchor < 0 || !command.testFlag(QItemSelectionModel::Current)) return QTableView::setSelection(rect, command);
  const int row = currentIndex().row();
  const QItemSelection rows(model_->index(std::min(anchor, row), 0),
                            model_->index(std::max(anchor, row), model_->columnCount() - 1));
  selectionModel()->select(rows, QItemSelectionModel::ClearAndSelect);
}

void BoundGrid::keyPressEvent(QKeyEvent *event) {
  const QScopedValueRollback<bool> extending(extending_, event->modifiers().testFlag(Qt::ShiftModifier));
  const bool ours = state() != QAbstractItemView::EditingState;
  static constexpr int handled[] = {Qt::Key_Escape,  Qt::Key_Return, Qt::Key_Enter, Qt::Key_Tab,
                                    Qt::Key_Backtab, Qt::Key_Delete, Qt::Key_F4,    Qt::Key_Backspace};
  const Qt::KeyboardModifiers held = event->modifiers();
  if (event->key() == Qt::Key_F10 && held == Qt::ShiftModifier) {
    OpenMenuByKey();
  } else if (ours && event->key() == Qt::Key_Down && held.testFlag(Qt::AltModifier)) {
    OpenCellList();
  } else if (ours && event->key() == Qt::Key_Space && held == Qt::ShiftModifier) {
    ChooseRow(currentIndex().row());
  } else if (ours && std::find(std::begin(handled), std::end(handled), event->key()) != std::end(handled)) {
    event->setAccepted(HandleEditingKey(event));
  } else if (ours && IsTypingAhead() && !event->text().isEmpty() && event->text().front().isPrint()) {
    keyboardSearch(event->text());  // a search that came to a row that can be changed goes on
  } else if (ours && event->matches(QKeySequence::Copy)) {
    MarkedRowNumbers().size() > 1 ? CopyRowsExternal() : Copy();
  } else if (ours && event->matches(QKeySequence::Paste)) {
    Paste();
  } else if (ours && event->matches(QKeySequence::Cut)) {
    Cut();
  } else {
    QTableView::keyPressEvent(event);
  }
}

// Leaving a row saves it, and that may bring other rows under the mouse: the row that the person pointed at is told by
// its key before anything else happens.
void BoundGrid::mousePressEvent(QMouseEvent *event) {
  const QModelIndex pointed = indexAt(event->position().toPoint());
  pressedKey_ = model_->KeyOfRow(pointed.row());
  pressSettled_ = false;
  if (pointed.isValid()) {
    const QModelIndex cell = LeaveRowFor(pointed);
    pressSettled_ = cell.row() != indexAt(event->position().toPoint()).row();
    if (pressSettled_) {
      if (cell.isValid()) selectionModel()->setCurrentIndex(cell, selectionCommand(cell, event));
      event->accept();
      return;
    }
  }
  const QScopedValueRollback<bool> extending(extending_, event->modifiers().testFlag(Qt::ShiftModifier));
  QTableView::mousePressEvent(event);
  rowChosen_ = (event->modifiers() & (Qt::ShiftModifier | Qt::ControlModifier)) != Qt::NoModifier;
}

void BoundGrid::mouseMoveEvent(QMouseEvent *event) {
  if (!pressSettled_) QTableView::mouseMoveEvent(event);
}

void BoundGrid::mouseReleaseEvent(QMouseEvent *event) {
  if (!pressSettled_) QTableView::mouseReleaseEvent(event);
}

// The cell of the pressed row in the column at a place; an invalid index when that row is not shown any more.
QModelIndex BoundGrid::PressedCell(const QPoint &place) const {
  const int row = pressedKey_ ? model_->RowOfKey(*pressedKey_) : -1;
  return row < 0 ? QModelIndex() : model_->index(row, std::max(0, columnAt(place.x())));
}

void BoundGrid::mouseDoubleClickEvent(QMouseEvent *event) {
  const QPoint place = event->position().toPoint();
  const QModelIndex under = indexAt(place);
  const bool moved = pressSettled_ || model_->KeyOfRow(under.row()) != pressedKey_;
  const QModelIndex cell = moved ? PressedCell(place) : under;
  if (!moved) {
    QTableView::mouseDoubleClickEvent(event);
  } else if (cell.isValid()) {
    selectionModel()->setCurrentIndex(cell, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    if (currentIndex() == cell && cell.flags().testFlag(Qt::ItemIsEditable)) edit(cell);
  }
  const bool there = cell.isValid() && currentIndex() == cell;
  if (event->button() == Qt::LeftButton && there && !CanChange(cell)) ActivateRow();
}

void BoundGrid::contextMenuEvent(QContextMenuEvent *event) {
  event->accept();
  if (event->reason() == QContextMenuEvent::Keyboard) return OpenMenuByKey();
  // The pressed row is current already; the column under the mouse is the one that the menu sorts by.
  const QPoint place = viewport()->mapFromGlobal(event->globalPos());
  const QModelIndex cell = pressSettled_ ? PressedCell(place) : indexAt(place);
  if (cell.isValid() && cell != currentIndex()) {
    selectionModel()->setCurrentIndex(cell, QItemSelectionModel::NoUpdate);
    if (currentIndex() != cell) return;  // the refused row stays current: no command may act on it by mistake
  }
  Q_EMIT MenuWanted(event->globalPos());
}

void BoundGrid::OpenMenuByKey() {
  scrollTo(currentIndex());
  Q_EMIT MenuWanted(viewport()->mapToGlobal(visualRect(currentIndex()).bottomLeft()));
}

void BoundGrid::ChooseRow(int row) {
  const QModelIndex cell = LeaveRowFor(model_->index(row, FirstColumn()));
  if (!cell.isValid()) return;
  selectRow(cell.row());
  rowChosen_ = true;
  viewport()->update();
}

void BoundGrid::selectAll() {
  QTableView::selectAll();
  rowChosen_ = true;
}

// The drop-down list of a cell that has one.
bool BoundGrid::OpenCellList() {
  const QModelIndex cell = currentIndex();
  if (!cell.flags().testFlag(Qt::ItemIsEditable)) return false;
  if (model_->Columns()[cell.column()].type != GridType::Choice) return false;
  edit(cell);
  if (auto *list = qobject_cast<QComboBox *>(OpenEditor())) list->showPopup();
  return true;
}

bool BoundGrid::ClearCell() {
  const QModelIndex cell = currentIndex();
  if (!cell.flags().testFlag(Qt::ItemIsEditable)) return false;
  if (model_->Columns()[cell.column()].type != GridType::Choice) model_->setData(cell, QString());
  return true;
}

bool BoundGrid::IsTypingAhead() const {
  return !typedAhead_.isEmpty() &&
         QDateTime::currentMSecsSinceEpoch() - typedAheadAt_ <= QApplication::keyboardInputInterval();
}

void BoundGrid::keyboardSearch(const QString &search) {
  if (!IsTypingAhead()) typedAhead_.clear();
  typedAheadAt_ = QDateTime::currentMSecsSinceEpoch();
  typedAhead_ += search;
  const QList<GridOrder> &order = model_->Source().order;
  if (order.isEmpty() || !model_->IsOpen()) return;
  RunGuarded(GridAction::Load, [&] {
    const int row = model_->FindPrefix(order.first().field, typedAhead_);
    if (const std::optional<qint64> key = model_->KeyOfRow(row)) GoToKey(*key);
  });
}

// ---- Whole rows

bool BoundGrid::DeleteSelected() {
  if (!canDelete || !model_->IsOpen()) return false;
  CloseOpenEditor(true);
  std::vector<qint64> keys = MarkedKeys();
  if (keys.empty() && CurrentKey()) keys.push_back(*CurrentKey());
  if (keys.empty()) return false;
  const std::optional<qint64> changing = model_->KeyOfRow(model_->ChangingRow());
  const bool changingGoes = changing && std::find(keys.begin(), keys.end(), *changing) != keys.end();
  if (!changingGoes && !CommitRow()) return false;
  const GridHooks &hooks = model_->hooks;
  if (hooks.beforeDelete && !hooks.beforeDelete(keys)) return false;
  const bool deleted = RunGuarded(GridAction::Delete, [&] { DeleteKeepingPlace(keys); });
  if (deleted && hooks.afterDelete) hooks.afterDelete(keys);
  return deleted;
}

// The row that stood behind the deleted ones becomes current; at the end of the list the one before them.
void BoundGrid::DeleteKeepingPlace(const std::vector<qint64> &keys) {
  const std::vector<int> gone = model_->RowsOfKeys(keys);
  int next = gone.empty() ? 0 : gone.front();
  const int column = std::max(0, currentIndex().column());
  const std::optional<qint64> top = model_->KeyOfRow(std::max(0, rowAt(0)));
  model_->DeleteRows(keys);
  PrefetchVisible();
  if (top && model_->RowOfKey(*top) > 0) scrollTo(model_->index(model_->RowOfKey(*top), column), PositionAtTop);
  next = std::min(next, model_->RecordCount() - 1);
  if (next >= 0) {
    selectionModel()->setCurrentIndex(model_->index(next, column),
                                      QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  }
  TellCurrentRow();
}

void BoundGrid::UndoField() {
  CloseOpenEditor(false);
  model_->UndoField(currentIndex());
}

void BoundGrid::UndoRow() {
  CloseOpenEditor(false);
  model_->UndoRow();
}

// ---- Copy and paste

void BoundGrid::Copy() {
  if (auto *field = qobject_cast<QLineEdit *>(OpenEditor())) {
    field->copy();
  } else if (currentIndex().isValid()) {
    QApplication::clipboard()->setText(currentIndex().data().toString());
  }
}

void BoundGrid::Cut() {
  if (auto *field = qobject_cast<QLineEdit *>(OpenEditor())) {
    field->cut();
    return;
  }
  Copy();
  ClearCell();
}

void BoundGrid::Paste() {
  if (auto *field = qobject_cast<QLineEdit *>(OpenEditor())) {
    field->insert(PastedCell(QApplication::clipboard()->text()));
  } else if (currentIndex().flags().testFlag(Qt::ItemIsEditable)) {
    model_->setData(currentIndex(), PastedCell(QApplication::clipboard()->text()));
  }
}

std::vector<qint64> BoundGrid::RowsToCopy() const {
  std::vector<qint64> keys = MarkedKeys();
  if (keys.empty() && CurrentKey()) keys.push_back(*CurrentKey());
  return keys;
}

bool BoundGrid::CopyRows(GridClipboard &clipboard) {
  if (!CommitRow()) return false;
  return RunGuarded(GridAction::Load, [&] {
    clipboard.rows = model_->WholeRows(RowsToCopy());
    clipboard.kind = recordSource;
  });
}

void BoundGrid::CopyRowsExternal() {
  QApplication::clipboard()->setText(RowsAsText(*model_, model_->RowsOfKeys(RowsToCopy())));
}

bool BoundGrid::PasteRows(const GridClipboard &clipboard) {
  const GridHooks &hooks = model_->hooks;
  if (!hooks.pasteRows || clipboard.rows.isEmpty() || clipboard.kind != recordSource || !CommitRow()) return false;
  return RunGuarded(GridAction::Paste, [&] {
    const std::vector<qint64> pasted = hooks.pasteRows(clipboard);
    KeepingPlace([this] { model_->Refresh(); });
    if (!pasted.empty() && GoToKey(pasted.back())) MarkRows(pasted);
    setFocus();
  });
}

}  // namespace trimlog
