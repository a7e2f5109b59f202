#pragma once

#include <QTableView>

#include "platform/grid/grid_model.h"
#include "platform/windows/grid/cell_choice.h"
#include "platform/windows/grid/empty_note.h"
#include "platform/windows/grid/grid_commands.h"
#include "platform/windows/grid/grid_keyboard.h"
#include "platform/windows/grid/grid_mouse.h"
#include "platform/windows/grid/grid_reading.h"
#include "platform/windows/grid/grid_selection.h"
#include "platform/windows/grid/grid_sorting.h"
#include "platform/windows/grid/grid_widths.h"
#include "platform/windows/grid/row_leaving.h"

namespace trimlog {

class FrozenColumn;

/// The data grid of every window: shows the rows of a GridSource, changes them in place, marks, sorts, copies and
/// deletes whole rows.
///
/// Leaving a row saves it; a refused row cannot be left: the cell stays framed, with its sentence on a line below the
/// row, until it is corrected or Esc restores it (first the field, then the row). Tab and Enter go to the next cell
/// that can be changed. Letters typed where nothing can be changed go to the next row of the sorted column that begins
/// with them. The first column with a text stays in sight when the others scroll.
///
///   auto *grid = new BoundGrid("grdPeople", tr("Profiles"), session.locale, this);
///   grid->SetColumns({...});
///   grid->Model().hooks.beforeDelete = ...;
///   grid->Open(session.Data(), PeopleSource());
class BoundGrid : public QTableView {
  Q_OBJECT
 public:
  /// `label` is what a screen reader says.
  BoundGrid(const QString &objectName, const QString &label, const QLocale &locale, QWidget *parent = nullptr);
  ~BoundGrid() override;

  GridModel &Model() { return *model_; }
  const GridModel &Model() const { return *model_; }
  GridHooks &Hooks() { return model_->hooks; }
  GridSelection &Selection() { return *selection_; }
  GridReading &Reading() { return reading_; }
  GridSorting &Sorting() { return sorting_; }
  CellChoice &Choice() { return choice_; }

  QString recordSource;   ///< names the kind of rows for copy and paste, e.g. "datMealsList"
  bool canDelete = true;  ///< Del and "Delete Row(s)"
  bool canSort = true;    ///< clicks on the captions, and the two Sort commands

  // Columns.
  void SetColumns(GridColumns columns);
  void RebindColumn(const QString &name, const QString &field, const QString &caption, const QString &pattern = {});
  void ShowColumn(const QString &name, bool visible);
  void GiveRoom(const QString &from, const QString &to) { widths_->GiveRoom(from, to); }
  void SetSpareColumn(const QString &name) { widths_->SetSpare(name); }
  /// This column stays in sight when the others scroll; otherwise the first one does, where it holds texts.
  void SetStayingColumn(const QString &name) { staying_ = name; }
  void KeepWidths(SettingsStore &store, const QString &key) { widths_->Keep(store, key); }
  void SetRowLines(int lines);  ///< the rows are so many lines of text high
  void SetDatePicker(CellChoice::DatePicker picker) { choice_.SetDatePicker(std::move(picker)); }
  void SetPlaceholderText(const QString &text) { emptyNote_.SetText(text); }  ///< what an empty list says to do
  /// The first that shows something: where a person would begin.
  int FirstColumn() const { return FirstShown(model_->Columns()); }

  /// Shows a source. Saves the row being changed first; false when that was refused (nothing happens then) or reading
  /// failed.
  bool Open(Database &database, const GridSource &source) {
    return reading_.Show([&] { model_->Open(database, source); });
  }
  /// `whole` reads all keys in one pass: for a search, whose rows cost as much to count as to find.
  bool SetSource(const GridSource &source, bool whole = false) {
    return reading_.Show([&] { model_->SetSource(source, whole); });
  }
  /// Reads everything afresh; current cell, marked rows and scroll place are kept by key. While a row is being left or
  /// a mouse button is down the rows stay in their order.
  bool Refresh() { return reading_.Refresh(); }
  /// Reads afresh what was changed, added or deleted elsewhere; no keys mean any row. The row being typed stays as
  /// typed.
  bool RefreshRows(const std::vector<qint64> &keys) { return reading_.RefreshRows(keys); }
  /// Sorts by a column, then the key. False when nothing was sorted.
  bool SortBy(const QString &columnName, bool descending) { return sorting_.By(columnName, descending); }
  void FollowScrolling();        ///< the column that stays in sight comes or goes
  int StayingColumn() const;     ///< -1 when none does
  int WidthHeldInSight() const;  ///< of that column while it covers others; 0 otherwise

