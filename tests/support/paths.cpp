#include "support/paths.h"

namespace trimlog {

QString ShippedDir() { return QStringLiteral(TRIMLOG_SHIPPED_DIR); }

QString SourceDir() { return QStringLiteral(TRIMLOG_SOURCE_DIR); }

}  // namespace trimlog
