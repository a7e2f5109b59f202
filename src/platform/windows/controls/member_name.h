#pragma once

#include <QString>

namespace trimlog {

/// The name of member `index` of a control array: "txtData(12)".
inline QString MemberName(const char *control, int index) {
  return QStringLiteral("%1(%2)").arg(QLatin1String(control)).arg(index);
}

}  // namespace trimlog
