#include "platform/windows/grid/grid_selection.h"

#include <algorithm>

#include "platform/grid/grid_model.h"

namespace trimlog {

GridSelection::GridSelection(GridModel &model, Leave leave, QObject *parent)
    : QItemSelectionModel(&model, parent), model_(model), leave_(std::move(leave)) {
  connect(this, &QItemSelectionModel::currentChanged, this, &GridSelection::OnCurrentChanged);
}

void GridSelection::setCurrentIndex(const QModelIndex &index, QItemSelectionModel::SelectionFlags command) {
  const QModelIndex target = leave_(index);
  if (index.isValid() && !target.isValid()) return;
  QItemSelectionModel::setCurrentIndex(target, command);
}

bool GridSelection::GoTo(const QModelIndex &cell) {
  setCurrentIndex(cell, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  return currentIndex() == cell;
}

void GridSelection::OnCurrentChanged() {
  chosenByHand = false;
  if (!extending) anchor_ = CurrentKey();
}

std::optional<qint64> GridSelection::CurrentKey() const { return model_.KeyOfRow(currentIndex().row()); }

std::vector<int> GridSelection::MarkedRows() const {
  std::vector<int> rows;
  for (const QItemSelectionRange &range : selection()) {
    for (int row = range.top(); row <= range.bottom(); ++row) rows.push_back(row);
  }
  std::sort(rows.begin(), rows.end());
  rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
  return rows;
}

std::vector<qint64> GridSelection::MarkedKeys() const {
  std::vector<qint64> keys;
  for (const int row : MarkedRows()) {
    if (const std::optional<qint64> key = model_.KeyOfRow(row)) keys.push_back(*key);
  }
  return keys;
}

std::vector<qint64> GridSelection::KeysMeant() const {
  std::vector<qint64> keys = MarkedKeys();
  if (keys.empty() && CurrentKey()) keys.push_back(*CurrentKey());
  return keys;
}

void GridSelection::MarkKeys(const std::vector<qint64> &keys) {
  const std::vector<int> rows = model_.RowsOfKeys(keys);
  const int lastColumn = model_.columnCount() - 1;
  QItemSelection marked;
  for (size_t first = 0; first < rows.size();) {
    size_t last = first;
    while (last + 1 < rows.size() && rows[last + 1] == rows[last] + 1) ++last;
    marked.append(QItemSelectionRange(model_.index(rows[first], 0), model_.index(rows[last], lastColumn)));
    first = last + 1;
  }
  select(marked, QItemSelectionModel::ClearAndSelect);
}

bool GridSelection::RowsMarked() const {
  const QItemSelection marked = selection();
  if (marked.isEmpty()) return false;
  return chosenByHand || marked.size() > 1 || marked.first().height() > 1;
}

bool GridSelection::ExtendMarks() {
  const int from = extending && anchor_ ? model_.RowOfKey(*anchor_) : -1;
  if (from < 0) return false;
  const int to = currentIndex().row();
  select({model_.index(std::min(from, to), 0), model_.index(std::max(from, to), model_.columnCount() - 1)},
         QItemSelectionModel::ClearAndSelect);
  return true;
}

}  // namespace trimlog
