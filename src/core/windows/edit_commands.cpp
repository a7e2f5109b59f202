#include "core/windows/edit_commands.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextEdit>

namespace trimlog {

namespace {

/// The text field that a control is or is made around.
QWidget *TextField(QWidget *control) {
  if (auto *combo = qobject_cast<QComboBox *>(control)) return combo->lineEdit();
  if (qobject_cast<QAbstractSpinBox *>(control)) return control->findChild<QLineEdit *>();
  if (qobject_cast<QLineEdit *>(control) || qobject_cast<QTextEdit *>(control) ||
      qobject_cast<QPlainTextEdit *>(control)) {
    return control;
  }
  return nullptr;
}

QAbstractItemView *Grid(QWidget *control) {
  auto *view = qobject_cast<QAbstractItemView *>(control);
  return view && view->objectName().startsWith(QStringLiteral("grd")) ? view : nullptr;
}

bool IsReadOnly(const QWidget *field) { return field->property("readOnly").toBool() || !field->isEnabled(); }

bool Writes(EditCommand command) { return command != EditCommand::Copy; }

void RunOnField(EditCommand command, QWidget *field) {
  if (IsReadOnly(field) && Writes(command)) return;
  static constexpr const char *slots[] = {"undo", "cut", "copy", "paste"};
  QMetaObject::invokeMethod(field, slots[static_cast<int>(command)]);
}

void RunOnCell(EditCommand command, QAbstractItemView *grid) {
  const QModelIndex cell = grid->currentIndex();
  if (!cell.isValid()) return;
  const bool editable = cell.flags().testFlag(Qt::ItemIsEditable);
  if (command == EditCommand::Copy || (command == EditCommand::Cut && editable)) {
    QApplication::clipboard()->setText(cell.data(Qt::DisplayRole).toString());
  }
  if (!editable) return;
  if (command == EditCommand::Cut) grid->model()->setData(cell, QString());
  if (command == EditCommand::Paste) grid->model()->setData(cell, QApplication::clipboard()->text());
}

}  // namespace

void RunEditCommand(EditCommand command, QWidget *control) {
  if (QAbstractItemView *grid = Grid(control)) {
    RunOnCell(command, grid);
  } else if (QWidget *field = TextField(control)) {
    RunOnField(command, field);
  }
}

bool CanRunEditCommand(EditCommand command, QWidget *control) {
  if (const QAbstractItemView *grid = Grid(control)) {
    return grid->currentIndex().isValid() && command != EditCommand::Undo &&
           (!Writes(command) || grid->currentIndex().flags().testFlag(Qt::ItemIsEditable));
  }
  const QWidget *field = TextField(control);
  return field && (!Writes(command) || !IsReadOnly(field));
}

}  // namespace trimlog
