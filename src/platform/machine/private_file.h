#pragma once

#include <QString>

namespace trimlog {

/// Files that hold what people tell the program are for their owner's eyes. Where the system knows no such thing,
/// nothing happens.

/// Takes the rights of everybody else from a file that has them; what the owner may do stays. Passes over what is not
/// there and what belongs to somebody else.
void MakePrivate(const QString &path);

/// Makes an empty file that nobody else could read at any moment. False when something stands there already or the
/// place cannot be written to.
bool CreatePrivate(const QString &path);

}  // namespace trimlog
