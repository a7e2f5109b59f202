#pragma once

#include <QtGlobal>
#include <functional>
#include <vector>

namespace trimlog {

/// The keys of a list in order, eight bytes a row. The first page comes at once, the rest when a row behind it is asked
/// for, so that a list of 90,000 opens as fast as one of ten.
class GridKeys {
 public:
  using ReadTop = std::function<std::vector<qint64>(int top)>;  ///< 0: all keys

  static constexpr int firstPage = 256;

  void Clear();
  /// Reads the first page; `count` says how many rows there are when that page is full.
  void Load(ReadTop read, const std::function<int()> &count);
  /// Reads all keys at once: one pass in place of two where they are needed anyway.
  void LoadWhole(ReadTop read);
  int Count() const { return count_; }
  bool Complete() const { return static_cast<int>(keys_.size()) == count_; }
  /// Reads the remaining keys. When the list has changed since it was counted, the new length counts.
  void ReadAll();
  qint64 At(int row);
  int RowOf(qint64 key);
  const std::vector<qint64> &All();
  std::vector<qint64> Range(int first, int last);  ///< both ends included, clipped to the list
  void Append(qint64 key);
  /// Brings the keys into the order of an older reading; what that did not hold follows in the order read.
  void OrderLike(const GridKeys &older);

 private:
  ReadTop read_;
  std::vector<qint64> keys_;
  int count_ = 0;
};

}  // namespace trimlog
