#include "platform/grid/grid_keys.h"

#include <algorithm>
#include <unordered_set>

namespace trimlog {

void GridKeys::Clear() {
  read_ = nullptr;
  keys_.clear();
  count_ = 0;
}

void GridKeys::Load(ReadTop read, const std::function<int()> &count) {
  std::vector<qint64> page = read(firstPage);
  count_ = static_cast<int>(page.size()) < firstPage ? static_cast<int>(page.size()) : count();
  read_ = std::move(read);
  keys_ = std::move(page);
}

void GridKeys::LoadWhole(ReadTop read) {
  keys_ = read(0);
  count_ = static_cast<int>(keys_.size());
  read_ = std::move(read);
}

void GridKeys::ReadAll() {
  if (Complete()) return;
  keys_ = read_(0);
  count_ = static_cast<int>(keys_.size());
}

qint64 GridKeys::At(int row) {
  if (row >= static_cast<int>(keys_.size())) ReadAll();
  return row < static_cast<int>(keys_.size()) ? keys_[row] : 0;
}

int GridKeys::RowOf(qint64 key) {
  auto found = std::find(keys_.begin(), keys_.end(), key);
  if (found == keys_.end() && !Complete()) {
    ReadAll();
    found = std::find(keys_.begin(), keys_.end(), key);
  }
  return found == keys_.end() ? -1 : static_cast<int>(found - keys_.begin());
}

const std::vector<qint64> &GridKeys::All() {
  ReadAll();
  return keys_;
}

std::vector<qint64> GridKeys::Range(int first, int last) {
  if (last >= static_cast<int>(keys_.size())) ReadAll();
  first = std::max(first, 0);
  last = std::min(last, static_cast<int>(keys_.size()) - 1);
  if (first > last) return {};
  return {keys_.begin() + first, keys_.begin() + last + 1};
}

void GridKeys::OrderLike(const GridKeys &older) {
  ReadAll();
  std::unordered_set<qint64> left(keys_.begin(), keys_.end());
  std::vector<qint64> ordered;
  ordered.reserve(keys_.size());
  for (const qint64 key : older.keys_) {
    if (left.erase(key) > 0) ordered.push_back(key);
  }
  for (const qint64 key : keys_) {
    if (left.contains(key)) ordered.push_back(key);
  }
  keys_ = std::move(ordered);
}

void GridKeys::Append(qint64 key) {
  ReadAll();
  keys_.push_back(key);
  count_ = static_cast<int>(keys_.size());
}

}  // namespace trimlog
