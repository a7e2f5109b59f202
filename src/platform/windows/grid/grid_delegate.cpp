#include "platform/windows/grid/grid_delegate.h"

#include <QApplication>
#include <QComboBox>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QToolTip>

#include "platform/grid/grid_cells.h"
#include "platform/windows/fields/date_field.h"
#include "platform/windows/fields/number_field.h"
#include "platform/windows/fields/text_field.h"
#include "platform/windows/grid/bound_grid.h"

namespace trimlog {

namespace {

QComboBox *MakeList(const GridColumn &column, QWidget *parent) {
  auto *list = new QComboBox(parent);
  for (const GridChoice &choice : column.choices) list->addItem(choice.label, choice.value);
  return list;
}

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
  const int side = std::max(6, cell.height() / 3);
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  painter->setPen(Qt::NoPen);
  painter->setBrush(color);
  painter->drawPolygon(QPolygon({cell.topLeft(), cell.topLeft() + QPoint(side, 0), cell.topLeft() + QPoint(0, side)}));
  painter->restore();
}

// A name may look like markup; it is shown as it is written.
QString PlainToolTip(const QString &text) { return QStringLiteral("<div>%1</div>").arg(text.toHtmlEscaped()); }

}  // namespace

QColor RefusalColor(const QPalette &palette) {
  return palette.color(QPalette::Base).lightness() < 128 ? QColor(255, 120, 110) : QColor(190, 20, 20);
}

GridDelegate::GridDelegate(BoundGrid *grid) : QStyledItemDelegate(grid), grid_(grid) {}

QWidget *GridDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &, const QModelIndex &index) const {
  const GridColumn &column = grid_->Model().Columns()[index.column()];
  const QString name = column.name + QStringLiteral("Edit");
  const QString label = QString(column.caption).replace(QLatin1Char('\n'), QLatin1Char(' '));
  const QLocale &locale = grid_->Model().Locale();
  if (column.type == GridType::Choice) {
    QComboBox *const list = MakeList(column, parent);
    list->setObjectName(column.dropDown.isEmpty() ? name : column.dropDown);
    list->setAccessibleName(label);
    list->setContextMenuPolicy(Qt::NoContextMenu);
    auto *self = const_cast<GridDelegate *>(this);
    connect(list, &QComboBox::activated, self, [self, list] { Q_EMIT self->commitData(list); });
    return list;
  }
  QLineEdit *field = nullptr;
  if (IsNumberType(column.type)) {
    field = new NumberField(name, label, locale, parent);
  } else if (column.type == GridType::Date) {
    field = new DateField(name, label, locale, parent);
  } else {
    field = new TextField(name, label, 0, parent);  // a text that is too long is refused, not cut
  }
  field->setContextMenuPolicy(Qt::NoContextMenu);  // the grid's menu
  field->setFrame(false);
  field->setAlignment(AlignmentOf(column));
  return field;
}

void GridDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const {
  if (auto *list = qobject_cast<QComboBox *>(editor)) {
    list->setCurrentIndex(list->findText(index.data(Qt::EditRole).toString()));
  } else if (auto *field = qobject_cast<QLineEdit *>(editor)) {
    field->setText(index.data(Qt::EditRole).toString());
    const QString sentence = index.data(GridModel::SentenceRole).toString();
    field->setToolTip(sentence);
    if (!sentence.isEmpty()) {
      field->setStyleSheet(QStringLiteral("border: 2px solid %1").arg(RefusalColor(grid_->palette()).name()));
    }
  }
}

void GridDelegate::setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const {
  if (auto *list = qobject_cast<QComboBox *>(editor)) {
    const bool chosen = list->currentIndex() >= 0 && list->currentText() != index.data(Qt::EditRole).toString();
    if (chosen) model->setData(index, list->currentData(), GridModel::ValueRole);
  } else if (auto *field = qobject_cast<QLineEdit *>(editor)) {
    model->setData(index, field->text(), Qt::EditRole);
  }
}

void GridDelegate::updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                                        const QModelIndex &) const {
  QRect place = option.rect;
  if (qobject_cast<QComboBox *>(editor)) place.setWidth(std::max(place.width(), editor->sizeHint().width()));
  editor->setGeometry(place);
}

void GridDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const {
  QStyleOptionViewItem cell = option;
  initStyleOption(&cell, index);
  const bool current = index == grid_->currentIndex();
  const bool refused = !index.data(GridModel::SentenceRole).toString().isEmpty();
  const bool plain = (current && !grid_->RowsMarked()) ||
                     refused;  // stands out of a marked row, whose colour the view has already laid down
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
  if (!index.data(GridModel::SentenceRole).toString().isEmpty()) {
    return QStyledItemDelegate::helpEvent(event, view, option, index);
  }
  const QString text = index.data().toString();
  const bool cut = option.fontMetrics.horizontalAdvance(text) > view->visualRect(index).width() - 6;
  QToolTip::showText(event->globalPos(), cut ? PlainToolTip(text) : QString(), view);
  return true;
}

bool GridDelegate::eventFilter(QObject *watched, QEvent *event) {
  auto *const editor = qobject_cast<QWidget *>(watched);
  if (!editor || event->type() != QEvent::KeyPress) return QStyledItemDelegate::eventFilter(watched, event);
  const auto *const key = static_cast<QKeyEvent *>(event);
  const bool enter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
  const bool leavesByArrow = (key->key() == Qt::Key_Up || key->key() == Qt::Key_Down) &&
                             !(key->modifiers() & ~Qt::KeypadModifier) && qobject_cast<QLineEdit *>(editor);
  if (key->matches(QKeySequence::Paste) && qobject_cast<QLineEdit *>(editor)) {
    grid_->Paste();
    return true;
  }
  if (!enter && !leavesByArrow) return QStyledItemDelegate::eventFilter(watched, event);
  Q_EMIT commitData(editor);
  Q_EMIT closeEditor(editor, enter ? QAbstractItemDelegate::EditNextItem : QAbstractItemDelegate::NoHint);
  if (leavesByArrow) {
    QCoreApplication::postEvent(grid_, new QKeyEvent(QEvent::KeyPress, key->key(), key->modifiers()));
  }
  return true;
}

}  // namespace trimlog
