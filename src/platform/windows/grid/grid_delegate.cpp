#include "platform/windows/grid/grid_delegate.h"

#include <QApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QPlainTextEdit>
#include <QToolTip>

#include "platform/windows/grid/bound_grid.h"
#include "platform/windows/grid/cell_editors.h"

namespace trimlog {

namespace {

void DrawFrame(QPainter *painter, const QRect &cell, const QColor &color, int width) {
  painter->save();
  painter->setPen(QPen(color, width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
  painter->setBrush(Qt::NoBrush);
  const int inset = width / 2;
  painter->drawRect(cell.adjusted(inset, inset, -inset - 1, -inset - 1));
  painter->restore();
}

// A small corner says: changed and not yet saved.
void DrawChangedCorner(QPainter *painter, const QRect &cell, const QColor &color) {
  const int side = std::max(6, std::min(cell.height(), 24) / 3);
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  painter->setPen(Qt::NoPen);
  painter->setBrush(color);
  painter->drawPolygon(QPolygon({cell.topLeft(), cell.topLeft() + QPoint(side, 0), cell.topLeft() + QPoint(0, side)}));
  painter->restore();
}

bool IsEnter(const QKeyEvent &key) { return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter; }

// In several lines Enter makes a new one; with Ctrl it leaves them.
bool EndsEditing(const QWidget *editor, const QKeyEvent &key) {
  return IsEnter(key) && (!qobject_cast<const QPlainTextEdit *>(editor) || key.modifiers() & Qt::ControlModifier);
}

/// As much of a text as can be seen in a room: all that it is given is laid out, and a note may be a megabyte.
QString PartToShow(const QString &text, const QSize &room, const QFontMetrics &metrics) {
  const int narrowest = std::max(1, metrics.horizontalAdvance(QLatin1Char('i')) / 2);
  int lines = room.height() / std::max(1, metrics.lineSpacing()) + 1;
  const qsizetype most = std::min(text.size(), qsizetype{lines} * (room.width() / narrowest + 1));
  for (qsizetype at = 0; at < most; ++at) {
    const bool ends = text[at] == QChar::LineSeparator || text[at] == QLatin1Char('\n');
    if (ends && --lines == 0) return text.left(at);
  }
  return text.left(most);
}

}  // namespace

QColor RefusalColor(const QPalette &palette) {
  return palette.color(QPalette::Base).lightness() < 128 ? QColor(255, 120, 110) : QColor(190, 20, 20);
}

GridDelegate::GridDelegate(BoundGrid *grid) : QStyledItemDelegate(grid), grid_(grid) {}

QWidget *GridDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &, const QModelIndex &index) const {
  return MakeCellEditor(*grid_, grid_->Model().Columns()[index.column()], parent);
}

void GridDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const { FillCellEditor(*editor, index); }

void GridDelegate::setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const {
  StoreCellEditor(*editor, *model, index);
}

void GridDelegate::updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                                        const QModelIndex &index) const {
  QRect place = option.rect;
  const GridType type = grid_->Model().Columns()[index.column()].type;
  if (type == GridType::Choice) place.setWidth(std::max(place.width(), editor->sizeHint().width()));
  if (type == GridType::Memo) place.setHeight(std::max(place.height(), 3 * option.fontMetrics.lineSpacing()));
  editor->setGeometry(place);
}

void GridDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const {
  QStyleOptionViewItem cell = option;
  initStyleOption(&cell, index);
  cell.text = PartToShow(cell.text, cell.rect.size(), cell.fontMetrics);
  const bool current = index == grid_->currentIndex();
  const bool refused = !index.data(GridModel::SentenceRole).toString().isEmpty();
  const bool plain = (current && !grid_->RowsMarked()) || refused;  // stands out of a marked row
  const bool marked = cell.state.testFlag(QStyle::State_Selected) && !plain;
  cell.state &= ~QStyle::State_HasFocus;
  if (plain) {
    cell.state &= ~QStyle::State_Selected;
    painter->fillRect(option.rect, option.palette.color(QPalette::Base));
  }
  grid_->style()->drawControl(QStyle::CE_ItemViewItem, &cell, painter, grid_);
  if (index.data(GridModel::CellChangedRole).toBool()) {
    DrawChangedCorner(painter, option.rect,
                      option.palette.color(marked ? QPalette::HighlightedText : QPalette::Highlight));
  }
  if (current) DrawFrame(painter, option.rect, option.palette.color(QPalette::Highlight), grid_->hasFocus() ? 2 : 1);
  if (refused) DrawFrame(painter, option.rect, RefusalColor(option.palette), current ? 3 : 2);
}

// Besides the sentences of refused cells, texts that the column cuts off are shown in full.
bool GridDelegate::helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                             const QModelIndex &index) {
  QString text = index.data(GridModel::SentenceRole).toString();
  if (text.isEmpty()) {
    const QString whole = index.data().toString();
    text = PartToShow(whole, view->size(), option.fontMetrics);
    if (text.size() < whole.size()) text += QChar(0x2026);
    const QSize needed = option.fontMetrics.size(0, text);
    const QRect room = view->visualRect(index);
    if (needed.width() <= room.width() - 6 && needed.height() <= room.height()) text.clear();
  }
  QToolTip::showText(event->globalPos(), text, view);
  return true;
}

bool GridDelegate::eventFilter(QObject *watched, QEvent *event) {
  auto *const editor = qobject_cast<QWidget *>(watched);
  if (!editor || event->type() != QEvent::KeyPress) return QStyledItemDelegate::eventFilter(watched, event);
  const auto *const key = static_cast<QKeyEvent *>(event);
  if (key->matches(QKeySequence::Paste) && !TypedInEditor(*editor).isNull()) {
    grid_->Paste();
    return true;
  }
  const bool enter = EndsEditing(editor, *key);
  const bool arrow = key->key() == Qt::Key_Up || key->key() == Qt::Key_Down;
  const bool leavesByArrow =
      arrow && !(key->modifiers() & ~Qt::KeypadModifier) && qobject_cast<QLineEdit *>(editor) && !HasListBelow(*editor);
  if (IsEnter(*key) && !enter) return false;  // a new line, not the end
  if (!enter && !leavesByArrow) return QStyledItemDelegate::eventFilter(watched, event);
  Q_EMIT commitData(editor);
  Q_EMIT closeEditor(editor, enter ? QAbstractItemDelegate::EditNextItem : QAbstractItemDelegate::NoHint);
  if (leavesByArrow) {
    QCoreApplication::postEvent(grid_, new QKeyEvent(QEvent::KeyPress, key->key(), key->modifiers()));
  }
  return true;
}

}  // namespace trimlog
