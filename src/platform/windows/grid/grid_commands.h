#pragma once

#include <vector>

#include "platform/grid/grid_clipboard.h"

namespace trimlog {

class BoundGrid;

/// What the Edit menu and the grids' own menu do: on the text of the active cell, and on whole rows.
class GridCommands {
 public:
  explicit GridCommands(BoundGrid &grid) : grid_(grid) {}

  void Cut();
  void Copy();
  void Paste();
  bool ClearCell();
  void UndoField();
  void UndoRow();

  bool DeleteSelected();
  bool CopyRows(GridClipboard &clipboard);
  void CopyRowsExternal();
  bool PasteRows(const GridClipboard &clipboard);

 private:
  void DeleteKeepingPlace(const std::vector<qint64> &keys);

  BoundGrid &grid_;
};

}  // namespace trimlog
