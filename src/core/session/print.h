#pragma once

#include <QString>
#include <functional>

#include "core/session/session.h"
#include "platform/printing/printing.h"

namespace trimlog {

/// Prints, with the one failure exit of all printing: the printer's box, and a log line under the caller's names. False
/// when it failed or the person cancelled it.
///
///   Print(session_, "frmDiary", "cmdPrintMeal_Click", [&](Printing &printing) { return printing.PrintList(list); });
bool Print(Session &session, const QString &module, const QString &procedure,
           const std::function<bool(Printing &printing)> &work);

}  // namespace trimlog
