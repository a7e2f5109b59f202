#pragma once

#include <QString>

namespace trimlog {

/// The folder of the shipped files as the build made them; a test copies from it and never writes there.
QString ShippedDir();

/// The project's own folder, for tests that hold documents and facts against the code.
QString SourceDir();

}  // namespace trimlog
