#include "platform/store/database_internals.h"

#include <sqlite3.h>

#include <QFileInfo>
#include <QUrl>

#include "platform/store/data_file.h"
#include "platform/store/store_errors.h"

namespace trimlog {

StatementUse::StatementUse(Database::Impl &database, std::shared_ptr<PreparedStatement> cached, const QString &sql,
                           const QHash<QString, ColumnType> &expressionTypes)
    : statement_(std::move(cached)) {
  if (statement_->inUse) {
    statement_ = database.Compile(sql, expressionTypes);
  }
  statement_->inUse = true;
}

StatementUse::~StatementUse() {
  if (statement_ == nullptr) return;
  statement_->Reset();
  statement_->inUse = false;
}

Database::Impl::Impl(const QString &filePath, int flags)
    : path(filePath), connection(filePath.toStdString(), flags), handle(connection.getHandle()), structure(handle) {
  sqlite3_extended_result_codes(handle, 1);
  // A name that is not there must be an error, never a text.
  sqlite3_db_config(handle, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
  sqlite3_db_config(handle, SQLITE_DBCONFIG_DQS_DDL, 0, nullptr);
  RegisterSqlFunctions(handle, failure);
}

// A recordset that is still held keeps what it has read, but not the file: SQLite closes only what no statement uses.
Database::Impl::~Impl() {
  ForgetStatements();
  *closed = true;
  for (const auto &statement : compiled) {
    if (const auto held = statement.lock()) held->Finalize();
  }
  LeaveNothingBehind(handle);
}

std::shared_ptr<PreparedStatement> Database::Impl::Compile(const QString &sql,
                                                           const QHash<QString, ColumnType> &expressionTypes) {
  auto statement = std::make_shared<PreparedStatement>(handle, sql);
  statement->NameTypes(expressionTypes);
  constexpr size_t many = 1000;
  if (compiled.size() > many) std::erase_if(compiled, [](const auto &held) { return held.expired(); });
  compiled.push_back(statement);
  return statement;
}

void Database::Impl::ForgetStatements() {
  texts.clear();
  shapes.clear();
}

void Database::Impl::ForgetStructure() {
  ForgetStatements();
  structure.Forget();
}

std::shared_ptr<KnownStatement> Database::Impl::Know(const QString &sql) {
  if (const auto *known = texts.object(sql)) return *known;
  TokenizedSql tokens = Tokenize(sql);
  auto known = std::make_shared<KnownStatement>();
  const auto *form = shapes.object(tokens.shape);
  if (form != nullptr) {
    known->form = *form;
  } else {
    known->form = std::make_shared<StatementForm>();
    known->form->translated = Translate(tokens, *this);
  }
  known->slots_ = std::move(tokens.slots_);
  known->parameterCount = tokens.parameterCount;
  const TranslatedSql &translated = known->form->translated;
  const bool repeats = translated.kind == TranslatedSql::Kind::Select || translated.kind == TranslatedSql::Kind::Change;
  if (form == nullptr && repeats) {
    known->form->main = Compile(translated.sql, translated.expressionTypes);
  }
  if (repeats && !translated.usesSideFile) {
    if (form == nullptr) shapes.insert(tokens.shape, new std::shared_ptr<StatementForm>(known->form));
    if (sql.size() < 2000) texts.insert(sql, new std::shared_ptr<KnownStatement>(known));
  }
  return known;
}

StatementUse Database::Impl::Use(StatementForm &form) {
  return StatementUse(*this, form.main, form.translated.sql, form.translated.expressionTypes);
}

void Database::Impl::CheckParameters(const KnownStatement &known, const Params &params) {
  if (params.size() == known.parameterCount) return;
  throw Error(error_number::unknownColumn, QStringLiteral("The statement expects %1 parameters and was given %2.")
                                               .arg(known.parameterCount)
                                               .arg(params.size()));
}

void Database::Impl::Bind(PreparedStatement &statement, const KnownStatement &known, const Params &params) const {
  CheckParameters(known, params);
  int slot = 0;
  int parameter = 0;
  for (const SqlSlot &source : known.slots_) {
    statement.Bind(++slot, source.isParameter ? params[parameter++] : source.literal);
  }
}

void Database::Impl::CheckTransaction() const {
  if (depth > 0 && sqlite3_get_autocommit(handle) != 0) {
    throw Error(error_number::other,
                QStringLiteral("The change was taken back by an earlier failure; nothing of it was saved."));
  }
}

qint64 Database::Impl::Run(PreparedStatement &statement) {
  RunReturning(statement);
  return sqlite3_changes64(handle);
}

std::optional<qint64> Database::Impl::RunReturning(PreparedStatement &statement) {
  CheckTransaction();
  if (depth == 0) CheckInPlace(handle, path);  // a change without a transaction is one of its own
  ++counts.statements;
  const qint64 before = sqlite3_total_changes64(handle);
  std::optional<qint64> key;
  while (statement.Step(failure)) key = statement.Stored(0).toLongLong();
  const bool wrote = sqlite3_total_changes64(handle) != before;
  statement.Reset();
  if (wrote && sqlite3_get_autocommit(handle) != 0) ++counts.commits;
  return key;
}

void Database::Impl::Plain(const char *sql) {
  const int status = sqlite3_exec(handle, sql, nullptr, nullptr, nullptr);
  if (status != SQLITE_OK) throw StoreError(handle, status);
}

QString Database::Impl::OpenSideFile(const QString &side, bool forWriting) {
  const QString absolute = QFileInfo(side).absoluteFilePath();
  const QString key = (forWriting ? QLatin1Char('w') : QLatin1Char('r')) + absolute;
  const auto known = sideFiles.constFind(key);
  if (known != sideFiles.constEnd()) return *known;
  CheckDataFile(absolute);
  QString schema = QStringLiteral("side%1").arg(++sideFileNumber);
  QUrl uri = QUrl::fromLocalFile(absolute);
  uri.setQuery(forWriting ? QStringLiteral("mode=rw") : QStringLiteral("mode=ro"));
  PreparedStatement attach(handle, QStringLiteral("ATTACH ?1 AS %1").arg(schema));
  attach.Bind(1, QString::fromLatin1(uri.toEncoded()));
  while (attach.Step(failure)) {
  }
  sideFiles.insert(key, schema);
  return schema;
}

void Database::Impl::CloseSideFiles() {
  if (sideFiles.isEmpty() || depth > 0 || sqlite3_get_autocommit(handle) == 0) return;
  for (const QString &schema : std::as_const(sideFiles)) {
    const QByteArray sql = QStringLiteral("DETACH %1").arg(schema).toUtf8();
    // A recordset that still reads the side file keeps it; it goes with the next statement.
    if (sqlite3_exec(handle, sql.constData(), nullptr, nullptr, nullptr) != SQLITE_OK) return;
  }
  sideFiles.clear();
  structure.Forget();
}

}  // namespace trimlog
