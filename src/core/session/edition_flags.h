#pragma once

namespace trimlog {

/// Which edition this is; read once at start (core/start/edition.h).
struct EditionFlags {
  bool BizEd = false;  ///< profiles have IDs and passwords that an administrator looks after
  bool BizEdLoginMode = false;
  bool SeravaEdition = false;
  bool HandheldSupport = false;
};

}  // namespace trimlog
