#include "platform/grid/grid_cells.h"

#include <QCoreApplication>

#include "platform/text/rounding.h"
#include "platform/text/text_format.h"

namespace trimlog {

namespace {

QString Say(const char *sentence) { return QCoreApplication::translate("BoundGrid", sentence); }

TypedCell ReadNumber(const GridColumn &column, const QString &text, const QLocale &locale) {
  const std::optional<double> number = ParseNumber(text, locale);
  if (!number) return {{}, Say("Please type a number.")};
  if (column.type == GridType::NumberText) return {PlainText(*number), {}};
  if (column.type == GridType::Number) return {*number, {}};
  if (std::abs(*number) > 2147483647.0) return {{}, Say("This number is too large.")};
  return {WholeLong(*number), {}};
}

TypedCell ReadChoice(const GridColumn &column, const QString &text) {
  for (const GridChoice &choice : column.choices) {
    if (choice.label.compare(text.trimmed(), Qt::CaseInsensitive) == 0) return {choice.value, {}};
  }
  return {{}, Say("Please choose one of the entries of the list.")};
}

TypedCell ReadText(const GridColumn &column, const QString &text) {
  if (column.maxLength > 0 && text.size() > column.maxLength) {
    return {{}, Say("At most %1 characters can be kept here.").arg(column.maxLength)};
  }
  return {text, {}};
}

TypedCell Read(const GridColumn &column, const QString &text, const QLocale &locale) {
  const bool empty = text.trimmed().isEmpty();
  switch (column.type) {
    case GridType::Text:
    case GridType::Memo:
      return ReadText(column, text);
    case GridType::Lookup:  // its rows are in the file: the model finds the text there
      return {{}, Say("Please choose one of the entries of the list.")};
    case GridType::Number:
    case GridType::WholeNumber:
      return empty ? TypedCell{} : ReadNumber(column, text, locale);
    case GridType::NumberText:
      return empty ? TypedCell{QString(), {}} : ReadNumber(column, text, locale);
    case GridType::Date: {
      if (empty) return {};
      const QDate date = ParseDate(text, locale);
      return date.isValid() ? TypedCell{date, {}} : TypedCell{{}, Say("Please type a date.")};
    }
    case GridType::Check:
      return {text == QStringLiteral("-1") || text.compare(QStringLiteral("true"), Qt::CaseInsensitive) == 0, {}};
    case GridType::Choice:
      return ReadChoice(column, text);
  }
  return {};
}

}  // namespace

TypedCell CheckValue(const GridColumn &column, const Value &value) {
  return {value, column.validate ? column.validate(value) : QString()};
}

TypedCell Mended(const GridColumn &column, const QString &text, const TypedCell &typed, const Value &stood) {
  const bool needsIt = column.mend && (!typed.sentence.isEmpty() || text.trimmed().isEmpty());
  return needsIt ? TypedCell{column.mend(stood), {}} : typed;
}

TypedCell ReadTyped(const GridColumn &column, const QString &text, const QLocale &locale) {
  const TypedCell typed = Read(column, text, locale);
  return typed.sentence.isEmpty() ? CheckValue(column, typed.value) : typed;
}

bool IsNumberType(GridType type) {
  return type == GridType::Number || type == GridType::NumberText || type == GridType::WholeNumber;
}

Qt::Alignment AlignmentOf(const GridColumn &column) {
  const Qt::Alignment side = IsNumberType(column.type) ? Qt::AlignRight : Qt::AlignLeft;
  return column.alignment.value_or(side) | (column.type == GridType::Memo ? Qt::AlignTop : Qt::AlignVCenter);
}

QString ShowCell(const GridColumn &column, const Value &value, const QLocale &locale) {
  if (!value.isValid()) return {};
  if (column.type == GridType::Choice) {
    for (const GridChoice &choice : column.choices) {
      if (choice.value == value || choice.value.toString() == value.toString()) return choice.label;
    }
    return {};
  }
  if (IsNumberType(column.type) && !column.pattern.isEmpty()) {
    const std::optional<double> number =
        column.type == GridType::NumberText ? ParseNumber(value.toString()) : std::optional(value.toDouble());
    return number ? Format(*number, column.pattern, locale) : value.toString();
  }
  return TypedForm(column, value, locale);
}

QString TypedForm(const GridColumn &column, const Value &value, const QLocale &locale) {
  if (!value.isValid()) return {};
  if (column.type == GridType::Choice) return ShowCell(column, value, locale);
  if (column.type == GridType::Date || value.typeId() == QMetaType::QDate) return ShortDate(value.toDate(), locale);
  if (column.type == GridType::NumberText) {
    const std::optional<double> number = ParseNumber(value.toString());
    return number ? Format(*number, QStringLiteral("General Number"), locale) : value.toString();
  }
  if (IsNumberType(column.type) || value.typeId() == QMetaType::Double) {
    return Format(value.toDouble(), QStringLiteral("General Number"), locale);
  }
  return value.toString();
}

}  // namespace trimlog