  // The current row and the marked ones.
  std::optional<qint64> CurrentKey() const { return selection_->CurrentKey(); }
  QString CurrentColumn() const;  ///< its name; "" without a current cell
  Value CurrentField(const QString &field) const;
  /// Makes a row current and marks it alone; `atTop` scrolls it to the top of the grid. False when it is not shown.
  bool GoToKey(qint64 key, bool atTop = false);
  std::vector<qint64> MarkedKeys() const { return selection_->MarkedKeys(); }  ///< in the order shown
  void MarkRows(const std::vector<qint64> &keys);
  void ClearMarks() { selection_->clearSelection(); }
  bool RowsMarked() const { return selection_->RowsMarked(); }
  void ChooseCurrentRow();  ///< marks it as a row
  void selectAll() override;
  void TellCurrentRow();

  // Changing.
  /// Saves what is being typed, as leaving the row would. False when it was refused or failed: the person must see it.
  bool CommitRow() { return leaving_.Commit(); }
  bool IsLeavingRow() const { return leaving_.IsUnderWay(); }
  QModelIndex LeaveRowFor(const QModelIndex &target) { return leaving_.LeaveFor(target); }
  bool IsTyping() const;  ///< a cell's editor is open and holds something else than the cell
  QWidget *OpenEditor() const;
  void CloseOpenEditor(bool keep);
  /// Takes over what an editor holds; `andClose` ends the editing.
  void KeepEditor(QWidget *editor, bool andClose = false);
  void EditCell(const QModelIndex &cell) { edit(cell, QAbstractItemView::AllEditTriggers, nullptr); }
  bool ActivateRow();
  void PressCell(const QModelIndex &cell, const QMouseEvent &press);
  void OpenMenuAt(const QPoint &place) { Q_EMIT MenuWanted(place); }
  void OpenMenuByKey();

  // The commands of the menus.
  bool DeleteSelected() { return commands_.DeleteSelected(); }
  void UndoField() { commands_.UndoField(); }
  void UndoRow() { commands_.UndoRow(); }
  bool ClearCell() { return commands_.ClearCell(); }
  void Cut() { commands_.Cut(); }
  void Copy() { commands_.Copy(); }
  void Paste() { commands_.Paste(); }
  bool CopyRows(GridClipboard &clipboard) { return commands_.CopyRows(clipboard); }
  void CopyRowsExternal() { commands_.CopyRowsExternal(); }
  bool PasteRows(const GridClipboard &clipboard) { return commands_.PasteRows(clipboard); }

  void scrollTo(const QModelIndex &index, ScrollHint hint = EnsureVisible) override;

 Q_SIGNALS:
  void CurrentRowChanged();                  ///< another row, or none
  void RowActivated(qint64 key);             ///< double click on, or Enter in, a row that cannot be changed
  void MenuWanted(const QPoint &globalPos);  ///< right click or the menu key; current cell is the one under it
  void Sorted();                             ///< the rows stand in another order now: a caption, the menu or SortBy

 protected:
  bool edit(const QModelIndex &index, EditTrigger trigger, QEvent *event) override;
  void keyPressEvent(QKeyEvent *event) override;
  void mousePressEvent(QMouseEvent *event) override;
  void mouseMoveEvent(QMouseEvent *event) override;
  void mouseReleaseEvent(QMouseEvent *event) override;
  void mouseDoubleClickEvent(QMouseEvent *event) override;
  void contextMenuEvent(QContextMenuEvent *event) override;
  void focusInEvent(QFocusEvent *event) override;
  void focusOutEvent(QFocusEvent *event) override;
  void resizeEvent(QResizeEvent *event) override;
  void showEvent(QShowEvent *event) override;
  void hideEvent(QHideEvent *event) override;
  void changeEvent(QEvent *event) override;
  void paintEvent(QPaintEvent *event) override;
  void scrollContentsBy(int dx, int dy) override;
  void closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint) override;
  QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex &index, const QEvent *event) const override;
  void setSelection(const QRect &rect, QItemSelectionModel::SelectionFlags command) override;
  void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
  void keyboardSearch(const QString &search) override { keyboard_.LookFor(search); }

 private:
  void SetUpView();
  void SetUpHeads();
  void ApplyFont();
  void SayCurrentCell();

  GridModel *model_;
  RowLeaving leaving_;
  GridSelection *selection_;
  GridWidths *widths_ = nullptr;
  GridMouse mouse_{*this};
  GridKeyboard keyboard_{*this};
  GridCommands commands_{*this};
  GridReading reading_{*this};
  GridSorting sorting_{*this};
  CellChoice choice_{*this};
  EmptyNote emptyNote_{*this};
  FrozenColumn *frozen_ = nullptr;
  std::optional<qint64> lastKey_;
  QString staying_;
  int rowLines_ = 1;
};

/// True for a cell that a person may type in or tick.
bool CanChange(const QModelIndex &cell);

}  // namespace trimlog
