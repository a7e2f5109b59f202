#include "platform/grid/grid_rows.h"

#include <QSet>
#include <algorithm>

#include "platform/grid/grid_blocks.h"
#include "platform/store/key_reader.h"
#include "platform/store/recordset.h"

namespace trimlog {

namespace {

std::vector<qint64> KeysOf(Database &database, const GridStatement &statement) {
  return ReadKeys(database, statement.sql, statement.params);
}

}  // namespace

GridRows::Reading GridRows::Read(Database &database, const GridSource &source, Extent extent) const {
  Reading reading{&database, source, {}};
  const auto read = [file = &database, source](int top) { return KeysOf(*file, KeysStatement(source, top)); };
  if (extent == Extent::FirstPage) {
    reading.keys.Load(read, [&] {
      const GridStatement count = CountStatement(source);
      return database.OpenRecordset(count.sql, count.params, RecordsetKind::Forward).Field(0).toInt();
    });
  } else {
    reading.keys.LoadWhole(read);
  }
  if (extent == Extent::WholeInOldOrder) reading.keys.OrderLike(keys_);
  return reading;
}

void GridRows::Take(Reading reading) {
  database_ = reading.database;
  source_ = std::move(reading.source);
  keys_ = std::move(reading.keys);
  cache_.Clear();
}

// Fetched rows hold the fields by position: with other fields they are read again.
void GridRows::SetFields(const QStringList &fields) {
  fields_ = fields;
  cache_.Clear();
}

std::optional<qint64> GridRows::KeyOf(int row) {
  if (row < 0 || row >= Count()) return std::nullopt;
  return keys_.At(row);
}

std::vector<int> GridRows::RowsOf(std::vector<qint64> keys) {
  std::vector<int> rows;
  if (keys.empty()) return rows;
  std::sort(keys.begin(), keys.end());
  const std::vector<qint64> &all = keys_.All();
  for (size_t row = 0; row < all.size(); ++row) {
    if (std::binary_search(keys.begin(), keys.end(), all[row])) rows.push_back(static_cast<int>(row));
  }
  return rows;
}

void GridRows::Need(int first, int last) {
  if (!database_) return;
  cache_.Need(keys_.Range(first, last), [this](const auto &keys) { return Fetch(keys); });
}

std::vector<GridRow> GridRows::Fetch(const std::vector<qint64> &keys) const {
  std::vector<GridRow> rows;
  const QStringList fields = fields_.isEmpty() ? QStringList{source_.key} : fields_;
  const GridStatement statement = RowsStatement(source_, fields, keys);
  Recordset found = database_->OpenRecordset(statement.sql, statement.params, RecordsetKind::Forward);
  for (; !found.Eof(); found.MoveNext()) {
    GridRow row{found.Field(0).toLongLong(), {}};
    row.values.reserve(static_cast<size_t>(fields.size()));
    for (int field = 1; field <= fields.size(); ++field) row.values.push_back(found.Field(field));
    rows.push_back(std::move(row));
  }
  return rows;
}

const GridRow *GridRows::Fetched(int row) {
  const qint64 key = keys_.At(row);
  if (!cache_.Contains(key)) {
    const int start = row - row % RowCache::block;
    cache_.Need(keys_.Range(start, start + RowCache::block - 1), [this](const auto &keys) { return Fetch(keys); });
  }
  return cache_.Find(key);
}

Value GridRows::Field(int row, const QString &field) {
  if (row < 0 || row >= Count()) return {};
  const qsizetype position = fields_.indexOf(field);
  if (position < 0) {
    const QList<QVariantMap> whole = Whole({keys_.At(row)});
    return whole.isEmpty() ? Value() : whole.first().value(field);
  }
  const GridRow *const found = Fetched(row);
  return found && position < static_cast<qsizetype>(found->values.size()) ? found->values[position] : Value();
}

QList<QVariantMap> GridRows::Whole(const std::vector<qint64> &keys) const {
  QHash<qint64, QVariantMap> found;
  InBlocks(keys, RowCache::block, [&](const std::vector<qint64> &some) {
    const GridStatement statement = RowsStatement(source_, {}, some);
    Recordset rows = database_->OpenRecordset(statement.sql, statement.params, RecordsetKind::Forward);
    const QStringList names = rows.FieldNames();
    for (; !rows.Eof(); rows.MoveNext()) {
      QVariantMap values;
      for (int column = 0; column < names.size(); ++column) values.insert(names[column], rows.Field(column));
      found.insert(rows.Field(source_.key).toLongLong(), values);
    }
  });
  QList<QVariantMap> inOrder;
  for (const qint64 key : keys) {
    if (found.contains(key)) inOrder.append(found.value(key));
  }
  return inOrder;
}

int GridRows::FindFirst(const QString &criterion, const Params &params) {
  const std::vector<qint64> found = KeysOf(*database_, FindStatement(source_, criterion, params));
  return found.empty() ? -1 : keys_.RowOf(found.front());
}

bool GridRows::StandAsShown(const std::vector<qint64> &keys) {
  QSet<qint64> belonging;
  InBlocks(keys, RowCache::block, [&](const std::vector<qint64> &some) {
    for (const qint64 key : KeysOf(*database_, BelongingStatement(source_, some))) belonging.insert(key);
  });
  return std::all_of(keys.begin(), keys.end(),
                     [&](qint64 key) { return belonging.contains(key) == (keys_.RowOf(key) >= 0); });
}

}  // namespace trimlog
