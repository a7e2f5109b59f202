#include "platform/store/database.h"

#include <SQLiteCpp/Backup.h>
#include <sqlite3.h>

#include <QFile>
#include <QFileInfo>

#include "platform/machine/private_file.h"
#include "platform/store/data_file.h"
#include "platform/store/database_internals.h"
#include "platform/store/recordset.h"
#include "platform/store/recordset_internals.h"
#include "platform/store/store_errors.h"

namespace trimlog {

namespace {

std::unique_ptr<Database::Impl> Connect(const QString &path, int flags) {
  try {
    return std::make_unique<Database::Impl>(path, flags);
  } catch (const SQLite::Exception &failure) {
    throw Error(error_number::cannotOpen,
                QStringLiteral("'%1' could not be opened: %2.").arg(path, QString::fromUtf8(failure.what())));
  }
}

// How the store works on its file: alone, with a rollback journal that is on the disk before the file changes.
void Prepare(Database::Impl &impl) {
  impl.Plain("PRAGMA foreign_keys = ON");
  impl.Plain("PRAGMA synchronous = FULL");
  impl.Plain("PRAGMA temp_store = MEMORY");
  impl.Plain("PRAGMA cache_size = -16000");
}

void TakeAlone(Database::Impl &impl) {
  impl.Plain("PRAGMA locking_mode = EXCLUSIVE");
  // Takes the lock at once, and lets SQLite finish what a crash interrupted; nothing else is written.
  impl.Plain("BEGIN EXCLUSIVE");
  impl.Plain("COMMIT");
  // Of the rollback journals the one that is neither removed nor cut commits fastest, about eight times as fast as
  // TRUNCATE.
  impl.Plain("PRAGMA journal_mode = PERSIST");
  impl.Plain("PRAGMA journal_size_limit = 1048576");
}

}  // namespace

Database::Database(std::unique_ptr<Impl> impl) : impl_(std::move(impl)) {}
Database::~Database() = default;

std::unique_ptr<Database> Database::Open(const QString &path) {
  CheckPath(path);
  auto impl = Connect(path, SQLite::OPEN_READWRITE);
  CheckHeader(impl->handle, path);
  CheckWritable(path);
  MakePrivate(path);
  MakePrivate(path + QStringLiteral("-journal"));
  Prepare(*impl);
  TakeAlone(*impl);
  CheckComplete(impl->handle, path);
  impl->Plain("SELECT 1 FROM sqlite_schema LIMIT 1");
  CheckWritable(impl->handle, path);
  return std::unique_ptr<Database>(new Database(std::move(impl)));
}

std::unique_ptr<Database> Database::OpenReadOnly(const QString &path) {
  CheckPath(path);
  auto impl = Connect(path, SQLite::OPEN_READONLY);
  CheckHeader(impl->handle, path);
  Prepare(*impl);
  impl->Plain("SELECT 1 FROM sqlite_schema");
  CheckComplete(impl->handle, path);
  return std::unique_ptr<Database>(new Database(std::move(impl)));
}

std::unique_ptr<Database> Database::Create(const QString &path) {
  if (QFileInfo::exists(path)) {
    throw Error(error_number::fileExists, QStringLiteral("'%1' exists already.").arg(path));
  }
  CreatePrivate(path);  // SQLite gives the journal the same rights
  auto impl = Connect(path, SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
  Prepare(*impl);
  const QByteArray mark = QStringLiteral("PRAGMA application_id = %1; PRAGMA user_version = %2")
                              .arg(applicationId)
                              .arg(storeVersion)
                              .toUtf8();
  impl->Plain(mark.constData());
  TakeAlone(*impl);
  return std::unique_ptr<Database>(new Database(std::move(impl)));
}

qint64 Database::Execute(const QString &sql, const Params &params) {
  const auto known = impl_->Know(sql);
  const TranslatedSql &translated = known->form->translated;
  qint64 changed = 0;
  switch (translated.kind) {
    case TranslatedSql::Kind::Select:
      throw Error(error_number::invalidSql, QStringLiteral("A SELECT cannot be executed; open a recordset on it."));
    case TranslatedSql::Kind::Change: {
      StatementUse use = impl_->Use(*known->form);
      impl_->Bind(*use, *known, params);
      changed = impl_->Run(*use);
      break;
    }
    case TranslatedSql::Kind::SelectInto:
      changed = impl_->SelectInto(*known, params);
      break;
    case TranslatedSql::Kind::Definition: {
      Impl::CheckParameters(*known, params);
      impl_->ForgetStatements();
      PreparedStatement statement(impl_->handle, translated.sql);
      impl_->Run(statement);
      impl_->ForgetStructure();
      break;
    }
  }
  impl_->CloseSideFiles();
  return changed;
}

// The new table's columns keep the types of what is selected; the rows go in with them, or nothing happens at all.
qint64 Database::Impl::SelectInto(const KnownStatement &known, const Params &params) {
  const TranslatedSql &translated = known.form->translated;
  const QString table = BracketedName(translated.intoTable);
  if (structure.Find(QString(), translated.intoTable) != nullptr) {
    throw Error(error_number::tableExists, QStringLiteral("The table '%1' exists already.").arg(translated.intoTable));
  }
  QStringList columns;
  {
    PreparedStatement select(handle, translated.sql);
    select.NameTypes(translated.expressionTypes);
    for (const ResultColumn &column : select.Columns()) {
      columns.append(ColumnDeclaration(column.name, column.type.value_or(ColumnType::Double), 0));
    }
  }
  ForgetStatements();
  const qint64 commitsBefore = counts.commits;
  ++depth;
  Plain("SAVEPOINT into_table");
  try {
    PreparedStatement(handle, QStringLiteral("CREATE TABLE %1 (%2)").arg(table, columns.join(QLatin1StringView(", "))))
        .Step(failure);
    PreparedStatement insert(handle, QStringLiteral("INSERT INTO %1 %2").arg(table, translated.sql));
    Bind(insert, known, params);
    const qint64 rows = Run(insert);
    Plain("RELEASE into_table");
    --depth;
    structure.Forget();
    if (depth == 0) counts.commits = commitsBefore + 1;
    return rows;
  } catch (...) {
    --depth;
    sqlite3_exec(handle, "ROLLBACK TO into_table; RELEASE into_table", nullptr, nullptr, nullptr);
    structure.Forget();
    throw;
  }
}

Recordset Database::OpenRecordset(const QString &sql, const Params &params, RecordsetKind kind) {
  Recordset rows = OpenRows(*impl_, sql, params, kind);
  impl_->CloseSideFiles();
  return rows;
}

bool Database::HasTable(const QString &table) const {
  const StoredTable *found = impl_->structure.Find(QString(), table);
  return found != nullptr && !found->isView;
}

QStringList Database::ColumnNames(const QString &table) const {
  QStringList names;
  if (const StoredTable *found = impl_->structure.Find(QString(), table)) {
    for (const StoredColumn &column : found->columns) names.append(column.name);
  }
  return names;
}

const QString &Database::Path() const { return impl_->path; }
StoreCounts Database::Counts() const { return impl_->counts; }

void Database::CopyTo(const QString &path) {
  if (QFileInfo::exists(path)) throw Error(error_number::fileExists, QStringLiteral("'%1' exists already.").arg(path));
  CreatePrivate(path);
  try {
    SQLite::Database target(path.toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
    SQLite::Backup backup(target, impl_->connection);
    backup.executeStep(-1);
  } catch (const SQLite::Exception &failure) {
    QFile::remove(path);
    throw Error(error_number::cannotOpen,
                QStringLiteral("The copy '%1' could not be written: %2.").arg(path, QString::fromUtf8(failure.what())));
  }
}

bool Database::IntegrityOk() {
  try {
    PreparedStatement check(impl_->handle, QStringLiteral("PRAGMA integrity_check(1)"));
    if (!check.Step(impl_->failure) || check.Stored(0).toString() != QLatin1StringView("ok")) return false;
    PreparedStatement relations(impl_->handle, QStringLiteral("PRAGMA foreign_key_check"));
    return !relations.Step(impl_->failure);
  } catch (const Error &error) {
    if (error.Number() != error_number::fileDamaged) throw;
    return false;
  }
}

QString QuoteText(const QString &text) {
  QString quoted = text;
  quoted.replace(QLatin1Char('"'), QLatin1StringView("\"\""));
  return QLatin1Char('"') + quoted + QLatin1Char('"');
}

}  // namespace trimlog
