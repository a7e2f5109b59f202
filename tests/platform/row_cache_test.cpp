#include "platform/grid/row_cache.h"

#include <gtest/gtest.h>

#include <numeric>

#include "platform/grid/grid_keys.h"

namespace trimlog {
namespace {

/// Rows whose only value is ten times the key; keys above 900 are not in the file any more.
struct Reader {
  std::vector<GridRow> operator()(const std::vector<qint64> &keys) {
    ++reads;
    EXPECT_LE(keys.size(), static_cast<size_t>(RowCache::block));
    std::vector<GridRow> rows;
    for (auto key = keys.rbegin(); key != keys.rend(); ++key) {  // the file gives them in its own order
      if (*key <= 900) rows.push_back({*key, {*key * 10}});
    }
    return rows;
  }
  int reads = 0;
};

std::vector<qint64> Keys(qint64 first, qint64 last) {
  std::vector<qint64> keys(static_cast<size_t>(last - first + 1));
  std::iota(keys.begin(), keys.end(), first);
  return keys;
}

TEST(RowCacheTest, ReadsEachRowOnceInBlocks) {
  RowCache cache;
  Reader reader;
  const auto fetch = [&](const std::vector<qint64> &keys) { return reader(keys); };
  cache.Need(Keys(1, 100), fetch);
  EXPECT_EQ(reader.reads, 2);
  EXPECT_EQ(cache.Find(77)->values.front().toInt(), 770);
  cache.Need(Keys(50, 120), fetch);
  EXPECT_EQ(reader.reads, 3);
  cache.Forget(77);
  EXPECT_FALSE(cache.Find(77));
  cache.Need(Keys(1, 100), fetch);
  EXPECT_EQ(reader.reads, 4);
}

TEST(RowCacheTest, RowsThatAreGoneAreNotAskedForAgain) {
  RowCache cache;
  Reader reader;
  const auto fetch = [&](const std::vector<qint64> &keys) { return reader(keys); };
  cache.Need({899, 950}, fetch);
  cache.Need({899, 950}, fetch);
  EXPECT_EQ(reader.reads, 1);
  EXPECT_TRUE(cache.Find(950)->values.empty());
}

TEST(RowCacheTest, MemoryEndsAtTheCapacityAndTheLongestUnseenRowsGo) {
  RowCache cache(100);
  Reader reader;
  const auto fetch = [&](const std::vector<qint64> &keys) { return reader(keys); };
  cache.Need(Keys(1, 60), fetch);
  cache.Find(60);  // the one that came first, and now the one seen last
  cache.Need(Keys(101, 160), fetch);
  EXPECT_LE(cache.Size(), 100);
  EXPECT_TRUE(cache.Contains(60));
  EXPECT_FALSE(cache.Contains(59));
}

TEST(GridKeysTest, TheFirstPageComesAloneAndTheRestWhenNeeded) {
  int wholeReads = 0;
  const auto read = [&](int top) {
    if (top == 0) ++wholeReads;
    return Keys(1, top == 0 ? 1000 : std::min(top, 1000));
  };
  GridKeys keys;
  keys.Load(read, [] { return 1000; });
  EXPECT_EQ(keys.Count(), 1000);
  EXPECT_EQ(keys.At(GridKeys::firstPage - 1), GridKeys::firstPage);
  EXPECT_EQ(keys.RowOf(5), 4);
  EXPECT_EQ(wholeReads, 0);
  EXPECT_EQ(keys.Range(990, 2000), Keys(991, 1000));
  EXPECT_EQ(keys.RowOf(4711), -1);
  EXPECT_EQ(wholeReads, 1);
  keys.Append(4711);
  EXPECT_EQ(keys.RowOf(4711), 1000);
}

}  // namespace
}  // namespace trimlog
