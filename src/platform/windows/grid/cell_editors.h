#pragma once

#include <QString>

class QAbstractItemModel;
class QModelIndex;
class QWidget;

namespace trimlog {

class BoundGrid;
struct GridColumn;

/// The control in which a cell of the column is changed: a field for text, number or date, several lines for a memo, a
/// drop-down list, or a field with the grid of a lookup below it.
QWidget *MakeCellEditor(BoundGrid &grid, const GridColumn &column, QWidget *parent);
void FillCellEditor(QWidget &editor, const QModelIndex &cell);
void StoreCellEditor(QWidget &editor, QAbstractItemModel &model, const QModelIndex &cell);

/// What is typed in it; a null string for a drop-down list.
QString TypedInEditor(const QWidget &editor);
bool HasListBelow(const QWidget &editor);                ///< which takes the arrow keys
void RunInEditor(QWidget &editor, const char *command);  ///< "copy" or "cut"
void InsertInEditor(QWidget &editor, const QString &text);

}  // namespace trimlog
