#pragma once

#include <QString>

#include "core/session/session.h"
#include "platform/machine/operating_system.h"

namespace trimlog {

inline constexpr int localeDecimalSign = 22;  ///< the currency's decimal separator
inline constexpr int localeShortDate = 31;    ///< the short date pattern, e.g. "M/d/yyyy"

/// A value of the person's locale up to its first NUL; "" for an unknown kind.
QString GetLocaleValue(const QLocale &locale, int infoType);

/// The path without one trailing separator.
QString TrimTrailingSlash(const QString &path);

/// Opens a page in the default browser; shows the box when that fails.
void GotoWebAddress(Session &session, const QString &url);

/// Starts the system information tool where there is one; shows the box where there is none.
void StartSysInfo(Session &session, const OperatingSystem &system);

}  // namespace trimlog
