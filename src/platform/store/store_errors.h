#pragma once

#include "platform/error.h"

struct sqlite3;

namespace trimlog {

/// The Error for what a connection last reported.
Error StoreError(sqlite3 *connection, int status);

}  // namespace trimlog
