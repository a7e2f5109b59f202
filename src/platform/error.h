#pragma once

#include <QString>
#include <stdexcept>

namespace trimlog {

/// Numbers that the program tells apart. The data numbers are the classic ones of desktop database engines, so
/// that a support conversation can look them up.
namespace error_number {
inline constexpr int overflow = 6;
inline constexpr int outOfBounds = 9;
inline constexpr int divisionByZero = 11;
inline constexpr int typeMismatch = 13;
inline constexpr int notEditing = 3020;
inline constexpr int notOpen = 3420;
inline constexpr int noCurrentRecord = 3021;
inline constexpr int duplicateKey = 3022;
inline constexpr int tableExists = 3010;
inline constexpr int fileMissing = 3024;
inline constexpr int fileExists = 3204;
inline constexpr int invalidSql = 3075;
inline constexpr int unknownTable = 3078;
inline constexpr int unknownColumn = 3061;
inline constexpr int fileLocked = 3050;
inline constexpr int cannotOpen = 3051;
inline constexpr int readOnly = 3027;
inline constexpr int fileDamaged = 3343;
inline constexpr int fileMoved = 3043;
inline constexpr int diskFull = 3026;
inline constexpr int relation = 3200;
inline constexpr int textTooLong = 3163;
inline constexpr int recordDeleted = 3167;
inline constexpr int requiredValue = 3314;
inline constexpr int other = 3146;
}  // namespace error_number

/// The one error family: a number and a sentence. Thrown by the platform and the logic, caught by the failure
/// guard of a business procedure.
class Error : public std::runtime_error {
 public:
  Error(int number, const QString &description)
      : std::runtime_error(description.toStdString()), number_(number), description_(description) {}
  int Number() const { return number_; }
  const QString &Description() const { return description_; }

 private:
  int number_;
  QString description_;
};

}  // namespace trimlog
