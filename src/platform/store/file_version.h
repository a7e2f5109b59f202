#pragma once

#include <QByteArray>
#include <QString>

namespace trimlog {

/// What a program file says of itself in its version block, a line for each of company, description, version, names and
/// copyright; "No version available for this file" when it has none.
QString FileVersionText(const QString &path);

/// The same from a file's content.
QString VersionTextOf(const QByteArray &content);

}  // namespace trimlog
