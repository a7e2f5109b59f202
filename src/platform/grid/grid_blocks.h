#pragma once

#include <QtGlobal>
#include <algorithm>
#include <vector>

namespace trimlog {

/// Runs work on keys a block at a time, so that no statement grows with the list.
template <typename Work>
void InBlocks(const std::vector<qint64> &keys, size_t most, Work work) {
  for (size_t start = 0; start < keys.size(); start += most) {
    const auto first = keys.begin() + static_cast<std::ptrdiff_t>(start);
    work(std::vector<qint64>(first, first + static_cast<std::ptrdiff_t>(std::min(most, keys.size() - start))));
  }
}

}  // namespace trimlog
