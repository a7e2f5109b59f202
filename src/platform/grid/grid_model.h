#pragma once

#include <QAbstractTableModel>
#include <QLocale>
#include <memory>
#include <optional>

#include "platform/grid/grid_cells.h"
#include "platform/grid/grid_clipboard.h"
#include "platform/grid/grid_columns.h"
#include "platform/grid/grid_hooks.h"
#include "platform/grid/grid_lookup.h"
#include "platform/grid/grid_rows.h"

namespace trimlog {

/// The rows of a GridSource as a table: keys first, values as they are seen. One row at a time is being changed; its
/// changes stay here until SaveRow writes them in one transaction. Needs no display and opens no box: what fails is
/// thrown as an Error, except from data(), which shows an unreadable row as empty.
class GridModel : public QAbstractTableModel {
  Q_OBJECT
 public:
  enum Role {
    ColumnNameRole = Qt::UserRole,       ///< of a horizontal header: the column's name
    CellChangedRole = Qt::UserRole + 2,  ///< bool: changed and not yet saved
    SentenceRole = Qt::UserRole + 3,     ///< why the cell's text is refused; empty when it is not
    ValueRole = Qt::UserRole + 4,  ///< the value itself, as stored; also for setting one that was chosen, not typed
  };

  explicit GridModel(const QLocale &locale, QObject *parent = nullptr);
  ~GridModel() override;

  GridHooks hooks;

  // What is shown.
  void SetColumns(GridColumns columns);
  const GridColumns &Columns() const { return columns_; }
  int ColumnByName(const QString &name) const { return ColumnIndex(columns_, name); }  ///< -1 when there is none
  /// Binds a column to another field at run time; rows already read are read again when seen.
  void RebindColumn(const QString &name, const QString &field, const QString &caption, const QString &pattern = {});
  void SetCaption(const QString &name, const QString &caption);
  void SetChoices(const QString &name, const QList<GridChoice> &choices);
  void SetColumnVisible(const QString &name, bool visible);
  void SetAllowNew(bool allow);  ///< an empty row at the end takes new records
  const QLocale &Locale() const { return locale_; }

  /// Shows the rows of a source: counts them, reads the keys of the first page, and the others when they are first
  /// needed or LoadAllKeys is called.
  void Open(Database &database, const GridSource &source);
  /// Another source in the same file; `whole` reads all keys at once, for who needs the place of one of them anyway.
  void SetSource(const GridSource &source, bool whole = false);
  const GridSource &Source() const { return rows_.Source(); }
  bool IsOpen() const { return rows_.IsOpen(); }
  Database &File() const { return rows_.File(); }
  /// Reads everything afresh; the row being changed stays as typed. `keepOrder` leaves the rows where they stand, with
  /// what is new behind them.
  void Refresh(bool keepOrder = false);
  void RefreshRow(qint64 key);  ///< reads one row afresh
  /// Reads rows afresh, each at its place. False, with nothing done, when one of them came to the source or left it.
  bool RefreshRows(const std::vector<qint64> &keys);
  void LoadAllKeys();
  bool AllKeysLoaded() const { return rows_.Keys().Complete(); }
  /// Reads the rows of a visible range, so that painting finds them.
  void Need(int first, int last) { rows_.Need(first, last); }

  // Rows by key.
  int RecordCount() const { return rows_.Count(); }  ///< without the row for new records
  /// Nothing for the row for new records.
  std::optional<qint64> KeyOfRow(int row) const { return rows_.KeyOf(row); }
  int RowOfKey(qint64 key) const { return rows_.Keys().RowOf(key); }  ///< -1 when it is not shown
  std::vector<int> RowsOfKeys(const std::vector<qint64> &keys) const { return rows_.RowsOf(keys); }  ///< ascending
  /// A field's value, unsaved change included; invalid when row or field is not there.
  Value FieldOf(int row, const QString &field) const;
  /// The first row that meets a criterion in the words of the source ("UCase(Left(MealDesc,1)) = ?"); -1 for none.
  int FindFirst(const QString &criterion, const Params &params) const { return rows_.FindFirst(criterion, params); }
  /// The first row whose field begins with a text, case ignored; -1 for none.
  int FindPrefix(const QString &field, const QString &text) const;
  /// All columns of the table, by name, of rows in the order given.
  QList<QVariantMap> WholeRows(const std::vector<qint64> &keys) const { return rows_.Whole(keys); }

  // Changing.
  bool IsChanging() const { return edit_ != nullptr; }
  int ChangingRow() const;  ///< -1 when no row is being changed
  /// Saves the row being changed. False when it holds a refused text or a hook refused it: everything stays as typed. A
  /// failed write throws, and everything stays as typed.
  bool SaveRow();
  void UndoField(const QModelIndex &index);
  void UndoRow();
  bool IsFieldChanged(const QModelIndex &index) const;
  QString RefusalOfRow() const;  ///< why the row cannot be saved as it is; "" when nothing speaks against it
  void SetRowSentence(const QString &sentence);  ///< shows why saving failed at the row
  /// Deletes rows in one transaction; asks no hook. Throws and leaves all rows when it fails.
  void DeleteRows(const std::vector<qint64> &keys);

  int rowCount(const QModelIndex &parent = {}) const override;
  int columnCount(const QModelIndex &parent = {}) const override;
  QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
  Qt::ItemFlags flags(const QModelIndex &index) const override;
  bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;

 Q_SIGNALS:
  void CellEdited(int row, const QString &columnName);  ///< typed or ticked, not yet saved
  void RowStateChanged(int row);

 private:
  const GridColumn *ColumnAt(const QModelIndex &index) const;
  void Show(GridRows::Reading reading);
  TypedCell ReadCell(const QModelIndex &index, const GridColumn &column, const QVariant &value, int role) const;
  TypedCell ReadLookup(const GridColumn &column, const QString &text) const;
  QString LookupShown(int row, const GridColumn &column) const;
  GridRowEdit &BeginChange(int row);
  void DropEditWhenEmpty();
  void TakeOverSaved(qint64 key);
  void AnnounceRow(int row);
  QVariant CellText(const QModelIndex &index, const GridColumn &column, bool forEditing) const;
  static QVariant CaptionData(const GridColumn &column, int role);
  QVariant RowHead(int row, int role) const;

  QLocale locale_;
  GridColumns columns_;
  mutable GridRows rows_;  ///< fetched when they are asked for
  mutable ChosenTexts chosenTexts_;
  std::unique_ptr<GridRowEdit> edit_;
  bool allowNew_ = false;
};

}  // namespace trimlog
