#pragma once

#include <QString>

struct sqlite3;

namespace trimlog {

/// What tells a data file of this program from any other SQLite file: its application id ("TLGP") and the version of
/// the store's conventions in it.
inline constexpr int applicationId = 0x544C4750;
inline constexpr int storeVersion = 1;

/// Looks at a file without opening it as a database: throws fileMissing, cannotOpen for a directory or a file that
/// cannot be read, fileDamaged for an empty one.
void CheckPath(const QString &path);

/// CheckPath, and the file's first bytes: throws fileDamaged when it is no data file of this program.
void CheckDataFile(const QString &path);

/// The same look at the first bytes through a connection that has not read or locked anything yet.
void CheckHeader(sqlite3 *connection, const QString &path);

/// Throws readOnly when the file, its journal or its folder may not be written to.
void CheckWritable(const QString &path);
/// The same for what only SQLite sees, once it has read from the file.
void CheckWritable(sqlite3 *connection, const QString &path);

/// Throws fileMoved when another file, or none, stands where the connection's was opened.
void CheckInPlace(sqlite3 *connection, const QString &path);

/// Throws fileDamaged when the file is shorter than it says it is.
void CheckComplete(sqlite3 *connection, const QString &path);

/// Before a connection closes: no journal stays beside the file.
void LeaveNothingBehind(sqlite3 *connection);

}  // namespace trimlog
