#include "platform/store/recordset_internals.h"
#include "platform/store/stored_value.h"

namespace trimlog {

void Recordset::Impl::RequireEditable() const {
  RequireOpen();
  if (!keyed) throw Error(error_number::readOnly, QStringLiteral("Cannot update. The recordset is read-only."));
}

const StoredColumn &Recordset::Impl::TableColumn(const QString &name) const {
  const StoredTable *table = database.FindTable(QString(), known->form->translated.single.table);
  const StoredColumn *column = table == nullptr ? nullptr : table->Find(name);
  if (column == nullptr)
    throw Error(error_number::unknownColumn, QStringLiteral("The recordset has no field '%1'.").arg(name));
  return *column;
}

void Recordset::AddNew() {
  impl_->RequireEditable();
  impl_->pending.clear();
  impl_->editing = Impl::Editing::Adding;
}

void Recordset::Edit() {
  impl_->RequireEditable();
  impl_->RequireRow();
  impl_->pending.clear();
  impl_->editing = Impl::Editing::Changing;
}

void Recordset::SetField(const QString &name, const Value &value) {
  if (impl_->editing == Impl::Editing::None) {
    throw Error(error_number::notEditing, QStringLiteral("Update or CancelUpdate without AddNew or Edit."));
  }
  impl_->RequireOpen();
  const StoredColumn &column = impl_->TableColumn(name);
  const QVariant stored = column.declared ? ToStored(ToBound(value), *column.declared, column.name) : ToBound(value);
  impl_->pending.insert(column.name.toLower(), stored);
}

void Recordset::CancelUpdate() {
  impl_->editing = Impl::Editing::None;
  impl_->pending.clear();
}

void Recordset::Update() {
  if (impl_->editing == Impl::Editing::None) {
    throw Error(error_number::notEditing, QStringLiteral("Update or CancelUpdate without AddNew or Edit."));
  }
  impl_->RequireOpen();
  const bool adding = impl_->editing == Impl::Editing::Adding;
  const QString table = BracketedName(impl_->known->form->translated.single.table);
  QStringList names, marks;
  std::vector<QVariant> values;
  for (auto field = impl_->pending.constBegin(); field != impl_->pending.constEnd(); ++field) {
    values.push_back(field.value());
    names.append(BracketedName(field.key()));
    marks.append(QStringLiteral("?%1").arg(values.size()));
  }
  Database::Impl &database = impl_->database;
  QString sql;
  if (adding) {
    sql = names.isEmpty() ? QStringLiteral("INSERT INTO %1 DEFAULT VALUES RETURNING rowid").arg(table)
                          : QStringLiteral("INSERT INTO %1 (%2) VALUES (%3) RETURNING rowid")
                                .arg(table, names.join(QLatin1Char(',')), marks.join(QLatin1Char(',')));
  } else {
    if (names.isEmpty()) return CancelUpdate();
    for (qsizetype i = 0; i < names.size(); ++i) names[i] += QLatin1StringView(" = ") + marks[i];
    sql = QStringLiteral("UPDATE %1 SET %2 WHERE rowid = ?%3 RETURNING rowid")
              .arg(table, names.join(QLatin1Char(',')))
              .arg(values.size() + 1);
  }
  PreparedStatement write(database.handle, sql);
  for (size_t i = 0; i < values.size(); ++i) write.Bind(static_cast<int>(i) + 1, values[i]);
  const size_t at = static_cast<size_t>(impl_->position);
  if (!adding) write.Bind(static_cast<int>(values.size()) + 1, impl_->keys[at]);
  const std::optional<qint64> key = database.RunReturning(write);
  if (!key) throw Error(error_number::recordDeleted, QStringLiteral("Record is deleted."));
  // A row may have been given another key by the edit.
  if (adding) {
    impl_->keys.push_back(*key);
  } else {
    impl_->visited.remove(impl_->keys[at]);
    impl_->keys[at] = *key;
  }
  impl_->visited.remove(*key);
  CancelUpdate();
}

void Recordset::Delete() {
  impl_->RequireEditable();
  impl_->RequireRow();
  const size_t at = static_cast<size_t>(impl_->position);
  PreparedStatement erase(impl_->database.handle, QStringLiteral("DELETE FROM %1 WHERE rowid = ?1")
                                                      .arg(BracketedName(impl_->known->form->translated.single.table)));
  erase.Bind(1, impl_->keys[at]);
  impl_->database.Run(erase);
  impl_->visited.remove(impl_->keys[at]);
  impl_->keys.erase(impl_->keys.begin() + impl_->position);
  CancelUpdate();
  impl_->onDeleted = true;
}

}  // namespace trimlog
