#include "platform/store/column_types.h"

#include <QHash>

namespace trimlog {

QString DeclaredType(ColumnType type, int length) {
  switch (type) {
    case ColumnType::Boolean:
      return QStringLiteral("BOOLEAN");
    case ColumnType::Byte:
      return QStringLiteral("BYTE");
    case ColumnType::Integer:
      return QStringLiteral("SMALLINT");
    case ColumnType::Long:
      return QStringLiteral("INTEGER");
    case ColumnType::Single:
      return QStringLiteral("REAL");
    case ColumnType::Double:
      return QStringLiteral("DOUBLE");
    case ColumnType::Decimal2:
      return QStringLiteral("DECIMAL2");
    case ColumnType::Date:
      return QStringLiteral("DATE");
    case ColumnType::Text:
      return QStringLiteral("TEXT(%1)").arg(length);
    case ColumnType::Memo:
      break;
  }
  return QStringLiteral("LONGTEXT");
}

QString ColumnDeclaration(const QString &name, ColumnType type, int length) {
  QString declaration = QStringLiteral("[%1] %2").arg(name, DeclaredType(type, length));
  if (type == ColumnType::Boolean) declaration += QStringLiteral(" NOT NULL DEFAULT 0");
  if (type == ColumnType::Text || type == ColumnType::Memo) declaration += QStringLiteral(" COLLATE NOCASE");
  return declaration;
}

std::optional<DeclaredColumn> ParseDeclaredType(QByteArrayView declared) {
  static const QHash<QByteArray, ColumnType> names = {
      {"BOOLEAN", ColumnType::Boolean},   {"YESNO", ColumnType::Boolean},    {"BIT", ColumnType::Boolean},
      {"BYTE", ColumnType::Byte},         {"SMALLINT", ColumnType::Integer}, {"SHORT", ColumnType::Integer},
      {"INTEGER", ColumnType::Long},      {"LONG", ColumnType::Long},        {"INT", ColumnType::Long},
      {"COUNTER", ColumnType::Long},      {"REAL", ColumnType::Single},      {"SINGLE", ColumnType::Single},
      {"DOUBLE", ColumnType::Double},     {"FLOAT", ColumnType::Double},     {"NUMBER", ColumnType::Double},
      {"DECIMAL2", ColumnType::Decimal2}, {"DATE", ColumnType::Date},        {"DATETIME", ColumnType::Date},
      {"TEXT", ColumnType::Text},         {"VARCHAR", ColumnType::Text},     {"CHAR", ColumnType::Text},
      {"LONGTEXT", ColumnType::Memo},     {"MEMO", ColumnType::Memo},        {"NOTE", ColumnType::Memo},
  };
  const qsizetype paren = declared.indexOf('(');
  const QByteArray name = declared.first(paren < 0 ? declared.size() : paren).toByteArray().trimmed().toUpper();
  const auto found = names.constFind(name);
  if (found == names.constEnd()) return std::nullopt;
  DeclaredColumn column{*found, 0};
  if (column.type == ColumnType::Text && paren >= 0) {
    const QByteArray inside = declared.sliced(paren + 1).toByteArray();
    column.length = inside.first(std::max<qsizetype>(inside.indexOf(')'), 0)).trimmed().toInt();
  }
  return column;
}

}  // namespace trimlog
