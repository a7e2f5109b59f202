#pragma once

#include "core/session/session.h"
#include "core/windows/frame/content_window.h"
#include "platform/windows/printing/page_output.h"

namespace trimlog {

/// Puts a content window on a page, dressed for paper for the duration; a failure shows its box and is logged. `output`
/// stands in for the system's printing in tests.
void PrintForm(Session &session, ContentWindow &form, PageOutput *output = nullptr);

/// Prints the window that is shown, after asking.
void PrintCurrentWindow(Session &session, ContentWindow &form, PageOutput *output = nullptr);

}  // namespace trimlog
