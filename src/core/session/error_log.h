#pragma once

#include <QString>

#include "core/session/session.h"

namespace trimlog {

/// Appends "<date and time> - <module>, <procedure>, <message>" to errorlog.txt in the program directory. Never throws:
/// a read-only or missing directory loses the line.
void LogError(const Session &session, const QString &module, const QString &procedure, const QString &message);

/// Appends "<date and time> - <message>" to any log file. Never throws.
void AppendLogLine(const Session &session, const QString &path, const QString &message);

}  // namespace trimlog
