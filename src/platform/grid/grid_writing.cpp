#include "platform/grid/grid_writing.h"

#include "platform/grid/grid_blocks.h"
#include "platform/grid/grid_model.h"

namespace trimlog {

qint64 WriteRow(Database &database, const GridSource &source, const GridRowEdit &row) {
  const GridStatement statement =
      row.IsNew() ? InsertStatement(source, row.Changes()) : UpdateStatement(source, row.Key(), row.Changes());
  if (database.Execute(statement.sql, statement.params) == 0) {
    throw Error(error_number::noCurrentRecord, GridModel::tr("This row has been deleted meanwhile."));
  }
  return row.IsNew() ? row.Get(source.key).toLongLong() : row.Key();
}

void DeleteRows(Database &database, const GridSource &source, const std::vector<qint64> &keys) {
  InBlocks(keys, RowCache::block, [&](const std::vector<qint64> &some) {
    const GridStatement statement = DeleteStatement(source, some);
    database.Execute(statement.sql, statement.params);
  });
}

}  // namespace trimlog
