#pragma once

#include <functional>
#include <vector>

#include "platform/grid/grid_row_edit.h"

namespace trimlog {

struct GridClipboard;

enum class GridAction { Load, Save, Delete, Paste };

/// What a window adds to a grid. Every hook may stay empty. Those that take part in a save or a deletion run inside its
/// transaction: what they write goes with the rows, what they throw takes the rows back, and they open no box.
struct GridHooks {
  /// Runs the work and handles a failure, so that it becomes the window's own box and log line:
  ///   [this](GridAction, auto &work) { return Guarded(session_, exit, work); }
  /// Returns false when the work failed. Without it the failure's sentence is shown at the row, in its tooltip.
  std::function<bool(GridAction action, const std::function<void()> &work)> guard;

  /// A new row is about to be stored: sets the key field, and defaults. Inside the transaction.
  std::function<void(GridRowEdit &row)> beforeInsert;
  /// Before a changed row is stored: may change further fields; a sentence refuses, and the row stays as typed. Inside
  /// the transaction.
  std::function<QString(GridRowEdit &row)> beforeUpdate;
  /// The row (a new one too) is written, not yet committed: writes what belongs to it, and announces.
  std::function<void(const GridRowEdit &row, qint64 key)> withUpdate;
  std::function<void(qint64 key)> afterUpdate;  ///< committed: for what concerns the window only
  /// A cell was changed and its text accepted: may change further fields of the row, and ask. Before any transaction.
  std::function<void(GridRowEdit &row, const QString &column)> afterCell;
  /// Asks the question; false leaves everything as it is.
  std::function<bool(const std::vector<qint64> &keys)> beforeDelete;
  std::function<void(const std::vector<qint64> &keys)> withDelete;   ///< deleted, not yet committed
  std::function<void(const std::vector<qint64> &keys)> afterDelete;  ///< committed
  /// True for a row that may not be changed in the grid; `field` reads its values.
  std::function<bool(const std::function<Value(const QString &)> &field)> isReadOnly;
  /// Pastes rows copied from a grid of the same kind, in one transaction; the grid is refreshed after it. Returns the
  /// keys of the new rows.
  std::function<std::vector<qint64>(const GridClipboard &rows)> pasteRows;
};

}  // namespace trimlog
