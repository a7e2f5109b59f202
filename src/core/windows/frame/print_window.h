#pragma once

#include "core/session/session.h"
#include "core/windows/frame/content_window.h"

namespace trimlog {

/// Puts a content window on a page, dressed for paper for the duration; a failure shows its box and is logged.
void PrintForm(Session &session, ContentWindow &form);

/// Prints the window that is shown, after asking.
void PrintCurrentWindow(Session &session, ContentWindow &form);

}  // namespace trimlog
