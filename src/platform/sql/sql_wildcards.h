#pragma once

#include <QStringView>

namespace trimlog {

/// LIKE: `*` any characters, `?` one, `#` one digit, `[a-f]` one of a list, `[!a-f]` one not of it. Case does not
/// matter.
bool MatchesWildcards(QStringView text, QStringView pattern);

}  // namespace trimlog
