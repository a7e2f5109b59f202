// Writes weights into a data file as the calendar does, one transaction a weight, and reports each one on the standard
// output once it is committed: "<number> <day> <weight>". Runs until it is killed, or ends with the status 3 and the
// error's number on the standard error when a weight is refused.
//
//   crash_writer FILE FIRST-NUMBER
#include <unistd.h>

#include <cstdio>
#include <random>

#include "platform/store/database.h"
#include "platform/text/text_format.h"

using namespace trimlog;

namespace {

constexpr int days = 400;

// The change of one calendar cell: the next row is linked anew, the day's row goes and comes again, and the action's
// number is kept in the same transaction.
void WriteWeight(Database &data, int number, int day, double weight) {
  const QDate date = QDate(2024, 1, 1).addDays(day);
  const QString loss = PlainText(number % 100);
  Transaction transaction(data);
  data.Execute(QStringLiteral("UPDATE weight_loss SET weight_loss.ThisLoss = Format(\"%1\",\"Standard\") WHERE "
                              "((weight_loss.PersonID=1) And (weight_loss.ThisDate=%2)); ")
                   .arg(loss, SQLDate(date.addDays(1))));
  data.Execute(
      QStringLiteral("DELETE weight_loss.*, weight_loss.ThisDate FROM weight_loss WHERE ((weight_loss.PersonID=1) AND "
                     "(weight_loss.ThisDate=%1)); ")
          .arg(SQLDate(date)));
  data.Execute(
      QStringLiteral(
          "INSERT INTO weight_loss ( PersonID, ThisDate, ThisWeight, ThisLoss ) SELECT 1 AS Expr3, %1 AS Expr2, "
          "Format(\"%2\",\"Standard\") AS Expr1, Format(\"%3\",\"Standard\") ; ")
          .arg(SQLDate(date), PlainText(weight), loss));
  data.Execute(QStringLiteral("UPDATE last_action SET last_action.ActionNumber = %1, last_action.NextDate = %2")
                   .arg(number)
                   .arg(SQLDate(date.addDays(1))));
  transaction.Commit();
}

}  // namespace

int main(int, char **arguments) try {
  const auto data = Database::Open(QString::fromLocal8Bit(arguments[1]));
  std::mt19937 random(std::random_device{}());
  for (int number = std::atoi(arguments[2]);; ++number) {
    const int day = static_cast<int>(random() % days);
    const double weight = 150 + static_cast<double>(random() % 5000) / 100;
    WriteWeight(*data, number, day, weight);
    char line[64];
    const int length = std::snprintf(line, sizeof line, "%d %d %.2f\n", number, day, weight);
    if (write(STDOUT_FILENO, line, static_cast<size_t>(length)) != length) return 0;
  }
} catch (const Error &refusal) {
  std::fprintf(stderr, "%d", refusal.Number());
  return 3;
}
