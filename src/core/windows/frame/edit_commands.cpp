#include "core/windows/frame/edit_commands.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextEdit>

#include "platform/windows/grid/bound_grid.h"

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

BoundGrid *Grid(QWidget *control) { return qobject_cast<BoundGrid *>(control); }

bool IsReadOnly(const QWidget *field) { return field->property("readOnly").toBool() || !field->isEnabled(); }

bool Writes(EditCommand command) { return command != EditCommand::Copy; }

void RunOnField(EditCommand command, QWidget *field) {
  if (IsReadOnly(field) && Writes(command)) return;
  static constexpr const char *procedures[] = {"undo", "cut", "copy", "paste"};
  QMetaObject::invokeMethod(field, procedures[static_cast<int>(command)]);
}

void RunOnCell(EditCommand command, BoundGrid &grid) {
  switch (command) {
    case EditCommand::Undo:
      return grid.UndoField();
    case EditCommand::Cut:
      return grid.Cut();
    case EditCommand::Copy:
      return grid.Copy();
    case EditCommand::Paste:
      return grid.Paste();
  }
}

}  // namespace

void RunEditCommand(EditCommand command, QWidget *control) {
  if (BoundGrid *grid = Grid(control)) {
    RunOnCell(command, *grid);
  } else if (QWidget *field = TextField(control)) {
    RunOnField(command, field);
  }
}

bool CanRunEditCommand(EditCommand command, QWidget *control) {
  if (const BoundGrid *grid = Grid(control)) {
    return grid->currentIndex().isValid() &&
           (!Writes(command) || grid->currentIndex().flags().testFlag(Qt::ItemIsEditable));
  }
  const QWidget *field = TextField(control);
  return field && (!Writes(command) || !IsReadOnly(field));
}

BoundGrid *GridOf(QWidget *control) {
  for (; control && !control->isWindow(); control = control->parentWidget()) {
    if (BoundGrid *grid = Grid(control)) return grid;
  }
  return nullptr;
}

}  // namespace trimlog
