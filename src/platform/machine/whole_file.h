#pragma once

#include <QByteArray>
#include <QString>

namespace trimlog {

/// Writes a file as a whole or not at all: beside its place, checked and flushed to the disk, then renamed. Whatever
/// goes wrong, a file that stood there stays as it was. Throws an Error, diskFull where there was no room.
void WriteWholeFile(const QString &path, const QByteArray &content);

}  // namespace trimlog
