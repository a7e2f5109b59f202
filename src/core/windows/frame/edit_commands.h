#pragma once

class QWidget;

namespace trimlog {

class BoundGrid;

enum class EditCommand { Undo, Cut, Copy, Paste };

/// Runs an Edit command on a control: on the selected text of a text field, or on the active cell of a grid (a view
/// whose name begins with "grd"). Read-only fields and cells are only copied from. Any other control, or none, does
/// nothing.
void RunEditCommand(EditCommand command, QWidget *control);

/// True when the command could do something on this control now.
bool CanRunEditCommand(EditCommand command, QWidget *control);

/// The grid that a control is, or is a cell's editor of; nullptr for none.
BoundGrid *GridOf(QWidget *control);

}  // namespace trimlog
