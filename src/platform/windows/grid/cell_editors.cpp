#include "platform/windows/grid/cell_editors.h"

#include <QComboBox>
#include <QPlainTextEdit>

#include "platform/grid/grid_cells.h"
#include "platform/windows/fields/date_field.h"
#include "platform/windows/fields/memo_text.h"
#include "platform/windows/fields/number_field.h"
#include "platform/windows/fields/text_field.h"
#include "platform/windows/grid/bound_grid.h"
#include "platform/windows/grid/grid_delegate.h"
#include "platform/windows/grid/lookup_field.h"

namespace trimlog {

namespace {

QComboBox *MakeList(BoundGrid &grid, const GridColumn &column, QWidget *parent) {
  auto *list = new QComboBox(parent);
  for (const GridChoice &choice : column.choices) list->addItem(choice.label, choice.value);
  QObject::connect(list, &QComboBox::activated, &grid, [&grid, list] { grid.KeepEditor(list); });
  return list;
}

QLineEdit *MakeField(BoundGrid &grid, const GridColumn &column, QWidget *parent) {
  const QLocale &locale = grid.Model().Locale();
  if (IsNumberType(column.type)) return new NumberField({}, {}, locale, parent);
  if (column.type == GridType::Date) {
    auto *field = new DateField({}, {}, locale, parent);
    QObject::connect(field, &DateField::CalendarWanted, &grid, [&grid] { grid.Choice().Open(); });
    return field;
  }
  if (column.type == GridType::Lookup) {
    auto *field = new LookupField(grid.Model().File(), *column.lookup, locale, parent);
    QObject::connect(field, &LookupField::Chosen, &grid, [&grid, field] { grid.KeepEditor(field, true); });
    return field;
  }
  return new TextField({}, {}, 0, parent);  // a text that is too long is refused, not cut
}

QWidget *MakeByType(BoundGrid &grid, const GridColumn &column, QWidget *parent) {
  if (column.type == GridType::Choice) return MakeList(grid, column, parent);
  if (column.type == GridType::Memo) {
    auto *memo = new QPlainTextEdit(parent);
    memo->setFrameShape(QFrame::NoFrame);
    memo->setTabChangesFocus(true);
    return memo;
  }
  QLineEdit *const field = MakeField(grid, column, parent);
  field->setFrame(false);
  field->setAlignment(AlignmentOf(column));
  return field;
}

}  // namespace

QWidget *MakeCellEditor(BoundGrid &grid, const GridColumn &column, QWidget *parent) {
  QWidget *const editor = MakeByType(grid, column, parent);
  editor->setObjectName(column.dropDown.isEmpty() ? column.name + QStringLiteral("Edit") : column.dropDown);
  editor->setAccessibleName(QString(column.caption).replace(QLatin1Char('\n'), QLatin1Char(' ')));
  editor->setContextMenuPolicy(Qt::NoContextMenu);  // the grid's menu
  return editor;
}

void FillCellEditor(QWidget &editor, const QModelIndex &cell) {
  const QString text = cell.data(Qt::EditRole).toString();
  if (auto *list = qobject_cast<QComboBox *>(&editor)) return list->setCurrentIndex(list->findText(text));
  if (auto *memo = qobject_cast<QPlainTextEdit *>(&editor)) {
    memo->setPlainText(text);
    return memo->selectAll();
  }
  auto *field = qobject_cast<QLineEdit *>(&editor);
  if (!field) return;
  if (auto *lookup = qobject_cast<LookupField *>(field)) lookup->SetShown(cell.data(GridModel::ValueRole));
  field->setText(text);
  const QString sentence = cell.data(GridModel::SentenceRole).toString();
  field->setToolTip(sentence);
  if (sentence.isEmpty()) return;
  field->setStyleSheet(QStringLiteral("border: 2px solid %1").arg(RefusalColor(editor.palette()).name()));
}

void StoreCellEditor(QWidget &editor, QAbstractItemModel &model, const QModelIndex &cell) {
  if (auto *list = qobject_cast<QComboBox *>(&editor)) {
    const bool chosen = list->currentIndex() >= 0 && list->currentText() != cell.data(Qt::EditRole).toString();
    if (chosen) model.setData(cell, list->currentData(), GridModel::ValueRole);
    return;
  }
  if (const auto *memo = qobject_cast<QPlainTextEdit *>(&editor)) {
    const QString shown = cell.data(Qt::EditRole).toString();
    if (memo->document()->isModified()) model.setData(cell, MemoText(*memo, shown), Qt::EditRole);
    return;
  }
  const auto *lookup = qobject_cast<LookupField *>(&editor);
  if (lookup && lookup->ChosenKey()) {
    model.setData(cell, *lookup->ChosenKey(), GridModel::ValueRole);
  } else {
    model.setData(cell, TypedInEditor(editor), Qt::EditRole);
  }
}

QString TypedInEditor(const QWidget &editor) {
  if (const auto *field = qobject_cast<const QLineEdit *>(&editor)) return field->text();
  if (const auto *memo = qobject_cast<const QPlainTextEdit *>(&editor)) return MemoText(*memo);
  return {};
}

bool HasListBelow(const QWidget &editor) { return qobject_cast<const LookupField *>(&editor); }

void RunInEditor(QWidget &editor, const char *command) { QMetaObject::invokeMethod(&editor, command); }

void InsertInEditor(QWidget &editor, const QString &text) {
  if (auto *field = qobject_cast<QLineEdit *>(&editor)) field->insert(text);
  if (auto *memo = qobject_cast<QPlainTextEdit *>(&editor)) memo->insertPlainText(text);
}

}  // namespace trimlog
