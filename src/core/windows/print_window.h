#pragma once

#include "core/session.h"

namespace trimlog {

class frmMDI;

/// Prints what the main window shows, after asking.
void PrintCurrentWindow(Session &session, frmMDI &frame);

}  // namespace trimlog
