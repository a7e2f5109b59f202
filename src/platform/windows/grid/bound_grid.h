#pragma once

#include <QTableView>
#include <QTimer>

#include "platform/grid/grid_model.h"
#include "platform/machine/settings_store.h"

namespace trimlog {

/// The data grid of every window: shows the rows of a GridSource, changes them in place, marks, sorts, copies and
/// deletes whole rows.
///
/// Leaving a row saves it; a refused row cannot be left: the cell stays framed, with its sentence in the tooltip, until
/// it is corrected or Esc restores it (first the field, then the row). Tab and Enter go to the next cell that can be
/// changed. Letters typed where nothing can be changed go to the next row of the sorted column that begins with them.
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

  QString recordSource;   ///< names the kind of rows for copy and paste, e.g. "datMealsList"
  bool canDelete = true;  ///< Del and "Delete Row(s)"
  bool canSort = true;    ///< clicks on the captions, and the two Sort commands

  void SetColumns(GridColumns columns);
  void RebindColumn(const QString &name, const QString &field, const QString &caption, const QString &pattern = {});
  void ShowColumn(const QString &name, bool visible);
  /// From now on another column is wider by this one's width while this one is hidden. At most one pair.
  void GiveRoom(const QString &from, const QString &to);
  /// Column widths come from and go to this place of the store (value name: the column's).
  void KeepWidths(SettingsStore &store, const QString &key);

  /// Shows a source. Saves the row being changed first; false when that was refused (nothing happens then) or reading
  /// failed.
  bool Open(Database &database, const GridSource &source);
  /// `whole` reads all keys in one pass: for a search, whose rows cost as much to count as to find.
  bool SetSource(const GridSource &source, bool whole = false);
  /// Reads everything afresh; current cell, marked rows and scroll place are kept by key. While a row is being left or
  /// a mouse button is down the rows stay in their order: what the person points at must not move away.
  bool Refresh();
  /// Reads afresh what was changed, added or deleted elsewhere; no keys mean any row. The row being typed stays as
  /// typed.
  bool RefreshRows(const std::vector<qint64> &keys);
  /// Sorts by a column, then the key. False when nothing was sorted.
  bool SortBy(const QString &columnName, bool descending);

  // The current row and the marked ones.
  std::optional<qint64> CurrentKey() const;
  QString CurrentColumn() const;  ///< its name; "" without a current cell
  Value CurrentField(const QString &field) const;
  /// Makes a row current and marks it alone; `atTop` scrolls it to the top of the grid. False when it is not shown.
  bool GoToKey(qint64 key, bool atTop = false);
  std::vector<qint64> MarkedKeys() const;  ///< in the order shown
  void MarkRows(const std::vector<qint64> &keys);
  void ClearMarks();
  void selectAll() override;
  /// True when rows are marked as such (by hand, or more than one), not only because a cell in them is current.
  bool RowsMarked() const;

  /// Saves what is being typed, as leaving the row would. False when it was refused or failed: the person must see it.
  bool CommitRow();
  /// Deletes the marked rows (the current one when none is marked) in one transaction, after the before-delete hook
  /// agreed.
  bool DeleteSelected();
  bool IsTyping() const;  ///< a cell's editor is open and holds something else than the cell
  void UndoField();
  void UndoRow();
  /// Empties the current cell where it can be typed in; false where it cannot.
  bool ClearCell();
  /// What an empty list says to do; "" for nothing.
  void SetPlaceholderText(const QString &text);

  // The Edit commands, on the text of the active cell.
  void Cut();
  void Copy();
  void Paste();
  // Whole rows.
  bool CopyRows(GridClipboard &clipboard);  ///< for other grids of the program
  void CopyRowsExternal();                  ///< as cells for other programs
  bool PasteRows(const GridClipboard &clipboard);

 Q_SIGNALS:
  void CurrentRowChanged();                  ///< another row, or none
  void RowActivated(qint64 key);             ///< double click on, or Enter in, a row that cannot be changed
  void MenuWanted(const QPoint &globalPos);  ///< right click or the menu key; current cell is the one under it
  void RefusedRow(const QString &sentence);
  void Sorted();  ///< the rows stand in another order now: a caption, the menu or SortBy

 protected:
  void keyPressEvent(QKeyEvent *event) override;
  void mousePressEvent(QMouseEvent *event) override;
  void mouseMoveEvent(QMouseEvent *event) override;
  void mouseReleaseEvent(QMouseEvent *event) override;
  void mouseDoubleClickEvent(QMouseEvent *event) override;
  void contextMenuEvent(QContextMenuEvent *event) override;
  void focusOutEvent(QFocusEvent *event) override;
  void resizeEvent(QResizeEvent *event) override;
  void showEvent(QShowEvent *event) override;
  void hideEvent(QHideEvent *event) override;
  void changeEvent(QEvent *event) override;
  void closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint) override;
  QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
  void setSelection(const QRect &rect, QItemSelectionModel::SelectionFlags command) override;
  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex &index, const QEvent *event) const override;
  void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
  void scrollContentsBy(int dx, int dy) override;
  void paintEvent(QPaintEvent *event) override;

 private:
  friend class GridSelection;
  struct Place;

  bool RunGuarded(GridAction action, const std::function<void()> &work);
  Place TakePlace() const;
  void KeepingPlace(const std::function<void()> &work);
  void RestorePlace(const Place &place);
  int FirstColumn() const;
  int LastColumn() const;
  void GoToFirstRow();
  void TellCurrentRow();
  void SelectRows(const std::vector<qint64> &keys);
  bool HoldsOrder() const;
  QModelIndex PressedCell(const QPoint &place) const;
  void ChooseRow(int row);
  bool OpenCellList();
  void OpenMenuByKey();
  void DrawPlaceholder();
  std::vector<int> MarkedRowNumbers() const;
  std::vector<qint64> RowsToCopy() const;
  void PrefetchVisible();

  QModelIndex LeaveRowFor(const QModelIndex &target);
  void ShowRefusal();
  QWidget *OpenEditor() const;
  void CloseOpenEditor(bool keep);
  QModelIndex NextEditable(bool forward) const;
  bool HandleEditingKey(QKeyEvent *event);
  bool ActivateRow();
  bool IsTypingAhead() const;
  void keyboardSearch(const QString &search) override;
  void DeleteKeepingPlace(const std::vector<qint64> &keys);

  void ApplyFont();
  void ApplyWidths();
  void SaveWidths();
  int WidthOf(const GridColumn &column) const;
  int RoomGivenTo(const GridColumn &column) const;
  bool SortsBy(const GridColumn &column) const;
  void SortByClick(int section);
  void ShowSortIndicator();

  GridModel *model_;
  SettingsStore *store_ = nullptr;
  QString widthsKey_;
  QString roomFrom_;
  QString roomTo_;
  QTimer saveWidthsLater_;
  QTimer readKeysLater_;
  QString typedAhead_;
  qint64 typedAheadAt_ = 0;
  bool applyingWidths_ = false;
  bool committing_ = false;
  std::optional<qint64> lastKey_;
  std::optional<qint64> pressedKey_;  ///< of the row that the mouse last went down on
  bool pressSettled_ = false;         ///< that press was acted on here: what follows it must not go by the old place
  std::optional<qint64> anchorKey_;   ///< where marking with Shift begins
  bool extending_ = false;
  bool rowChosen_ = false;  ///< the current row was marked as a row, by hand
  QString placeholderText_;
};

}  // namespace trimlog
