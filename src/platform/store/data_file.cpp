#include "platform/store/data_file.h"

#include <sqlite3.h>

#include <QFile>
#include <QFileInfo>
#include <QtEndian>
#include <array>
#include <memory>

#include "platform/error.h"

namespace trimlog {

namespace {

// The first bytes of every SQLite file: its name, and at fixed places the page size, the number of pages, the version
// and the id that the program gave it.
constexpr int headerSize = 100;
using Header = std::array<uchar, headerSize>;
constexpr size_t pageSizeAt = 16, changeAt = 24, pagesAt = 28, versionAt = 60, applicationAt = 68, validForAt = 92;

quint32 Number(const Header &header, size_t at) { return qFromBigEndian<quint32>(header.data() + at); }

[[noreturn]] void Damaged(const QString &path, const QString &why) {
  throw Error(error_number::fileDamaged, QStringLiteral("Unrecognized database format '%1': %2.").arg(path, why));
}

void CheckHeaderBytes(const Header &header, const QString &path) {
  if (!std::equal(header.begin(), header.begin() + 16, "SQLite format 3"))
    Damaged(path, QStringLiteral("it is no data file"));
  if (Number(header, applicationAt) != static_cast<quint32>(applicationId)) {
    Damaged(path, QStringLiteral("it belongs to another program"));
  }
  if (Number(header, versionAt) > static_cast<quint32>(storeVersion)) {
    Damaged(path, QStringLiteral("it was made by a newer release of the program"));
  }
}

sqlite3_file *FileOf(sqlite3 *connection) {
  sqlite3_file *file = nullptr;
  sqlite3_file_control(connection, "main", SQLITE_FCNTL_FILE_POINTER, &file);
  return file;
}

bool ReadHeader(sqlite3 *connection, Header &header) {
  sqlite3_file *file = FileOf(connection);
  return file != nullptr && file->pMethods != nullptr &&
         file->pMethods->xRead(file, header.data(), headerSize, 0) == SQLITE_OK;
}

[[noreturn]] void ReadOnly(const QString &what) {
  throw Error(error_number::readOnly, QStringLiteral("%1 is read-only, so nothing could be saved.").arg(what));
}

bool HasMoved(sqlite3 *connection) {
  int moved = 0;
  return sqlite3_file_control(connection, "main", SQLITE_FCNTL_HAS_MOVED, &moved) == SQLITE_OK && moved != 0;
}

// A file marked read-only stays as it is even for an account that could write it all the same.
bool MayWrite(const QFileInfo &info) {
  constexpr QFile::Permissions any = QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;
  return info.isWritable() && (info.permissions() & any) != 0;
}

}  // namespace

void CheckPath(const QString &path) {
  const QFileInfo info(path);
  if (!info.exists()) throw Error(error_number::fileMissing, QStringLiteral("Could not find file '%1'.").arg(path));
  if (!info.isFile()) {
    throw Error(error_number::cannotOpen, QStringLiteral("'%1' is not a file, so it cannot be opened.").arg(path));
  }
  if (!info.isReadable()) {
    throw Error(error_number::cannotOpen,
                QStringLiteral("'%1' cannot be read; its permissions do not allow it.").arg(path));
  }
  if (info.size() == 0) Damaged(path, QStringLiteral("it is empty"));
}

void CheckDataFile(const QString &path) {
  CheckPath(path);
  // Looked at through SQLite: where this process holds the file elsewhere, another way of closing it would let go of
  // its lock.
  sqlite3 *look = nullptr;
  const int status = sqlite3_open_v2(path.toUtf8().constData(), &look, SQLITE_OPEN_READONLY, nullptr);
  const std::unique_ptr<sqlite3, decltype(&sqlite3_close)> closes(look, &sqlite3_close);
  if (status != SQLITE_OK) throw Error(error_number::cannotOpen, QStringLiteral("'%1' could not be opened.").arg(path));
  CheckHeader(look, path);
}

void CheckHeader(sqlite3 *connection, const QString &path) {
  Header header{};
  if (!ReadHeader(connection, header)) Damaged(path, QStringLiteral("it is too short"));
  CheckHeaderBytes(header, path);
}

void CheckWritable(const QString &path) {
  const QFileInfo info(path);
  if (!MayWrite(info)) ReadOnly(QStringLiteral("'%1'").arg(path));
  if (!MayWrite(QFileInfo(info.absolutePath()))) ReadOnly(QStringLiteral("The folder of '%1'").arg(path));
  const QFileInfo journal(path + QStringLiteral("-journal"));
  if (journal.exists() && !(journal.isFile() && MayWrite(journal))) {
    ReadOnly(QStringLiteral("'%1', which every change needs,").arg(journal.filePath()));
  }
}

void CheckWritable(sqlite3 *connection, const QString &path) {
  if (sqlite3_db_readonly(connection, "main") != 0) ReadOnly(QStringLiteral("'%1'").arg(path));
}

void CheckInPlace(sqlite3 *connection, const QString &path) {
  if (!HasMoved(connection)) return;
  throw Error(error_number::fileMoved,
              QStringLiteral("The data file '%1' was removed or replaced while the program was running, as programs do "
                             "that synchronize or tidy up files.  Nothing can be saved in it now; what you typed is "
                             "still on the screen.  Please put the file back in its place and try again.  If another "
                             "file stands there that is to be used from now on, make a note of what you typed and "
                             "start the program again.")
                  .arg(path));
}

void CheckComplete(sqlite3 *connection, const QString &path) {
  Header header{};
  sqlite3_int64 size = 0;
  sqlite3_file *file = FileOf(connection);
  if (!ReadHeader(connection, header) || file->pMethods->xFileSize(file, &size) != SQLITE_OK)
    Damaged(path, QStringLiteral("it is too short"));
  // The number of pages counts only while the same writer kept both marks.
  if (Number(header, changeAt) != Number(header, validForAt)) return;
  qint64 pageSize = qFromBigEndian<quint16>(header.data() + pageSizeAt);
  if (pageSize == 1) pageSize = 65536;
  if (size < pageSize * Number(header, pagesAt)) Damaged(path, QStringLiteral("its end is missing"));
}

void LeaveNothingBehind(sqlite3 *connection) {
  sqlite3_exec(connection, "ROLLBACK", nullptr, nullptr, nullptr);
  // The journal beside another file is not ours to remove.
  if (sqlite3_db_readonly(connection, "main") != 0 || HasMoved(connection)) return;
  sqlite3_exec(connection, "PRAGMA journal_mode = DELETE", nullptr, nullptr, nullptr);
}

}  // namespace trimlog
