#pragma once

#include <QString>

#include "core/session/session.h"

namespace trimlog {

/// Opens the help page of a topic, "" for the first page: help/<topic>.html beside the program, in the browser. Says so
/// when the program was installed without its help.
void ShowHelp(Session &session, const QString &topic);

}  // namespace trimlog
