#pragma once

#include <QString>
#include <vector>

namespace trimlog {

class GridModel;

/// Rows as the text that a spreadsheet takes for cells: a line per row, tabs between the cells, lines ended by carriage
/// return and line feed, trimmed at the end. Cells stand as they are shown (lists by their words, ticks as Yes and No);
/// tabs and line breaks within one become blanks. Hidden columns and columns without a field are left out.
QString RowsAsText(const GridModel &model, const std::vector<int> &rows, bool withCaptions = false);

/// The columns that such a text has, and one of its cells.
std::vector<int> TextColumns(const GridModel &model);
QString CellAsText(const GridModel &model, int row, int column);

}  // namespace trimlog
