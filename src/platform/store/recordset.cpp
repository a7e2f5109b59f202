#include "platform/store/recordset.h"

#include <cmath>

#include "platform/store/recordset_internals.h"
#include "platform/store/stored_value.h"
#include "platform/text/text_format.h"

namespace trimlog {

Recordset OpenRows(Database::Impl &database, const QString &sql, const Params &params, RecordsetKind kind) {
  auto known = database.Know(sql);
  const TranslatedSql &translated = known->form->translated;
  if (translated.kind != TranslatedSql::Kind::Select) {
    throw Error(error_number::invalidSql,
                QStringLiteral("A recordset opens on a SELECT, not on '%1'.").arg(sql.left(40)));
  }
  Database::Impl::CheckParameters(*known, params);
  auto impl = std::make_unique<Recordset::Impl>(database, std::move(known), params);
  impl->columns = impl->known->form->main->Columns();
  database.CheckTransaction();
  if (kind == RecordsetKind::Forward) {
    ++database.counts.statements;
    impl->forward.emplace(database.Use(*impl->known->form));
    database.Bind(**impl->forward, *impl->known, params);
    impl->forwardEnd = !impl->StepForward();
  } else if (kind == RecordsetKind::Dynaset && !translated.single.table.isEmpty()) {
    impl->LoadKeys();
  } else {
    impl->LoadRows();
  }
  return Recordset(std::move(impl));
}

void Recordset::Impl::RequireOpen() const {
  if (*closed) throw Error(error_number::notOpen, QStringLiteral("The data file of this recordset was closed."));
}

bool Recordset::Impl::StepForward() {
  RequireOpen();
  if (!(*forward)->Step(database.failure)) return false;
  ++database.counts.rowsRead;
  return true;
}

void Recordset::Impl::LoadRows() {
  ++database.counts.statements;
  StatementUse use = database.Use(*known->form);
  database.Bind(*use, *known, params);
  rows = RowBuffer(static_cast<int>(columns.size()));
  while (use->Step(database.failure)) rows.Append(*use);
  database.counts.rowsRead += rows.Rows();
}

void Recordset::Impl::LoadKeys() {
  keyed = true;
  ++database.counts.statements;
  StatementForm &form = *known->form;
  const QString &sql = form.translated.single.keys;
  if (form.keys == nullptr) form.keys = database.Compile(sql);
  StatementUse use(database, form.keys, sql, {});
  database.Bind(*use, *known, params);
  while (use->Step(database.failure)) keys.push_back(use->Stored(0).toLongLong());
}

const QVariant &Recordset::Impl::Visited(qint64 key, int column) const {
  if (const Row *row = visited.object(key)) return (*row)[static_cast<size_t>(column)];
  RequireOpen();
  StatementForm &form = *known->form;
  const QString &sql = form.translated.single.row;
  if (form.row == nullptr) form.row = database.Compile(sql);
  StatementUse use(database, form.row, sql, {});
  database.Bind(*use, *known, params);
  use->Bind(static_cast<int>(known->slots_.size()) + 1, key);
  ++database.counts.statements;
  if (!use->Step(database.failure)) throw Error(error_number::recordDeleted, QStringLiteral("Record is deleted."));
  ++database.counts.rowsRead;
  auto row = std::make_unique<Row>();
  row->reserve(columns.size());
  for (size_t i = 0; i < columns.size(); ++i)
    row->push_back(FromStored(use->Stored(static_cast<int>(i)), columns[i].type));
  visited.insert(key, row.release());
  return (*visited.object(key))[static_cast<size_t>(column)];
}

QVariant Recordset::Impl::ValueAt(int row, int column) const {
  if (keyed) return Visited(keys[static_cast<size_t>(row)], column);
  return FromStored(rows.Stored(row, column), columns[static_cast<size_t>(column)].type);
}

bool Recordset::Impl::HasRow() const {
  if (forward) return !forwardEnd;
  return !onDeleted && position >= 0 && position < Count();
}

void Recordset::Impl::RequireRow() const {
  if (!HasRow()) throw Error(error_number::noCurrentRecord, QStringLiteral("No current record."));
}

int Recordset::Impl::ColumnOf(const QString &name) const {
  for (size_t i = 0; i < columns.size(); ++i) {
    if (columns[i].name.size() == name.size() && columns[i].name.compare(name, Qt::CaseInsensitive) == 0)
      return static_cast<int>(i);
  }
  // "table.Field" and "[Field]" name the field too.
  QString plain = name.section(QLatin1Char('.'), -1);
  if (plain.startsWith(QLatin1Char('[')) && plain.endsWith(QLatin1Char(']'))) plain = plain.mid(1, plain.size() - 2);
  if (plain.size() != name.size()) return ColumnOf(plain);
  throw Error(error_number::unknownColumn, QStringLiteral("The recordset has no field '%1'.").arg(name));
}

Recordset::Recordset(std::unique_ptr<Impl> impl) : impl_(std::move(impl)) {}
Recordset::Recordset(Recordset &&) noexcept = default;
Recordset &Recordset::operator=(Recordset &&) noexcept = default;
Recordset::~Recordset() = default;

bool Recordset::Bof() const {
  return impl_->forward ? impl_->forwardEnd : impl_->position < 0 || (!impl_->onDeleted && impl_->Count() == 0);
}
bool Recordset::Eof() const {
  return impl_->forward ? impl_->forwardEnd : !impl_->onDeleted && impl_->position >= impl_->Count();
}

namespace {

void RefuseForward(const Recordset::Impl &impl) {
  if (impl.forward) throw Error(error_number::other, QStringLiteral("A forward recordset knows MoveNext only."));
}

// Moving on gives up what was begun and not saved.
void Leave(Recordset::Impl &impl) {
  impl.editing = Recordset::Impl::Editing::None;
  impl.pending.clear();
  impl.onDeleted = false;
}

}  // namespace

void Recordset::MoveFirst() {
  RefuseForward(*impl_);
  Leave(*impl_);
  impl_->position = 0;
}

void Recordset::MoveLast() {
  RefuseForward(*impl_);
  Leave(*impl_);
  impl_->position = std::max(impl_->Count() - 1, 0);
}

void Recordset::MoveNext() {
  if (Eof()) throw Error(error_number::noCurrentRecord, QStringLiteral("No current record."));
  if (impl_->forward) {
    impl_->forwardEnd = !impl_->StepForward();
    return;
  }
  // Where a deleted row stood, its successor stands already.
  if (!impl_->onDeleted) ++impl_->position;
  Leave(*impl_);
}

void Recordset::MovePrevious() {
  RefuseForward(*impl_);
  if (Bof()) throw Error(error_number::noCurrentRecord, QStringLiteral("No current record."));
  --impl_->position;
  Leave(*impl_);
}

int Recordset::AbsolutePosition() const {
  RefuseForward(*impl_);
  return impl_->HasRow() ? impl_->position : -1;
}

void Recordset::SetAbsolutePosition(int position) {
  RefuseForward(*impl_);
  if (position < 0 || position >= impl_->Count()) {
    throw Error(error_number::noCurrentRecord, QStringLiteral("The recordset has no row %1.").arg(position));
  }
  Leave(*impl_);
  impl_->position = position;
}

int Recordset::RecordCount() const {
  RefuseForward(*impl_);
  return impl_->Count();
}

QStringList Recordset::FieldNames() const {
  QStringList names;
  for (const ResultColumn &column : impl_->columns) names.append(column.name);
  return names;
}

Value Recordset::Field(const QString &name) const {
  if (impl_->editing != Impl::Editing::None) {
    const int column = impl_->ColumnOf(name);
    const auto found = impl_->pending.constFind(impl_->columns[static_cast<size_t>(column)].name.toLower());
    if (found != impl_->pending.constEnd()) return FromStored(*found, impl_->columns[static_cast<size_t>(column)].type);
    if (impl_->editing == Impl::Editing::Adding) return {};
    return Field(column);
  }
  return Field(impl_->ColumnOf(name));
}

Value Recordset::Field(int column) const {
  impl_->RequireRow();
  if (column < 0 || column >= static_cast<int>(impl_->columns.size())) {
    throw Error(error_number::unknownColumn, QStringLiteral("The recordset has no field %1.").arg(column));
  }
  if (impl_->forward) {
    impl_->RequireOpen();
    return (*impl_->forward)->Value(column);
  }
  return impl_->ValueAt(impl_->position, column);
}

QString Recordset::Text(const QString &name) const { return ValueText(Field(name)); }

double Recordset::Number(const QString &name) const {
  const Value value = Field(name);
  if (value.typeId() == QMetaType::QString) return Val(value.toString());
  if (value.typeId() == QMetaType::Bool) return value.toBool() ? -1 : 0;
  return value.toDouble();
}

int Recordset::Integer(const QString &name) const { return static_cast<int>(std::nearbyint(Number(name))); }

bool Recordset::NoMatch() const { return impl_->noMatch; }

QVariant Recordset::Bookmark() const {
  impl_->RequireRow();
  RefuseForward(*impl_);
  return impl_->keyed ? QVariant(impl_->keys[static_cast<size_t>(impl_->position)]) : QVariant(qint64{impl_->position});
}

void Recordset::SetBookmark(const QVariant &bookmark) {
  RefuseForward(*impl_);
  qint64 position = bookmark.toLongLong();
  if (impl_->keyed) position = std::find(impl_->keys.begin(), impl_->keys.end(), position) - impl_->keys.begin();
  if (!bookmark.isValid() || position < 0 || position >= impl_->Count()) {
    throw Error(error_number::noCurrentRecord, QStringLiteral("Not a valid bookmark."));
  }
  SetAbsolutePosition(static_cast<int>(position));
}

}  // namespace trimlog
