#include "weightlog/weight_log.h"

#include "core/profiles/goal.h"
#include "core/session/session.h"
#include "platform/store/recordset.h"
#include "platform/text/rounding.h"
#include "platform/text/text_format.h"

namespace trimlog {

namespace {

WeightRow CurrentRow(const Recordset &rows) {
  return {rows.Field(0).toDate(), rows.Field(1).toDouble(), rows.Field(2).toDouble()};
}

bool IsPlainNumber(const QString &text, const QLocale &locale) {
  return std::all_of(text.begin(), text.end(),
                     [&locale](QChar c) { return (c >= u'0' && c <= u'9') || QString(c) == locale.decimalPoint(); });
}

}  // namespace

WeightLog::WeightLog(const Session &session)
    : database_(session.Data()), personID_(session.profile.CurrentPersonID.toInt()) {}

std::optional<WeightRow> WeightLog::FirstOf(const QString &condition, const QString &order,
                                            const Params &params) const {
  const QString statement = QStringLiteral(
                                "SELECT weight_loss.ThisDate, weight_loss.ThisWeight, weight_loss.ThisLoss "
                                "FROM weight_loss WHERE ((weight_loss.PersonID=?)%1) ORDER BY weight_loss.ThisDate%2; ")
                                .arg(condition, order);
  const Recordset rows = database_.OpenRecordset(statement, Params{personID_} + params, RecordsetKind::Forward);
  if (rows.Eof()) return std::nullopt;
  return CurrentRow(rows);
}

std::optional<WeightRow> WeightLog::Before(const QDate &date) const {
  return FirstOf(QStringLiteral(" And (weight_loss.ThisDate<?)"), QStringLiteral(" DESC"), {date});
}

std::optional<WeightRow> WeightLog::After(const QDate &date) const {
  return FirstOf(QStringLiteral(" And (weight_loss.ThisDate>?)"), {}, {date});
}

std::vector<WeightRow> WeightLog::Between(const QDate &first, const QDate &last) const {
  std::vector<WeightRow> found;
  Recordset rows = database_.OpenRecordset(
      QStringLiteral("SELECT weight_loss.ThisDate, weight_loss.ThisWeight, weight_loss.ThisLoss FROM weight_loss "
                     "WHERE (((weight_loss.PersonID)=?) AND ((weight_loss.ThisDate) Between ? And ?)) "
                     "ORDER BY weight_loss.ThisDate; "),
      {personID_, first, last}, RecordsetKind::Forward);
  for (; !rows.Eof(); rows.MoveNext()) found.push_back(CurrentRow(rows));
  return found;
}

std::optional<double> WeightLog::LowestBetween(const QDate &first, const QDate &last) const {
  const Recordset rows = database_.OpenRecordset(
      QStringLiteral("SELECT Min(weight_loss.ThisWeight) As MinWeight FROM weight_loss "
                     "WHERE ((weight_loss.PersonID=?) And (weight_loss.ThisDate BETWEEN ? And ?));"),
      {personID_, first, last});
  const Value lowest = rows.Field(0);
  if (!lowest.isValid()) return std::nullopt;
  return lowest.toDouble();
}

void WeightLog::StoreLoss(const QDate &date, double loss) {
  database_.Execute(QStringLiteral("UPDATE weight_loss SET weight_loss.ThisLoss = Format(?,\"Standard\") "
                                   "WHERE ((weight_loss.PersonID=?) And (weight_loss.ThisDate=?)); "),
                    {PlainText(loss), personID_, date});
}

void WeightLog::Delete(const QDate &date) {
  database_.Execute(QStringLiteral("DELETE weight_loss.*, weight_loss.ThisDate FROM weight_loss "
                                   "WHERE ((weight_loss.PersonID=?) AND (weight_loss.ThisDate=?)); "),
                    {personID_, date});
}

void WeightLog::Insert(const WeightRow &row) {
  database_.Execute(
      QStringLiteral("INSERT INTO weight_loss ( PersonID, ThisDate, ThisWeight, ThisLoss ) SELECT ? AS Expr3, "
                     "? AS Expr2, Format(?,\"Standard\") AS Expr1, Format(?,\"Standard\") ; "),
      {personID_, row.date, PlainText(row.weight), PlainText(row.loss)});
}

double LossBetween(double previous, double next) { return RoundHalfAway(previous - next, 9); }

double NextLoss(const std::optional<double> &weight, const std::optional<WeightRow> &previous, const WeightRow &next) {
  if (weight) return LossBetween(*weight, next.weight);
  return previous ? LossBetween(previous->weight, next.weight) : 0;
}

TypedWeight ReadTypedWeight(const QString &text, const QLocale &locale) {
  const QString typed = text.trimmed();
  if (typed.isEmpty()) return {};
  const std::optional<double> number = ParseNumber(typed, locale);
  if (!number || *number > heaviestWeight) return {TypedWeight::Check::NotNumeric, {}, text};
  const double weight = RoundHalfAway(*number, 2);
  if (weight <= 0) return {TypedWeight::Check::NotPositive, {}, text};
  const bool keepsText = weight == *number && IsPlainNumber(typed, locale);
  return {TypedWeight::Check::Fine, weight, keepsText ? typed : WeightText(weight, locale)};
}

QString WeightText(double weight, const QLocale &locale) {
  return Format(RoundHalfAway(weight, 2), QStringLiteral("General Number"), locale);
}

}  // namespace trimlog
